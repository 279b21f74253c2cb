// SPDX-License-Identifier: MIT
#include "integrator/wizard/undo_window.h"

#include <QDateTime>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialogs/dialog_button.h"
#include "integrator/page_groups.h"
#include "integrator/run_record.h"
#include "integrator/run_undo.h"
#include "integrator/wizard/undone_message.h"
#include "integrator/wizard/work_progress.h"

namespace zev {

namespace {

/// Of an entry of the list: the name of the run.
constexpr int kNameRole = Qt::UserRole;
/// Characters of a run's line that are seen at once.
constexpr int kRunWidth = 66;

/// A run's name begins with its date and time, in UTC.
QString runDate(const QString& name) {
    QDateTime date = QDateTime::fromString(name.left(19), Qt::ISODate);
    date.setTimeSpec(Qt::UTC);
    return QLocale().toString(date.toLocalTime(), QLocale::ShortFormat);
}

QString runText(const FileSystem& files, const std::string& folder, const std::string& name) {
    const QString date = runDate(QString::fromStdString(name));
    const FileResult<std::vector<RecordedPage>> run = readRun(files, folder, name);
    if (!run.isOk())
        return UndoWindow::tr("%1: cannot be read").arg(date);
    std::vector<std::string> paths;
    for (const RecordedPage& page : run.value())
        paths.push_back(page.path);
    const ChosenFiles pages = chosenPages(paths);
    const QString pagesFolder = QString::fromStdString(pages.folder);
    return pages.names.size() == 1
               ? UndoWindow::tr("%1: %2").arg(date, QString::fromStdString(paths.front()))
               : UndoWindow::tr("%1: %2 pages in %3")
                     .arg(date)
                     .arg(pages.names.size())
                     .arg(pagesFolder);
}

}  // namespace

UndoWindow::UndoWindow(FileSystem& files, MessageBox& messages, const std::string& recordFolder,
                       QWidget* parent)
    : QDialog(parent), m_files(files), m_messages(messages), m_recordFolder(recordFolder) {
    setObjectName("UndoWindow");
    setWindowTitle(tr("Undo Integration"));
    arrange();
    showRuns();
}

void UndoWindow::arrange() {
    m_runs = new QListWidget(this);
    m_runs->setObjectName("listRuns");
    m_runs->setAccessibleName(tr("Last runs"));
    m_runs->setMinimumWidth(kRunWidth * fontMetrics().averageCharWidth());
    auto* label = new QLabel(tr("&Last runs of the Menu Integrator, the newest first:"), this);
    label->setObjectName("lblRuns");
    label->setBuddy(m_runs);
    auto* what = new QLabel(tr("The pages become what they were before the run. Pages that were "
                               "changed since are left alone and listed."),
                            this);
    what->setObjectName("lblWhat");
    what->setWordWrap(true);
    m_btnUndo = makeDialogButton("btnUndo", tr("&Undo"), this);
    m_btnUndo->setAccessibleName(tr("Undo the run"));
    m_btnUndo->setDefault(true);
    connect(m_btnUndo, &QPushButton::clicked, this, &UndoWindow::undoSelected);
    QPushButton* close = makeDialogButton("btnClose", tr("&Close"), this);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_runs, 1);
    layout->addWidget(what);
    layout->addLayout(makeClosingRow(m_btnUndo, close));
}

void UndoWindow::showRuns() {
    m_runs->clear();
    for (const std::string& name : listRuns(m_files, m_recordFolder)) {
        if (m_runs->count() == kMaxRuns)
            break;
        auto* item = new QListWidgetItem(runText(m_files, m_recordFolder, name), m_runs);
        item->setData(kNameRole, QString::fromStdString(name));
    }
    m_btnUndo->setEnabled(m_runs->count() > 0);
    if (m_runs->count() > 0)
        m_runs->setCurrentRow(0);
    else
        m_runs->addItem(tr("There is no run that can be undone."));
}

void UndoWindow::undoSelected() {
    if (m_runs->currentItem() == nullptr)
        return;
    const std::string name = m_runs->currentItem()->data(kNameRole).toString().toStdString();
    WorkProgress progress(tr("Undoing the run"), tr("&Stop"), this);
    const FileResult<UndoneRun> run = undoRun(
        m_files, m_recordFolder, name, [&progress](std::size_t doneCount, std::size_t count) {
            return progress.goesOn(doneCount, count);
        });
    progress.reset();
    showUndone(m_messages, {run.isOk() ? run.value() : UndoneRun{{}, {}, {run.error()}}});
    showRuns();
}

}  // namespace zev
