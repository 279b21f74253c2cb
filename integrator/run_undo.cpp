// SPDX-License-Identifier: MIT
#include "integrator/run_undo.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <utility>

#include "integrator/run_record.h"
#include "platform/locked_file.h"
#include "text/path.h"

namespace zev {

namespace {

bool canBeDone(const std::vector<PageEdit>& edits, std::size_t pageSize) {
    std::size_t done = 0;
    for (const PageEdit& edit : edits) {
        if (edit.offset < done || edit.offset > pageSize || edit.length > pageSize - edit.offset)
            return false;
        done = edit.offset + edit.length;
    }
    return true;
}

enum class Outcome { Restored, Changed };

/// What a run did to one page, the earliest first; a run may come by a page twice.
class PageHistory {
  public:
    void add(RecordedPage page) { m_steps.push_back(std::move(page)); }
    const std::string& path() const { return m_steps.front().path; }

    /// Takes the page back as far as it goes. False when that is not to the beginning.
    bool takeBack(std::string& bytes) const {
        PageMark mark = PageMark::of(bytes);
        if (mark == m_steps.front().before)
            return true;
        auto step = std::find_if(m_steps.rbegin(), m_steps.rend(),
                                 [&](const RecordedPage& page) { return page.after == mark; });
        if (step == m_steps.rend())
            return false;
        for (; step != m_steps.rend(); ++step) {
            // A record may be damaged; the mark of the page before tells.
            if (mark != step->after || !canBeDone(step->edits, bytes.size()))
                return false;
            bytes = withEdits(bytes, step->edits);
            mark = PageMark::of(bytes);
            if (mark != step->before)
                return false;
        }
        return true;
    }

    unsigned mode() const { return m_steps.front().mode; }

  private:
    std::vector<RecordedPage> m_steps;
};

std::vector<PageHistory> historiesOf(std::vector<RecordedPage> pages) {
    std::vector<PageHistory> histories;
    std::map<std::string, std::size_t> indexOfPath;
    for (RecordedPage& page : pages) {
        const auto [at, isNew] = indexOfPath.try_emplace(page.path, histories.size());
        if (isNew)
            histories.emplace_back();
        histories[at->second].add(std::move(page));
    }
    return histories;
}

FileResult<Outcome> restore(FileSystem& files, const PageHistory& history) {
    const std::string& path = history.path();
    FileResult<std::string> page = files.readFile(path, std::numeric_limits<std::uint64_t>::max());
    if (!page.isOk() && page.error().code == FileError::Code::NotFound)
        return Outcome::Changed;
    if (!page.isOk())
        return page.error();
    std::string bytes = page.value();
    if (!history.takeBack(bytes))
        return Outcome::Changed;
    FileOutcome error = bytes == page.value()
                            ? removeTemporaryPage(files, path)
                            : files.writeFileThrough(kTemporaryPageName, path, bytes);
    const FileResult<unsigned> mode = files.modeOf(path);
    if (!error && mode.isOk() && history.mode() != 0 && mode.value() != history.mode())
        error = files.setMode(path, history.mode());
    if (error)
        return *error;
    return Outcome::Restored;
}

}  // namespace

FileResult<UndoneRun> undoRun(FileSystem& files, const std::string& folder, const std::string& name,
                              const ShouldGoOn& shouldGoOn) {
    const std::string path = recordPath(folder, name);
    // Before it is read, so that it is whole; until the end, so that a run is undone once.
    const std::unique_ptr<LockedFile> lock = files.lockFile(path);
    FileResult<std::vector<RecordedPage>> pages = readRun(files, folder, name);
    if (!pages.isOk())
        return pages.error();
    UndoneRun undone;
    undone.isGoingOn = lock == nullptr;
    if (undone.isGoingOn)
        return undone;
    const std::vector<PageHistory> histories = historiesOf(pages.take());
    for (std::size_t done = 0; done < histories.size(); ++done) {
        if (shouldGoOn && !shouldGoOn(done, histories.size())) {
            undone.isFinished = false;
            break;
        }
        const FileResult<Outcome> outcome = restore(files, histories[done]);
        if (!outcome.isOk())
            undone.errors.push_back(outcome.error());
        else if (outcome.value() == Outcome::Changed)
            undone.changedPages.push_back(histories[done].path());
        else
            undone.restoredPages.push_back(histories[done].path());
    }
    if (const FileOutcome error = files.flushFolders())
        undone.errors.push_back(*error);
    if (undone.isWhole())
        if (const FileOutcome error = files.DeleteFile(path))
            return *error;
    return undone;
}

}  // namespace zev
