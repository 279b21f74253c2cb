#include "integrator/frm_integrator.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "dialogs/dialog_button.h"
#include "dialogs/frm_path.h"
#include "dialogs/property_edit.h"
#include "dialogs/single_line.h"
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

/// Characters of a line of code or of the report that are seen at once.
constexpr int kTextWidth = 72;
/// Lines of a code text that are seen at once.
constexpr int kCodeLines = 4;
/// A window that stands still for less than this needs no explanation.
constexpr int kMomentMs = 500;

QLabel* MakeText(const QString& name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* MakeLabel(const QString& name, const QString& caption, const QString& accessibleName,
                  QWidget* buddy) {
    auto* label = new QLabel(caption, buddy->parentWidget());
    label->setObjectName(name);
    label->setBuddy(buddy);
    buddy->setAccessibleName(accessibleName);
    return label;
}

template <typename Widget>
Widget* MakeNamed(const QString& name, QWidget* parent) {
    auto* widget = new Widget(parent);
    widget->setObjectName(name);
    return widget;
}

QPlainTextEdit* MakeTextBox(const QString& name, const QString& accessibleName, QWidget* parent) {
    auto* box = MakeNamed<QPlainTextEdit>(name, parent);
    box->setAccessibleName(accessibleName);
    box->setReadOnly(true);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setTabChangesFocus(true);
    box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    box->setMinimumWidth(kTextWidth * box->fontMetrics().averageCharWidth());
    return box;
}

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

QVBoxLayout* frmIntegrator::addFrame(int step, const QString& title) {
    auto* frame = new QGroupBox(title, m_frames);
    frame->setObjectName(QString("frm_%1").arg(step));
    m_frames->addWidget(frame);
    return new QVBoxLayout(frame);
}

QPushButton* frmIntegrator::makeButton(const QString& name, const QString& caption,
                                       void (frmIntegrator::*click)()) {
    QPushButton* button = makeDialogButton(name, caption, this);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

void frmIntegrator::makeWelcome() {
    QVBoxLayout* layout = addFrame(0, QString());
    layout->addWidget(MakeText(
        "lblWelcome1",
        tr("The Menu Integrator integrates ZEVMenu to existing web pages and should be launched "
           "only after you have configured and saved the menu file to the appropriate web folder. "
           "There is no need to re-run the wizard after each modification unless changes have been "
           "made to the paths of the files, \n\nPlease tell us about problems: "
           "support@zevmenu.example."),
        this));
    layout->addStretch();
    layout->addWidget(
        MakeText("lblWelcome2",
                 tr("Please click Next to continue or Exit to return to Menu Creator"), this));
}

void frmIntegrator::makePagesFrame() {
    QVBoxLayout* layout = addFrame(1, tr("Step 1 of 3"));
    layout->addWidget(
        MakeText("lblFrm1",
                 tr("Please enter the filename(s) of the web page where you want to integrate the "
                    "menu. Multiple files can be selected"),
                 this));
    comboFiles = MakeNamed<QComboBox>("comboFiles", this);
    QPushButton* BtnInputFile =
        makeButton("BtnInputFile", tr("B&rowse"), &frmIntegrator::BtnInputFile_Click);
    BtnInputFile->setAccessibleName(tr("Browse for web pages"));
    txtPathname = MakeNamed<QLineEdit>("txtPathname", this);
    txtPathname->setReadOnly(true);
    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabel("lblInputFile", tr("&Filename:"), tr("Web pages"), comboFiles), 0, 0);
    grid->addWidget(comboFiles, 0, 1);
    grid->addWidget(BtnInputFile, 0, 2);
    grid->addWidget(
        MakeLabel("lblPathname", tr("&Path:"), tr("Path of the web pages"), txtPathname), 1, 0);
    grid->addWidget(txtPathname, 1, 1);
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);

    chkBackup = MakeNamed<QCheckBox>("chkBackup", this);
    // A check box does not wrap its caption.
    chkBackup->setText(
        tr("&Backup files (Recommended). The .bak extension will be appended to the filename.\n"
           "Existing backups will be overwritten."));
    chkBackup->setAccessibleName(chkBackup->text().remove(u'&').replace(u'\n', u' '));
    chkBackup->setChecked(true);
    layout->addWidget(chkBackup);
    chkKeepScripts = MakeNamed<QCheckBox>("chkKeepScripts", this);
    chkKeepScripts->setText(tr("&Keep other scripts on the page"));
    chkKeepScripts->setAccessibleName(tr("Keep other scripts on the page"));
    connect(chkKeepScripts, &QCheckBox::toggled, this, &frmIntegrator::showScriptCount);
    layout->addWidget(chkKeepScripts);
    lblScripts = MakeText("lblScripts", QString(), this);
    layout->addWidget(lblScripts);
    layout->addStretch();
}

