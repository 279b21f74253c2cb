// SPDX-License-Identifier: MIT
#include "integrator/page_integration.h"

#include <cstdint>
#include <limits>
#include <utility>

#include "script/relative_url.h"
#include "text/ascii.h"
#include "text/path.h"

namespace zev {

namespace {

constexpr const char* kTemporaryName = "~qxtmp.htm";

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

std::string temporaryPath(const std::string& pagePath) {
    return Path(Path(pagePath).folder()).child(kTemporaryName);
}

/// A page may be of any size.
FileResult<std::string> readPage(const FileSystem& files, const std::string& path) {
    return files.readFile(path, std::numeric_limits<std::uint64_t>::max());
}

}  // namespace

IntegrationURLs CalculateURL(std::string_view pagesFolder, std::string_view definition,
                             std::string_view library) {
    IntegrationURLs urls;
    definition = trimSpaces(definition);
    urls.definition =
        isFullPath(definition) ? ToRelativeURL(pagesFolder, definition) : std::string(definition);
    // The folder goes into the sum with its spaces: a folder's name may end in one.
    urls.library = isFullPath(trimSpaces(library))
                       ? ToRelativeURL(pagesFolder, withSeparator(library))
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
    if (!m_files.FileExists(path) && !m_files.isFolder(path)) {
        appendLine("ERROR: " + path + " Not Found!");
        appendLine("");
        m_hasFailed = true;
        return;
    }
    appendLine("Processing " + path);
    if (const std::optional<PageError> error = IntegrateFile(path))
        reportError(path, *error);
    else
        WriteFileReport();
    if (!m_status.bSuccess)
        m_hasFailed = true;
}

std::optional<PageError> PageIntegrator::IntegrateFile(const std::string& path) {
    m_status = {};
    if (path == temporaryPath(path))
        return PageError{PageError::Code::IsTemporaryFile, {FileError::Code::Other, path, ""}};
    std::optional<FileResult<std::string>> page = readPage(m_files, path);
    if (!page->isOk())
        return PageError{PageError::Code::NotRead, page->error()};
    IntegrationStatus status;
    std::string bytes = rewritePage(page->value(), m_options.rewrite, status);
    page.reset();  // while the new page is written, the old one would only take up memory
    if (!m_options.isDryRun) {
        if (std::optional<PageError> error = replacePage(path, std::move(bytes)))
            return error;
    }
    status.bSuccess = status.bEndBodyDone && status.bBodyDone && status.bHeadDone;
    m_status = status;
    return {};
}

std::optional<PageError> PageIntegrator::replacePage(const std::string& path, std::string bytes) {
    const std::string temporary = temporaryPath(path);
    PageError::Code code = PageError::Code::NotSaved;
    FileOutcome error = m_files.writeTemporaryFile(temporary, bytes);
    // Copying reads a whole file; two texts of a page's size in memory would be one too many.
    std::string().swap(bytes);
    if (!error && m_options.hasBackups) {
        error = m_files.backUpFile(path, path + ".bak");
        if (error)
            code = PageError::Code::NotBackedUp;
    }
    if (!error)
        error = m_files.CopyFile(temporary, path, Links::Followed);
    if (error) {
        if (m_files.FileExists(temporary))
            m_files.DeleteFile(temporary);
        return PageError{code, *error};
    }
    if (const FileOutcome left = m_files.DeleteFile(temporary)) {
        // The page is saved; what is left over is reported beside it.
        appendLine("ERROR: " + temporary + " not deleted: " + left->reason);
        m_hasFailed = true;
    }
    return {};
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

void PageIntegrator::WriteFileReport() {
    if (m_status.bPrevious)
        appendLine("Previous integration detected!");
    appendLine(m_status.bHeadDone ? "Success: Menu library references added"
                                  : "ERROR: Menu library references NOT added. <HEAD> not found.");
    appendLine(m_status.bBodyDone ? "Success: Event handlers added"
                                  : "ERROR: Event handlers NOT added. <BODY> not found.");
    appendLine(m_status.bEndBodyDone ? "Success: Menu creation code added"
                                     : "ERROR: Menu creation code NOT added. </BODY> not found.");
    appendLine(m_status.bSuccess ? "Success: Menu integration successful"
                                 : "ERROR: Menu integration failure");
    appendLine("");
}

void PageIntegrator::appendLine(std::string_view line) {
    m_report += line;
    m_report += "\r\n";
}

}  // namespace zev
