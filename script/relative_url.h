// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "model/menu_document.h"

namespace zev {

// Path arithmetic between files and URLs relative to the definition file's folder. Absolute paths
// of the system itself ("/web") follow the rules of drives with "/" as the separator.

struct PathParts {
    std::string name;    ///< file name
    std::string folder;  ///< without its last separator; "/" for a file in the root directory
};

/// Cuts at the last separator; a path without one has no folder.
PathParts SplitPath(std::string_view path);

/// URL of the file `path` relative to the folder `base`; `path` unchanged when it is not absolute
/// or lies on another drive.
std::string ToRelativeURL(std::string_view base, std::string_view path);

/// File path of a relative `url` seen from `base`; `url` unchanged when it is an address.
std::string ToAbsolutePath(std::string_view base, std::string_view url);

/// `url`, relative to `oldFolder`, made relative to `newFolder`.
std::string RebaseURL(std::string_view oldFolder, std::string_view newFolder, std::string_view url);

/// Rebases link, images and submenu background of every item. The top menu's and the defaults'
/// background images and all targets stay as they are.
void RebaseAllURLs(MenuContent& content, std::string_view oldFolder, std::string_view newFolder);

/// The same in the menu being edited; returns the changes that take it back.
Changes RebaseAllURLs(MenuDocument& document, std::string_view oldFolder,
                      std::string_view newFolder);

}  // namespace zev
