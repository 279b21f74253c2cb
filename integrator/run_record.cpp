// SPDX-License-Identifier: MIT
#include "integrator/run_record.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

#include "text/ascii.h"
#include "text/hash.h"
#include "text/path.h"

namespace zev {

namespace {

// A line of names and numbers, then as many bytes as it says:
//
//     zevmenu run 1
//     page <mode> <size> <hash> <size> <hash> <number of edits> <bytes of path>
//     <path>
//     edit <offset> <length> <bytes of text>
//     <text>
//
// The marks of a page are those before and after the run.
constexpr std::string_view kFirstLine = "zevmenu run 1\n";
constexpr std::string_view kPageWord = "page";
constexpr std::string_view kEditWord = "edit";

// As "2026-11-22T02:15:07-": a digit where a 0 stands.
constexpr std::string_view kStampForm = "0000-00-00T00:00:00-";

std::string stampOf(std::time_t time) {
    std::tm parts{};
    ::gmtime_r(&time, &parts);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S-", &parts)};
}

/// The number behind the stamp; 0 in a name that is none of a run.
unsigned numberIn(std::string_view name) {
    if (name.size() <= kStampForm.size())
        return 0;
    for (std::size_t i = 0; i < kStampForm.size(); ++i)
        if (kStampForm[i] == '0' ? !isAsciiDigit(name[i]) : name[i] != kStampForm[i])
            return 0;
    const char* const end = name.data() + name.size();
    unsigned number = 0;
    const auto [rest, error] = std::from_chars(name.data() + kStampForm.size(), end, number);
    return error == std::errc() && rest == end ? number : 0;
}

bool isNewer(const std::string& left, const std::string& right) {
    const int order = left.compare(0, kStampForm.size(), right, 0, kStampForm.size());
    return order != 0 ? order > 0 : numberIn(left) > numberIn(right);
}

void addNumber(std::string& entry, std::uint64_t number) {
    std::array<char, 20> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    entry += ' ';
    entry.append(digits.data(), end);
}

void addText(std::string& entry, std::string_view text) {
    addNumber(entry, text.size());
    entry += '\n';
    entry += text;
    entry += '\n';
}

void addMark(std::string& entry, const PageMark& mark) {
    addNumber(entry, mark.size);
    addNumber(entry, mark.hash);
}

/// Writes the edits the other way round: what they make of the page gives way to what was there.
void addReverseEdits(std::string& entry, std::string_view page,
                     const std::vector<PageEdit>& edits) {
    std::size_t insertedBytes = 0;
    std::size_t removedBytes = 0;
    for (const PageEdit& edit : edits) {
        entry += kEditWord;
        addNumber(entry, edit.offset + insertedBytes - removedBytes);
        addNumber(entry, edit.text.size());
        addText(entry, page.substr(edit.offset, edit.length));
        insertedBytes += edit.text.size();
        removedBytes += edit.length;
    }
}

/// Reads what `RunRecord::append` writes. Every function gives false where the text is not that.
class EntryReader {
  public:
    explicit EntryReader(std::string_view text) : m_rest(text) {}

    bool readPage(RecordedPage& page) {
        std::uint64_t editCount = 0;
        if (!takeWord(kPageWord) || !takeNumber(page.mode))
            return false;
        for (PageMark* const mark : {&page.before, &page.after})
            if (!takeNumber(mark->size) || !takeNumber(mark->hash))
                return false;
        if (!takeNumber(editCount) || !takeText(page.path))
            return false;
        while (page.edits.size() < editCount) {
            PageEdit edit;
            if (!takeWord(kEditWord) || !takeNumber(edit.offset) || !takeNumber(edit.length) ||
                !takeText(edit.text))
                return false;
            page.edits.push_back(std::move(edit));
        }
        return true;
    }

  private:
    bool takeWord(std::string_view word) {
        if (!m_rest.starts_with(word))
            return false;
        m_rest.remove_prefix(word.size());
        return true;
    }

