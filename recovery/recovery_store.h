// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/locked_file.h"
#include "recovery/journal.h"

namespace zev {

/// An unsaved menu that can be had back.
struct UnsavedMenu {
    std::string journal;    ///< path of what it is kept in
    std::string SaveFile;   ///< empty: never saved
    std::int64_t time = 0;  ///< of the last change, in seconds since 1970
    std::uint64_t changeCount = 0;
    bool isGivenUp = false;  ///< the person wanted the changes no more; else the program crashed
};

/// The folder where all programs of this user keep journals: a folder for each program in it, in
/// that a journal for each document that it had.
///
///     recovery/1/1.journal
///     recovery/1/2.journal      locked as long as the program runs
///     recovery/2/1.journal
///
/// A journal that can be locked is nobody's any more.
class RecoveryStore {
  public:
    /// More are not kept of those that were given up.
    static constexpr std::size_t kMaxUnsavedMenus = 10;

    /// `files` is not owned. `folder` need not be there.
    RecoveryStore(FileSystem& files, std::string folder);

    struct NewJournal {
        std::string path;
        std::unique_ptr<LockedFile> file;
    };
    /// Makes a journal of this program that holds `bytes`.
    FileResult<NewJournal> make(std::string_view bytes);

    /// What former programs and former documents have left, the latest first, at most
    /// `kMaxUnsavedMenus`. Journals that hold nothing unsaved are removed: those of a saved menu,
    /// those that equal its file, those without a single whole record.
    std::vector<UnsavedMenu> unsavedMenus();
    /// Nothing when it is gone, or another program has it.
    std::optional<JournalledMenu> read(const std::string& journal);
    /// Removes a journal, and its folder when that is empty then. One that another program has
    /// stays.
    void discard(const std::string& journal);

  private:
    std::vector<std::string> journals() const;
    FileResult<std::string> readBytes(const std::string& journal);
    bool isInFile(const JournalledMenu& menu) const;
    FileOutcome makeOwnFolder();

    FileSystem& m_files;
    std::string m_folder;
    std::string m_ownFolder;  ///< empty until something is kept
    std::size_t m_lastNumber = 0;
};

}  // namespace zev
