// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "app/notes/note.h"

class QHBoxLayout;
class QListWidget;
class QPushButton;

namespace zev {

class EditorNotes;
class StripLine;

/// The notes above the tree: one line with the first of them and its buttons, which opens to the
/// list of all. It takes no room while there are none. What the notes are about it does not know.
class NotesBar : public QWidget {
    Q_OBJECT
  public:
    /// `notes` is not owned and outlives the bar.
    NotesBar(EditorNotes& notes, QWidget* parent);

  signals:
    /// The person wants to see the field that a note is about.
    void placeChosen(const zev::NotePlace& place);
    /// The focus was on what is not there any more.
    void focusLost();

  private:
    void refreshLater();
    void refresh();
    void sayFirst(const NoteList& list);
    void fillList(const NoteList& list);
    void showActions();
    void setOpen(bool isOpen);

    EditorNotes& m_notes;
    StripLine* m_line;
    QWidget* m_opened;  ///< the list and the buttons of its current note
    QListWidget* m_list;
    QHBoxLayout* m_actionRow;
    std::vector<QPushButton*> m_buttons;
    std::vector<Note> m_shown;  ///< rows of the list
    bool m_isOpen = false;
    bool m_isRefreshing = false;
};

}  // namespace zev
