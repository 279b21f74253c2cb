// SPDX-License-Identifier: MIT
#include "platform/posix/posix_side_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "text/hash.h"

namespace zev {

namespace {

constexpr std::string_view kMark = ".zev-";
constexpr std::size_t kRandomLength = 6;
constexpr int kMaxAttempts = 100;
constexpr std::string_view kRandomCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

/// Sixteen hexadecimal digits, the same in every run.
std::string hashText(std::string_view text) {
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hashOf(text)));
    return digits;
}

/// The target's name, cut where the name of a side file would become too long for a folder.
std::string stemOf(const std::string& name) {
    constexpr std::size_t kMaxStem = 220;
    if (name.size() <= kMaxStem)
        return name;
    std::size_t end = kMaxStem - 20;
    while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80U)
        --end;  // not inside a code point
    return name.substr(0, end) + "-" + hashText(name);
}

std::string prefixBeside(const WriteTarget& target, SideFile::Kind kind) {
    const std::string hiding = kind == SideFile::Kind::NewContent ? "." : "";
    return hiding + stemOf(target.name) + std::string(kMark);
}

/// Files of the same name in different folders must not be taken for one another.
std::string prefixInTemporaryFolder(const WriteTarget& target) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(target.path, error);
    return stemOf(target.name) + "-" + hashText(path.lexically_normal().string()) +
           std::string(kMark);
}

std::string temporaryFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    return error ? "/tmp" : folder.string();
}

std::string randomName(const std::string& prefix) {
    std::uint64_t number = 0;
    static_cast<void>(::getentropy(&number, sizeof number));  // cannot fail for so few bytes
    std::string name = prefix;
    for (std::size_t i = 0; i < kRandomLength; ++i, number /= kRandomCharacters.size())
        name += kRandomCharacters[number % kRandomCharacters.size()];
    return name + "~";
}

/// Where the mark is in the name of a side file; npos in any other name.
std::size_t markIn(std::string_view name) {
    constexpr std::size_t kEnding = kMark.size() + kRandomLength + 1;
    if (name.size() <= kEnding || !name.ends_with('~'))
        return std::string_view::npos;
    const std::size_t mark = name.size() - kEnding;
    const std::string_view random = name.substr(mark + kMark.size(), kRandomLength);
    const bool isOne = name.substr(mark, kMark.size()) == kMark &&
                       random.find_first_not_of(kRandomCharacters) == std::string_view::npos;
    return isOne ? mark : std::string_view::npos;
}

/// Of side files by the names given: the paths of those whose names begin like this.
std::vector<std::string> pathsOf(const std::string& folder, const std::vector<std::string>& names,
                                 std::string_view prefix) {
    std::vector<std::string> paths;
    for (const std::string& name : names)
        if (std::string_view(name).substr(0, markIn(name) + kMark.size()) == prefix)
            paths.push_back(folder + "/" + name);
    return paths;
}

/// `open` gets the file's fstat().
bool isStillAt(int descriptor, const std::string& path, struct stat& open) {
    struct stat named {};
    return ::fstat(descriptor, &open) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

/// The same for a file that nobody renames or links: while it has a name, that is the one. Some
/// drives do not know how many a file has.
bool hasItsName(int descriptor, const std::string& path, struct stat& open) {
    return (::fstat(descriptor, &open) == 0 && open.st_nlink > 0) ||
           isStillAt(descriptor, path, open);
}

/// Waits while another process has the lock.
void lockFile(int descriptor) {
    while (::flock(descriptor, LOCK_EX) != 0 && errno == EINTR) {
    }
}

/// Removes the file or link that has a temporary name, as soon as no live process holds it. 0 or an
/// errno.
int removeUnused(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0)
        return errno == ENOENT ? 0 : errno;
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    PosixDescriptor file;
    if (S_ISREG(status.st_mode)) {
        // What may not be read cannot be waited for.
        if (openDescriptor(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK, 0, file) == 0)
            lockFile(file.get());
        if (file.isOpen() && !isStillAt(file.get(), path, status))
            return 0;
    } else if (!S_ISLNK(status.st_mode)) {
        return EEXIST;
    }
    return ::unlink(path.c_str()) == 0 || errno == ENOENT ? 0 : errno;
}

}  // namespace

