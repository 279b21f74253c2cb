#pragma once

#include <string>

#include "library/library_files.h"

namespace zev {

/// The sentence for the person when a copy failed; empty when there is nothing to say.
std::string copyProblemText(const CopyOutcome& outcome);

}  // namespace zev
