// SPDX-License-Identifier: MIT
#include "integrator/wizard/page_list_window.h"

#include <QDropEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QStringListModel>
#include <QVBoxLayout>
#include <algorithm>

#include "dialogs/dialog_button.h"
#include "integrator/page_groups.h"
#include "integrator/wizard/page_sources.h"

namespace zev {

namespace {

/// Characters of a page's name, and lines of the list, that are seen at once.
constexpr int kNameWidth = 60;
constexpr int kListLines = 14;

}  // namespace

PageListWindow::PageListWindow(const IntegratorServices& services, const ChosenFiles& pages,
                               QWidget* parent)
    : QDialog(parent), m_services(services), m_paths(pagePaths(pages)) {
    setObjectName("PageListWindow");
    setWindowTitle(tr("List of Pages"));
    setAcceptDrops(true);
    arrange();
    showPaths();
}

void PageListWindow::arrange() {
    m_names = new QStringListModel(this);
    m_list = new QListView(this);
    m_list->setObjectName("listPages");
    m_list->setAccessibleName(tr("Pages"));
    m_list->setModel(m_names);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setUniformItemSizes(true);
    m_list->setMinimumSize(kNameWidth * fontMetrics().averageCharWidth(),
                           kListLines * fontMetrics().height() / 2);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PageListWindow::followSelection);
    const auto* remove =
        new QShortcut(QKeySequence::Delete, m_list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, &PageListWindow::removeSelected);

    m_lblFolder = new QLabel(this);
    m_lblFolder->setObjectName("lblFolder");
    m_lblFolder->setTextFormat(Qt::PlainText);
    m_lblFolder->setWordWrap(true);
    auto* buttons = new QVBoxLayout;
    const auto addButton = [&](const QString& name, const QString& caption,
                               void (PageListWindow::*click)()) {
        QPushButton* button = makeDialogButton(name, caption, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, click);
        buttons->addWidget(button);
        return button;
    };
    addButton("btnAddPages", tr("&Add Pages\u2026"), &PageListWindow::addPages);
    addButton("btnAddFolder", tr("Add &Folder\u2026"), &PageListWindow::addFolder);
    addButton("btnAddList", tr("From a &List\u2026"), &PageListWindow::addList)
        ->setToolTip(tr("A text file with a path a line, or a sitemap.xml"));
    m_btnRemove = addButton("btnRemovePages", tr("&Remove"), &PageListWindow::removeSelected);
    buttons->addStretch();
    auto* middle = new QHBoxLayout;
    middle->addWidget(m_list, 1);
    middle->addLayout(buttons);

    QPushButton* ok = makeDialogButton("btnOK", tr("&OK"), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    QPushButton* cancel = makeDialogButton("btnCancel", tr("&Cancel"), this);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_lblFolder);
    layout->addLayout(middle, 1);
    layout->addLayout(makeClosingRow(ok, cancel));
    followSelection();
}

void PageListWindow::showPaths() {
    const ChosenFiles pages = chosenPages(m_paths);
    m_folder = pages.folder;
    QStringList names;
    for (const std::string& name : pages.names)
        names.append(QString::fromStdString(name));
    m_names->setStringList(names);
    const QString folder = QString::fromStdString(pages.folder);
    if (names.isEmpty())
        m_lblFolder->setText(tr("No pages are chosen. Pages and folders can be dropped here."));
    else if (names.size() == 1)
        m_lblFolder->setText(tr("1 page in %1").arg(folder));
    else
        m_lblFolder->setText(tr("%1 pages in %2").arg(names.size()).arg(folder));
}

void PageListWindow::followSelection() {
    m_btnRemove->setEnabled(m_list->selectionModel()->hasSelection());
}

void PageListWindow::addPages() {
    add(pagePaths(m_services.dialogs.openFiles(pageRequest(m_folder))));
}

void PageListWindow::addFolder() {
    add(pagesOfFolder(m_services, m_folder, this));
}

void PageListWindow::addList() {
    add(pagesOfList(m_services, m_folder));
}

void PageListWindow::add(const std::vector<std::string>& paths) {
    m_paths.insert(m_paths.end(), paths.begin(), paths.end());
    m_paths = pagePaths(chosenPages(m_paths));
    showPaths();
}

void PageListWindow::removeSelected() {
    std::vector<bool> isSelected(m_paths.size());
    for (const QItemSelectionRange& range : m_list->selectionModel()->selection())
        std::fill(isSelected.begin() + range.top(), isSelected.begin() + range.bottom() + 1, true);
    std::vector<std::string> kept;
    for (std::size_t i = 0; i < m_paths.size(); ++i)
        if (!isSelected[i])
            kept.push_back(m_paths[i]);
    m_paths = std::move(kept);
    showPaths();
}

void PageListWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (isOnlyFiles(*event->mimeData()))
        event->acceptProposedAction();
}

void PageListWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    add(droppedPages(m_services, *event->mimeData(), this));
}

}  // namespace zev
