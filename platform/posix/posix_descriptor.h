#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zev {

/// An open file descriptor, closed when the owner goes.
class PosixDescriptor {
  public:
    PosixDescriptor() = default;
    /// Takes ownership; -1 is none.
    explicit PosixDescriptor(int descriptor) : m_descriptor(descriptor) {}
    PosixDescriptor(PosixDescriptor&& other) noexcept;
    PosixDescriptor& operator=(PosixDescriptor&& other) noexcept;
    ~PosixDescriptor();

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    /// Closes now. 0, or the errno of a close that lost data. Closing nothing is 0.
    int close();

  private:
    int m_descriptor = -1;
};

// The following return 0 or an errno. An interrupted call is repeated, a short one continued.

/// open() with O_CLOEXEC and O_NOCTTY added.
int openDescriptor(const std::string& path, int flags, unsigned mode, PosixDescriptor& result);
int writeAll(int descriptor, std::string_view bytes);
/// Appends to `bytes` until the end of the file. EFBIG when there are more than `maxBytes`, also
/// for files that do not know their size, such as pipes.
int readAll(int descriptor, std::uint64_t maxBytes, std::string& bytes);
/// The same where the descriptor's fstat() is known.
int readOpened(int descriptor, const struct stat& status, std::uint64_t maxBytes,
               std::string& bytes);
/// fsync(). What cannot be flushed, such as a folder on some network drives, is no error.
int flushToDisk(int descriptor);

/// The error for a person, in the system's own words. `errorNumber` is an errno.
FileError fileErrorOf(int errorNumber, const std::string& path);

/// The error of a pipe, socket or device where a file is needed; `mode` is the `st_mode` of `path`.
/// Folders are left to whoever opens them.
FileOutcome refuseSpecialFile(unsigned mode, const std::string& path);

}  // namespace zev
