// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "library/library_files.h"

namespace zev {

/// The sentence for the person when a copy failed; empty when there is nothing to say.
std::string copyProblemText(const CopyOutcome& outcome);

/// The sentence about run-time files in `folder` that are not those the program was built with;
/// empty without such files.
std::string changedFilesText(const std::string& folder, const std::vector<std::string_view>& names);

}  // namespace zev
