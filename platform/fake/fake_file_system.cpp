// SPDX-License-Identifier: MIT
#include "platform/fake/fake_file_system.h"

#include <utility>

namespace zev {

namespace {

constexpr std::string_view kSeparators = "/\\";

/// Folder of a path. A root ("/", "C:") is its own folder; a bare name lies in the folder ".".
std::string folderOf(const std::string& path) {
    const std::size_t end = path.find_last_of(kSeparators);
    if (end == std::string::npos)
        return path.ends_with(':') ? path : ".";
    return path.substr(0, end == 0 ? 1 : end);
}

FileError notFound(const std::string& path) {
    return {FileError::Code::NotFound, path, "No such file or directory"};
}

FileError isAFolder(const std::string& path) {
    return {FileError::Code::IsFolder, path, "Is a directory"};
}

FileError noPermission(const std::string& path) {
    return {FileError::Code::NoPermission, path, "Permission denied"};
}

}  // namespace

class FakeLockedFile : public LockedFile {
  public:
    FakeLockedFile(FakeFileSystem& files, std::string path)
        : m_files(files), m_path(std::move(path)) {}
    ~FakeLockedFile() override { m_files.m_lockedFiles.erase(m_path); }

    FileOutcome append(std::string_view bytes) override {
        return rewrite(m_files.m_files[m_path] + std::string(bytes));
    }
    FileOutcome rewrite(std::string_view bytes) override {
        return m_files.writeFile(m_path, bytes, Links::Replaced);
    }
    FileOutcome sync() override { return {}; }

