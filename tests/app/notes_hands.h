// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <QPushButton>

#include "app/strip_line.h"
#include "property_dialogs_hands.h"

namespace zev {

// What a person sees of the notes, and does with them.

/// The notes are shown from the event loop.
inline QWidget& notesBar(WindowDesk& desk) {
    QCoreApplication::processEvents();
    return *desk.window.findChild<QWidget*>("Notes");
}

/// The line above the tree; empty when there is none.
inline QString notesLine(WindowDesk& desk) {
    QWidget& bar = notesBar(desk);
    return bar.isVisible() ? bar.findChild<StripLine*>("NotesLine")->text() : "";
}

/// The buttons of the notes that are shown, parted by "|".
inline QString noteButtons(WindowDesk& desk) {
    QStringList texts;
    for (const auto* button : notesBar(desk).findChildren<QPushButton*>())
        if (button->isVisible())
            texts.append(button->text());
    return texts.join('|');
}

inline void pressNote(WindowDesk& desk, const QString& text) {
    for (auto* button : notesBar(desk).findChildren<QPushButton*>()) {
        if (button->isVisible() && button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            QCoreApplication::processEvents();
            return;
        }
    }
    QTest::qFail(qPrintable("no button " + text + " in " + noteButtons(desk)), __FILE__, __LINE__);
}

inline QListWidget& notesList(WindowDesk& desk) {
    return *notesBar(desk).findChild<QListWidget*>("NotesList");
}

/// All rows of the list, which is opened for it if need be.
inline QStringList noteRows(WindowDesk& desk) {
    if (!notesBar(desk).isVisible())
        return {};
    if (!notesList(desk).isVisible())
        pressNote(desk, "Show Notes");
    QStringList rows;
    for (int row = 0; row < notesList(desk).count(); ++row)
        rows.append(notesList(desk).item(row)->text());
    return rows;
}

/// Makes the row that holds `text` current by a click.
inline void clickNote(WindowDesk& desk, const QString& text) {
    const qsizetype row = [&] {
        const QStringList rows = noteRows(desk);
        for (qsizetype at = 0; at < rows.size(); ++at)
            if (rows[at].contains(text))
                return at;
        return qsizetype{-1};
    }();
    if (row < 0) {
        QTest::qFail(qPrintable("no note " + text), __FILE__, __LINE__);
        return;
    }
    QListWidget& list = notesList(desk);
    QListWidgetItem* item = list.item(static_cast<int>(row));
    list.scrollToItem(item);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
}

inline void open(WindowDesk& desk, const std::string& path) {
    desk.dialogs.expectOpenFile(path);
    desk.choose("mnuFileOpen");
}

/// The person turns to another program and comes back.
inline void lookElsewhere(WindowDesk& desk) {
    QWidget other;
    other.show();
    other.activateWindow();
    if (!QTest::qWaitForWindowActive(&other))
        failQtTest("the other window does not become active");
    desk.window.activateWindow();
    if (!QTest::qWaitForWindowActive(&desk.window))
        failQtTest("the window does not become active again");
}

}  // namespace zev
