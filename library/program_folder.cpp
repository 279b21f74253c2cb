// SPDX-License-Identifier: MIT
#include "library/program_folder.h"

#include <vector>

#include "library/library_files.h"

namespace zev {

namespace {

constexpr std::string_view kManualFolder = "help";

/// The folder of a file or folder, "." for a bare name.
std::string folderOf(const std::string& path) {
    const std::string_view folder = Path::onThisSystem(path).folder();
    return folder.empty() ? "." : std::string(folder);
}

std::string joinPath(const std::string& folder, std::string_view name) {
    return Path::onThisSystem(folder).child(name);
}

/// Compared by content, not by time: a packaged file is as old as its package, which may be older
/// than a copy of the version before.
FileOutcome updateFile(FileSystem& files, const std::string& source,
                       const std::string& destination) {
    const FileResult<std::string> wanted = files.readFile(source, kMaxRunTimeFileBytes);
    if (!wanted.isOk())
        return wanted.error();
    const FileResult<std::string> present = files.readFile(destination, kMaxRunTimeFileBytes);
    if (present.isOk() && present.value() == wanted.value())
        return {};
    return files.writeFile(destination, wanted.value(), Links::Replaced);
}

/// Brings a folder with all it holds up to date; files that only `destination` has stay.
FileOutcome updateFolder(FileSystem& files, const std::string& source,
                         const std::string& destination) {
    if (const FileOutcome error = files.makeFolder(destination))
        return error;
    const FileResult<std::vector<std::string>> names = files.listFolder(source);
    if (!names.isOk())
        return names.error();
    for (const std::string& name : names.value()) {
        const std::string from = joinPath(source, name);
        const std::string to = joinPath(destination, name);
        const FileOutcome error =
            files.isFolder(from) ? updateFolder(files, from, to) : updateFile(files, from, to);
        if (error)
            return error;
    }
    return {};
}

FileOutcome updateUserFolder(FileSystem& files, const std::string& installed,
                             const std::string& userFolder) {
    if (const FileOutcome error = files.makeFolder(userFolder))
        return error;
    std::vector<std::string_view> names(kLibraryFiles.begin(), kLibraryFiles.end());
    names.push_back(kPageTemplate);
    for (const std::string_view name : names) {
        const std::string source = joinPath(installed, name);
        // A file missing from the installation is reported by the save that needs it.
        if (!files.FileExists(source))
            continue;
        if (const FileOutcome error = updateFile(files, source, joinPath(userFolder, name)))
            return error;
    }
    const std::string manual = joinPath(installed, kManualFolder);
    if (!files.isFolder(manual))
        return {};
    return updateFolder(files, manual, joinPath(userFolder, kManualFolder));
}

/// Where an installation has the files of a program in its "bin".
std::string sharedFolderOf(const std::string& executable) {
    return joinPath(folderOf(folderOf(executable)), "share/zevmenu-creator");
}

}  // namespace

FileResult<std::string> findInstalledFolder(const FileSystem& files,
                                            const std::string& executable) {
    const std::string sharedFolder = sharedFolderOf(executable);
    for (const std::string& folder : {folderOf(executable), sharedFolder})
        if (files.FileExists(joinPath(folder, kLibraryFiles.front())))
            return folder;
    return FileError{FileError::Code::NotFound, joinPath(sharedFolder, kLibraryFiles.front()),
                     "No such file or directory"};
}

FileResult<std::string> findProgramFolder(FileSystem& files, const std::string& executable,
                                          const std::string& userFolder) {
    FileResult<std::string> installed = findInstalledFolder(files, executable);
    if (!installed.isOk())
        return installed;
    // Of an installation's folder it does not matter who may write it: root would, and what is
    // left there no package takes away again.
    if (installed.value() != sharedFolderOf(executable) &&
        files.isWritableFolder(installed.value()))
        return installed;
    if (const FileOutcome error = updateUserFolder(files, installed.value(), userFolder))
        return *error;
    return userFolder;
}

}  // namespace zev
