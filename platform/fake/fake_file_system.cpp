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

std::string FakeFileSystem::folderAt(const std::string& path) const {
    const auto alias = m_folderOfAlias.find(path);
    return alias == m_folderOfAlias.end() ? path : alias->second;
}

bool FakeFileSystem::isSameFolder(const std::string& left, const std::string& right) const {
    return isFolder(folderAt(left)) && folderAt(left) == folderAt(right);
}

bool FakeFileSystem::isSameFile(const std::string& left, const std::string& right) const {
    const auto fileAt = [&](const std::string& path) {
        const std::string folder = folderOf(path);
        return folderAt(folder) + path.substr(folder.size());
    };
    return FileExists(fileAt(left)) && fileAt(left) == fileAt(right);
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

FileOutcome FakeFileSystem::backUpFile(const std::string& path, const std::string& backup) {
    return CopyFile(path, backup, Links::Replaced);
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

bool FailingFileSystem::isSameFolder(const std::string& left, const std::string& right) const {
    return m_inner.isSameFolder(left, right);
}

bool FailingFileSystem::isSameFile(const std::string& left, const std::string& right) const {
    return m_inner.isSameFile(left, right);
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

FileOutcome FailingFileSystem::backUpFile(const std::string& path, const std::string& backup) {
    FileOutcome error = nextOperation(path);
    if (!error)
        error = errorOfPath(backup);
    return error ? error : m_inner.backUpFile(path, backup);
}

FileOutcome FailingFileSystem::DeleteFile(const std::string& path) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.DeleteFile(path);
}

FileOutcome FailingFileSystem::makeFolder(const std::string& path) {
    const FileOutcome error = nextOperation(path);
    return error ? error : m_inner.makeFolder(path);
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
