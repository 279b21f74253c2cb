// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "integrator/page_rewriter.h"
#include "platform/common_dialogs.h"
#include "platform/file_system.h"

namespace zev {

struct IntegrationURLs {
    std::string definition;  ///< of the definition file
    std::string library;     ///< in front of the names of the run-time files
};

/// What the user typed as URLs seen from the pages' folder. Full paths become relative ("C:\..."
/// and the system's own "/..."; a lower-case drive letter is none); the library folder then gets a
/// slash at its end. Everything else is taken for a URL as it is, without the spaces at its ends,
/// and a missing last slash stays missing.
IntegrationURLs CalculateURL(std::string_view pagesFolder, std::string_view definition,
                             std::string_view library);

/// Full path of a page in the folder with the full path `folder`: both joined by the separator of
/// the folder's own form.
std::string pagePath(const std::string& folder, const std::string& name);

/// How many of the page's scripts integration drops unless other scripts are kept.
FileResult<std::size_t> countDroppedScripts(const FileSystem& files, const std::string& path);

/// Why a page was not integrated.
struct PageError {
    enum class Code { IsTemporaryFile, NotRead, NotBackedUp, NotSaved };
    Code code = Code::NotSaved;
    /// The file at fault and the system's words; of a page with the name of the temporary file only
    /// its path.
    FileError file;
};

/// Asked before each page: how many are done of how many. False stops.
using ShouldGoOn = std::function<bool(std::size_t doneCount, std::size_t totalCount)>;

struct IntegrationOptions {
    RewriteOptions rewrite;
    bool hasBackups = true;  ///< each page is copied to its name with ".bak" first
    bool isDryRun = false;   ///< nothing is written; the report is that of a real run
};

/// Puts the menu into pages that exist already, and writes a report about it. A page is replaced
/// whole or not at all, and only after its backup is whole. While one is replaced, the file
/// "~qxtmp.htm" lies beside it; a file of that name that was there before is lost.
class PageIntegrator {
  public:
    /// `files` is not owned and must outlive this object.
    PageIntegrator(FileSystem& files, IntegrationOptions options);

    /// Of the page last processed; all false when it could not be read or saved.
    const IntegrationStatus& status() const { return m_status; }
    /// Lines for the user, each ending in CR LF.
    const std::string& report() const { return m_report; }
    /// True when a page was not there, could not be read or saved, or lacks a place for the menu's
    /// code, or when a temporary file was left.
    bool hasFailed() const { return m_hasFailed; }

    /// Integrates pages one after the other. A page that fails does not keep the next ones from
    /// being integrated. False when stopped.
    bool IntegratePages(const ChosenFiles& inputFiles, const ShouldGoOn& shouldGoOn = {});
    /// Rewrites one page and sets `status()`. After a failure the page is as it was and no
    /// temporary file is left.
    std::optional<PageError> IntegrateFile(const std::string& path);
    /// Appends to the report what became of the page last processed.
    void WriteFileReport();

  private:
    void integratePage(const std::string& path);
    std::optional<PageError> replacePage(const std::string& path, std::string bytes);
    void reportError(const std::string& path, const PageError& error);
    void appendLine(std::string_view line);

    FileSystem& m_files;
    IntegrationOptions m_options;
    IntegrationStatus m_status;
    std::string m_report;
    bool m_hasFailed = false;
};

}  // namespace zev
