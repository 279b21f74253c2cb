// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/file_listener.h"
#include "app/notes/note.h"
#include "checks/unkept_values.h"
#include "model/menu_document.h"
#include "script/script_places.h"

namespace zev {

// One function for each thing that notes tell of a file or a command. They say what is so; what a
// button does is handed in.

/// Of a file that was opened: its lines that are no menu, those that were not understood, and those
/// that saving will change. `content` is what was read.
NoteList openedNotes(const OpenedFile& file, const MenuContent& content);

/// The close delay and offset that a file has and Open does not bring back.
struct LeftDefaults {
    std::string closeDelay;  ///< empty: as every new menu has it
    std::string menuOffset;
};
LeftDefaults leftDefaults(const std::string& bytes);
/// None when the defaults of the document are not those that Open sets.
NoteList leftDefaultsNotes(const LeftDefaults& left, const MenuProp& defaults,
                           const std::function<void(MenuProp)>& keep);

NoteList importedNotes(const ImportedFile& file, const MenuContent& content);

/// What the three buttons of a file that another program has changed do.
struct ChangedFileActions {
    std::function<void()> reload;
    std::function<void()> keepMine;
    std::function<void()> showDifferences;
};
/// `kept`: as in `FileListener::changedOnDisk`.
NoteList changedFileNotes(const std::string& path, const std::string& kept,
                          const ChangedFileActions& actions);
/// What the other program's version has that `mine` has not, as details of that note.
NoteList differenceNotes(const MenuContent& mine, const std::string& otherBytes);

/// The URLs that were recalculated, the doubtful ones first, and the backgrounds that were not.
/// `set` gives a field another value.
using SetField = std::function<void(const std::string& step, const NotePlace&, const std::string&)>;
NoteList recalculatedNotes(const Changes& inverses, const MenuDocument& document,
                           const std::string& oldFolder, const SetField& set);

NoteList unkeptNotes(const std::vector<UnkeptValue>& values);

/// An error of the definition's script; `message` is the browser's.
NoteList scriptErrorNotes(const ScriptPlace& place, std::size_t line, const std::string& message);

}  // namespace zev
