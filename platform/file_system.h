// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/macro_names.h"

namespace zev {

/// Why a file operation failed. Paths are in the system's own bytes (UTF-8 in practice).
struct FileError {
    enum class Code { NotFound, IsFolder, NoPermission, NoSpace, TooLarge, Other };
    Code code = Code::Other;
    std::string path;    ///< the file the operation was about
    std::string reason;  ///< the system's own words, for example "No space left on device"
};

/// A value or the error that kept it from being made.
template <typename T>
class FileResult {
  public:
    FileResult(T value) : m_state(std::move(value)) {}
    FileResult(FileError error) : m_state(std::move(error)) {}
    bool isOk() const { return std::holds_alternative<T>(m_state); }
    /// Only when `isOk()`.
    const T& value() const { return std::get<T>(m_state); }
    /// Moves the value out; only when `isOk()`.
    T take() { return std::move(std::get<T>(m_state)); }
    /// Only when not `isOk()`.
    const FileError& error() const { return std::get<FileError>(m_state); }

  private:
    std::variant<T, FileError> m_state;
};

/// Outcome of an operation that yields nothing: empty on success.
using FileOutcome = std::optional<FileError>;

/// What becomes of a link where a file is to be written.
enum class Links {
    /// The file it leads to is written, and so is a pipe or device. For paths the person named.
    Followed,
    /// A file takes its place; a pipe, socket or device is an error. For names that the program
    /// chose itself, in a folder that may come from a stranger.
    Replaced
};

class LockedFile;

/// What stands under a path. A link is a link, wherever it leads.
enum class DiskEntry { Nothing, File, Folder, Link, Other };

/// A file that grows while something goes on, so that what happened can be told after a crash.
class GrowingFile {
  public:
    virtual ~GrowingFile() = default;
    /// Writes at the end, where it outlives this program at once. After a failure part of the bytes
    /// may be there.
    virtual FileOutcome append(std::string_view bytes) = 0;
    /// What was appended outlives the power from now on.
    virtual FileOutcome flush() = 0;
};

/// The file operations the program needs. Whatever it writes for the user is whole or not there at
/// all: after a failure the target holds its old content and nothing is left beside it.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    /// True for anything that exists at `path` and is not a folder.
    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool isFolder(const std::string& path) const = 0;
    /// What stands under `path` itself; no link is followed at its end.
    virtual DiskEntry entryAt(const std::string& path) const = 0;
    /// True when both paths lead to one folder of the disk, by links, letter case or spelling. A
    /// path to no folder is never the same.
    virtual bool isSameFolder(const std::string& left, const std::string& right) const = 0;
    /// True when both paths lead to one regular file of the disk, by links, letter case or
    /// spelling.
    virtual bool isSameFile(const std::string& left, const std::string& right) const = 0;
    /// True when the content of the file may be replaced.
    virtual bool isWritableFile(const std::string& path) const = 0;
    /// True when new files can be made in the folder.
    virtual bool isWritableFolder(const std::string& path) const = 0;
    /// The file's whole content; files of more than `maxBytes` are refused (Code::TooLarge), and
    /// so, at once, is what has no content of its own: a pipe, socket or device.
    virtual FileResult<std::string> readFile(const std::string& path,
                                             std::uint64_t maxBytes) const = 0;
    /// Replaces the content of `path`, or makes the file.
    virtual FileOutcome writeFile(const std::string& path, std::string_view bytes, Links links) = 0;
    /// The same, with links followed, by way of a file of this name in the target's folder. One of
    /// that name that is there already is lost, but waited for while another run uses it. The name
    /// must not be that of the target. When the power fails before `flushFolders`, the old content
    /// may be back, whole.
    virtual FileOutcome writeFileThrough(const std::string& temporaryName, const std::string& path,
                                         std::string_view bytes) = 0;
    /// What `writeFileThrough` has written outlives the power from now on. Once for many files, for
    /// to wait for the disk is most of what it takes to write one.
    virtual FileOutcome flushFolders() = 0;
    /// The same as `writeFile` for a file that the caller reads and deletes itself before it ends:
    /// nobody else can read it, nothing of an old file is kept, and the power may fail on it. That
    /// saves the waits for the disk, which are most of what `writeFile` costs. A link is replaced.
    /// A failure leaves no file.
    virtual FileOutcome writeTemporaryFile(const std::string& path, std::string_view bytes) = 0;
    /// Makes `destination` a copy of `source`'s bytes, replacing it. The error names the file at
    /// fault.
    virtual FileOutcome CopyFile(const std::string& source, const std::string& destination,
                                 Links links) = 0;
    /// Gives the file or link `path` another name on the same disk. A link stays what it is. It is
    /// an error when something has the new name already; nothing is ever replaced.
    virtual FileOutcome renameFile(const std::string& path, const std::string& newPath) = 0;
    /// Makes `backup` hold `bytes`, the content of the file `path`, which is about to be replaced.
    /// It has the owner, group, mode and attributes of `path` from its first byte on, and where it
    /// cannot have them is open to nobody who may not read `path`. A link `backup` is replaced. A
    /// `path` that may not be written is refused. The error names the file at fault.
    virtual FileOutcome backUpFile(const std::string& path, const std::string& backup,
                                   std::string_view bytes) = 0;
    /// Makes a file that is not there yet, for the user's eyes alone; so is its folder, which is
    /// made when it is missing. Nobody else can lock it until it is closed.
    virtual FileResult<std::unique_ptr<GrowingFile>> makePrivateFile(const std::string& path) = 0;
    /// The file's permissions, as in 0644; links are followed.
    virtual FileResult<unsigned> modeOf(const std::string& path) const = 0;
    virtual FileOutcome setMode(const std::string& path, unsigned mode) = 0;
    virtual FileOutcome DeleteFile(const std::string& path) = 0;
    /// Makes the folder and those above it that are missing. A folder that is there is no error.
    virtual FileOutcome makeFolder(const std::string& path) = 0;
    /// Makes a folder that only this user can look into. It is an error when something is there.
    virtual FileOutcome makePrivateFolder(const std::string& path) = 0;
    /// Of an empty folder; any other stays, and is an error.
    virtual FileOutcome deleteFolder(const std::string& path) = 0;
    /// Makes a file that holds `bytes` and that only this user can read, locked from the moment
    /// that it has its name. It is an error when something is there.
    virtual FileResult<std::unique_ptr<LockedFile>> makeLockedFile(const std::string& path,
                                                                   std::string_view bytes) = 0;
    /// Locks a file that is there. Null when another program holds it, or it cannot be opened.
    virtual std::unique_ptr<LockedFile> lockFile(const std::string& path) = 0;
    /// Names (without folder) of everything in the folder, sorted by byte value.
    virtual FileResult<std::vector<std::string>> listFolder(const std::string& path) const = 0;
};

}  // namespace zev
