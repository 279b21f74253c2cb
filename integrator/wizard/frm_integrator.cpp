// SPDX-License-Identifier: MIT
#include "integrator/wizard/frm_integrator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>

#include "dialogs/frm_path.h"
#include "dialogs/property_edit.h"
#include "messages/integration_messages.h"
#include "platform/common_dialogs.h"
#include "platform/message_box.h"

namespace zev {

namespace {

constexpr const char* kPageFilter =
    "Web Pages (*.htm;*.html;*.shtml;*.stm)|*.htm;*.html;*.shtml;*.stm|"
    "Preprocessed HTML(*.asp;*.aspx;*.cfm;*.php)|*.asp;*.aspx;*.cfm;*.php|All Files (*.*)|*.*";
constexpr const char* kDefinitionFilter = "JavaScript files (*.js)|*.js|All Files (*.*)|*.*";
constexpr const char* kReportFilter = "Text Files (*.txt;*.log)|*.txt;*.log|All Files (*.*)|*.*";

constexpr int kPopupKind = 1;  // index in `cboIntegration`

/// A window that stands still for less than this needs no explanation.
constexpr int kMomentMs = 500;

QString hintText(const PathHint& hint) {
    const QString url = QString::fromStdString(hint.url);
    switch (hint.kind) {
        case PathHint::Kind::OnADrive:
            return frmIntegrator::
                tr("A page on the web cannot reach a drive of this computer: \"%1\". Choose a "
                   "path on the drive of the pages, with an upper-case drive letter, or enter a "
                   "URL.")
                    .arg(url);
        case PathHint::Kind::NoLastSlash:
            return frmIntegrator::tr(
                       "The last slash is missing: the pages would load \"%1zevmenu_loader.js\".")
                .arg(url);
        case PathHint::Kind::Quote:
            return frmIntegrator::tr(
                       "A quote in this path would break the script. Rename the "
                       "folder, or enter \"%1\".")
                .arg(url);
        case PathHint::Kind::NotGiven:
            return frmIntegrator::tr(
                "Without a path the pages look for the library in their own folder.");
    }
    return {};
}

void showHintsIn(QLabel& label, const std::vector<PathHint>& hints) {
    QStringList texts;
    for (const PathHint& hint : hints)
        texts.append(hintText(hint));
    label.setText(texts.join(u'\n'));
    label.setVisible(!texts.isEmpty());
}

/// A field that cannot be used now is painted like the dialog behind it.
void setUsable(QLineEdit& field, bool isUsable) {
    field.setEnabled(isUsable);
    QPalette palette;
    if (!isUsable)
        palette.setBrush(QPalette::Base, palette.brush(QPalette::Button));
    field.setPalette(palette);
}

}  // namespace

frmIntegrator::frmIntegrator(const IntegratorServices& services, const QStringList& drives,
                             QWidget* parent)
    : QDialog(parent), m_services(services), m_flow(services.files) {
    setObjectName("frmIntegrator");
    setWindowTitle(tr("ZEVMenu Integrator"));
    m_frames = new QStackedWidget(this);
    makeWelcome();
    makePagesFrame();
    makePathsFrame();
    makeMenuFrame();
    makeReportFrame();
    makeCodeFrame();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_frames, 1);
    layout->addWidget(makeButtonRow());
    m_pathForm = new frmPath(services.files, services.messages, drives, this);
    showHints();
    Initialize();
}

void frmIntegrator::Initialize() {
    cboIntegration_Click();
    setRunning(false);
    updateFrames();
}

void frmIntegrator::setDefinition(const std::string& path) {
    m_flow.setDefinition(path);
    const QString file = QString::fromStdString(path);
    txtMenuDef->setText(file);
    // The library lies beside the menu, unless the person has moved it.
    if (txtPath->text().isEmpty())
        m_pathForm->openFolder(QFileInfo(file).path());
}

void frmIntegrator::showSubmenus(const std::vector<Submenu>& submenus) {
    m_flow.setSubmenus(submenus);
    for (const Submenu& submenu : submenus)
        cboMenuList->addItem(QString::fromStdString(submenuEntry(submenu)),
                             QString::fromStdString(submenu.id));
    cboMenuList->setCurrentIndex(-1);
}

void frmIntegrator::updateFrames() {
    m_frames->setCurrentIndex(m_flow.step());
    btnBack->setEnabled(m_flow.canGoBack());
    btnNext->setText(m_flow.step() == WizardFlow::kLastStep ? tr("&Finish") : tr("&Next >>"));
    btnNext->setAccessibleName(btnNext->text().remove(u'&'));
}

