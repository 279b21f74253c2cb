// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "integrator/page_integration.h"
#include "integrator/placement.h"
#include "integrator/wizard_answers.h"

namespace zev {

/// How the menu is put into pages, beside their integration.
struct MenuPlacing {
    MenuPlace place;
    /// Words of the page that become the link of a popup menu. Empty: the link is put at the place.
    std::string linkText;
    /// What stands behind the menu's code, for the definition's address as the page sees it; null:
    /// nothing.
    std::function<std::string(const std::string& definitionURL)> addition = {};
};

struct SiteRunOptions {
    WizardAnswers answers;
    std::optional<MenuPlacing> placing = {};
    /// References of this program to the definition at an earlier place are given its new one.
    bool replacesReferences = false;
    /// In pages that were integrated before, references to the definition's earlier place are told
    /// of.
    bool looksForReferences = false;
    bool isRemoval = false;         ///< what earlier runs put in is taken out instead
    bool isDryRun = false;          ///< nothing is written; the result is that of a real run
    std::string recordFolder = {};  ///< for what it takes to undo runs; empty: nothing is recorded
    std::time_t startedAt = 0;
};

/// A reference that names the definition's earlier place, or somebody's own.
struct EarlierReference {
    std::string page;  ///< full path
    std::string url;
};

/// What to know about a page.
struct NotedPage {
    std::string page;  ///< full path
    PageNote note;
};

struct SiteRunResult {
    std::string report;  ///< lines that end in CR LF, the summary the last ones
    RunSummary summary;
    IntegrationStatus lastPage;
    std::vector<std::string> donePages;  ///< full paths
    std::vector<NotedPage> notes;        ///< in the order of the pages
    std::string name;         ///< by which the run can be undone; empty: it changed nothing, or
                              ///< nothing is recorded
    FileOutcome recordError;  ///< why not all of it can be undone
    std::vector<EarlierReference> movedReferences;    ///< that this program can replace
    std::vector<EarlierReference> foreignReferences;  ///< written by hand, to another address
};

/// Integrates pages or takes the menu out of them; each of `pages` is of one folder, and gets the
/// addresses as that sees them. Null for `shouldGoOn`: it is not asked.
SiteRunResult runOverSite(FileSystem& files, const std::vector<ChosenFiles>& pages,
                          const SiteRunOptions& options, const ShouldGoOn& shouldGoOn);

/// The addresses that the definition has for such pages, each with the folders that see it so.
std::map<std::string, std::set<std::string>> definitionURLs(const std::vector<ChosenFiles>& pages,
                                                            const WizardAnswers& answers);

/// What such a run does to pages from whose folder the URLs are seen.
RewriteOptions rewriteOptions(const SiteRunOptions& options, const IntegrationURLs& urls);

}  // namespace zev
