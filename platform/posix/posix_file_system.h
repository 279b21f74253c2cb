// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>

#include "platform/file_system.h"
#include "platform/posix/posix_side_file.h"

namespace zev {

/// The real disk. Files are replaced by `replaceFile`; what killed runs left is looked for once
/// while the same folder is written in. One object is for one thread.
class PosixFileSystem : public FileSystem {
  public:
    bool FileExists(const std::string& path) const override;
    bool isFolder(const std::string& path) const override;
    DiskEntry entryAt(const std::string& path) const override;
    bool isSameFolder(const std::string& left, const std::string& right) const override;
    bool isSameFile(const std::string& left, const std::string& right) const override;
    bool isWritableFile(const std::string& path) const override;
    bool isWritableFolder(const std::string& path) const override;
    FileResult<std::string> readFile(const std::string& path,
                                     std::uint64_t maxBytes) const override;
    FileOutcome writeFile(const std::string& path, std::string_view bytes, Links links) override;
    FileOutcome writeFileThrough(const std::string& temporaryName, const std::string& path,
                                 std::string_view bytes) override;
    FileOutcome flushFolders() override;
    FileOutcome writeTemporaryFile(const std::string& path, std::string_view bytes) override;
    FileOutcome CopyFile(const std::string& source, const std::string& destination,
                         Links links) override;
    FileOutcome renameFile(const std::string& path, const std::string& newPath) override;
    FileOutcome backUpFile(const std::string& path, const std::string& backup,
                           std::string_view bytes) override;
    FileResult<std::unique_ptr<GrowingFile>> makePrivateFile(const std::string& path) override;
    FileResult<unsigned> modeOf(const std::string& path) const override;
    FileOutcome setMode(const std::string& path, unsigned mode) override;
    FileOutcome DeleteFile(const std::string& path) override;
    FileOutcome makeFolder(const std::string& path) override;
    FileOutcome makePrivateFolder(const std::string& path) override;
    FileOutcome deleteFolder(const std::string& path) override;
    FileResult<std::unique_ptr<LockedFile>> makeLockedFile(const std::string& path,
                                                           std::string_view bytes) override;
    std::unique_ptr<LockedFile> lockFile(const std::string& path) override;
    FileResult<std::vector<std::string>> listFolder(const std::string& path) const override;

  private:
    FolderLeftovers m_leftovers;
    std::set<std::string> m_unflushedFolders;
};

}  // namespace zev
