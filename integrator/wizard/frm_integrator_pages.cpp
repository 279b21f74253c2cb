// SPDX-License-Identifier: MIT
// The wizard's first step: the pages, and what is entered of them again the next time.

#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>

#include "dialogs/property_edit.h"
#include "integrator/wizard/changes_window.h"
#include "integrator/wizard/frm_integrator.h"
#include "integrator/wizard/page_list_window.h"
#include "integrator/wizard/page_sources.h"
#include "integrator/wizard/work_progress.h"
#include "platform/common_dialogs.h"
#include "text/path.h"

namespace zev {

void frmIntegrator::BtnInputFile_Click() {
    if (!m_flow.choosePages(m_services.dialogs.openFiles(pageRequest(m_flow.pagesFolder()))))
        return;
    useNewPages();
}

void frmIntegrator::showPages() {
    QStringList names;
    for (const std::string& name : m_flow.pages().names)
        names.append(QString::fromStdString(name));
    comboFiles->clear();
    comboFiles->addItems(names);
    txtPathname->setText(QString::fromStdString(m_flow.pages().folder));
    m_btnChanges->setEnabled(!names.isEmpty());
    showHints();
}

void frmIntegrator::useNewPages() {
    // What was answered for other pages was about those.
    m_skipsFailing = false;
    showPages();
    surveyPages();
}

void frmIntegrator::addPages(const std::vector<std::string>& paths) {
    if (!m_flow.addPages(paths))
        return;
    useNewPages();
}

void frmIntegrator::addFolder() {
    addPages(pagesOfFolder(m_services, m_flow.pagesFolder(), this));
}

void frmIntegrator::changePageList() {
    PageListWindow list(m_services, m_flow.pages(), this);
    if (list.exec() != QDialog::Accepted || !m_flow.setPages(list.paths()))
        return;
    useNewPages();
}

void frmIntegrator::dragEnterEvent(QDragEnterEvent* event) {
    if (m_flow.step() == WizardFlow::kPagesStep && isOnlyFiles(*event->mimeData()))
        event->acceptProposedAction();
}

void frmIntegrator::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    addPages(droppedPages(m_services, *event->mimeData(), this));
}

void frmIntegrator::surveyPages() {
    WorkProgress progress(tr("Counting the scripts that would be removed from the pages"),
                          tr("&Skip"), this);
    m_flow.countScripts([&progress](std::size_t doneCount, std::size_t totalCount) {
        return progress.goesOn(doneCount, totalCount);
    });
    showScriptCount();
}

bool frmIntegrator::needsReview() {
    if (m_flow.pages().names.empty() || !m_flow.needsReview(answers()))
        return false;
    surveyPages();
    return m_flow.needsReview(answers());
}

QStringList frmIntegrator::missingPaths() const {
    const WizardAnswers given = answers();
    const auto [isLibraryMissing, isDefinitionMissing] = m_flow.missingPaths(given);
    QStringList notes;
    if (isLibraryMissing)
        notes.append(tr("The library is not in %1.").arg(QString::fromStdString(given.library)));
    if (isDefinitionMissing)
        notes.append(
            tr("There is no menu definition %1.").arg(QString::fromStdString(given.definition)));
    return notes;
}

/// Shows what the pages would lose, and calls `next` once that is answered. The window does not
/// wait for it: what is pressed meanwhile does nothing.
void frmIntegrator::showChanges(void (frmIntegrator::*next)()) {
    QStringList notes = missingPaths();
    if (!m_lblUnsaved->isHidden())
        notes.prepend(m_lblUnsaved->text());
    auto* changes = new ChangesWindow(
        {m_flow.pages().names, m_flow.survey(), notes, m_flow.isReviewed()}, answers(), this);
    changes->setAttribute(Qt::WA_DeleteOnClose);
    connect(changes, &QDialog::accepted, this, [this, changes, next] {
        m_flow.markReviewed();
        m_keptScripts = changes->keptScripts();
        m_skipsFailing = changes->skipsFailing();
        m_chkKeepScripts->setChecked(changes->keepsAll());
        if (next != nullptr)
            (this->*next)();
    });
    changes->open();
}

void frmIntegrator::showScriptCount() {
    const std::size_t pageCount = m_flow.pages().names.size();
    if (pageCount == 0)
        return;
    const auto [count, countedPages] = m_flow.scriptCount(m_chkKeepScripts->isChecked());
    const QString what =
        count == 1 ? tr("1 script will be removed") : tr("%1 scripts will be removed").arg(count);
    m_lblScripts->setText(countedPages == pageCount
                              ? tr("%1 from the pages.").arg(what)
                              : tr("%1 from the first %2 of %3 pages; the others were not counted.")
                                    .arg(what)
                                    .arg(countedPages)
                                    .arg(pageCount));
}

void frmIntegrator::sayUnsaved() {
    m_lblUnsaved->setVisible(true);
}

void frmIntegrator::recallEntries() {
    m_openDefinition = txtMenuDef->text().toStdString();
    if (const std::optional<WizardEntries> last = m_memory.recall(m_openDefinition))
        showEntries(*last);
    m_knownEntries = {m_flow.pages(), answers()};
}

void frmIntegrator::showEntries(const WizardEntries& entries) {
    const WizardAnswers& last = entries.answers;
    chkBackup->setChecked(last.hasBackups);
    m_chkKeepScripts->setChecked(last.keepsOtherScripts);
    m_keptScripts = last.keptScripts;
    m_skipsFailing = last.skipsFailing;
    txtPath->setText(QString::fromStdString(last.library));
    txtMenuDef->setText(QString::fromStdString(last.definition));
    cboMenuList->setCurrentIndex(cboMenuList->findData(QString::fromStdString(last.submenuId)));
    // The submenu may be gone by now.
    if (last.isPopup && cboMenuList->currentIndex() >= 0)
        cboIntegration->setCurrentIndex(kPopupKind);
    (last.placement.isAtMouse ? optMouse : optXY)->setChecked(true);
    txtX->setText(QString::fromStdString(last.placement.x));
    txtY->setText(QString::fromStdString(last.placement.y));
    if (!m_flow.choosePages(entries.pages))
        return;
    showPages();
    // Reading a long list of pages takes its time; nobody has asked for it yet.
    m_lblScripts->setText(
        tr("These are the pages of the last time. Their scripts have not been "
           "counted yet."));
}

void frmIntegrator::rememberEntries() {
    const WizardEntries entries{m_flow.pages(), answers()};
    if (entries == m_knownEntries)
        return;
    const std::string& entered = entries.answers.definition;
    const Path::Kind kind = Path(entered).kind();
    const bool isPath = kind == Path::Kind::System || kind == Path::Kind::Drive;
    const std::string& definition = isPath ? entered : m_openDefinition;
    // A memory that cannot be written is no reason to keep the wizard open.
    if (!definition.empty() && !m_memory.remember(definition, entries))
        m_knownEntries = entries;
}

}  // namespace zev
