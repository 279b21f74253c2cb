// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/document_change.h"
#include "model/menu_content.h"

namespace zev {

// The journal of one document: a file to which records are added.
//
//     "ZEVMenu journal 1\n"   length, hash, entries   length, hash, entries ...
//                             4 bytes 8 bytes         the lowest byte first
//
// The first record holds the whole document, each later one what a finished command changed. A
// record that is cut off or spoiled, and all behind it, counts as never written.

inline constexpr std::string_view kJournalHead = "ZEVMenu journal 1\n";

/// The record that holds `entries` (see `JournalEntry`).
std::string journalRecord(std::string_view entries);

/// A document as its journal has it.
struct JournalledMenu {
    MenuContent content;
    std::string SaveFile;
    std::string SavePath;
    NodeSelection selection;  ///< in `content`
    std::int64_t time = 0;    ///< of the last record, in seconds since 1970
    std::uint64_t unsavedChanges = 0;
    bool isGivenUp = false;  ///< the person wanted the changes no more

    JournalledMenu() = default;
    JournalledMenu(JournalledMenu&&) = default;
    JournalledMenu& operator=(JournalledMenu&&) = default;
};

/// Nothing when not even the first record is whole.
std::optional<JournalledMenu> readJournal(std::string_view bytes);

}  // namespace zev
