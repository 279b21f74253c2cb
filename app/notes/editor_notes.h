// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <array>
#include <functional>
#include <string>

#include "app/file_commands.h"
#include "app/notes/file_notes.h"
#include "app/notes/menu_problem_notes.h"
#include "app/notes/note.h"
#include "model/menu_document.h"

namespace zev {

/// All notes of the editor: knows when each comes and when it goes. What a note says is made by the
/// functions of `file_notes.h` and by `MenuProblemNotes`.
class EditorNotes : public QObject, private FileListener, private DocumentObserver {
    Q_OBJECT
  public:
    /// Runs a command of this name as the window does: one step to be taken back.
    using RunStep = std::function<void(const std::string& step, const std::function<void()>& work)>;

    /// Listens to the document, to the file commands and to the browser, which are not owned and
    /// outlive the object.
    EditorNotes(MenuDocument& document, FileCommands& fileCommands, const EditorServices& services,
                RunStep runStep);
    ~EditorNotes() override;

    /// How many notes there are, and the first `most` rows of them in the order of the kinds.
    NoteList notes(std::size_t most) const;

    /// Tools > Check Menu: looks for the files that links and images lead to.
    void checkMenu();

  signals:
    /// There may be other notes than before.
    void changed();
    /// The person has asked for something that the notes' list tells.
    void listAsked();

  private:
    void opened(const OpenedFile& file) override;
    void imported(const ImportedFile& file) override;
    void saved() override;
    void recalculated(const Changes& inverses, const std::string& oldFolder) override;
    void changedOnDisk(const std::string& kept) override;
    void sameOnDisk() override;
    void previewed() override;

    void contentReplaced() override;
    void fileChanged() override { emit changed(); }
    void inserted() override { touched(); }
    void removed() override { touched(); }
    void itemChanged(const MenuNode& node) override;
    void menuChanged(const MenuPropOwner& owner) override;

    void set(NoteKind kind, NoteList list);
    void clear(NoteKind kind) { set(kind, {}); }
    void touched();
    void dropOverNotes();
    void lookAtLinks();
    void showDifferences();
    void keepDefaults(MenuProp kept) const;
    void scriptFailed(const ScriptError& error);
    void setField(const std::string& step, const NotePlace& place, const std::string& value);
    bool isShown(NoteKind kind) const;
    NoteList& listOf(NoteKind kind) { return m_lists[static_cast<std::size_t>(kind)]; }

    MenuDocument& m_document;
    FileCommands& m_fileCommands;
    EditorServices m_services;
    RunStep m_runStep;
    MenuProblemNotes m_problems;
    /// Of those kinds that say what was so when something happened.
    std::array<NoteList, kNoteKindCount> m_lists;
    std::string m_file;  ///< that the notes about a file are about
    LeftDefaults m_leftDefaults;
    std::string m_keptVersion;  ///< as in `FileListener::changedOnDisk`
};

}  // namespace zev
