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

#include "dialogs/frm_path.h"
#include "dialogs/property_edit.h"
#include "integrator/link_code.h"
#include "integrator/page_integration.h"
#include "platform/common_dialogs.h"
#include "platform/message_box.h"

namespace zev {

namespace {

constexpr const char* kPageFilter =
    "Web Pages (*.htm;*.html;*.shtml;*.stm)|*.htm;*.html;*.shtml;*.stm|"
    "Preprocessed HTML(*.asp;*.aspx;*.cfm;*.php)|*.asp;*.aspx;*.cfm;*.php|All Files (*.*)|*.*";
constexpr const char* kDefinitionFilter = "JavaScript files (*.js)|*.js|All Files (*.*)|*.*";
constexpr const char* kReportFilter = "Text Files (*.txt;*.log)|*.txt;*.log|All Files (*.*)|*.*";

constexpr int kLastStep = 5;
constexpr int kPopupKind = 1;  // index in `cboIntegration`

/// A window that stands still for less than this needs no explanation.
constexpr int kMomentMs = 500;

bool HasDriveLetter(const std::string& url) {
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    return url.size() >= 2 && url[1] == ':' && isLetter(url[0]);
}

QString WithEscapedQuotes(QString url) {
    return url.replace(u'\'', "%27").replace(u'"', "%22");
}

void ShowHints(QLabel& label, const QStringList& hints) {
    label.setText(hints.join(u'\n'));
    label.setVisible(!hints.isEmpty());
}

/// A field that cannot be used now is painted like the dialog behind it.
void SetUsable(QLineEdit& field, bool isUsable) {
    field.setEnabled(isUsable);
    QPalette palette;
    if (!isUsable)
        palette.setBrush(QPalette::Base, palette.brush(QPalette::Button));
    field.setPalette(palette);
}

}  // namespace

frmIntegrator::frmIntegrator(const IntegratorServices& services, const QStringList& drives,
                             QWidget* parent)
    : QDialog(parent), m_services(services) {
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
    CurStep = 0;
    cboIntegration->setCurrentIndex(0);
    cboMenuList->clear();
    cboIntegration_Click();
    setRunning(false);
    updateFrames();
    btnNext->setText(tr("&Next >>"));
    btnBack->setEnabled(false);
}

void frmIntegrator::setDefinition(const std::string& path) {
    const QString file = QString::fromStdString(path);
    txtMenuDef->setText(file);
    // The library lies beside the menu, unless the person has moved it.
    if (txtPath->text().isEmpty())
        m_pathForm->openFolder(QFileInfo(file).path());
}

void frmIntegrator::showSubmenus(const std::vector<Submenu>& submenus) {
    for (const Submenu& submenu : submenus)
        cboMenuList->addItem(QString::fromStdString(submenuEntry(submenu)),
                             QString::fromStdString(submenu.id));
    cboMenuList->setCurrentIndex(-1);
}

void frmIntegrator::updateFrames() {
    m_frames->setCurrentIndex(CurStep);
}

bool frmIntegrator::isPopup() const {
    return cboIntegration->currentIndex() == kPopupKind;
}

void frmIntegrator::NextStep() {
    leaveFocusedEdit(*this);
    setReport({});
    switch (CurStep) {
        case 0:
            btnBack->setEnabled(true);
            ++CurStep;
            break;
        case 1:
            if (!InputFiles.names.empty())
                ++CurStep;
            else
                m_services.messages.notice("Please select at least one file to continue");
            break;
        case 2:
            if (txtMenuDef->text().isEmpty())
                m_services.messages.notice("Please enter menu definition filename");
            else
                ++CurStep;
            break;
        case 3:
            if (canLeaveMenuFrame()) {
                ++CurStep;
                updateFrames();
                Integrate();
            }
            break;
        case 4:
            ++CurStep;
            ShowResultMessage();
            btnNext->setText(tr("&Finish"));
            break;
        default:
            btnExit_Click();
    }
    updateFrames();
}

/// What would give code that cannot work is asked for.
bool frmIntegrator::canLeaveMenuFrame() {
    if (!isPopup())
        return true;
    if (cboMenuList->currentIndex() < 0) {
        m_services.messages.notice("Please select a popup menu");
        return false;
    }
    if (optXY->isChecked() && (txtX->text().isEmpty() || txtY->text().isEmpty())) {
        m_services.messages.notice("Please enter the position of the menu");
        return false;
    }
    return true;
}

// The button is disabled before the step back and not after it: back at the first frame it stays
// enabled, and one more press disables it.
void frmIntegrator::btnBack_Click() {
    leaveFocusedEdit(*this);
    if (CurStep == 0)
        btnBack->setEnabled(false);
    if (CurStep > 0)
        --CurStep;
    if (CurStep < kLastStep)
        btnNext->setText(tr("&Next >>"));
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

void frmIntegrator::reject() {
    // Closing the window while pages are processed stops that first.
    if (m_isRunning)
        m_isCancelled = true;
    else
        QDialog::reject();
}

void frmIntegrator::BtnInputFile_Click() {
    FileDialogRequest request;
    request.title = "Open";
    request.filter = kPageFilter;
    const ChosenFiles files = m_services.dialogs.openFiles(request);
    if (files.names.empty())
        return;
    InputFiles = files;
    comboFiles->clear();
    for (const std::string& name : files.names)
        comboFiles->addItem(QString::fromStdString(name));
    txtPathname->setText(QString::fromStdString(files.folder));
    countScripts();
    showHints();
}

/// A page that cannot be read counts as none; the report will say so.
void frmIntegrator::countScripts() {
    const int pageCount = comboFiles->count();
    // Shows itself only when counting takes longer than a moment, and then blocks the wizard.
    QProgressDialog progress(tr("Counting the scripts that would be removed from the pages"),
                             tr("&Skip"), 0, pageCount, this);
    progress.setObjectName("frmProgress");
    progress.setWindowTitle(windowTitle());
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(kMomentMs);
    progress.setValue(0);
    m_scriptCount = 0;
    m_countedPages = 0;
    while (m_countedPages < pageCount && !progress.wasCanceled()) {
        const std::string& name = InputFiles.names[static_cast<std::size_t>(m_countedPages)];
        const auto count = CountDroppedScripts(m_services.files, PagePath(InputFiles.folder, name));
        if (count.isOk())
            m_scriptCount += count.value();
        progress.setValue(++m_countedPages);
    }
    showScriptCount();
}

void frmIntegrator::showScriptCount() {
    const int pageCount = comboFiles->count();
    if (pageCount == 0)
        return;
    const bool isKept = chkKeepScripts->isChecked();
    const std::size_t count = isKept ? 0 : m_scriptCount;
    const QString what =
        count == 1 ? tr("1 script will be removed") : tr("%1 scripts will be removed").arg(count);
    lblScripts->setText(isKept || m_countedPages == pageCount
                            ? tr("%1 from the pages.").arg(what)
                            : tr("%1 from the first %2 of %3 pages; the others were not counted.")
                                  .arg(what)
                                  .arg(m_countedPages)
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
    const IntegrationURLs urls = CalculateURL(InputFiles.folder, txtMenuDef->text().toStdString(),
                                              txtPath->text().toStdString());
    const QString library = QString::fromStdString(urls.library);
    const QString definition = QString::fromStdString(urls.definition);
    const QString driveHint =
        tr("A page on the web cannot reach a drive of this computer: \"%1\". Choose a path on the "
           "drive of the pages, with an upper-case drive letter, or enter a URL.");
    // The URLs stand between quotes in the pages' scripts.
    const QString quoteHint =
        tr("A quote in this path would break the script. Rename the folder, or enter \"%1\".");
    QStringList pathHints;
    QStringList definitionHints;
    if (txtPath->text().isEmpty()) {
        // Where the menu lies elsewhere, its library does too.
        if (definition.contains(u'/'))
            pathHints.append(
                tr("Without a path the pages look for the library in their own folder."));
    } else if (HasDriveLetter(urls.library)) {
        pathHints.append(driveHint.arg(library));
    } else {
        if (!library.isEmpty() && !library.endsWith(u'/'))
            pathHints.append(
                tr("The last slash is missing: the pages would load \"%1zevmenu_loader.js\".")
                    .arg(library));
        if (library.contains(u'\'') || library.contains(u'"'))
            pathHints.append(quoteHint.arg(WithEscapedQuotes(library)));
    }
    if (HasDriveLetter(urls.definition))
        definitionHints.append(driveHint.arg(definition));
    else if (definition.contains(u'"'))
        definitionHints.append(quoteHint.arg(WithEscapedQuotes(definition)));
    ShowHints(*lblPathHint, pathHints);
    ShowHints(*lblMenuDefHint, definitionHints);
}

void frmIntegrator::cboIntegration_Click() {
    if (isPopup() && cboMenuList->count() == 0) {
        cboIntegration->setCurrentIndex(0);
        m_services.messages.notice("No dropdown menu found! Popup menu options disabled");
        return;
    }
    for (QWidget* control : {static_cast<QWidget*>(cboMenuList), static_cast<QWidget*>(optMouse),
                             static_cast<QWidget*>(optXY)})
        control->setEnabled(isPopup());
    optXY_Change();
}

void frmIntegrator::optXY_Change() {
    const bool isUsable = isPopup() && optXY->isChecked();
    SetUsable(*txtX, isUsable);
    SetUsable(*txtY, isUsable);
}

void frmIntegrator::Integrate() {
    const IntegrationURLs urls = CalculateURL(InputFiles.folder, txtMenuDef->text().toStdString(),
                                              txtPath->text().toStdString());
    showCode(urls.definition);
    IntegrationOptions options;
    options.rewrite = {urls.library, chkKeepScripts->isChecked()};
    options.hasBackups = chkBackup->isChecked();
    PageIntegrator integrator(m_services.files, options);
    setRunning(true);
    integrator.IntegratePages(InputFiles, [this](std::size_t doneCount, std::size_t totalCount) {
        pbProgress->setMaximum(static_cast<int>(totalCount));
        pbProgress->setValue(static_cast<int>(doneCount));
        // Lets Cancel be pressed; everything else that could start something is disabled.
        QCoreApplication::processEvents();
        return !m_isCancelled;
    });
    setRunning(false);
    m_status = integrator.status();
    setReport(integrator.report());
}

void frmIntegrator::setRunning(bool isRunning) {
    m_isRunning = isRunning;
    m_isCancelled = false;
    const bool hasManyPages = InputFiles.names.size() > 1;
    pbProgress->setVisible(isRunning && hasManyPages);
    btnCancel->setVisible(isRunning && hasManyPages);
    for (QPushButton* button : {btnBack, btnNext, btnExit, btnSaveReport})
        button->setEnabled(!isRunning);
}

void frmIntegrator::setReport(const std::string& report) {
    m_report = report;
    txtReport->setPlainText(QString::fromStdString(report));
}

void frmIntegrator::showCode(const std::string& definitionURL) {
    const std::string code =
        isPopup() ? DefinitionReference(definitionURL) : MenuCode(definitionURL);
    std::string linkCode;
    if (isPopup())
        linkCode = PopupLinkCode(
            cboMenuList->currentData().toString().toStdString(),
            {optMouse->isChecked(), txtX->text().toStdString(), txtY->text().toStdString()});
    txtCode->setPlainText(QString::fromStdString(code));
    txtLinkCode->setPlainText(QString::fromStdString(linkCode));
}

void frmIntegrator::ShowResultMessage() {
    lblMsg->setText(
        m_status.bSuccess
            ? tr("Menu integration successful. Copy and paste the following code on the web page "
                 "to complete the integration. Switch to HTML mode before pasting if you are using "
                 "a WYSIWYG editor, e.g. FrontPage")
            : tr("Menu integration failure. Verify that your input file is a valid HTML file "
                 "containing <head></head> and <body></body> tags"));
    for (QWidget* widget : {static_cast<QWidget*>(txtCode), static_cast<QWidget*>(btnCopyCode)})
        widget->setVisible(m_status.bSuccess);
    for (QWidget* widget : {static_cast<QWidget*>(lblLinkCode), static_cast<QWidget*>(txtLinkCode),
                            static_cast<QWidget*>(btnCopyLinkCode)})
        widget->setVisible(m_status.bSuccess && isPopup());
}

void frmIntegrator::btnSaveReport_Click() {
    FileDialogRequest request;
    request.title = "Save";
    request.filter = kReportFilter;
    request.asksBeforeReplacing = true;
    const std::string path = m_services.dialogs.saveFile(request);
    if (path.empty())
        return;
    if (const FileOutcome error = m_services.files.writeFile(path, m_report + "\r\n"))
        m_services.messages.notice(error->path + " not saved: " + error->reason);
}

}  // namespace zev
