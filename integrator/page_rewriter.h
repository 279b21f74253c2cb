// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "integrator/page_edit.h"
#include "integrator/page_note.h"
#include "integrator/placement.h"

namespace zev {

/// What became of one page.
struct IntegrationStatus {
    bool bPrevious = false;     ///< the page was integrated before
    bool bHeadDone = false;     ///< the script references were written
    bool bBodyDone = false;     ///< the body tag has its event handlers
    bool bEndBodyDone = false;  ///< the call that creates the menu was written
    bool bSuccess = false;      ///< all three were written, and the page was saved
    /// Why the menu could not be placed where it was to be; the page has no edits then.
    std::optional<PlaceProblem> placeProblem;
    bool isMenuPlaced = false;    ///< as the options want it; false where the page has its own call
    std::vector<PageNote> notes;  ///< in the order of the page
    /// Names, as `scriptName` gives them, of the scripts that were dropped, but for those that an
    /// earlier run wrote; in the order of the page, each as often as it stands there.
    std::vector<std::string> removedScripts;

    /// Whether every place for the menu's code was found.
    bool hasAllPlaces() const { return bHeadDone && bBodyDone && bEndBodyDone; }
};

struct RewriteOptions {
    std::string libraryURL;          ///< in front of "zevmenu_loader.js", as it is
    bool keepsOtherScripts = false;  ///< false: scripts that do not name JavaScript are dropped
    std::optional<PlacedMenu> menu = {};  ///< put into the page, too; nothing: left to be pasted
    /// Takes the place of the definition's address in code that this program wrote and somebody
    /// pasted; empty: that stays.
    std::string newDefinitionURL = {};
    /// Names, as `scriptName` gives them, of scripts that stay all the same.
    std::vector<std::string> keptScripts = {};
};

/// What puts the menu's code into a page and takes that of an earlier run out: in the order of the
/// page, without overlap. Sets all of `status` but `bSuccess`.
std::vector<PageEdit> pageEdits(std::string_view page, const RewriteOptions& options,
                                IntegrationStatus& status);

/// Where `options.menu`, which there must be, goes in a page that is integrated so. A page without
/// a placed menu that has a definition and its call of its own keeps them and gets no second one;
/// scripts that integration drops do not count.
Placement placementIn(std::string_view page, const RewriteOptions& options);

/// The page with its edits done, and the status of `pageEdits`.
std::string rewritePage(std::string_view page, const RewriteOptions& options,
                        IntegrationStatus& status);

/// Whether an earlier run has left its mark, or its reference to the library, in the page.
bool isIntegrated(std::string_view page);

/// How many scripts of the page are dropped unless other scripts are kept.
std::size_t countDroppedScripts(std::string_view page);

}  // namespace zev
