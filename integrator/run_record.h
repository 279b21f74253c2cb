// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ctime>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "integrator/page_rewriter.h"
#include "platform/file_system.h"

namespace zev {

/// Tells contents of a page apart.
struct PageMark {
    std::uint64_t size = 0;  ///< bytes
    std::uint64_t hash = 0;

    static PageMark of(std::string_view page);
    bool operator==(const PageMark&) const = default;
};

/// What it takes to undo what a run did to one page.
struct RecordedPage {
    std::string path;
    unsigned mode = 0;  ///< permissions before the run; 0 where they were not known
    PageMark before;
    PageMark after;
    std::vector<PageEdit> edits;  ///< make the page before of the one after
};

/// Writes down what a run does, page by page, in a file of its own that only the user may read: a
/// page may hold what is nobody else's business. The file is made before the first page that
/// changes, and a run without one leaves none. When the program is killed it tells of every page
/// that was changed; when the power fails it may lack those of the last folder. It is locked until
/// this object goes, so that nobody undoes a run that is still going on.
///
///     2026-11-22T02:15:07-1     beginning of the run, UTC, and a number within that second
class RunRecord {
  public:
    /// `folder` is for the files of all runs, full path. `files` is not owned and must outlive this
    /// object.
    RunRecord(FileSystem& files, std::string folder, std::time_t startedAt);
    RunRecord(const RunRecord&) = delete;
    RunRecord& operator=(const RunRecord&) = delete;
    ~RunRecord();

    /// Name of the run; empty while no page has changed.
    const std::string& name() const { return m_name; }
    /// Why the run cannot be undone from some page on. Nothing is written then any more.
    const FileOutcome& error() const { return m_error; }

    /// To be called before the page at `path` (full path) is replaced by `result`, which `edits`
    /// make of it.
    void append(const std::string& path, std::string_view page, std::string_view result,
                const std::vector<PageEdit>& edits);
    /// What was written down outlives the power from now on. Once a folder: page by page it would
    /// cost as much as the pages do.
    void flush();

  private:
    FileOutcome begin();

    FileSystem& m_files;
    std::string m_folder;
    std::time_t m_startedAt;
    std::unique_ptr<GrowingFile> m_file;
    std::string m_name;
    FileOutcome m_error;
    std::string m_entry;  // kept, so that its memory need not be found anew for each page
};

/// Names of the runs that can be undone, the newest first. A folder that is not there has none.
std::vector<std::string> listRuns(const FileSystem& files, const std::string& folder);

/// Where the record of a run is.
std::string recordPath(const std::string& folder, const std::string& name);

/// What the record of a run tells, in the order of the run. A page that was being written down when
/// the run was killed is left out: it had not been changed yet.
FileResult<std::vector<RecordedPage>> readRun(const FileSystem& files, const std::string& folder,
                                              const std::string& name);

}  // namespace zev
