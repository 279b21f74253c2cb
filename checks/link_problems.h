// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "checks/menu_problems.h"
#include "platform/file_system.h"

namespace zev {

/// Where the addresses of a menu lead to on this disk.
struct SiteFolders {
    std::string definition;  ///< folder of the definition file; empty: the current one
    std::string root = {};   ///< what "/" is on the web server; empty: not known
};

/// The links, places in pages and images that are not there, and the images in captions without
/// alt, in tree order. Addresses of other servers, "javascript:" calls and, without a root, those
/// that begin with "/" are not looked up; nor are places in anything but HTML files.
std::vector<MenuProblem> findBrokenLinks(const MenuContent& content, const FileSystem& files,
                                         const SiteFolders& folders);

}  // namespace zev