WizardAnswers frmIntegrator::answers() const {
    return {chkBackup->isChecked(),
            m_chkKeepScripts->isChecked(),
            txtPath->text().toStdString(),
            txtMenuDef->text().toStdString(),
            cboIntegration->currentIndex() == kPopupKind,
            cboMenuList->currentData().toString().toStdString(),
            {optMouse->isChecked(), txtX->text().toStdString(), txtY->text().toStdString()}};
}

void frmIntegrator::btnNext_Click() {
    leaveFocusedEdit(*this);
    const NextOutcome outcome = m_flow.NextStep(answers());
    showReport();
    if (outcome.notice)
        m_services.messages.notice(noticeText(*outcome.notice));
    switch (outcome.action) {
        case NextOutcome::Action::ShowStep:
            if (m_flow.step() == WizardFlow::kLastStep)
                ShowResultMessage();
            updateFrames();
            break;
        case NextOutcome::Action::Integrate:
            updateFrames();
            integrate();
            break;
        case NextOutcome::Action::Close:
            btnExit_Click();
    }
}

void frmIntegrator::btnBack_Click() {
    leaveFocusedEdit(*this);
    m_flow.goBack();
    updateFrames();
}

void frmIntegrator::btnExit_Click() {
    reject();
}

bool frmIntegrator::event(QEvent* event) {
    const bool isHandled = QDialog::event(event);
    // A window does not grow by itself for a text that has more lines now.
    if (event->type() == QEvent::LayoutRequest && isVisible())
        resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
    return isHandled;
}

bool frmIntegrator::eventFilter(QObject* watched, QEvent* event) {
    // The frame that the first press brought has not been seen yet.
    return (watched == btnNext && event->type() == QEvent::MouseButtonDblClick) ||
           QDialog::eventFilter(watched, event);
}

void frmIntegrator::reject() {
    if (m_flow.mayClose())
        QDialog::reject();
}

void frmIntegrator::BtnInputFile_Click() {
    FileDialogRequest request;
    request.title = "Open";
    request.filter = kPageFilter;
    request.folder = m_flow.pagesFolder();
    if (!m_flow.choosePages(m_services.dialogs.openFiles(request)))
        return;
    comboFiles->clear();
    for (const std::string& name : m_flow.pages().names)
        comboFiles->addItem(QString::fromStdString(name));
    txtPathname->setText(QString::fromStdString(m_flow.pages().folder));
    countScripts();
    showHints();
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

void frmIntegrator::btnPath_Click() {
    if (m_pathForm->exec() == QDialog::Accepted)
        txtPath->setText(QString::fromStdString(m_pathForm->path()));
}

void frmIntegrator::btnMenuDef_Click() {
    FileDialogRequest request;
    request.title = "Open";
    request.filter = kDefinitionFilter;
    const std::string path = m_services.dialogs.openFile(request);
    if (!path.empty())
        setDefinition(path);
}

void frmIntegrator::showHints() {
    showHintsIn(*m_lblPathHint, m_flow.libraryHints(answers()));
    showHintsIn(*m_lblMenuDefHint, m_flow.definitionHints(answers()));
}

void frmIntegrator::cboIntegration_Click() {
    const WizardAnswers given = answers();
    if (const std::optional<WizardNotice> notice = m_flow.checkKind(given)) {
        cboIntegration->setCurrentIndex(0);
        m_services.messages.notice(noticeText(*notice));
        return;
    }
    for (QWidget* control : std::initializer_list<QWidget*>{cboMenuList, optMouse, optXY})
        control->setEnabled(given.isPopup);
    optXY_Change();
}

void frmIntegrator::optXY_Change() {
    const bool isUsable = answers().needsPosition();
    setUsable(*txtX, isUsable);
    setUsable(*txtY, isUsable);
}

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

void frmIntegrator::showReport() {
    txtReport->setPlainText(QString::fromStdString(m_flow.report()));
}

void frmIntegrator::ShowResultMessage() {
    const bool hasSucceeded = m_flow.hasSucceeded();
    lblMsg->setText(
        hasSucceeded
            ? tr("Menu integration successful. Copy and paste the following code on the web page "
                 "to complete the integration. Switch to HTML mode before pasting if you are using "
                 "a WYSIWYG editor, e.g. FrontPage")
            : tr("Menu integration failure. Verify that your input file is a valid HTML file "
                 "containing <head></head> and <body></body> tags"));
    txtCode->setPlainText(QString::fromStdString(m_flow.code()));
    txtLinkCode->setPlainText(QString::fromStdString(m_flow.linkCode()));
    for (QWidget* widget : std::initializer_list<QWidget*>{txtCode, m_btnCopyCode})
        widget->setVisible(hasSucceeded);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{lblLinkCode, txtLinkCode, m_btnCopyLinkCode})
        widget->setVisible(hasSucceeded && !m_flow.linkCode().empty());
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