SideFile::~SideFile() {
    if (!m_path.empty())
        ::unlink(m_path.c_str());
}

int SideFile::makeBeside(const WriteTarget& target, Kind kind, unsigned mode) {
    if (kind == Kind::NewContent && !target.temporaryName.empty())
        return makeByName(target.folder, target.temporaryName, mode);
    return makeByPrefix(target.folder, prefixBeside(target, kind), mode);
}

int SideFile::makeInTemporaryFolder(const WriteTarget& target, unsigned mode) {
    return makeByPrefix(temporaryFolder(), prefixInTemporaryFolder(target), mode);
}

int SideFile::makeByPrefix(const std::string& folder, const std::string& prefix, unsigned mode) {
    int error = EEXIST;
    for (int attempt = 0; attempt < kMaxAttempts && error == EEXIST; ++attempt)
        error = make(folder, randomName(prefix), mode);
    return error;
}

int SideFile::makeByName(const std::string& folder, const std::string& name, unsigned mode) {
    int error = EEXIST;
    for (int attempt = 0; attempt < kMaxAttempts && error == EEXIST; ++attempt) {
        error = make(folder, name, mode);
        if (error != EEXIST)
            break;
        if (const int removeError = removeUnused(folder + "/" + name))
            return removeError;
    }
    return error;
}

/// EEXIST also when another process has taken the file away again.
int SideFile::make(const std::string& folder, const std::string& name, unsigned mode) {
    const std::string path = folder + "/" + name;
    PosixDescriptor file;
    if (const int error = openDescriptor(path, O_RDWR | O_CREAT | O_EXCL, mode, file))
        return error;
    // Network drives may know no locks; leftovers are not removed there.
    lockFile(file.get());
    // Before the lock was there another process may have taken the file for a leftover.
    if (!hasItsName(file.get(), path, m_status))
        return EEXIST;
    m_folder = folder;
    m_path = path;
    m_file = std::move(file);
    return 0;
}

const std::vector<std::string>& FolderLeftovers::namesIn(const std::string& folder) {
    if (m_folder == folder)
        return m_names;
    m_folder = folder;
    m_isWritable = ::faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) == 0;
    m_names.clear();
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::string name = entry->path().filename().string();
        if (markIn(name) != std::string::npos)
            m_names.push_back(std::move(name));
    }
    return m_names;
}

std::vector<std::string> clearLeftovers(const WriteTarget& target, FolderLeftovers& beside) {
    const std::vector<std::string>& names = beside.namesIn(target.folder);
    const std::string newContent = prefixBeside(target, SideFile::Kind::NewContent);
    for (const std::string& path : pathsOf(target.folder, names, newContent))
        removeLeftover(path);
    std::vector<std::string> kept =
        pathsOf(target.folder, names, prefixBeside(target, SideFile::Kind::OldContent));
    // The folder for temporary files, which may be large, holds something of the target's only when
    // nothing could be put beside it.
    if (!beside.isWritable()) {
        const std::string folder = temporaryFolder();
        FolderLeftovers leftovers;
        for (std::string& path :
             pathsOf(folder, leftovers.namesIn(folder), prefixInTemporaryFolder(target)))
            kept.push_back(std::move(path));
    }
    return kept;
}

void removeLeftover(const std::string& path) {
    PosixDescriptor file;
    if (openDescriptor(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK, 0, file) != 0)
        return;
    struct stat status {};
    if (::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode) &&
        ::flock(file.get(), LOCK_EX | LOCK_NB) == 0)
        ::unlink(path.c_str());
}

}  // namespace zev
