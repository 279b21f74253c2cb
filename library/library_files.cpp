// SPDX-License-Identifier: MIT
#include "library/library_files.h"

#include "library/own_files.h"
#include "platform/kept_copy.h"

namespace zev {

namespace {

bool isSameFile(const FileSystem& files, const std::string& left, const std::string& right) {
    const Path one(left);
    const Path other(right);
    return left == right ||
           (one.name() == other.name() &&
            files.isSameFolder(std::string(one.folder()), std::string(other.folder())));
}

/// Keeps a copy of the file `destination` before the run-time file `source` is put there, unless it
/// is the program's own. True when it has the same bytes.
FileResult<bool> makeWay(FileSystem& files, const std::string& source,
                         const std::string& destination) {
    const FileResult<std::string> wanted = files.readFile(source, kMaxRunTimeFileBytes);
    if (!wanted.isOk())
        return wanted.error();
    const FileResult<std::string> present = files.readFile(destination, kMaxRunTimeFileBytes);
    if (!present.isOk())
        return present.error();
    if (present.value() == wanted.value() || isOwnFile(present.value()))
        return present.value() == wanted.value();
    const FileResult<std::string> kept = keepCopy(files, destination);
    return kept.isOk() ? FileResult<bool>(false) : kept.error();
}

/// True when there was nothing to write.
FileResult<bool> putFile(FileSystem& files, const std::string& source,
                         const std::string& destination) {
    const DiskEntry entry = files.entryAt(destination);
    std::string renamedLink;
    if (entry == DiskEntry::Link) {
        FileResult<std::string> kept = setAside(files, destination);
        if (!kept.isOk())
            return kept.error();
        renamedLink = kept.take();
    } else if (entry == DiskEntry::File) {
        const FileResult<bool> isThere = makeWay(files, source, destination);
        if (!isThere.isOk() || isThere.value())
            return isThere;
    }
    // Not deleted first: the copy replaces the old file whole, so that a failure leaves it intact.
    FileOutcome error = files.CopyFile(source, destination, Links::Replaced);
    if (!error)
        return false;
    if (!renamedLink.empty())
        files.renameFile(renamedLink, destination);
    return *error;
}

}  // namespace

CopyOutcome CopyLibraryFile(FileSystem& files, const std::string& source,
                            const std::string& destination) {
    if (isSameFile(files, source, destination))
        return {CopyResult::SamePlace, {}, {}};
    if (!files.FileExists(source))
        return {CopyResult::SourceMissing, source, {}};
    const FileResult<bool> isThere = putFile(files, source, destination);
    if (!isThere.isOk())
        return {CopyResult::NotSaved, destination, isThere.error().reason};
    if (isThere.value())
        return {CopyResult::AlreadyThere, {}, {}};
    return {};
}

std::vector<CopyOutcome> copyLibrary(FileSystem& files, const Path& from, const Path& to,
                                     CopiedFiles copiedFiles) {
    std::vector<CopyOutcome> problems;
    const auto copy = [&](std::string_view name, std::string_view newName) {
        CopyOutcome outcome = CopyLibraryFile(files, from.child(name), to.child(newName));
        if (!outcome.path.empty())
            problems.push_back(std::move(outcome));
    };
    for (const std::string_view name : kLibraryFiles)
        copy(name, name);
    // The page gets another name, so the program's own folder receives it too: the preview of a
    // menu never saved loads it from there.
    if (copiedFiles == CopiedFiles::ScriptsAndPreviewPage)
        copy(kPageTemplate, kPreviewPage);
    return problems;
}

}  // namespace zev
