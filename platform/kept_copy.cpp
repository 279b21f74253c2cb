// SPDX-License-Identifier: MIT
#include "platform/kept_copy.h"

#include <cstddef>

namespace zev {

namespace {

/// More than any file has that the program replaces.
constexpr std::uint64_t kMaxKeptBytes = std::uint64_t{1} << 30;

/// The `number`th name for what is kept of `path`, counted from 1.
std::string keptName(const std::string& path, std::size_t number) {
    return path + ".bak" + (number > 1 ? "." + std::to_string(number) : "");
}

bool holds(const FileSystem& files, const std::string& path, const std::string& content) {
    if (files.entryAt(path) != DiskEntry::File)
        return false;
    const FileResult<std::string> present = files.readFile(path, content.size());
    return present.isOk() && present.value() == content;
}

}  // namespace

FileResult<std::string> keepCopy(FileSystem& files, const std::string& path) {
    const FileResult<std::string> content = files.readFile(path, kMaxKeptBytes);
    if (!content.isOk())
        return content;
    for (std::size_t number = 1;; ++number) {
        std::string name = keptName(path, number);
        if (holds(files, name, content.value()))
            return name;
        if (files.entryAt(name) != DiskEntry::Nothing)
            continue;
        if (FileOutcome error = files.backUpFile(path, name, content.value()))
            return *error;
        return name;
    }
}

FileResult<std::string> setAside(FileSystem& files, const std::string& path) {
    std::size_t number = 1;
    while (files.entryAt(keptName(path, number)) != DiskEntry::Nothing)
        ++number;
    std::string name = keptName(path, number);
    if (FileOutcome error = files.renameFile(path, name))
        return *error;
    return name;
}

}  // namespace zev
