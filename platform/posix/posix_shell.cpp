#include "platform/posix/posix_shell.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "platform/posix/desktop_entry.h"
#include "platform/posix/posix_process.h"
#include "text/ascii.h"

namespace zev {

namespace {

constexpr std::uint64_t kMaxEntryBytes = 1024 * 1024;

bool isWebPage(std::string_view file) {
    const std::size_t dot = file.rfind('.');
    if (dot == std::string_view::npos)
        return false;
    const std::string_view extension = file.substr(dot);
    return equalsIgnoringCase(extension, ".htm") || equalsIgnoringCase(extension, ".html");
    return extension == ".htm" || extension == ".html";
}

std::vector<std::string> splitText(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0)
            parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

std::string environmentOr(const char* name, const std::string& usual) {
    const char* const value = std::getenv(name);
    return value != nullptr && *value != '\0' ? value : usual;
}

/// Where desktop entries lie, the user's own folder first.
std::vector<std::string> applicationFolders() {
    const std::string home = environmentOr("HOME", "");
    std::vector<std::string> folders =
        splitText(environmentOr("XDG_DATA_DIRS", "/usr/local/share:/usr/share"), ':');
    const std::string own =
        environmentOr("XDG_DATA_HOME", home.empty() ? "" : home + "/.local/share");
    if (!own.empty())
        folders.insert(folders.begin(), own);
    for (std::string& folder : folders)
        folder += "/applications/";
    return folders;
}

/// The files that an entry's id may stand for in one folder: "a-b.desktop" is "a-b.desktop" itself
/// or "b.desktop" in the sub-folder "a".
std::vector<std::string> entryPaths(const std::string& folder, const std::string& id) {
    std::vector<std::string> paths{folder + id};
    std::string name = id;
    for (std::size_t dash = name.find('-'); dash != std::string::npos;
         dash = name.find('-', dash + 1)) {
        name[dash] = '/';
        paths.push_back(folder + name);
    }
    return paths;
}

/// The command line of the entry, empty when its program is not there or cannot take us to a
/// window.
std::string usableCommandLine(const DesktopEntry& entry, const std::string& path) {
    if (entry.isHidden || entry.isTerminal)
        return {};
    if (!entry.TryExec.empty() && findProgram(entry.TryExec).empty())
        return {};
    const std::string commandLine = commandLineOf(entry, path);
    const auto command = splitCommandLine(commandLine);
    if (!command || findProgram(command->front()).empty())
        return {};
    return commandLine;
}

}  // namespace

PosixShell::PosixShell(const FileSystem& files) : m_files(files) {}

std::string PosixShell::FindExecutable(const std::string& file) {
    constexpr std::chrono::seconds kTimeLimit{5};
    if (!isWebPage(file))
        return {};
    const auto answer = runProgram({"xdg-mime", "query", "default", "text/html"}, kTimeLimit);
    if (!answer)
        return {};
    const std::string firstLine = answer->substr(0, answer->find('\n'));
    for (const std::string& id : splitText(firstLine, ';')) {
        for (const std::string& folder : applicationFolders()) {
            for (const std::string& path : entryPaths(folder, id)) {
                const FileResult<std::string> text = m_files.readFile(path, kMaxEntryBytes);
                if (!text.isOk())
                    continue;
                const std::string commandLine =
                    usableCommandLine(parseDesktopEntry(text.value()), path);
                if (!commandLine.empty())
                    return commandLine;
            }
        }
    }
    return {};
}

bool PosixShell::ShellExecute(const std::string& program, const std::string& argument) {
    if (!findProgram(program).empty())
        return startDetached({program, argument});
    const auto command = splitCommandLine(program);
    return command && startDetached(fillInArgument(*command, argument));
}

}  // namespace zev
