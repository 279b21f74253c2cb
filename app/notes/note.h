// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zev {

/// What notes are about, in the order in which they are shown.
enum class NoteKind {
    ChangedOnDisk,  ///< another program has changed the file
    Opened,         ///< what saving will change of the file that was opened
    Imported,       ///< what an import made nothing of
    Script,         ///< an error in the script that the preview ran
    Value,          ///< values that will not work
    Unkept,         ///< values that the saved file will not bring back
    Recalculated,   ///< URLs that a Save As changed
    Link,           ///< links and images that are not there
    Checked,        ///< a check that found nothing
};
inline constexpr std::size_t kNoteKindCount = static_cast<std::size_t>(NoteKind::Checked) + 1;

/// The field of the menu that a note leads to.
struct NotePlace {
    enum class Owner { Nowhere, Item, Menu, Defaults };
    Owner owner = Owner::Nowhere;
    /// The item's; of a menu that of the item it opens from, empty for the top-level menu.
    std::string key = {};
    /// Name in the script; of an item caption, url, target, out or over.
    std::string field = {};
    bool operator==(const NotePlace&) const = default;
};

/// What can be done about a note with one click.
struct NoteAction {
    std::string text;
    std::function<void()> run;
};

/// Something the person should know about the menu, and nobody asks about.
struct Note {
    NoteKind kind = NoteKind::Value;
    NotePlace place = {};
    std::string text = {};  ///< UTF-8, one line
    std::vector<NoteAction> actions = {};
    /// The note is over when the field holds another value than this; none: it stays.
    std::optional<std::string> value = {};
    bool isDetail = false;  ///< belongs to the note before it, and is not counted
};

/// The number of notes, and as many of them as anybody reads.
struct NoteList {
    std::size_t count = 0;  ///< without details
    std::vector<Note> notes = {};
};

/// More rows are counted only.
inline constexpr std::size_t kMaxNoteRows = 1000;

/// Adds a note to a list that keeps no more than `kMaxNoteRows`.
inline void addNote(NoteList& list, Note note) {
    list.count += note.isDetail ? 0U : 1U;
    if (list.notes.size() < kMaxNoteRows)
        list.notes.push_back(std::move(note));
}

}  // namespace zev
