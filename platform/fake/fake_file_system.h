// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/locked_file.h"

namespace zev {

/// A disk in memory. Paths are compared byte for byte; "/" and "\" both separate folders. There is
/// the root folder "/" and what the test adds.
class FakeFileSystem : public FileSystem {
  public:
    FakeFileSystem();

    /// Adds the folder and those above it.
    void addFolder(const std::string& path);
    /// Adds a file, and the folders it lies in.
    void addFile(const std::string& path, const std::string& bytes);
    /// Adds a symbolic link to a file that may be missing, and the folders the link lies in.
    void addLink(const std::string& path, const std::string& target);
    /// Gives the folder a second path, by which `isSameFolder` and `isSameFile` know it.
    void addFolderAlias(const std::string& folder, const std::string& alias);
    /// Gives the file a second path, by which `isSameFile` knows it.
    void addFileAlias(const std::string& file, const std::string& alias);
    /// Makes growing files fail from the append with this number on, counted from 1 over all.
    void failAppend(std::size_t number) { m_failingAppend = number; }
    /// In such a folder no file can be made, replaced or deleted.
    void setWritable(const std::string& folder, bool isWritable);
    /// Every file: path and bytes. Links are none.
    const std::map<std::string, std::string>& allFiles() const { return m_files; }

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
    friend class FakeLockedFile;
    /// The folder that a path leads to.
    std::string folderAt(const std::string& path) const;
    std::string withoutLink(const std::string& path) const;

    std::map<std::string, std::string> m_files;
    std::map<std::string, std::string> m_targetOfLink;
    std::set<std::string> m_folders;
    std::map<std::string, std::string> m_folderOfAlias;
    std::map<std::string, std::string> m_fileOfAlias;
    std::set<std::string> m_unwritableFolders;
    std::set<std::string> m_lockedFiles;
    std::map<std::string, unsigned> m_modeOfFile;  // where it is not 0644
    std::size_t m_appendCount = 0;
    std::size_t m_failingAppend = 0;

    friend class FakeGrowingFile;
};

/// Passes everything on to another file system, and breaks what it was told to break. A broken
/// operation changes nothing. Questions (`FileExists` to `isWritableFolder`) never break and are
/// not counted.
class FailingFileSystem : public FileSystem {
  public:
    /// `inner` is not owned and must outlive this object.
    explicit FailingFileSystem(FileSystem& inner);

    /// The operation with this number, counted from 1 over the object's life, fails with `error`.
    void failOperation(std::size_t number, FileError error);
    /// Every operation on `path` fails with `error` (a copy: from it or to it).
    void failPath(const std::string& path, FileError error);
    /// Operations asked for so far, broken ones included.
    std::size_t operationCount() const { return m_operationCount; }

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
    FileOutcome nextOperation(const std::string& path) const;
    FileOutcome errorOfPath(const std::string& path) const;

    FileSystem& m_inner;
    mutable std::size_t m_operationCount = 0;
    std::map<std::size_t, FileError> m_failingOperations;
    std::map<std::string, FileError> m_failingPaths;
};

}  // namespace zev
