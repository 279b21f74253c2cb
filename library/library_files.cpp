// SPDX-License-Identifier: MIT
#include "library/library_files.h"

namespace zev {

namespace {

bool isSameFile(const FileSystem& files, const std::string& left, const std::string& right) {
    const Path one(left);
    const Path other(right);
    return left == right ||
           (one.name() == other.name() &&
            files.isSameFolder(std::string(one.folder()), std::string(other.folder())));
}

}  // namespace

CopyOutcome CopyLibraryFile(FileSystem& files, const std::string& source,
                            const std::string& destination) {
    if (isSameFile(files, source, destination))
        return {CopyResult::SamePlace, {}, {}};
    if (!files.FileExists(source))
        return {CopyResult::SourceMissing, source, {}};
    // Not deleted first: the copy replaces the old file whole, so that a failure leaves it intact.
    if (const FileOutcome error = files.CopyFile(source, destination, Links::Replaced))
        return {CopyResult::NotSaved, destination, error->reason};
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
