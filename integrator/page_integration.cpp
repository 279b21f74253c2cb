// SPDX-License-Identifier: MIT
#include "integrator/page_integration.h"

#include <cstdint>
#include <limits>
#include <utility>

#include "integrator/page_removal.h"
#include "integrator/run_record.h"
#include "platform/kept_copy.h"
#include "script/relative_url.h"
#include "text/ascii.h"
#include "text/path.h"
#include "text/percent_encoding.h"

namespace zev {

const char* const kTemporaryPageName = "~qxtmp.htm";

namespace {

/// Of drives only those with an upper-case letter are turned into URLs.
bool isFullPath(std::string_view text) {
    const Path path(text);
    return path.hasUpperCaseDriveLetter() || path.kind() == Path::Kind::System;
}

/// A drive's folder gets a separator whatever it ends in; a folder of the system has at most one.
std::string withSeparator(std::string_view folder) {
    std::string path(folder);
    if (Path(trimSpaces(folder)).kind() != Path::Kind::System)
        path += '\\';
    else if (!folder.ends_with('/'))
        path += '/';
    return path;
}

/// The URL of a full path as seen from the folder. What an address cannot hold is percent-encoded,
/// characters outside ASCII too: the page may have another encoding. A path on another drive has no
/// URL and stays.
std::string relativeURL(std::string_view folder, std::string_view path) {
    std::string url = ToRelativeURL(folder, path);
    if (url == path)
        return url;
    return percentEncoded(url, [](char c) {
        return isAsciiLetter(c) || isAsciiDigit(c) ||
               std::string_view("-._~/:@!$*+,;=()").find(c) != std::string_view::npos;
    });
}

std::string temporaryPath(const std::string& pagePath) {
    return Path(Path(pagePath).folder()).child(kTemporaryPageName);
}

/// A page may be of any size.
FileResult<std::string> readPage(const FileSystem& files, const std::string& path) {
    return files.readFile(path, std::numeric_limits<std::uint64_t>::max());
}

/// For the report.
std::string placeReason(PlaceProblem problem, const PlacedMenu& menu) {
    const std::string place = "\"" + menu.place.text + "\"";
    switch (problem) {
        case PlaceProblem::NotFound:
            return "There is no place " + place;
        case PlaceProblem::NoEndTag:
            return "The end of the element is not found: " + place;
        case PlaceProblem::NoMarkup:
            return "The element cannot hold a menu: " + place;
        case PlaceProblem::HoldsThePage:
            return "The element holds the page's head or body: " + place;
        case PlaceProblem::TextNotFound:
            return "The text for the link is not found: \"" + menu.link->text + "\"";
    }
    return {};
}

}  // namespace

FileOutcome removeTemporaryPage(FileSystem& files, const std::string& pagePath) {
    const std::string temporary = temporaryPath(pagePath);
    return files.FileExists(temporary) ? files.DeleteFile(temporary) : FileOutcome{};
}

IntegrationURLs CalculateURL(std::string_view pagesFolder, std::string_view definition,
                             std::string_view library) {
    IntegrationURLs urls;
    definition = trimSpaces(definition);
    urls.definition =
        isFullPath(definition) ? relativeURL(pagesFolder, definition) : std::string(definition);
    // The folder goes into the sum with its spaces: a folder's name may end in one.
    urls.library = isFullPath(trimSpaces(library))
                       ? relativeURL(pagesFolder, withSeparator(library))
                       : std::string(trimSpaces(library));
    return urls;
}

std::string pagePath(const std::string& folder, const std::string& name) {
    return withSeparator(folder) + name;
}

FileResult<std::size_t> countDroppedScripts(const FileSystem& files, const std::string& path) {
    const FileResult<std::string> page = readPage(files, path);
    if (!page.isOk())
        return page.error();
    return countDroppedScripts(page.value());
}

void RunSummary::add(const RunSummary& other) {
    doneCount += other.doneCount;
    failedPages.insert(failedPages.end(), other.failedPages.begin(), other.failedPages.end());
    skippedPages.insert(skippedPages.end(), other.skippedPages.begin(), other.skippedPages.end());
}

std::string RunSummary::text() const {
    std::string lines;
    for (const std::string& page : failedPages)
        lines += "Failed: " + page + "\r\n";
    for (const std::string& page : skippedPages)
        lines += "Skipped: " + page + "\r\n";
    lines += std::to_string(doneCount) + " done, " + std::to_string(failedPages.size()) + " failed";
    if (!skippedPages.empty())
        lines += ", " + std::to_string(skippedPages.size()) + " skipped";
    return lines + "\r\n\r\n";
}

PageIntegrator::PageIntegrator(FileSystem& files, IntegrationOptions options)
    : m_files(files), m_options(std::move(options)) {}

bool PageIntegrator::IntegratePages(const ChosenFiles& inputFiles, const ShouldGoOn& shouldGoOn) {
    const std::size_t count = inputFiles.names.size();
    for (std::size_t done = 0; done < count; ++done) {
        if (shouldGoOn && !shouldGoOn(done, count)) {
            appendLine("Cancelled: " + std::to_string(count - done) + " of " +
                       std::to_string(count) + " pages not processed");
            return false;
        }
        integratePage(pagePath(inputFiles.folder, inputFiles.names[done]));
    }
    return true;
}

void PageIntegrator::integratePage(const std::string& path) {
    IntegrationStatus before = std::move(m_status);
    const std::optional<PageError> error = IntegrateFile(path);
    if (error && !m_files.FileExists(path) && !m_files.isFolder(path)) {
        appendLine("ERROR: " + path + " Not Found!");
        appendLine("");
        m_summary.failedPages.push_back(path);
        m_status = std::move(before);
        return;
    }
    appendLine("Processing " + path);
    if (error)
        reportError(path, *error);
    else
        WriteFileReport();
    if (!error && isSkipped())
        m_summary.skippedPages.push_back(path);
    else if (!m_status.bSuccess)
        m_summary.failedPages.push_back(path);
    else
        ++m_summary.doneCount;
    if (m_status.bSuccess && m_isWritten)
        m_unflushedPages.push_back(path);
}

void PageIntegrator::finish() {
    if (m_options.record != nullptr)
        m_options.record->flush();
    const FileOutcome error = m_files.flushFolders();
    for (const std::string& path : std::exchange(m_unflushedPages, {})) {
        if (!error)
            continue;
        reportError(path, {PageError::Code::NotSaved, *error});
        m_summary.failedPages.push_back(path);
        --m_summary.doneCount;
        m_status = {};
    }
}

std::optional<PageError> PageIntegrator::IntegrateFile(const std::string& path) {
    m_status = {};
    m_isWritten = false;
    if (path == temporaryPath(path))
        return PageError{PageError::Code::IsTemporaryFile, {FileError::Code::Other, path, ""}};
    FileResult<std::string> page = readPage(m_files, path);
    if (!page.isOk())
        return PageError{PageError::Code::NotRead, page.error()};
    IntegrationStatus status;
    const std::vector<PageEdit> edits = editsOf(page.value(), status);
    if (status.placeProblem)
        return PageError{PageError::Code::NoPlace,
                         {FileError::Code::Other, path,
                          placeReason(*status.placeProblem, *m_options.rewrite.menu)}};
    const bool hasPlaces = m_options.isRemoval || status.hasAllPlaces();
    const bool isUntouched = m_options.isRemoval && edits.empty();
    // What a killed run has left goes with the next one, also when there is nothing to write.
    if (isUntouched && !m_options.isDryRun)
        removeTemporaryPage(m_files, path);
    if (!isUntouched && !m_options.isDryRun && (hasPlaces || !m_options.skipsFailing)) {
        if (std::optional<PageError> error = replacePage(path, page.take(), edits))
            return error;
    }
    status.bSuccess = hasPlaces;
    m_status = std::move(status);
    return {};
}

std::vector<PageEdit> PageIntegrator::editsOf(std::string_view page,
                                              IntegrationStatus& status) const {
    if (!m_options.isRemoval)
        return pageEdits(page, m_options.rewrite, status);
    PageRemoval removal = removeIntegration(page);
    status.bPrevious = !removal.edits.empty();
    status.notes = std::move(removal.notes);
    return std::move(removal.edits);
}

bool PageIntegrator::isSkipped() const {
    return m_options.skipsFailing && !m_options.isRemoval && !m_status.hasAllPlaces();
}

std::optional<PageError> PageIntegrator::replacePage(const std::string& path, std::string page,
                                                     const std::vector<PageEdit>& edits) {
    if (m_options.hasBackups) {
        FileOutcome error = keepOriginal(path, page);
        if (!error)
            error = m_files.backUpFile(path, path + ".bak", page);
        if (error)
            return PageError{PageError::Code::NotBackedUp, *error};
    }
    const std::string bytes = withEdits(page, edits);
    if (m_options.record != nullptr)
        m_options.record->append(path, page, bytes, edits);
    // While the new page is written, the old one would only take up memory.
    std::string().swap(page);
    if (const FileOutcome error = m_files.writeFileThrough(kTemporaryPageName, path, bytes))
        return PageError{PageError::Code::NotSaved, *error};
    m_isWritten = true;
    return {};
}

FileOutcome PageIntegrator::keepOriginal(const std::string& path, const std::string& page) {
    const std::string backup = path + ".bak";
    // What a link leads to stays where it is.
    if (m_files.entryAt(backup) != DiskEntry::File || !isIntegrated(page))
        return {};
    const FileResult<std::string> old = readPage(m_files, backup);
    if (!old.isOk())
        return old.error();
    if (isIntegrated(old.value()))
        return {};
    const FileResult<std::string> kept =
        keepBytes(m_files, path, backup + ".original", old.value());
    return kept.isOk() ? FileOutcome{} : kept.error();
}

void PageIntegrator::reportError(const std::string& path, const PageError& error) {
    std::string reason = error.file.reason;
    if (error.code == PageError::Code::IsTemporaryFile)
        reason = "This is the name of the temporary file";
    else if (error.code == PageError::Code::NotBackedUp && error.file.path != path)
        reason = error.file.path + ": " + reason;
    appendLine("ERROR: " + path + " not saved: " + reason);
    appendLine("");
}

void PageIntegrator::writeRemovalReport() {
    appendLine(m_status.bPrevious ? "Success: Menu integration removed"
                                  : "No menu integration found");
    appendLine("");
}

void PageIntegrator::WriteFileReport() {
    if (m_options.isRemoval) {
        writeRemovalReport();
        return;
    }
    if (m_status.bPrevious)
        appendLine("Previous integration detected!");
    if (isSkipped())
        reportSkippedPage();
    else
        reportPlaces();
    appendLine("");
    if (!isSkipped())
        reportRemovedScripts();
}

void PageIntegrator::reportPlaces() {
    appendLine(m_status.bHeadDone ? "Success: Menu library references added"
                                  : "ERROR: Menu library references NOT added. <HEAD> not found.");
    appendLine(m_status.bBodyDone ? "Success: Event handlers added"
                                  : "ERROR: Event handlers NOT added. <BODY> not found.");
    appendLine(m_status.bEndBodyDone ? "Success: Menu creation code added"
                                     : "ERROR: Menu creation code NOT added. </BODY> not found.");
    appendLine(m_status.bSuccess ? "Success: Menu integration successful"
                                 : "ERROR: Menu integration failure");
    if (m_status.isMenuPlaced)
        appendLine("Success: Menu placed");
    else if (m_options.rewrite.menu)
        appendLine("Menu not placed: the page has a call of its own");
}

void PageIntegrator::reportSkippedPage() {
    if (!m_status.bHeadDone)
        appendLine("Skipped: <HEAD> not found.");
    if (!m_status.bBodyDone)
        appendLine("Skipped: <BODY> not found.");
    if (!m_status.bEndBodyDone)
        appendLine("Skipped: </BODY> not found.");
}

void PageIntegrator::reportRemovedScripts() {
    for (const std::string& name : m_status.removedScripts)
        appendLine("Removed: " + name);
    if (!m_status.removedScripts.empty())
        appendLine("");
}

void PageIntegrator::appendLine(std::string_view line) {
    m_report += line;
    m_report += "\r\n";
}

}  // namespace zev