void frmIntegrator::makePathsFrame() {
    QVBoxLayout* layout = addFrame(2, tr("Step 2 of 3"));
    // In the order of the Tab key.
    txtPath = MakeNamed<QLineEdit>("txtPath", this);
    QPushButton* btnPath = makeButton("btnPath", tr("B&rowse"), &frmIntegrator::btnPath_Click);
    btnPath->setAccessibleName(tr("Browse for the menu library"));
    txtMenuDef = MakeNamed<QLineEdit>("txtMenuDef", this);
    QPushButton* btnMenuDef =
        makeButton("btnMenuDef", tr("Br&owse"), &frmIntegrator::btnMenuDef_Click);
    btnMenuDef->setAccessibleName(tr("Browse for the menu definition"));
    for (QLineEdit* field : {txtPath, txtMenuDef}) {
        keepSingleLine(*field);
        connect(field, &QLineEdit::textChanged, this, &frmIntegrator::showHints);
    }
    lblPathHint = MakeText("lblPathHint", QString(), this);
    lblMenuDefHint = MakeText("lblMenuDefHint", QString(), this);

    auto* grid = new QGridLayout;
    grid->addWidget(MakeText("lblFrm3",
                             tr("Specify the path of the menu library files, i.e. "
                                "zevmenu_loader.js, zevmenu_ns4.js and zevmenu_dom.js"),
                             this),
                    0, 0, 1, 3);
    grid->addWidget(MakeLabel("lblPath", tr("&Path:"), tr("Path of the menu library"), txtPath), 1,
                    0);
    grid->addWidget(txtPath, 1, 1);
    grid->addWidget(btnPath, 1, 2);
    grid->addWidget(lblPathHint, 2, 1, 1, 2);
    grid->addWidget(MakeText("lblFrm5",
                             tr("Specify the JavaScript file containing the menu definition, e.g. "
                                "menu_def.js."),
                             this),
                    4, 0, 1, 3);
    grid->addWidget(
        MakeLabel("lblMenuDef", tr("&Filename:"), tr("Menu definition file"), txtMenuDef), 5, 0);
    grid->addWidget(txtMenuDef, 5, 1);
    grid->addWidget(btnMenuDef, 5, 2);
    grid->addWidget(lblMenuDefHint, 6, 1, 1, 2);
    grid->setRowMinimumHeight(3, fontMetrics().height() / 2);  // sets the two questions apart
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);
    layout->addStretch();
}

