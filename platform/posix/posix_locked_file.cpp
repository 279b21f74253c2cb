// SPDX-License-Identifier: MIT
#include "platform/posix/posix_locked_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/posix/posix_descriptor.h"

namespace zev {

namespace {

int lockDescriptor(const PosixDescriptor& file) {
    return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
}

/// 0 or an errno.
int makeFile(const std::string& path, std::string_view bytes, PosixDescriptor& file) {
    const std::string newPath = path + "~";
    // What a killed run left there; nobody else makes files in this folder.
    ::unlink(newPath.c_str());
    int error =
        openDescriptor(newPath, O_WRONLY | O_APPEND | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR, file);
    if (error != 0)
        return error;
    error = lockDescriptor(file);
    if (error == 0)
        error = writeAll(file.get(), bytes);
    if (error == 0)
        error = flushToDisk(file.get());
    if (error == 0 && ::rename(newPath.c_str(), path.c_str()) != 0)
        error = errno;
    if (error != 0)
        ::unlink(newPath.c_str());
    return error;
}

class PosixLockedFile : public LockedFile {
  public:
    PosixLockedFile(std::string path, PosixDescriptor file)
        : m_path(std::move(path)), m_file(std::move(file)) {}

    FileOutcome append(std::string_view bytes) override {
        return outcomeOf(writeAll(m_file.get(), bytes));
    }
    FileOutcome rewrite(std::string_view bytes) override {
        PosixDescriptor file;
        const int error = makeFile(m_path, bytes, file);
        if (error == 0)
            m_file = std::move(file);
        return outcomeOf(error);
    }
    FileOutcome sync() override { return outcomeOf(flushToDisk(m_file.get())); }

  private:
    FileOutcome outcomeOf(int error) const {
        return error == 0 ? FileOutcome{} : fileErrorOf(error, m_path);
    }

    std::string m_path;
    PosixDescriptor m_file;
};

}  // namespace

FileResult<std::unique_ptr<LockedFile>> makePosixLockedFile(const std::string& path,
                                                            std::string_view bytes) {
    PosixDescriptor file;
    if (const int error = makeFile(path, bytes, file))
        return fileErrorOf(error, path);
    return std::unique_ptr<LockedFile>(std::make_unique<PosixLockedFile>(path, std::move(file)));
}

std::unique_ptr<LockedFile> lockPosixFile(const std::string& path) {
    PosixDescriptor file;
    if (openDescriptor(path, O_WRONLY | O_APPEND | O_NOFOLLOW | O_NONBLOCK, 0, file) != 0 ||
        lockDescriptor(file) != 0)
        return nullptr;
    return std::make_unique<PosixLockedFile>(path, std::move(file));
}

}  // namespace zev