  private:
    FakeFileSystem& m_files;
    std::string m_path;
};

FakeFileSystem::FakeFileSystem() {
    m_folders.insert("/");
}

void FakeFileSystem::addFolder(const std::string& path) {
    std::string folder = path;
    while (m_folders.insert(folder).second)
        folder = folderOf(folder);
}

void FakeFileSystem::addFile(const std::string& path, const std::string& bytes) {
    addFolder(folderOf(path));
    m_files[path] = bytes;
}

void FakeFileSystem::addLink(const std::string& path, const std::string& target) {
    addFolder(folderOf(path));
    m_targetOfLink[path] = target;
}

void FakeFileSystem::addFolderAlias(const std::string& folder, const std::string& alias) {
    m_folderOfAlias[alias] = folder;
}

void FakeFileSystem::addFileAlias(const std::string& file, const std::string& alias) {
    m_fileOfAlias[alias] = file;
}

void FakeFileSystem::setWritable(const std::string& folder, bool isWritable) {
    if (isWritable)
        m_unwritableFolders.erase(folder);
    else
        m_unwritableFolders.insert(folder);
}

bool FakeFileSystem::FileExists(const std::string& path) const {
    return m_files.contains(withoutLink(path));
}

bool FakeFileSystem::isFolder(const std::string& path) const {
    return m_folders.contains(path);
}

DiskEntry FakeFileSystem::entryAt(const std::string& path) const {
    if (m_targetOfLink.contains(path))
        return DiskEntry::Link;
    if (m_files.contains(path))
        return DiskEntry::File;
    return isFolder(path) ? DiskEntry::Folder : DiskEntry::Nothing;
}

std::string FakeFileSystem::folderAt(const std::string& path) const {
    const auto alias = m_folderOfAlias.find(path);
    return alias == m_folderOfAlias.end() ? path : alias->second;
}

bool FakeFileSystem::isSameFolder(const std::string& left, const std::string& right) const {
    return isFolder(folderAt(left)) && folderAt(left) == folderAt(right);
}

bool FakeFileSystem::isSameFile(const std::string& left, const std::string& right) const {
    const auto fileAt = [&](const std::string& path) {
        if (const auto alias = m_fileOfAlias.find(path); alias != m_fileOfAlias.end())
            return alias->second;
        const std::string folder = folderOf(path);
        return folderAt(folder) + path.substr(folder.size());
    };
    return FileExists(fileAt(left)) && fileAt(left) == fileAt(right);
}

bool FakeFileSystem::isWritableFile(const std::string& path) const {
    return FileExists(path) && isWritableFolder(folderOf(withoutLink(path)));
}

bool FakeFileSystem::isWritableFolder(const std::string& path) const {
    return isFolder(path) && !m_unwritableFolders.contains(path);
}

FileResult<std::string> FakeFileSystem::readFile(const std::string& path,
                                                 std::uint64_t maxBytes) const {
    if (isFolder(path))
        return isAFolder(path);
    const auto file = m_files.find(withoutLink(path));
    if (file == m_files.end())
        return notFound(path);
    if (file->second.size() > maxBytes)
        return FileError{FileError::Code::TooLarge, path, "File too large"};
    return file->second;
}

FileOutcome FakeFileSystem::writeFile(const std::string& path, std::string_view bytes,
                                      Links links) {
    if (isFolder(path))
        return isAFolder(path);
    if (!isFolder(folderOf(path)))
        return notFound(path);
    if (!isWritableFolder(folderOf(path)))
        return noPermission(path);
    if (links == Links::Replaced)
        m_targetOfLink.erase(path);
    m_files[withoutLink(path)] = bytes;
    return {};
}

FileOutcome FakeFileSystem::writeFileThrough(const std::string& temporaryName,
                                             const std::string& path, std::string_view bytes) {
    const std::string folder = folderOf(withoutLink(path));
    const std::string separator = path.find('\\') != std::string::npos ? "\\" : "/";
    const std::string temporary = folder + (folder == "/" ? "" : separator) + temporaryName;
    if (isFolder(temporary))
        return isAFolder(path);
    const FileOutcome error = writeFile(path, bytes, Links::Followed);
    if (!error && m_targetOfLink.erase(temporary) == 0)
        m_files.erase(temporary);
    return error;
}

FileOutcome FakeFileSystem::flushFolders() {
    return {};
}

FileOutcome FakeFileSystem::writeTemporaryFile(const std::string& path, std::string_view bytes) {
    return writeFile(path, bytes, Links::Replaced);
}

FileOutcome FakeFileSystem::CopyFile(const std::string& source, const std::string& destination,
                                     Links links) {
    const FileResult<std::string> bytes = readFile(source, UINT64_MAX);
    if (!bytes.isOk())
        return bytes.error();
    return writeFile(destination, bytes.value(), links);
}

FileOutcome FakeFileSystem::backUpFile(const std::string& path, const std::string& backup,
                                       std::string_view bytes) {
    if (!FileExists(path))
        return notFound(path);
    return writeFile(backup, bytes, Links::Replaced);
}

/// Its file system must outlive it.
class FakeGrowingFile : public GrowingFile {
  public:
    FakeGrowingFile(FakeFileSystem& files, std::string path)
        : m_files(files), m_path(std::move(path)) {
        m_files.m_lockedFiles.insert(m_path);
    }
    ~FakeGrowingFile() override { m_files.m_lockedFiles.erase(m_path); }
    FakeGrowingFile(const FakeGrowingFile&) = delete;
    FakeGrowingFile& operator=(const FakeGrowingFile&) = delete;
    FileOutcome append(std::string_view bytes) override {
        ++m_files.m_appendCount;
        if (m_files.m_failingAppend != 0 && m_files.m_appendCount >= m_files.m_failingAppend) {
            m_files.m_files[m_path] += bytes.substr(0, bytes.size() / 2);
            return FileError{FileError::Code::NoSpace, m_path, "No space left on device"};
        }
        m_files.m_files[m_path] += bytes;
        return {};
    }
    FileOutcome flush() override { return {}; }

