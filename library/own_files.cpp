// SPDX-License-Identifier: MIT
#include "library/own_files.h"

#include <algorithm>
#include <string>

#include "library/built_file.h"
#include "library/library_files.h"
#include "text/ascii.h"
#include "text/hash.h"

namespace zev {

namespace {

/// First lines of the run-time files; those of the scripts are written by the build.
constexpr std::string_view kMarks[] = {"(function(){//ZEVMenu", "<!DOCTYPE html><!-- ZEVMenu -->"};

/// Given out before they had their mark.
constexpr BuiltFile kUnmarkedFiles[] = {
    {"zevmenu_loader.js", 16756U, 9841071338512344531U},
    {"zevmenu_dom.js", 26965U, 4100159637452238960U},
    {"zevmenu_ns4.js", 961U, 1053596813615346109U},
    {"zevmenu.html", 3389U, 10199676725198806425U},
};

constexpr std::string_view kReservedNames[] = {kLibraryFiles[0], kLibraryFiles[1], kLibraryFiles[2],
                                               kPageTemplate,    kPreviewPage,     kPreviewScript};

std::string withCaseSwapped(std::string_view name) {
    std::string swapped(name);
    for (char& c : swapped)
        if (isAsciiLetter(c))
            c = static_cast<char>(c ^ 0x20);
    return swapped;
}

/// True when a name in the folder means the same file in capitals: asked of what lies there.
bool ignoresCase(const FileSystem& files, const Path& folder) {
    const FileResult<std::vector<std::string>> names = files.listFolder(std::string(folder.text()));
    if (!names.isOk())
        return false;
    return std::any_of(names.value().begin(), names.value().end(), [&](const std::string& name) {
        const std::string swapped = withCaseSwapped(name);
        return swapped != name && (files.isSameFile(folder.child(name), folder.child(swapped)) ||
                                   files.isSameFolder(folder.child(name), folder.child(swapped)));
    });
}

}  // namespace

bool isOwnFile(std::string_view bytes) {
    std::string_view line = bytes.substr(0, bytes.find('\n'));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (std::find(std::begin(kMarks), std::end(kMarks), line) != std::end(kMarks))
        return true;
    return std::any_of(std::begin(kUnmarkedFiles), std::end(kUnmarkedFiles),
                       [bytes](const BuiltFile& file) {
                           return file.sizeBytes == bytes.size() && file.hash == hashOf(bytes);
                       });
}

bool hasReservedName(const FileSystem& files, const Path& path) {
    const std::string text(path.text());
    const std::string folderText(path.folder().empty() ? "." : path.folder());
    const Path folder(folderText);
    const auto means = [&](std::string_view reserved) {
        return path.name() == reserved || files.isSameFile(text, folder.child(reserved)) ||
               (equalsIgnoringCase(path.name(), reserved) && ignoresCase(files, folder));
    };
    return std::any_of(std::begin(kReservedNames), std::end(kReservedNames), means);
}

}  // namespace zev
