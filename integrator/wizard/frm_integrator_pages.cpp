// The wizard's first step: the pages, and what is entered of them again the next time.

#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressDialog>
#include <QRadioButton>

#include "dialogs/property_edit.h"
#include "integrator/wizard/frm_integrator.h"
#include "integrator/wizard/frm_page_list.h"
#include "integrator/wizard/page_sources.h"
#include "platform/common_dialogs.h"
#include "text/path.h"

namespace zev {

namespace {

/// A window that stands still for less than this needs no explanation.
constexpr int kMomentMs = 500;

}  // namespace

void frmIntegrator::BtnInputFile_Click() {
    if (!m_flow.choosePages(m_services.dialogs.openFiles(pageRequest(m_flow.pagesFolder()))))
        return;
    showPages();
    countScripts();
}

void frmIntegrator::showPages() {
    QStringList names;
    for (const std::string& name : m_flow.pages().names)
        names.append(QString::fromStdString(name));
    comboFiles->clear();
    comboFiles->addItems(names);
    txtPathname->setText(QString::fromStdString(m_flow.pages().folder));
    showHints();
}

void frmIntegrator::addPages(const std::vector<std::string>& paths) {
    if (!m_flow.addPages(paths))
        return;
    showPages();
    countScripts();
}

void frmIntegrator::changePageList() {
    frmPageList list(m_services, m_flow.pages(), this);
    if (list.exec() != QDialog::Accepted || !m_flow.setPages(list.paths()))
        return;
    showPages();
    countScripts();
}

void frmIntegrator::dragEnterEvent(QDragEnterEvent* event) {
    if (m_flow.step() == WizardFlow::kPagesStep && !draggedPaths(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void frmIntegrator::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    addPages(draggedPaths(*event->mimeData()));
}

void frmIntegrator::countScripts() {
    // Shows itself only when counting takes longer than a moment, and then blocks the wizard.
    QProgressDialog progress(tr("Counting the scripts that would be removed from the pages"),
                             tr("&Skip"), 0, comboFiles->count(), this);
    progress.setObjectName("frmProgress");
    progress.setWindowTitle(windowTitle());
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(kMomentMs);
    m_flow.countScripts([&](std::size_t doneCount, std::size_t) {
        progress.setValue(static_cast<int>(doneCount));
        return !progress.wasCanceled();
    });
    showScriptCount();
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
    m_lblScripts->setText(tr("These are the pages of the last time. Their scripts have not been "
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