void frmIntegrator::makeMenuFrame() {
    QVBoxLayout* layout = addFrame(3, tr("Step 3 of 3"));
    layout->addWidget(
        MakeText("lblFrm6", tr("Select how you want the menu to appear on your web page"), this));
    cboIntegration = MakeNamed<QComboBox>("cboIntegration", this);
    cboIntegration->setToolTip(tr("Horizontal or vertical menu"));
    cboIntegration->addItems(
        {tr("Horizontal or vertical menu"), tr("Popup menu appearing on mouse events!")});
    connect(cboIntegration, &QComboBox::currentIndexChanged, this,
            &frmIntegrator::cboIntegration_Click);
    cboMenuList = MakeNamed<QComboBox>("cboMenuList", this);
    cboMenuList->setToolTip(tr("Select submenu"));
    optMouse = MakeNamed<QRadioButton>("optMouse", this);
    optMouse->setText(tr("Menu appears &beside mouse cursor"));
    optMouse->setAccessibleName(tr("Menu appears beside mouse cursor"));
    optMouse->setChecked(true);
    optXY = MakeNamed<QRadioButton>("optXY", this);
    optXY->setText(tr("Menu appears at the following p&osition"));
    optXY->setAccessibleName(tr("Menu appears at the following position"));
    connect(optXY, &QRadioButton::toggled, this, &frmIntegrator::optXY_Change);

    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabel("lblInt", tr("&Menu:"), tr("Menu"), cboIntegration), 0, 0);
    grid->addWidget(cboIntegration, 0, 1);
    grid->addWidget(MakeLabel("lblMenuList", tr("&Popup Menu:"), tr("Popup Menu"), cboMenuList), 1,
                    0);
    grid->addWidget(cboMenuList, 1, 1);
    grid->addWidget(optMouse, 2, 1);
    grid->addWidget(optXY, 3, 1);
    grid->setColumnStretch(1, 1);
    auto* position = new QHBoxLayout;
    position->addSpacing(24);
    for (const auto& [name, field] : {std::pair("X", &txtX), std::pair("Y", &txtY)}) {
        const PropertyField made = PropertyField::make(name, QString("&%1:").arg(name), name,
                                                       tr("Position on the page in pixels"), this);
        *field = made.edit;
        connect(made.edit, &PropertyEdit::left, this,
                [this, edit = made.edit] { CheckInteger(*edit, m_services.messages); });
        position->addWidget(made.label);
        position->addWidget(made.edit);
    }
    position->addStretch();
    grid->addLayout(position, 4, 1);
    layout->addLayout(grid);
    layout->addStretch();
}

void frmIntegrator::makeReportFrame() {
    QVBoxLayout* layout = addFrame(4, tr("Step 2 of 3"));
    txtReport = MakeTextBox("txtReport", tr("Menu Integration Report"), this);
    layout->addWidget(MakeLabel("Label1", tr("Menu Integration Report"),
                                tr("Menu Integration Report"), txtReport));
    layout->addWidget(txtReport, 1);
    pbProgress = MakeNamed<QProgressBar>("pbProgress", this);
    pbProgress->setAccessibleName(tr("Pages done"));
    pbProgress->setFormat(tr("%v of %m pages"));
    btnCancel = makeDialogButton("btnCancel", tr("&Cancel"), this);
    connect(btnCancel, &QPushButton::clicked, this, [this] { m_isCancelled = true; });
    btnSaveReport = makeButton("btnSaveReport", tr("&Save"), &frmIntegrator::btnSaveReport_Click);
    btnSaveReport->setAccessibleName(tr("Save report"));
    auto* row = new QHBoxLayout;
    row->addWidget(btnSaveReport);
    row->addWidget(pbProgress, 1);
    row->addWidget(btnCancel);
    row->addStretch();
    layout->addLayout(row);
}

void frmIntegrator::makeCodeFrame() {
    QVBoxLayout* layout = addFrame(5, tr("Step 3 of 3"));
    // In the order of the Tab key.
    txtCode = MakeTextBox("txtCode", tr("Code to paste"), this);
    btnCopyCode = makeDialogButton("btnCopyCode", tr("&Copy"), this);
    btnCopyCode->setAccessibleName(tr("Copy the code"));
    txtLinkCode = MakeTextBox("txtLinkCode", tr("Code example for hyperlinks"), this);
    btnCopyLinkCode = makeDialogButton("btnCopyLinkCode", tr("Co&py"), this);
    btnCopyLinkCode->setAccessibleName(tr("Copy the code example"));
    lblMsg = MakeText("lblMsg", QString(), this);
    lblLinkCode = MakeText("lblLinkCode",
                           tr("Copy the code example below to add the menu to hyperlinks:"), this);
    lblLinkCode->setBuddy(txtLinkCode);
    layout->addWidget(lblMsg);
    const auto addCode = [&](QPlainTextEdit* box, QPushButton* copy) {
        box->setMaximumHeight((kCodeLines + 2) * box->fontMetrics().lineSpacing());
        connect(copy, &QPushButton::clicked, this,
                [box] { QGuiApplication::clipboard()->setText(box->toPlainText()); });
        auto* row = new QHBoxLayout;
        row->addWidget(box, 1);
        row->addWidget(copy, 0, Qt::AlignTop);
        layout->addLayout(row);
    };
    addCode(txtCode, btnCopyCode);
    layout->addWidget(lblLinkCode);
    addCode(txtLinkCode, btnCopyLinkCode);
    layout->addStretch();
}

