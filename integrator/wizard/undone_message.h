// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "integrator/run_undo.h"

namespace zev {

class MessageBox;

/// What became of the pages when runs were undone, as a person reads it.
std::string undoneText(const std::vector<UndoneRun>& runs);

/// Tells it; pages that were not given back are listed.
void showUndone(MessageBox& messages, const std::vector<UndoneRun>& runs);

}  // namespace zev
