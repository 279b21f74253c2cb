// SPDX-License-Identifier: MIT
#include "platform/posix/posix_file_replace.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <optional>
#include <vector>

#include "platform/posix/posix_attributes.h"
#include "platform/posix/posix_descriptor.h"
#include "platform/posix/posix_side_file.h"

namespace zev {

namespace {

/// While it lives, writing to a pipe that nobody reads is an error and does not end the process.
class SigPipeBlock {
  public:
    SigPipeBlock() {
        sigemptyset(&m_sigPipe);
        sigaddset(&m_sigPipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_sigPipe, &m_oldMask);
    }
    SigPipeBlock(const SigPipeBlock&) = delete;
    SigPipeBlock& operator=(const SigPipeBlock&) = delete;
    ~SigPipeBlock() {
        if (sigismember(&m_oldMask, SIGPIPE) == 0) {
            const timespec noWait{};
            while (sigtimedwait(&m_sigPipe, nullptr, &noWait) < 0 && errno == EINTR) {
            }
        }
        pthread_sigmask(SIG_SETMASK, &m_oldMask, nullptr);
    }

  private:
    sigset_t m_sigPipe;
    sigset_t m_oldMask;
};

bool isForbidden(int error) {
    return error == EACCES || error == EPERM || error == EROFS;
}

/// Opens a folder so that it can be flushed. Where that is forbidden, `folder` stays closed.
int openFolder(const std::string& path, PosixDescriptor& folder) {
    const int error = openDescriptor(path, O_RDONLY | O_DIRECTORY, 0, folder);
    return error == EACCES ? 0 : error;
}

int flushOpened(const PosixDescriptor& folder) {
    return folder.isOpen() ? flushToDisk(folder.get()) : 0;
}

int copyBytes(int from, int to) {
    std::string chunk(std::size_t{64} * 1024, '\0');
    if (::lseek(from, 0, SEEK_SET) != 0 || ::lseek(to, 0, SEEK_SET) != 0)
        return errno;
    for (;;) {
        const ssize_t count = ::read(from, chunk.data(), chunk.size());
        if (count == 0)
            return 0;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno;
        if (const int error = writeAll(to, {chunk.data(), static_cast<std::size_t>(count)}))
            return error;
    }
}

/// Cuts an open file to its length and flushes it.
int finishInPlace(int descriptor, off_t sizeBytes) {
    if (::ftruncate(descriptor, sizeBytes) != 0)
        return errno;
    return flushToDisk(descriptor);
}

int writeStraight(const WriteTarget& target, std::string_view bytes) {
    const SigPipeBlock block;
    PosixDescriptor file;
    if (target.ownDescriptor >= 0) {
        file = PosixDescriptor(::fcntl(target.ownDescriptor, F_DUPFD_CLOEXEC, 0));
        if (!file.isOpen())
            return errno;
    } else if (const int error = openDescriptor(target.path, O_WRONLY | O_TRUNC, 0, file)) {
        return error;
    }
    if (const int error = writeAll(file.get(), bytes))
        return error;
    return file.close();
}

/// Makes a flushed copy of the target's old content.
int keepOldContent(const WriteTarget& target, int descriptor, SideFile& copy) {
    int error = copy.makeBeside(target, SideFile::Kind::OldContent, S_IRUSR | S_IWUSR);
    if (isForbidden(error))
        error = copy.makeInTemporaryFolder(target, S_IRUSR | S_IWUSR);
    if (error == 0)
        error = copyBytes(descriptor, copy.descriptor());
    if (error == 0)
        error = flushToDisk(copy.descriptor());
    return error != 0 ? error : flushFolder(copy.folder());
}

/// Opens the file that the target was found to be, and no other that has taken its name since.
int openInPlace(const WriteTarget& target, PosixDescriptor& file) {
    if (const int error = openDescriptor(target.path, O_RDWR | O_NOFOLLOW | O_NONBLOCK, 0, file))
        return error;
    struct stat opened {};
    if (::fstat(file.get(), &opened) != 0)
        return errno;
    const bool isSame = opened.st_dev == target.status.st_dev &&
                        opened.st_ino == target.status.st_ino &&
                        opened.st_nlink == target.status.st_nlink;
    return isSame ? 0 : EBUSY;
}

FileOutcome writeInPlace(const WriteTarget& target, std::string_view bytes) {
    PosixDescriptor file;
    SideFile copy;
    int error = openInPlace(target, file);
    if (error == 0)
        error = keepOldContent(target, file.get(), copy);
    if (error != 0)
        return fileErrorOf(error, target.path);

    if (::lseek(file.get(), 0, SEEK_SET) != 0)
        error = errno;
    if (error == 0)
        error = writeAll(file.get(), bytes);
    if (error == 0)
        error = finishInPlace(file.get(), static_cast<off_t>(bytes.size()));
    if (error == 0)
        return {};

    FileError problem = fileErrorOf(error, target.path);
    int restoreError = copyBytes(copy.descriptor(), file.get());
    if (restoreError == 0)
        restoreError = finishInPlace(file.get(), target.status.st_size);
    if (restoreError != 0) {
        problem.reason += "; the old content is kept in " + copy.path();
        copy.handOver();
    }
    return problem;
}

struct RenameResult {
    int error = 0;
    bool isInPlaceNeeded = false;  ///< nothing was changed; a rename is not the way here
};

/// The new file has what `model` has of owner, rights and attributes; none: what is usual for the
/// user and the folder. A model that is not the target itself need not be met: the file is then
/// the user's alone, or has all but the owner.
RenameResult replaceByRename(const WriteTarget& target, const WriteTarget* model,
                             std::string_view bytes) {
    PosixDescriptor folder;
    if (!target.isFlushedLater)
        if (const int error = openFolder(target.folder, folder))
            return {error};
    SideFile side;
    std::optional<FileAttributes> attributes;
    if (model != nullptr)
        attributes.emplace(model->path, model->status);
    const unsigned mode = attributes ? attributes->modeToBeginWith() : 0666;
    if (const int error = side.makeBeside(target, SideFile::Kind::NewContent, mode))
        return {error, target.exists && isForbidden(error)};
    if (attributes) {
        const Carried carried = attributes->giveTo(side.descriptor(), side.status());
        if (model == &target && carried != Carried::All)
            return {0, true};
        if (carried == Carried::Failed ||
            (carried == Carried::Less && ::fchmod(side.descriptor(), 0600) != 0))
            return {errno};
    }
    int error = writeAll(side.descriptor(), bytes);
    if (error == 0)
        error = flushToDisk(side.descriptor());
    if (error != 0)
        return {error};
    if (::rename(side.path().c_str(), target.path.c_str()) != 0) {
        error = errno;
        const bool isMountPoint = error == EBUSY || error == EXDEV;
        return {error, target.exists && (isMountPoint || isForbidden(error))};
    }
    side.handOver();
    // The new content is there and whole, but may be lost again if the power fails now.
    return {flushOpened(folder)};
}

/// A rename would replace a file that its owner has protected.
FileOutcome refuseProtected(const WriteTarget& target) {
    if (!target.exists || ::faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS) == 0)
        return {};
    return fileErrorOf(errno, target.path);
}

/// `original` is null but for a backup of it.
FileOutcome replaceRegularFile(const WriteTarget& target, const WriteTarget* original,
                               std::string_view bytes) {
    if (FileOutcome error = refuseProtected(target))
        return error;
    if (target.exists && target.status.st_nlink > 1)
        return writeInPlace(target, bytes);
    const WriteTarget* const model = original != nullptr ? original
                                     : target.exists     ? &target
                                                         : nullptr;
    const RenameResult result = replaceByRename(target, model, bytes);
    // In place a backup would keep the rights of an older one.
    if (result.isInPlaceNeeded && original == nullptr)
        return writeInPlace(target, bytes);
    if (result.error != 0)
        return fileErrorOf(result.error, target.path);
    return {};
}

FileOutcome replaceOrBackUp(const std::string& path, const WriteTarget* original,
                            std::string_view bytes, Links links, FolderLeftovers& leftovers,
                            const std::string& temporaryName = {},
                            std::set<std::string>* unflushedFolders = nullptr) {
    WriteTarget target;
    FileOutcome outcome;
    int error = resolveWriteTarget(path, links, target);
    target.temporaryName = temporaryName;
    target.isFlushedLater = unflushedFolders != nullptr;
    if (error == 0 && !temporaryName.empty() && target.name == temporaryName)
        error = EINVAL;  // a link led to it
    if (error != 0) {
        outcome = fileErrorOf(error, path);
    } else if (target.isWrittenStraight && links == Links::Replaced) {
        outcome = refuseSpecialFile(target.status.st_mode, path);
    } else if (target.isWrittenStraight) {
        error = writeStraight(target, bytes);
        if (error != 0)
            outcome = fileErrorOf(error, path);
    } else {
        const std::vector<std::string> oldCopies = clearLeftovers(target, leftovers);
        outcome = replaceRegularFile(target, original, bytes);
        if (!outcome && target.isFlushedLater)
            unflushedFolders->insert(target.folder);
        if (!outcome)
            for (const std::string& copy : oldCopies)
                removeLeftover(copy);
    }
    if (outcome) {
        outcome->path = path;  // the name the caller knows, not where its links lead
        leftovers = {};        // there may be one more now
    }
    return outcome;
}

}  // namespace

FileOutcome replaceFile(const std::string& path, std::string_view bytes, Links links,
                        FolderLeftovers& leftovers) {
    return replaceOrBackUp(path, nullptr, bytes, links, leftovers);
}

FileOutcome replaceFileThrough(const std::string& temporaryName, const std::string& path,
                               std::string_view bytes, FolderLeftovers& leftovers,
                               std::set<std::string>& unflushedFolders) {
    return replaceOrBackUp(path, nullptr, bytes, Links::Followed, leftovers, temporaryName,
                           &unflushedFolders);
}

int flushFolder(const std::string& path) {
    PosixDescriptor folder;
    const int error = openFolder(path, folder);
    return error != 0 ? error : flushOpened(folder);
}

FileOutcome writeBackup(const std::string& original, const std::string& backup,
                        std::string_view bytes, FolderLeftovers& leftovers) {
    WriteTarget target;
    FileOutcome error;
    if (const int problem = resolveWriteTarget(original, Links::Followed, target))
        error = fileErrorOf(problem, original);
    else
        error = refuseProtected(target);
    if (error) {
        error->path = original;
        return error;
    }
    return replaceOrBackUp(backup, &target, bytes, Links::Replaced, leftovers);
}

}  // namespace zev