QWidget* frmIntegrator::makeButtonRow() {
    auto* buttons = new QWidget(this);
    btnBack = makeButton("btnBack", tr("<< Back"), &frmIntegrator::btnBack_Click);
    btnNext = makeButton("btnNext", tr("Next >>"), &frmIntegrator::NextStep);
    btnNext->setDefault(true);
    btnExit = makeButton("btnExit", tr("E&xit"), &frmIntegrator::btnExit_Click);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(btnBack);
    row->addWidget(btnNext);
    row->addWidget(btnExit);
    return buttons;
}

void frmIntegrator::Initialize() {
    CurStep = 0;
    cboIntegration->setCurrentIndex(0);
    cboMenuList->clear();
    cboIntegration_Click();
    setRunning(false);
    updateFrames();
    btnNext->setText(tr("Next >>"));
    btnBack->setEnabled(false);
}

void frmIntegrator::setDefinition(const std::string& path) {
    txtMenuDef->setText(QString::fromStdString(path));
}

void frmIntegrator::showSubmenus(const std::vector<std::string>& entries) {
    for (const std::string& entry : entries)
        cboMenuList->addItem(QString::fromStdString(entry));
    cboMenuList->setCurrentIndex(-1);
}

void frmIntegrator::updateFrames() {
    m_frames->setCurrentIndex(CurStep);
}

void frmIntegrator::showNotice(const std::string& text) {
    MessageRequest notice;
    notice.text = text;
    m_services.messages.show(notice);
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
            if (InputFiles.size() > 1)
                ++CurStep;
            else
                showNotice("Please select at least one file to continue");
            break;
        case 2:
            if (txtMenuDef->text().isEmpty())
                showNotice("Please enter menu definition filename");
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
            btnNext->setText(tr("Finish"));
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
        showNotice("Please select a popup menu");
        return false;
    }
    if (optXY->isChecked() && (txtX->text().isEmpty() || txtY->text().isEmpty())) {
        showNotice("Please enter the position of the menu");
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
        btnNext->setText(tr("Next >>"));
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
    InputFiles = {files.folder};
    comboFiles->clear();
    for (const std::string& name : files.names) {
        InputFiles.push_back(name);
        comboFiles->addItem(QString::fromStdString(name));
    }
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
        const std::string& name = InputFiles[static_cast<std::size_t>(m_countedPages) + 1];
        const auto count = CountDroppedScripts(m_services.parser, PagePath(InputFiles[0], name));
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
    const IntegrationURLs urls = CalculateURL(InputFiles[0], txtMenuDef->text().toStdString(),
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
    if (HasDriveLetter(urls.library)) {
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
        showNotice("No dropdown menu found! Popup menu options disabled");
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
    const IntegrationURLs urls = CalculateURL(InputFiles[0], txtMenuDef->text().toStdString(),
                                              txtPath->text().toStdString());
    showCode(urls.definition);
    IntegrationOptions options;
    options.rewrite = {urls.library, chkKeepScripts->isChecked()};
    options.hasBackups = chkBackup->isChecked();
    PageIntegrator integrator(m_services.files, m_services.parser, options);
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
    const bool hasManyPages = InputFiles.size() > 2;
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
            cboMenuList->currentText().toStdString(),
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
        showNotice(error->path + " not saved: " + error->reason);
}

}  // namespace zev
