// SPDX-License-Identifier: MIT
#include "integrator/wizard/frm_integrator.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "dialogs/frm_path.h"
#include "dialogs/property_edit.h"
#include "integrator/wizard/extra_row.h"
#include "messages/integration_messages.h"
#include "platform/common_dialogs.h"
#include "platform/message_box.h"

namespace zev {

namespace {

constexpr const char* kDefinitionFilter = "JavaScript files (*.js)|*.js|All Files (*.*)|*.*";

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
    : QDialog(parent),
      m_services(services),
      m_flow(services.files, services.recordFolder),
      m_memory(services.files, services.memoryFolder) {
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
    setAcceptDrops(true);
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
    if (!txtPath->text().isEmpty())
        return;
    m_pathForm->openFolder(QFileInfo(file).path());
    txtPath->setText(QString::fromStdString(m_flow.libraryBeside(path)));
}

void frmIntegrator::setLinkList(
    std::function<std::string(const std::string& definitionURL)> linkList) {
    m_linkList = std::move(linkList);
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
            {optMouse->isChecked(), txtX->text().toStdString(), txtY->text().toStdString()},
            m_keptScripts,
            m_skipsFailing};
}

void frmIntegrator::btnNext_Click() {
    leaveFocusedEdit(*this);
    if (m_flow.step() == WizardFlow::kPagesStep && needsReview())
        showChanges(&frmIntegrator::goOn);
    else
        goOn();
}

void frmIntegrator::goOn() {
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

void frmIntegrator::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_F6)
        QDialog::keyPressEvent(event);
    else if (!ExtraRow::focusNext(*this))
        focusNextChild();
}

void frmIntegrator::reject() {
    if (!m_flow.mayClose())
        return;
    rememberEntries();
    QDialog::reject();
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
    const QStringList missing = missingPaths();
    m_lblMissing->setText(missing.join(u'\n'));
    m_lblMissing->setVisible(!missing.isEmpty());
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

}  // namespace zev