  private:
    FakeFileSystem& m_files;
    std::string m_path;
};

FileResult<std::unique_ptr<GrowingFile>> FakeFileSystem::makePrivateFile(const std::string& path) {
    if (const FileOutcome error = makeFolder(folderOf(path)))
        return *error;
    if (FileExists(path))
        return FileError{FileError::Code::Other, path, "File exists"};
    if (const FileOutcome error = writeFile(path, "", Links::Replaced))
        return *error;
    m_modeOfFile[path] = 0600;
    return std::unique_ptr<GrowingFile>(new FakeGrowingFile(*this, path));
}

FileResult<unsigned> FakeFileSystem::modeOf(const std::string& path) const {
    if (!FileExists(path))
        return notFound(path);
    const auto mode = m_modeOfFile.find(withoutLink(path));
    return mode == m_modeOfFile.end() ? 0644U : mode->second;
}

FileOutcome FakeFileSystem::setMode(const std::string& path, unsigned mode) {
    if (!FileExists(path))
        return notFound(path);
    m_modeOfFile[withoutLink(path)] = mode;
    return {};
}

FileOutcome FakeFileSystem::renameFile(const std::string& path, const std::string& newPath) {
    if (entryAt(path) == DiskEntry::Nothing || !isFolder(folderOf(newPath)))
        return notFound(path);
    if (entryAt(newPath) != DiskEntry::Nothing)
        return FileError{FileError::Code::Other, path, "File exists"};
    if (!isWritableFolder(folderOf(path)) || !isWritableFolder(folderOf(newPath)))
        return noPermission(path);
    if (auto link = m_targetOfLink.extract(path)) {
        link.key() = newPath;
        m_targetOfLink.insert(std::move(link));
    } else if (auto file = m_files.extract(path)) {
        file.key() = newPath;
        m_files.insert(std::move(file));
    }
    return {};
}

FileOutcome FakeFileSystem::DeleteFile(const std::string& path) {
    if (isFolder(path))
        return isAFolder(path);
    if (!FileExists(path))
        return notFound(path);
    if (!isWritableFolder(folderOf(path)))
        return noPermission(path);
    if (m_targetOfLink.erase(path) == 0)
        m_files.erase(path);
    return {};
}

FileOutcome FakeFileSystem::makeFolder(const std::string& path) {
    if (isFolder(path))
        return {};
    if (FileExists(path))
        return FileError{FileError::Code::Other, path, "Not a directory"};
    const std::string parent = folderOf(path);
    if (parent == path)
        return notFound(path);
    if (const FileOutcome error = makeFolder(parent))
        return error;
    if (!isWritableFolder(parent))
        return noPermission(path);
    m_folders.insert(path);
    return {};
}

FileOutcome FakeFileSystem::makePrivateFolder(const std::string& path) {
    if (entryAt(path) != DiskEntry::Nothing)
        return FileError{FileError::Code::Other, path, "File exists"};
    if (!isFolder(folderOf(path)))
        return notFound(path);
    return makeFolder(path);
}

FileOutcome FakeFileSystem::deleteFolder(const std::string& path) {
    const FileResult<std::vector<std::string>> names = listFolder(path);
    if (!names.isOk())
        return names.error();
    if (!names.value().empty())
        return FileError{FileError::Code::Other, path, "Directory not empty"};
    m_folders.erase(path);
    return {};
}

FileResult<std::unique_ptr<LockedFile>> FakeFileSystem::makeLockedFile(const std::string& path,
                                                                       std::string_view bytes) {
    if (entryAt(path) != DiskEntry::Nothing)
        return FileError{FileError::Code::Other, path, "File exists"};
    if (FileOutcome error = writeFile(path, bytes, Links::Replaced))
        return *error;
    return lockFile(path);
}

std::unique_ptr<LockedFile> FakeFileSystem::lockFile(const std::string& path) {
    if (entryAt(path) != DiskEntry::File || !m_lockedFiles.insert(path).second)
        return nullptr;
    return std::make_unique<FakeLockedFile>(*this, path);
}

FileResult<std::vector<std::string>> FakeFileSystem::listFolder(const std::string& path) const {
    if (!isFolder(path))
        return notFound(path);
    std::set<std::string> names;
    const auto addName = [&](const std::string& entry) {
        if (entry != path && folderOf(entry) == path)
            names.insert(entry.substr(entry.find_last_of(kSeparators) + 1));
    };
    for (const auto& [file, bytes] : m_files)
        addName(file);
    for (const std::string& folder : m_folders)
        addName(folder);
    return std::vector<std::string>(names.begin(), names.end());
}

std::string FakeFileSystem::withoutLink(const std::string& path) const {
    const auto link = m_targetOfLink.find(path);
    return link == m_targetOfLink.end() ? path : link->second;
}

FailingFileSystem::FailingFileSystem(FileSystem& inner) : m_inner(inner) {}

void FailingFileSystem::failOperation(std::size_t number, FileError error) {
    m_failingOperations.insert_or_assign(number, std::move(error));
}

void FailingFileSystem::failPath(const std::string& path, FileError error) {
    m_failingPaths.insert_or_assign(path, std::move(error));
}

bool FailingFileSystem::FileExists(const std::string& path) const {
    return m_inner.FileExists(path);
}

bool FailingFileSystem::isFolder(const std::string& path) const {
    return m_inner.isFolder(path);
}

DiskEntry FailingFileSystem::entryAt(const std::string& path) const {
    return m_inner.entryAt(path);
}

bool FailingFileSystem::isSameFolder(const std::string& left, const std::string& right) const {
    return m_inner.isSameFolder(left, right);
}

bool FailingFileSystem::isSameFile(const std::string& left, const std::string& right) const {
    return m_inner.isSameFile(left, right);
}

bool FailingFileSystem::isWritableFile(const std::string& path) const {
    return m_inner.isWritableFile(path);
}

bool FailingFileSystem::isWritableFolder(const std::string& path) const {
    return m_inner.isWritableFolder(path);
}

FileResult<std::string> FailingFileSystem::readFile(const std::string& path,
                                                    std::uint64_t maxBytes) const {
    if (const FileOutcome error = nextOperation(path))
        return *error;
    return m_inner.readFile(path, maxBytes);
}

FileOutcome FailingFileSystem::writeFile(const std::string& path, std::string_view bytes,
                                         Links links) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.writeFile(path, bytes, links);
}

