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
    /// The menu may be anybody's, and nobody has asked to look: only pages below `definition`,
    /// which is a full path then, are read, and not much of them; an address that climbs up to the
    /// root of the disk is not looked up.
    bool isUnasked = false;
};

/// The links, places in pages and images that are not there, and the images without alt in captions
/// and in the HTML around them, in tree order. Addresses of other servers, "javascript:" calls and,
/// without a root, those that begin with "/" are not looked up; nor are places in anything but HTML
/// files.
std::vector<MenuProblem> findBrokenLinks(const MenuContent& content, const FileSystem& files,
                                         const SiteFolders& folders);

}  // namespace zev
