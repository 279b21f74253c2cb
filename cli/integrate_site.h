// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "cli/command_files.h"
#include "platform/file_system.h"

namespace zev {

/// Where the pages of a whole site come from.
struct SiteArguments {
    std::string folder;                 ///< with all below it; empty: none
    std::vector<std::string> included;  ///< patterns of paths in the folder
    std::vector<std::string> excluded;
    std::string list;  ///< file with paths, or "-"; empty: none

    bool areGiven() const { return !folder.empty() || !list.empty(); }
};

void addSiteOptions(CLI::App& command, SiteArguments& site);

/// Adds the site's pages to those there are. When it cannot, or there are none at all, prints why
/// and gives the status to end with.
std::optional<ExitStatus> addSitePages(const FileSystem& files, const SiteArguments& site,
                                       std::vector<std::string>& pages);

}  // namespace zev
