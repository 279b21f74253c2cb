#include "integrator/page_integration.h"

#include <optional>
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
std::string WithSeparator(std::string_view folder) {
    std::string path(folder);
    if (Path(trimSpaces(folder)).kind() != Path::Kind::System)
        path += '\\';
    else if (!folder.ends_with('/'))
        path += '/';
    return path;
}

std::string TemporaryPath(const std::string& pagePath) {
    return Path(Path(pagePath).folder()).child(kTemporaryName);
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
                       ? ToRelativeURL(pagesFolder, WithSeparator(library))
                       : std::string(trimSpaces(library));
    return urls;
}

std::string PagePath(const std::string& folder, const std::string& name) {
    return WithSeparator(folder) + name;
}

FileResult<std::size_t> CountDroppedScripts(HtmlParse& parser, const std::string& path) {
    if (const FileOutcome error = parser.LoadFile(path))
        return *error;
    const std::size_t count = CountDroppedScripts(parser);
    parser.Close();
    return count;
}

PageIntegrator::PageIntegrator(FileSystem& files, HtmlParse& parser, IntegrationOptions options)
    : m_files(files), m_parser(parser), m_options(std::move(options)) {}

bool PageIntegrator::IntegratePages(const std::vector<std::string>& inputFiles,
                                    const ShouldGoOn& shouldGoOn) {
    const std::size_t count = inputFiles.empty() ? 0 : inputFiles.size() - 1;
    for (std::size_t done = 0; done < count; ++done) {
        if (shouldGoOn && !shouldGoOn(done, count)) {
            appendLine("Cancelled: " + std::to_string(count - done) + " of " +
                       std::to_string(count) + " pages not processed");
            return false;
        }
        integratePage(PagePath(inputFiles[0], inputFiles[done + 1]));
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
    if (const FileOutcome error = IntegrateFile(path)) {
        appendLine("ERROR: " + path + " not saved: " + error->reason);
        appendLine("");
        m_hasFailed = true;
        return;
    }
    WriteFileReport();
    if (!m_status.bSuccess)
        m_hasFailed = true;
}

FileOutcome PageIntegrator::IntegrateFile(const std::string& path) {
    m_status = {};
    if (path == TemporaryPath(path))
        return FileError{FileError::Code::Other, path, "This is the name of the temporary file"};
    if (const FileOutcome error = m_parser.LoadFile(path))
        return error;
    IntegrationStatus status;
    std::string bytes = RewritePage(m_parser, m_options.rewrite, status);
    m_parser.Close();
    if (!m_options.isDryRun) {
        if (const FileOutcome error = replacePage(path, std::move(bytes)))
            return error;
    }
    status.bSuccess = status.bEndBodyDone && status.bBodyDone && status.bHeadDone;
    m_status = status;
    return {};
}

FileOutcome PageIntegrator::replacePage(const std::string& path, std::string bytes) {
    const std::string temporary = TemporaryPath(path);
    FileOutcome error = m_files.writeTemporaryFile(temporary, bytes);
    // Copying reads a whole file; two texts of a page's size in memory would be one too many.
    std::string().swap(bytes);
    if (!error && m_options.hasBackups) {
        const std::string backup = path + ".bak";
        error = m_files.CopyFile(path, backup);
        if (error && error->path == backup)
            error->reason = backup + ": " + error->reason;
    }
    if (!error)
        error = m_files.CopyFile(temporary, path);
    if (error) {
        if (m_files.FileExists(temporary))
            m_files.DeleteFile(temporary);
        return error;
    }
    if (const FileOutcome left = m_files.DeleteFile(temporary)) {
        // The page is saved; what is left over is reported beside it.
        appendLine("ERROR: " + temporary + " not deleted: " + left->reason);
        m_hasFailed = true;
    }
    return {};
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