    template <typename Number>
    bool takeNumber(Number& number) {
        if (!takeWord(" "))
            return false;
        const char* const end = m_rest.data() + m_rest.size();
        const auto [rest, error] = std::from_chars(m_rest.data(), end, number);
        if (error != std::errc())
            return false;
        m_rest.remove_prefix(static_cast<std::size_t>(rest - m_rest.data()));
        return true;
    }

    bool takeText(std::string& text) {
        std::size_t size = 0;
        if (!takeNumber(size) || !takeWord("\n") || size >= m_rest.size())
            return false;
        text = m_rest.substr(0, size);
        m_rest.remove_prefix(size);
        return takeWord("\n");
    }

    std::string_view m_rest;
};

}  // namespace

PageMark PageMark::of(std::string_view page) {
    return {page.size(), fileHashOf(page)};
}

RunRecord::RunRecord(FileSystem& files, std::string folder, std::time_t startedAt)
    : m_files(files), m_folder(std::move(folder)), m_startedAt(startedAt) {}

RunRecord::~RunRecord() {
    // Too late to tell anybody of an error; what the disk did not take was written all the same.
    flush();
}

void RunRecord::append(const std::string& path, std::string_view page, std::string_view result,
                       const std::vector<PageEdit>& edits) {
    if (m_error || page == result)
        return;
    const FileResult<unsigned> mode = m_files.modeOf(path);
    if (!m_file)
        m_error = begin();
    if (m_error)
        return;
    m_entry = kPageWord;
    addNumber(m_entry, mode.isOk() ? mode.value() : 0);
    addMark(m_entry, PageMark::of(page));
    addMark(m_entry, PageMark::of(result));
    addNumber(m_entry, edits.size());
    addText(m_entry, path);
    addReverseEdits(m_entry, page, edits);
    m_error = m_file->append(m_entry);
}

FileOutcome RunRecord::begin() {
    const std::string stamp = stampOf(m_startedAt);
    for (int number = 1;; ++number) {
        const std::string name = stamp + std::to_string(number);
        const std::string path = recordPath(m_folder, name);
        if (m_files.FileExists(path))
            continue;
        FileResult<std::unique_ptr<GrowingFile>> file = m_files.makePrivateFile(path);
        if (!file.isOk() && m_files.FileExists(path))
            continue;  // another run was quicker
        if (!file.isOk())
            return file.error();
        m_file = file.take();
        m_name = name;
        return m_file->append(kFirstLine);
    }
}

void RunRecord::flush() {
    if (m_file && !m_error)
        m_error = m_file->flush();
}

std::string recordPath(const std::string& folder, const std::string& name) {
    return Path(folder).child(name);
}

std::vector<std::string> listRuns(const FileSystem& files, const std::string& folder) {
    std::vector<std::string> runs;
    FileResult<std::vector<std::string>> names = files.listFolder(folder);
    if (names.isOk())
        for (std::string& name : names.take())
            if (numberIn(name) > 0)
                runs.push_back(std::move(name));
    std::sort(runs.begin(), runs.end(), isNewer);
    return runs;
}

FileResult<std::vector<RecordedPage>> readRun(const FileSystem& files, const std::string& folder,
                                              const std::string& name) {
    const std::string path = recordPath(folder, name);
    const FileResult<std::string> record =
        files.readFile(path, std::numeric_limits<std::uint64_t>::max());
    if (!record.isOk())
        return record.error();
    std::string_view text = record.value();
    // Killed at once, a run leaves the beginning of the first line.
    if (!text.starts_with(kFirstLine) && !kFirstLine.starts_with(text))
        return FileError{FileError::Code::Other, path, "is not the record of a run"};
    text.remove_prefix(std::min(kFirstLine.size(), text.size()));
    std::vector<RecordedPage> pages;
    EntryReader reader(text);
    for (RecordedPage page; reader.readPage(page); page = {})
        pages.push_back(std::move(page));
    return pages;
}

}  // namespace zev
