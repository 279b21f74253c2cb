// SPDX-License-Identifier: MIT
// The wizard's run and what follows it: the report, the last frame, and what it offers.

#include <QCoreApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTextCursor>
#include <initializer_list>

#include "integrator/wizard/frm_integrator.h"
#include "integrator/wizard/place_window.h"
#include "integrator/wizard/undone_message.h"
#include "integrator/wizard/work_progress.h"
#include "platform/common_dialogs.h"
#include "platform/message_box.h"

namespace zev {

namespace {

constexpr const char* kReportFilter = "Text Files (*.txt;*.log)|*.txt;*.log|All Files (*.*)|*.*";

/// Pages that are named in a line of the last frame.
constexpr std::size_t kNamedPages = 3;

QString shortList(const std::vector<std::string>& pages) {
    QStringList names;
    for (const std::string& page : pages) {
        if (static_cast<std::size_t>(names.size()) == kNamedPages) {
            names.append(QString(QChar(0x2026)));
            break;
        }
        names.append(QString::fromStdString(page));
    }
    return names.join(", ");
}

}  // namespace

void frmIntegrator::integrate() {
    setRunning(true);
    m_flow.IntegratePages(answers(), [this](std::size_t doneCount, std::size_t totalCount) {
        m_pbProgress->setMaximum(static_cast<int>(totalCount));
        m_pbProgress->setValue(static_cast<int>(doneCount));
        // Lets Cancel be pressed; everything else that could start something is disabled.
        QCoreApplication::processEvents();
    });
    showReport();
    // What was pressed while a page took its time was not meant for the frame that is shown now.
    QCoreApplication::processEvents();
    setRunning(false);
}

void frmIntegrator::setRunning(bool isRunning) {
    const bool hasManyPages = m_flow.pages().names.size() > 1;
    m_pbProgress->setVisible(isRunning && hasManyPages);
    btnCancel->setVisible(isRunning && hasManyPages);
    for (QPushButton* button : {btnBack, btnNext, btnExit, btnSaveReport})
        button->setEnabled(!isRunning);
}

/// A report of thousands of pages is shown piece by piece: the window is painted in between, but
/// takes no click that would go on to the next frame meanwhile.
void frmIntegrator::showReport() {
    constexpr qsizetype kPieceLength = 100'000;
    txtReport->clear();
    const QString report = QString::fromStdString(m_flow.report()).replace("\r\n", "\n");
    QTextCursor end(txtReport->document());
    for (qsizetype at = 0; at < report.size(); at += kPieceLength) {
        end.insertText(report.mid(at, kPieceLength));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    txtReport->moveCursor(QTextCursor::Start);
}

void frmIntegrator::ShowResultMessage() {
    if (m_flow.isUndone()) {
        lblMsg->setText(tr("The run was undone. The pages are as they were before it."));
    } else {
        lblMsg->setText(
            m_flow.hasSucceeded()
                ? tr("Menu integration successful. Copy and paste the following code on the web "
                     "page to complete the integration. Switch to HTML mode before pasting if you "
                     "are using a WYSIWYG editor, e.g. FrontPage")
                : tr("Menu integration failure. Verify that your input file is a valid HTML file "
                     "containing <head></head> and <body></body> tags"));
    }
    showSummary();
    // Pages that are done need the code, whatever became of the others.
    const bool hasCode = m_flow.summary().doneCount > 0;
    txtCode->setPlainText(QString::fromStdString(m_flow.code()));
    txtLinkCode->setPlainText(QString::fromStdString(m_flow.linkCode()));
    for (QWidget* widget : std::initializer_list<QWidget*>{txtCode, m_btnCopyCode})
        widget->setVisible(hasCode);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{lblLinkCode, txtLinkCode, m_btnCopyLinkCode})
        widget->setVisible(hasCode && !m_flow.linkCode().empty());
}

/// What became of all pages of the run, failures first, and what can be done now.
void frmIntegrator::showSummary() {
    const RunSummary& summary = m_flow.summary();
    QStringList lines;
    for (const auto& [pages, what] : {std::pair(&summary.failedPages, tr("%1 failed: %2")),
                                      std::pair(&summary.skippedPages, tr("%1 skipped: %2"))})
        if (!pages->empty())
            lines.append(what.arg(pages->size()).arg(shortList(*pages)));
    if (!lines.isEmpty())
        lines.append(tr("%1 done").arg(summary.doneCount));
    if (const FileOutcome& error = m_flow.recordError())
        lines.append(
            tr("This run cannot be undone: %1: %2")
                .arg(QString::fromStdString(error->path), QString::fromStdString(error->reason)));
    const auto& moved = m_flow.movedReferences();
    const auto& foreign = m_flow.foreignReferences();
    if (!moved.empty())
        lines.append(tr("References to the menu's earlier place: %1").arg(moved.size()));
    if (!foreign.empty())
        lines.append(tr("References to another menu, written by hand: %1").arg(foreign.size()));
    m_lblSummary->setText(lines.join(u'\n'));
    m_lblSummary->setVisible(!lines.isEmpty());
    m_btnPlace->setEnabled(summary.doneCount > 0);
    m_btnUndoRun->setVisible(m_flow.canUndo());
    m_btnReferences->setVisible(!moved.empty() || !foreign.empty());
}

/// Runs further work over the pages, with a window that shows itself when it takes more than a
/// moment.
void frmIntegrator::runFurther(const QString& what,
                               const std::function<void(const WizardFlow::Progress&)>& work) {
    WorkProgress progress(what, tr("&Cancel"), this);
    work([&](std::size_t doneCount, std::size_t totalCount) {
        if (!progress.goesOn(doneCount, totalCount))
            m_flow.cancel();
    });
}

void frmIntegrator::placeMenu() {
    const WizardAnswers given = answers();
    PlaceWindow window(m_flow, m_services.files, given, m_linkList, this);
    if (!window.lookForPlaces() || window.exec() != QDialog::Accepted)
        return;
    runFurther(tr("Placing the menu"), [&](const WizardFlow::Progress& progress) {
        m_flow.placeMenu(given, window.placing(), progress);
    });
    showSummary();
    lblMsg->setText(m_flow.summary().doneCount == 1
                        ? tr("The menu stands in the page.")
                        : tr("The menu stands in %1 pages.").arg(m_flow.summary().doneCount));
}

void frmIntegrator::showReferences() {
    const bool canReplace = !m_flow.movedReferences().empty();
    MessageRequest request;
    request.text =
        canReplace ? "Some references lead to the menu's earlier place. Replace them?"
                   : "Some references lead to another menu. They were written by hand and stay.";
    if (canReplace)
        request.buttons = MessageRequest::Buttons::YesNo;
    for (const EarlierReference& reference : m_flow.movedReferences())
        request.details += reference.page + ": " + reference.url + "\n";
    for (const EarlierReference& reference : m_flow.foreignReferences())
        request.details += reference.page + ": " + reference.url + " (written by hand, stays)\n";
    if (m_services.messages.show(request) != MessageBox::Answer::Yes)
        return;
    runFurther(tr("Replacing earlier references"), [&](const WizardFlow::Progress& progress) {
        m_flow.replaceReferences(answers(), progress);
    });
    showSummary();
}

void frmIntegrator::undoRun() {
    std::vector<UndoneRun> undone;
    runFurther(tr("Undoing the run"),
               [&](const WizardFlow::Progress& progress) { undone = m_flow.undoRuns(progress); });
    showUndone(m_services.messages, undone);
    ShowResultMessage();
}

void frmIntegrator::btnSaveReport_Click() {
    FileDialogRequest request;
    request.title = "Save";
    request.filter = kReportFilter;
    request.asksBeforeReplacing = true;
    request.extension = "txt";
    const std::string path = m_services.dialogs.saveFile(request);
    if (path.empty())
        return;
    if (const FileOutcome error = m_flow.saveReport(path))
        m_services.messages.notice(error->path + " not saved: " + error->reason);
}

}  // namespace zev
