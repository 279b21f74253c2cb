// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "integrator/page_rewriter.h"
#include "platform/common_dialogs.h"
#include "platform/file_system.h"

namespace zev {

class RunRecord;

struct IntegrationURLs {
    std::string definition;  ///< of the definition file
    std::string library;     ///< in front of the names of the run-time files
};

/// What the user typed as URLs seen from the pages' folder. Full paths become relative ("C:\..."
/// and the system's own "/..."; a lower-case drive letter is none), with what an address cannot
/// hold percent-encoded; the library folder then gets a slash at its end. Everything else is taken
/// for a URL as it is, without the spaces at its ends, and a missing last slash stays missing.
IntegrationURLs CalculateURL(std::string_view pagesFolder, std::string_view definition,
                             std::string_view library);

/// Full path of a page in the folder with the full path `folder`: both joined by the separator of
/// the folder's own form.
std::string pagePath(const std::string& folder, const std::string& name);

/// How many of the page's scripts integration drops unless other scripts are kept.
FileResult<std::size_t> countDroppedScripts(const FileSystem& files, const std::string& path);

/// Why a page was not integrated.
struct PageError {
    enum class Code { IsTemporaryFile, NotRead, NoPlace, NotBackedUp, NotSaved };
    Code code = Code::NotSaved;
    /// The file at fault and the system's words, or what is wrong with the place; of a page with
    /// the name of the temporary file only its path.
    FileError file;
};

/// Asked before each page: how many are done of how many. False stops.
using ShouldGoOn = std::function<bool(std::size_t doneCount, std::size_t totalCount)>;

struct IntegrationOptions {
    RewriteOptions rewrite;
    bool hasBackups = true;     ///< each page is copied to its name with ".bak" first
    bool isDryRun = false;      ///< nothing is written; the report is that of a real run
    bool isRemoval = false;     ///< what an earlier run put in is taken out instead
    bool skipsFailing = false;  ///< a page that lacks a place for the menu's code stays as it is
    /// Gets what it takes to undo the run; not owned, null for none. It outlives the integrator.
    RunRecord* record = nullptr;
};

/// What became of a run's pages.
struct RunSummary {
    std::size_t doneCount = 0;
    std::vector<std::string> failedPages;  ///< full paths
    std::vector<std::string> skippedPages;

    void add(const RunSummary& other);
    /// The end of the report: a line for each page that failed or was skipped, then the numbers and
    /// an empty line. Each ends in CR LF.
    std::string text() const;
};

/// The name of the temporary file that lies beside a page while it is replaced.
extern const char* const kTemporaryPageName;

/// Removes the one that a killed run has left beside the page, if there is one.
FileOutcome removeTemporaryPage(FileSystem& files, const std::string& pagePath);

/// Puts the menu into pages that exist already, or takes it out of them, and writes a report about
/// it. A page is replaced whole or not at all, and only after its backup is whole. While one is
/// replaced, the file "~qxtmp.htm" lies beside it; a file of that name that was there before is
/// lost.
///
/// A backup of an earlier run that holds the page without the menu is kept as ".bak.original" (then
/// ".bak.original.2" ...), before one with the menu takes its place.
class PageIntegrator {
  public:
    /// `files` is not owned and must outlive this object.
    PageIntegrator(FileSystem& files, IntegrationOptions options);

    /// Of the page last processed; all false when it could not be read or saved.
    const IntegrationStatus& status() const { return m_status; }
    /// Lines for the user about each page, each ending in CR LF; the summary is not among them.
    const std::string& report() const { return m_report; }
    const RunSummary& summary() const { return m_summary; }
    /// True when a page was not there, could not be read or saved, or lacks a place for the menu's
    /// code and was not skipped for that.
    bool hasFailed() const { return !m_summary.failedPages.empty(); }

    /// Integrates pages one after the other. A page that fails does not keep the next ones from
    /// being integrated. False when stopped. Until `finish`, a failing power may bring old pages
    /// back.
    bool IntegratePages(const ChosenFiles& inputFiles, const ShouldGoOn& shouldGoOn = {});
    /// To be called after the last page: what was written outlives the power from then on, and what
    /// it takes to undo that before it. Pages for which this fails count as failed.
    void finish();
    /// Rewrites one page and sets `status()`. After a failure, and when the page is skipped, it is
    /// as it was and no temporary file is left.
    std::optional<PageError> IntegrateFile(const std::string& path);
    /// Appends to the report what became of the page last processed.
    void WriteFileReport();

  private:
    void integratePage(const std::string& path);
    std::vector<PageEdit> editsOf(std::string_view page, IntegrationStatus& status) const;
    std::optional<PageError> replacePage(const std::string& path, std::string page,
                                         const std::vector<PageEdit>& edits);
    FileOutcome keepOriginal(const std::string& path, const std::string& page);
    bool isSkipped() const;
    void reportPlaces();
    void reportSkippedPage();
    void reportRemovedScripts();
    void reportError(const std::string& path, const PageError& error);
    void writeRemovalReport();
    void appendLine(std::string_view line);

    FileSystem& m_files;
    IntegrationOptions m_options;
    IntegrationStatus m_status;
    std::string m_report;
    RunSummary m_summary;
    bool m_isWritten = false;                   // the page last processed
    std::vector<std::string> m_unflushedPages;  // of those that are done
};

}  // namespace zev
