// SPDX-License-Identifier: MIT
#include "platform/posix/posix_descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace zev {

PosixDescriptor::PosixDescriptor(PosixDescriptor&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

PosixDescriptor& PosixDescriptor::operator=(PosixDescriptor&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

PosixDescriptor::~PosixDescriptor() {
    close();
}

int PosixDescriptor::close() {
    const int descriptor = std::exchange(m_descriptor, -1);
    // An interrupted close() has closed the descriptor all the same; repeating it could close one
    // that another thread has just opened.
    if (descriptor >= 0 && ::close(descriptor) != 0 && errno != EINTR)
        return errno;
    return 0;
}

int openDescriptor(const std::string& path, int flags, unsigned mode, PosixDescriptor& result) {
    int descriptor = -1;
    do {
        descriptor = ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode);
    } while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0)
        return errno;
    result = PosixDescriptor(descriptor);
    return 0;
}

int writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        if (written == 0)
            return ENOSPC;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

int readAll(int descriptor, std::uint64_t maxBytes, std::string& bytes) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0)
        return errno;
    return readOpened(descriptor, status, maxBytes, bytes);
}

int readOpened(int descriptor, const struct stat& status, std::uint64_t maxBytes,
               std::string& bytes) {
    constexpr std::size_t kChunkBytes = 64 * 1024;
    std::uint64_t expectedBytes = 0;
    if (S_ISREG(status.st_mode) && status.st_size > 0)
        expectedBytes = static_cast<std::uint64_t>(status.st_size);
    if (expectedBytes > maxBytes)
        return EFBIG;
    const std::size_t begin = bytes.size();
    std::size_t end = begin;
    // One byte more than expected, so that one look tells that the file has ended there.
    bytes.resize(begin +
                 (expectedBytes > 0 ? static_cast<std::size_t>(expectedBytes) + 1 : kChunkBytes));
    for (;;) {
        const ssize_t count = ::read(descriptor, bytes.data() + end, bytes.size() - end);
        if (count < 0 && errno == EINTR)
            continue;
        const int error = count < 0 ? errno : 0;
        end += count > 0 ? static_cast<std::size_t>(count) : 0;
        const bool isTooLarge = end - begin > maxBytes;
        const bool isWhole = expectedBytes > 0 && end - begin == expectedBytes;
        if (count <= 0 || isWhole || isTooLarge) {
            bytes.resize(end);
            return isTooLarge ? EFBIG : error;
        }
        if (end == bytes.size())
            bytes.resize(end + kChunkBytes);
    }
}

int flushToDisk(int descriptor) {
    while (::fsync(descriptor) != 0) {
        // A drive that knows no fsync() may tell of lost data when a descriptor is closed.
        if (errno == EINVAL || errno == ENOTSUP || errno == ENOSYS)
            return PosixDescriptor(::fcntl(descriptor, F_DUPFD_CLOEXEC, 0)).close();
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

FileError fileErrorOf(int errorNumber, const std::string& path) {
    FileError error{FileError::Code::Other, path, std::generic_category().message(errorNumber)};
    switch (errorNumber) {
        case ENOENT:
        case ENOTDIR:
            error.code = FileError::Code::NotFound;
            break;
        case EISDIR:
            error.code = FileError::Code::IsFolder;
            break;
        case EACCES:
        case EPERM:
        case EROFS:
            error.code = FileError::Code::NoPermission;
            break;
        case ENOSPC:
        case EDQUOT:
            error.code = FileError::Code::NoSpace;
            break;
        case EFBIG:
            error.code = FileError::Code::TooLarge;
            break;
        default:
            break;
    }
    return error;
}

FileOutcome refuseSpecialFile(unsigned mode, const std::string& path) {
    if (S_ISREG(mode) || S_ISDIR(mode))
        return {};
    const char* const kind = S_ISFIFO(mode) ? "pipe" : S_ISSOCK(mode) ? "socket" : "device";
    return FileError{FileError::Code::Other, path, std::string("Is a ") + kind};
}

}  // namespace zev
