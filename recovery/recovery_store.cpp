// SPDX-License-Identifier: MIT
#include "recovery/recovery_store.h"

#include <algorithm>
#include <utility>

#include "script/script_writer.h"
#include "text/path.h"

namespace zev {

namespace {

constexpr std::string_view kEnding = ".journal";

/// A journal is made anew long before.
constexpr std::uint64_t kMaxJournalBytes = std::uint64_t{1} << 30;

/// Other programs take numbers at the same time.
constexpr std::size_t kMaxFolders = 10'000;

std::string folderOf(const std::string& path) {
    return std::string(Path::onThisSystem(path).folder());
}

std::string childOf(const std::string& folder, std::string_view name) {
    return Path::onThisSystem(folder).child(name);
}

}  // namespace

RecoveryStore::RecoveryStore(FileSystem& files, std::string folder)
    : m_files(files), m_folder(std::move(folder)) {}

FileOutcome RecoveryStore::makeOwnFolder() {
    if (FileOutcome error = m_files.makeFolder(folderOf(m_folder)))
        return error;
    if (!m_files.isFolder(m_folder))
        if (FileOutcome error = m_files.makePrivateFolder(m_folder))
            return error;
    FileOutcome error;
    for (std::size_t number = 1; number <= kMaxFolders; ++number) {
        std::string folder = childOf(m_folder, std::to_string(number));
        if (m_files.entryAt(folder) != DiskEntry::Nothing)
            continue;
        error = m_files.makePrivateFolder(folder);
        if (error && m_files.entryAt(folder) != DiskEntry::Nothing)
            continue;
        if (!error)
            m_ownFolder = std::move(folder);
        return error;
    }
    return FileError{FileError::Code::Other, m_folder, "File exists"};
}

FileResult<RecoveryStore::NewJournal> RecoveryStore::make(std::string_view bytes) {
    // Another program may have removed the folder while it was empty.
    if (m_ownFolder.empty() || !m_files.isFolder(m_ownFolder))
        if (const FileOutcome error = makeOwnFolder())
            return *error;
    const std::string name = std::to_string(++m_lastNumber).append(kEnding);
    std::string path = childOf(m_ownFolder, name);
    FileResult<std::unique_ptr<LockedFile>> file = m_files.makeLockedFile(path, bytes);
    if (!file.isOk())
        return file.error();
    return NewJournal{std::move(path), file.take()};
}

std::vector<std::string> RecoveryStore::journals() const {
    std::vector<std::string> paths;
    const auto namesIn = [this](const std::string& folder) {
        FileResult<std::vector<std::string>> names = m_files.listFolder(folder);
        return names.isOk() ? names.take() : std::vector<std::string>();
    };
    for (const std::string& program : namesIn(m_folder)) {
        const std::string folder = childOf(m_folder, program);
        if (m_files.entryAt(folder) != DiskEntry::Folder)
            continue;
        for (const std::string& name : namesIn(folder))
            if (name.ends_with(kEnding))
                paths.push_back(childOf(folder, name));
    }
    return paths;
}

/// True when the file of the menu, or a new menu, is the same.
bool RecoveryStore::isInFile(const JournalledMenu& menu) const {
    const std::string bytes = definitionFileBytes(GenerateScript(menu.content));
    if (menu.SaveFile.empty())
        return bytes == definitionFileBytes(GenerateScript(MenuContent()));
    const FileResult<std::string> saved = m_files.readFile(menu.SaveFile, bytes.size());
    return saved.isOk() && saved.value() == bytes;
}

std::vector<UnsavedMenu> RecoveryStore::unsavedMenus() {
    std::vector<UnsavedMenu> menus;
    for (const std::string& path : journals()) {
        const FileResult<std::string> bytes = readBytes(path);
        if (!bytes.isOk())
            continue;
        const std::optional<JournalledMenu> menu = readJournal(bytes.value());
        if (menu && menu->unsavedChanges > 0 && !isInFile(*menu))
            menus.push_back(
                {path, menu->SaveFile, menu->time, menu->unsavedChanges, menu->isGivenUp});
        else
            discard(path);
    }
    std::stable_sort(
        menus.begin(), menus.end(),
        [](const UnsavedMenu& one, const UnsavedMenu& other) { return one.time > other.time; });
    while (menus.size() > kMaxUnsavedMenus) {
        if (menus.back().isGivenUp)
            discard(menus.back().journal);
        menus.pop_back();
    }
    return menus;
}

FileResult<std::string> RecoveryStore::readBytes(const std::string& journal) {
    const std::unique_ptr<LockedFile> lock = m_files.lockFile(journal);
    if (!lock)
        return FileError{FileError::Code::Other, journal, "In use"};
    return m_files.readFile(journal, kMaxJournalBytes);
}

std::optional<JournalledMenu> RecoveryStore::read(const std::string& journal) {
    const FileResult<std::string> bytes = readBytes(journal);
    if (!bytes.isOk())
        return {};
    return readJournal(bytes.value());
}

void RecoveryStore::discard(const std::string& journal) {
    const std::unique_ptr<LockedFile> lock = m_files.lockFile(journal);
    if (!lock)
        return;
    m_files.DeleteFile(journal);
    m_files.deleteFolder(folderOf(journal));
}

}  // namespace zev
