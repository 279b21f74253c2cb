// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace zev {

// Where the pages of a whole site come from.

/// Which files of a folder are pages. A pattern is held against the path from that folder on, with
/// slashes; "*" stands for any run of characters, slashes among them.
struct PagePatterns {
    std::vector<std::string> included;  ///< empty: "*.htm" and "*.html"
    std::vector<std::string> excluded;  ///< of files and whole folders ("old/*")
};

struct FoundPages {
    std::vector<std::string> paths;  ///< a folder's own before those of its subfolders
    std::vector<FileError> errors;   ///< folders that could not be looked into
    bool isStopped = false;          ///< these are not all
};

/// The pages in the folder and all its subfolders. Links are not followed, and backups (a name with
/// ".bak" in it) are no pages. `goesOn` is asked now and then, with how many there are so far;
/// false stops.
FoundPages findPages(const FileSystem& files, const std::string& folder,
                     const PagePatterns& patterns,
                     const std::function<bool(std::size_t foundCount)>& goesOn = {});

/// The paths in a list, one to a line, or each ended by NUL where the list has any. Empty ones are
/// left out.
std::vector<std::string> pathsInList(std::string_view list);

/// Whether the text is a site map, which is XML with addresses of pages.
bool isSiteMap(std::string_view text);

/// The pages that a site map names, as files of the folder that the map's own place in the site is
/// kept in. An address that ends in a slash is that folder's index.html, or index.htm where only
/// that is there. What lies elsewhere, or has no such place, is left out.
std::vector<std::string> pathsInSiteMap(const FileSystem& files, std::string_view map,
                                        const std::string& folder);

}  // namespace zev
