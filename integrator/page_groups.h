// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/common_dialogs.h"

namespace zev {

/// Full paths of chosen pages, in their order.
std::vector<std::string> pagePaths(const ChosenFiles& pages);

/// Pages of any folders as one choice, from their full paths: the folder that holds all of them,
/// and what leads to each from there; bare names where all lie in one folder. Each page once, in
/// the order of the paths. No pages when no folder holds all of them, as on two drives.
ChosenFiles chosenPages(const std::vector<std::string>& paths);

/// Such a choice taken apart: each part is of one folder, with bare names. The order stays.
std::vector<ChosenFiles> pagesByFolder(const ChosenFiles& pages);

}  // namespace zev
