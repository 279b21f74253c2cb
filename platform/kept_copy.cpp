// SPDX-License-Identifier: MIT
#include "platform/kept_copy.h"

#include <cstddef>

namespace zev {

namespace {

/// More than any file has that the program replaces.
constexpr std::uint64_t kMaxKeptBytes = std::uint64_t{1} << 30;

/// The `number`th such name, counted from 1.
std::string numbered(const std::string& name, std::size_t number) {
    return number > 1 ? name + "." + std::to_string(number) : name;
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
    return content.isOk() ? keepBytes(files, path, path + ".bak", content.value()) : content;
}

FileResult<std::string> keepBytes(FileSystem& files, const std::string& path,
                                  const std::string& name, const std::string& bytes) {
    for (std::size_t number = 1;; ++number) {
        std::string kept = numbered(name, number);
        if (holds(files, kept, bytes))
            return kept;
        if (files.entryAt(kept) != DiskEntry::Nothing)
            continue;
        if (FileOutcome error = files.backUpFile(path, kept, bytes))
            return *error;
        return kept;
    }
}

FileResult<std::string> setAside(FileSystem& files, const std::string& path) {
    std::size_t number = 1;
    while (files.entryAt(numbered(path + ".bak", number)) != DiskEntry::Nothing)
        ++number;
    std::string name = numbered(path + ".bak", number);
    if (FileOutcome error = files.renameFile(path, name))
        return *error;
    return name;
}

}  // namespace zev