FileOutcome FailingFileSystem::writeFileThrough(const std::string& temporaryName,
                                                const std::string& path, std::string_view bytes) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.writeFileThrough(temporaryName, path, bytes);
}

FileOutcome FailingFileSystem::flushFolders() {
    const FileOutcome error = nextOperation("");
    return error ? error : m_inner.flushFolders();
}

FileOutcome FailingFileSystem::writeTemporaryFile(const std::string& path, std::string_view bytes) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.writeTemporaryFile(path, bytes);
}

FileOutcome FailingFileSystem::CopyFile(const std::string& source, const std::string& destination,
                                        Links links) {
    FileOutcome error = nextOperation(source);
    if (!error)
        error = errorOfPath(destination);
    return error ? error : m_inner.CopyFile(source, destination, links);
}

FileOutcome FailingFileSystem::backUpFile(const std::string& path, const std::string& backup,
                                          std::string_view bytes) {
    FileOutcome error = nextOperation(path);
    if (!error)
        error = errorOfPath(backup);
    return error ? error : m_inner.backUpFile(path, backup, bytes);
}

FileResult<std::unique_ptr<GrowingFile>> FailingFileSystem::makePrivateFile(
    const std::string& path) {
    if (const FileOutcome error = nextOperation(path))
        return *error;
    return m_inner.makePrivateFile(path);
}

FileResult<unsigned> FailingFileSystem::modeOf(const std::string& path) const {
    if (const FileOutcome error = nextOperation(path))
        return *error;
    return m_inner.modeOf(path);
}

FileOutcome FailingFileSystem::setMode(const std::string& path, unsigned mode) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.setMode(path, mode);
}

FileOutcome FailingFileSystem::renameFile(const std::string& path, const std::string& newPath) {
    FileOutcome error = nextOperation(path);
    if (!error)
        error = errorOfPath(newPath);
    return error ? error : m_inner.renameFile(path, newPath);
}

FileOutcome FailingFileSystem::DeleteFile(const std::string& path) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.DeleteFile(path);
}

FileOutcome FailingFileSystem::makeFolder(const std::string& path) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.makeFolder(path);
}

FileOutcome FailingFileSystem::makePrivateFolder(const std::string& path) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.makePrivateFolder(path);
}

FileOutcome FailingFileSystem::deleteFolder(const std::string& path) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.deleteFolder(path);
}

FileResult<std::unique_ptr<LockedFile>> FailingFileSystem::makeLockedFile(const std::string& path,
                                                                          std::string_view bytes) {
    if (FileOutcome error = nextOperation(path))
        return *error;
    return m_inner.makeLockedFile(path, bytes);
}

std::unique_ptr<LockedFile> FailingFileSystem::lockFile(const std::string& path) {
    return nextOperation(path) ? nullptr : m_inner.lockFile(path);
}

FileResult<std::vector<std::string>> FailingFileSystem::listFolder(const std::string& path) const {
    if (const FileOutcome error = nextOperation(path))
        return *error;
    return m_inner.listFolder(path);
}

FileOutcome FailingFileSystem::nextOperation(const std::string& path) const {
    ++m_operationCount;
    const auto failing = m_failingOperations.find(m_operationCount);
    if (failing != m_failingOperations.end())
        return failing->second;
    return errorOfPath(path);
}

FileOutcome FailingFileSystem::errorOfPath(const std::string& path) const {
    const auto failing = m_failingPaths.find(path);
    return failing == m_failingPaths.end() ? FileOutcome{} : FileOutcome{failing->second};
}

}  // namespace zev
