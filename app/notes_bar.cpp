// SPDX-License-Identifier: MIT
#include "app/notes_bar.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/notes/editor_notes.h"
#include "app/strip_line.h"

namespace zev {

namespace {

/// Longest row, in UTF-16 units; a value may be megabytes long.
constexpr qsizetype kMaxShownText = 500;
constexpr int kMostShownRows = 8;
constexpr int kDetailIndent = 4;

QString shownText(const Note& note) {
    const QString text = QString::fromStdString(note.text).simplified();
    return text.size() > kMaxShownText ? text.first(kMaxShownText) + u"\u2026"_qs : text;
}

}  // namespace

NotesBar::NotesBar(EditorNotes& notes, QWidget* parent)
    : QWidget(parent),
      m_notes(notes),
      m_line(new StripLine("NotesLine", QString(), this)),
      m_opened(new QWidget(this)),
      m_list(new QListWidget(m_opened)),
      m_actionRow(new QHBoxLayout) {
    setObjectName("Notes");
    setAccessibleName(tr("Notes"));
    // What room there is belongs to the tree.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    m_list->setObjectName("NotesList");
    m_list->setAccessibleName(tr("List of notes"));
    m_list->setWordWrap(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideNone);
    m_actionRow->addStretch();
    auto* openedLayout = new QVBoxLayout(m_opened);
    openedLayout->setContentsMargins(0, 0, 0, 0);
    openedLayout->addWidget(m_list);
    openedLayout->addLayout(m_actionRow);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    layout->addWidget(m_opened);
    connect(m_list, &QListWidget::currentRowChanged, this, &NotesBar::showActions);
    connect(m_list, &QListWidget::itemActivated, this, [this] {
        emit placeChosen(m_shown[static_cast<std::size_t>(m_list->currentRow())].place);
    });
    connect(&m_notes, &EditorNotes::changed, this, &NotesBar::refreshLater);
    connect(&m_notes, &EditorNotes::listAsked, this, [this] {
        setOpen(true);
        m_list->setFocus();
    });
    refresh();
}

/// One command makes many changes; they are shown together.
void NotesBar::refreshLater() {
    if (std::exchange(m_isRefreshing, true))
        return;
    QTimer::singleShot(0, this, &NotesBar::refresh);
}

void NotesBar::refresh() {
    m_isRefreshing = false;
    const NoteList list = m_notes.notes(m_isOpen ? kMaxNoteRows : 1);
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    sayFirst(list);
    fillList(m_isOpen ? list : NoteList());
    setVisible(list.count > 0);
    if (list.count == 0)
        m_isOpen = false;
    m_opened->setVisible(m_isOpen);
    if (hadFocus && m_isOpen)
        m_list->setFocus();
    else if (hadFocus)
        emit focusLost();
}

void NotesBar::sayFirst(const NoteList& list) {
    if (list.count == 0) {
        m_line->say("");
        return;
    }
    const Note& first = list.notes.front();
    QString text = shownText(first);
    if (list.count > 1)
        text = tr("%1 notes: %2").arg(list.count).arg(text);
    std::vector<StripLine::Action> actions;
    if (!m_isOpen)
        for (const NoteAction& action : first.actions)
            actions.push_back({QString::fromStdString(action.text), action.run});
    actions.push_back(
        {m_isOpen ? tr("Hide Notes") : tr("Show Notes"), [this] { setOpen(!m_isOpen); }});
    m_line->say(text, std::move(actions));
}

void NotesBar::fillList(const NoteList& list) {
    const int row = m_list->currentRow();
    m_shown = list.notes;
    m_list->clear();
    std::size_t listed = 0;
    for (const Note& note : m_shown) {
        listed += note.isDetail ? 0U : 1U;
        m_list->addItem((note.isDetail ? QString(kDetailIndent, ' ') : QString()) +
                        shownText(note));
    }
    if (list.count > listed) {
        auto* more = new QListWidgetItem(tr("and %1 more").arg(list.count - listed), m_list);
        more->setFlags(Qt::NoItemFlags);
    }
    m_list->setCurrentRow(std::clamp(row, 0, static_cast<int>(m_shown.size()) - 1));
    const int rows = std::min(m_list->count(), kMostShownRows);
    m_list->setFixedHeight((rows + 1) * m_list->fontMetrics().lineSpacing() * 3 / 2);
    showActions();
}

/// The buttons of the list's current note. Those of a detail are its note's.
void NotesBar::showActions() {
    for (QPushButton* button : std::exchange(m_buttons, {})) {
        button->hide();
        button->deleteLater();  // it may be the one that was pressed
    }
    int row = m_list->currentRow();
    if (row < 0 || row >= static_cast<int>(m_shown.size()))
        return;
    const NotePlace place = m_shown[static_cast<std::size_t>(row)].place;
    while (row > 0 && m_shown[static_cast<std::size_t>(row)].isDetail)
        --row;
    std::vector<NoteAction> actions = m_shown[static_cast<std::size_t>(row)].actions;
    if (place.owner != NotePlace::Owner::Nowhere)
        actions.push_back(
            {tr("Go to Field").toStdString(), [this, place] { emit placeChosen(place); }});
    for (const NoteAction& action : actions) {
        auto* button = new QPushButton(QString::fromStdString(action.text), m_opened);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QPushButton::clicked, this, [run = action.run] { run(); });
        m_actionRow->addWidget(button);
        m_buttons.push_back(button);
    }
}

void NotesBar::setOpen(bool isOpen) {
    m_isOpen = isOpen;
    refresh();
}

}  // namespace zev
