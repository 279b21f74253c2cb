// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/command_files.h"
#include "integrator/link_code.h"
#include "integrator/menu_place.h"
#include "platform/file_system.h"

namespace zev {

// The commands that bring a menu into web pages. Lines on standard output end in LF.

/// A popup menu instead of a horizontal or vertical one.
struct PopupOptions {
    std::string submenuId;
    PopupPlacement placement;
};

/// Prints the code that shows the menu of the definition at `definitionURL`.
ExitStatus linkcodeCommand(const std::string& definitionURL,
                           const std::optional<PopupOptions>& popup);

struct IntegrateOptions {
    std::string definition;  ///< file, or address ("http://...") taken as it is
    std::string library;     ///< folder of the run-time files, or address
    bool hasBackups = true;
    bool keepsOtherScripts = false;
    bool isDryRun = false;
    bool skipsFailing = false;  ///< pages that lack a place for the menu's code stay as they are
    std::string report;         ///< file for the report; empty: standard output
    std::optional<PopupOptions> popup;
    std::optional<MenuPlace> place;   ///< the menu is put there; nothing: its code is printed
    bool hasLinkList = false;         ///< with the menu, a list of its links for who has no script
    bool replacesReferences = false;  ///< to the definition, in code of this program
    std::vector<std::string> pages;
};

/// Integrates the pages, writes the report and prints the code to paste, which differs between
/// pages of different folders. The run's name is printed on standard error. Counted when any page
/// failed; when the report goes to a file, each
/// that did is named on standard error.
ExitStatus integrateCommand(FileSystem& files, const IntegrateOptions& options);

/// Takes the menu out of the pages and writes the report; of the options, those about files count.
ExitStatus removeCommand(FileSystem& files, const IntegrateOptions& options);

}  // namespace zev
