// SPDX-License-Identifier: MIT
#include "platform/posix/posix_file_system.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/posix/posix_descriptor.h"
#include "platform/posix/posix_file_replace.h"
#include "platform/posix/posix_locked_file.h"

namespace zev {

namespace {

/// True when both paths lead to one thing of this kind (S_IFDIR...).
bool isSame(const std::string& left, const std::string& right, mode_t kind) {
    struct stat one {};
    struct stat other {};
    return ::stat(left.c_str(), &one) == 0 && ::stat(right.c_str(), &other) == 0 &&
           (one.st_mode & S_IFMT) == kind && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

/// What the program copies are scripts and web pages.
constexpr std::uint64_t kMaxCopyBytes = std::uint64_t{1} << 30;

/// Opens a file but no pipe, socket or device, and waits for nobody. `status` is its fstat().
FileOutcome openForReading(const std::string& path, PosixDescriptor& file, struct stat& status) {
    // Asked first, for to open a device may do something; and asked again of what was opened, for
    // another file may have taken the name.
    if (::stat(path.c_str(), &status) != 0)
        return fileErrorOf(errno, path);
    if (FileOutcome refused = refuseSpecialFile(status.st_mode, path))
        return refused;
    if (const int error = openDescriptor(path, O_RDONLY | O_NONBLOCK, 0, file))
        return fileErrorOf(error, path);
    if (::fstat(file.get(), &status) != 0)
        return fileErrorOf(errno, path);
    return refuseSpecialFile(status.st_mode, path);
}

/// Makes the folder and what is missing above it. Only the user can look into it, also where it was
/// there before.
FileOutcome ensurePrivateFolder(const std::string& path) {
    const std::string above = std::filesystem::path(path).parent_path().string();
    std::error_code error;
    std::filesystem::create_directories(above, error);
    if (error)
        return fileErrorOf(error.value(), above);
    if (::mkdir(path.c_str(), 0700) != 0 && (errno != EEXIST || ::chmod(path.c_str(), 0700) != 0))
        return fileErrorOf(errno, path);
    return {};
}

class PosixGrowingFile : public GrowingFile {
  public:
    PosixGrowingFile(std::string path, PosixDescriptor file)
        : m_path(std::move(path)), m_file(std::move(file)) {}
    FileOutcome append(std::string_view bytes) override {
        return outcomeOf(writeAll(m_file.get(), bytes));
    }
    FileOutcome flush() override { return outcomeOf(flushToDisk(m_file.get())); }

  private:
    FileOutcome outcomeOf(int error) const {
        return error == 0 ? FileOutcome{} : FileOutcome{fileErrorOf(error, m_path)};
    }

    std::string m_path;
    PosixDescriptor m_file;
};

}  // namespace

bool PosixFileSystem::FileExists(const std::string& path) const {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool PosixFileSystem::isFolder(const std::string& path) const {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

DiskEntry PosixFileSystem::entryAt(const std::string& path) const {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0)
        return DiskEntry::Nothing;
    switch (status.st_mode & S_IFMT) {
        case S_IFREG:
            return DiskEntry::File;
        case S_IFDIR:
            return DiskEntry::Folder;
        case S_IFLNK:
            return DiskEntry::Link;
        default:
            return DiskEntry::Other;
    }
}

bool PosixFileSystem::isSameFolder(const std::string& left, const std::string& right) const {
    return isSame(left, right, S_IFDIR);
}

bool PosixFileSystem::isSameFile(const std::string& left, const std::string& right) const {
    return isSame(left, right, S_IFREG);
}

bool PosixFileSystem::isWritableFile(const std::string& path) const {
    return FileExists(path) && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

bool PosixFileSystem::isWritableFolder(const std::string& path) const {
    return isFolder(path) && ::faccessat(AT_FDCWD, path.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

FileResult<std::string> PosixFileSystem::readFile(const std::string& path,
                                                  std::uint64_t maxBytes) const {
    PosixDescriptor file;
    struct stat status {};
    if (const FileOutcome error = openForReading(path, file, status))
        return *error;
    std::string bytes;
    if (const int error = readOpened(file.get(), status, maxBytes, bytes))
        return fileErrorOf(error, path);
    return bytes;
}

FileOutcome PosixFileSystem::writeFile(const std::string& path, std::string_view bytes,
                                       Links links) {
    return replaceFile(path, bytes, links, m_leftovers);
}

FileOutcome PosixFileSystem::writeFileThrough(const std::string& temporaryName,
                                              const std::string& path, std::string_view bytes) {
    return replaceFileThrough(temporaryName, path, bytes, m_leftovers, m_unflushedFolders);
}

FileOutcome PosixFileSystem::flushFolders() {
    FileOutcome problem;
    for (const std::string& folder : std::exchange(m_unflushedFolders, {}))
        if (const int error = flushFolder(folder); error != 0 && !problem)
            problem = fileErrorOf(error, folder);
    return problem;
}

FileOutcome PosixFileSystem::writeTemporaryFile(const std::string& path, std::string_view bytes) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) == 0 && !S_ISLNK(status.st_mode))
        if (const FileOutcome refused = refuseSpecialFile(status.st_mode, path))
            return refused;
    // A link by that name is replaced, not followed.
    if (::unlink(path.c_str()) != 0 && errno != ENOENT)
        return fileErrorOf(errno, path);
    PosixDescriptor file;
    if (const int error =
            openDescriptor(path, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR, file))
        return fileErrorOf(error, path);
    int error = writeAll(file.get(), bytes);
    if (error == 0)
        error = file.close();
    if (error == 0)
        return {};
    ::unlink(path.c_str());
    return fileErrorOf(error, path);
}

FileOutcome PosixFileSystem::CopyFile(const std::string& source, const std::string& destination,
                                      Links links) {
    const FileResult<std::string> bytes = readFile(source, kMaxCopyBytes);
    if (!bytes.isOk())
        return bytes.error();
    return replaceFile(destination, bytes.value(), links, m_leftovers);
}

FileOutcome PosixFileSystem::backUpFile(const std::string& path, const std::string& backup,
                                        std::string_view bytes) {
    return writeBackup(path, backup, bytes, m_leftovers);
}

FileResult<std::unique_ptr<GrowingFile>> PosixFileSystem::makePrivateFile(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    if (const FileOutcome error = ensurePrivateFolder(folder.string()))
        return *error;
    PosixDescriptor file;
    int error = openDescriptor(path, O_WRONLY | O_CREAT | O_EXCL | O_APPEND, 0600, file);
    if (error == 0 && ::flock(file.get(), LOCK_EX | LOCK_NB) != 0)
        error = errno;
    PosixDescriptor opened;
    if (error == 0)
        error = openDescriptor(folder.string(), O_RDONLY | O_DIRECTORY, 0, opened);
    if (error == 0)
        error = flushToDisk(opened.get());
    if (error == 0)
        return std::unique_ptr<GrowingFile>(new PosixGrowingFile(path, std::move(file)));
    if (file.isOpen())
        ::unlink(path.c_str());
    return fileErrorOf(error, path);
}

FileResult<unsigned> PosixFileSystem::modeOf(const std::string& path) const {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return fileErrorOf(errno, path);
    return static_cast<unsigned>(status.st_mode & 07777);
}

FileOutcome PosixFileSystem::setMode(const std::string& path, unsigned mode) {
    if (::chmod(path.c_str(), mode) != 0)
        return fileErrorOf(errno, path);
    return {};
}

FileOutcome PosixFileSystem::renameFile(const std::string& path, const std::string& newPath) {
    int error = 0;
    if (::renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, newPath.c_str(), RENAME_NOREPLACE) != 0)
        error = errno;
    // Some network drives cannot promise to replace nothing.
    if (error == EINVAL && entryAt(newPath) == DiskEntry::Nothing)
        error = ::rename(path.c_str(), newPath.c_str()) == 0 ? 0 : errno;
    if (error != 0)
        return fileErrorOf(error, path);
    return {};
}

FileOutcome PosixFileSystem::DeleteFile(const std::string& path) {
    if (::unlink(path.c_str()) != 0)
        return fileErrorOf(errno, path);
    return {};
}

FileOutcome PosixFileSystem::makeFolder(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error)
        return fileErrorOf(error.value(), path);
    return {};
}

FileOutcome PosixFileSystem::makePrivateFolder(const std::string& path) {
    if (::mkdir(path.c_str(), S_IRWXU) != 0)
        return fileErrorOf(errno, path);
    return {};
}

FileOutcome PosixFileSystem::deleteFolder(const std::string& path) {
    if (::rmdir(path.c_str()) != 0)
        return fileErrorOf(errno, path);
    return {};
}

FileResult<std::unique_ptr<LockedFile>> PosixFileSystem::makeLockedFile(const std::string& path,
                                                                        std::string_view bytes) {
    if (entryAt(path) != DiskEntry::Nothing)
        return fileErrorOf(EEXIST, path);
    return makePosixLockedFile(path, bytes);
}

std::unique_ptr<LockedFile> PosixFileSystem::lockFile(const std::string& path) {
    return lockPosixFile(path);
}

FileResult<std::vector<std::string>> PosixFileSystem::listFolder(const std::string& path) const {
    std::error_code error;
    std::vector<std::string> names;
    for (std::filesystem::directory_iterator entry(path, error), end; !error && entry != end;
         entry.increment(error))
        names.push_back(entry->path().filename().string());
    if (error)
        return fileErrorOf(error.value(), path);
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace zev
