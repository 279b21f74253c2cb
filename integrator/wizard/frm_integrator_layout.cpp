// SPDX-License-Identifier: MIT
// What the wizard's frames look like. What its controls do is in frm_integrator.cpp.

#include "integrator/wizard/frm_integrator.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "dialogs/combo_wheel.h"
#include "dialogs/dialog_button.h"
#include "dialogs/property_edit.h"
#include "dialogs/single_line.h"
#include "integrator/wizard/extra_row.h"

namespace zev {

namespace {

/// Characters of a line of code or of the report that are seen at once.
constexpr int kTextWidth = 72;
/// Lines of a code text that are seen at once.
constexpr int kCodeLines = 4;

QLabel* makeText(const QString& name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* makeLabel(const QString& name, const QString& caption, const QString& accessibleName,
                  QWidget* buddy) {
    auto* label = new QLabel(caption, buddy->parentWidget());
    label->setObjectName(name);
    label->setBuddy(buddy);
    buddy->setAccessibleName(accessibleName);
    return label;
}

template <typename Widget>
Widget* makeNamed(const QString& name, QWidget* parent) {
    auto* widget = new Widget(parent);
    widget->setObjectName(name);
    return widget;
}

QPlainTextEdit* makeTextBox(const QString& name, const QString& accessibleName, QWidget* parent) {
    auto* box = makeNamed<QPlainTextEdit>(name, parent);
    box->setAccessibleName(accessibleName);
    box->setReadOnly(true);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setTabChangesFocus(true);
    box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    box->setMinimumWidth(kTextWidth * box->fontMetrics().averageCharWidth());
    return box;
}

}  // namespace

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
    const VendorAddresses& vendor = m_services.vendor;
    const QString place = vendor.isEmpty() ? tr("Help > Support & Upgrades tells how")
                                           : QString::fromStdString(vendor.mail);
    QVBoxLayout* layout = addFrame(0, QString());
    layout->addWidget(makeText(
        "lblWelcome1",
        tr("The Menu Integrator integrates ZEVMenu to existing web pages and should be launched "
           "only after you have configured and saved the menu file to the appropriate web folder. "
           "There is no need to re-run the wizard after each modification unless changes have been "
           "made to the paths of the files, \n\nPlease tell us about problems: %1.")
            .arg(place),
        this));
    layout->addStretch();
    layout->addWidget(
        makeText("lblWelcome2",
                 tr("Please click Next to continue or Exit to return to Menu Creator"), this));
    m_lblUnsaved = makeText("lblUnsaved",
                            tr("The open menu has changes that are not saved. The pages show the "
                               "menu as it was saved last."),
                            this);
    m_lblUnsaved->hide();
    layout->addWidget(m_lblUnsaved);
}

void frmIntegrator::makePagesFrame() {
    QVBoxLayout* layout = addFrame(1, tr("Step 1 of 3"));
    layout->addWidget(
        makeText("lblFrm1",
                 tr("Please enter the filename(s) of the web page where you want to integrate the "
                    "menu. Multiple files can be selected"),
                 this));
    comboFiles = makeNamed<QComboBox>("comboFiles", this);
    // As wide as the column: measuring thousands of names would be felt.
    comboFiles->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    keepWheelForFocus(*comboFiles);
    QPushButton* BtnInputFile =
        makeButton("BtnInputFile", tr("B&rowse"), &frmIntegrator::BtnInputFile_Click);
    BtnInputFile->setAccessibleName(tr("Browse for web pages"));
    txtPathname = makeNamed<QLineEdit>("txtPathname", this);
    txtPathname->setReadOnly(true);
    auto* grid = new QGridLayout;
    grid->addWidget(makeLabel("lblInputFile", tr("&Filename:"), tr("Web pages"), comboFiles), 0, 0);
    grid->addWidget(comboFiles, 0, 1);
    grid->addWidget(BtnInputFile, 0, 2);
    grid->addWidget(
        makeLabel("lblPathname", tr("&Path:"), tr("Path of the web pages"), txtPathname), 1, 0);
    grid->addWidget(txtPathname, 1, 1);
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);

    chkBackup = makeNamed<QCheckBox>("chkBackup", this);
    // A check box does not wrap its caption.
    chkBackup->setText(
        tr("&Backup files (Recommended). The .bak extension will be appended to the filename.\n"
           "Existing backups will be overwritten."));
    chkBackup->setAccessibleName(chkBackup->text().remove(u'&').replace(u'\n', u' '));
    chkBackup->setChecked(true);
    layout->addWidget(chkBackup);
    m_chkKeepScripts = makeNamed<QCheckBox>("chkKeepScripts", this);
    m_chkKeepScripts->setText(tr("&Keep other scripts on the page"));
    m_chkKeepScripts->setAccessibleName(tr("Keep other scripts on the page"));
    connect(m_chkKeepScripts, &QCheckBox::toggled, this, &frmIntegrator::showScriptCount);
    layout->addWidget(m_chkKeepScripts);
    m_lblScripts = makeText("lblScripts", QString(), this);
    layout->addWidget(m_lblScripts);
    layout->addStretch();
    auto* row = new ExtraRow(this);
    row->add(
        "btnAddFolder", tr("A&dd Folder\u2026"), tr("Add a folder of pages"),
        [this] { addFolder(); });
    row->add("btnPageList", tr("&List of Pages\u2026"), tr("List of pages"),
             [this] { changePageList(); });
    m_btnChanges =
        row->add("btnChanges", tr("&What Will Change\u2026"), tr("What will change"), [this] {
            surveyPages();
            showChanges(nullptr);
        });
    m_btnChanges->setEnabled(false);
    layout->addWidget(row);
}

void frmIntegrator::makePathsFrame() {
    QVBoxLayout* layout = addFrame(2, tr("Step 2 of 3"));
    // In the order of the Tab key.
    txtPath = makeNamed<QLineEdit>("txtPath", this);
    QPushButton* btnPath = makeButton("btnPath", tr("B&rowse"), &frmIntegrator::btnPath_Click);
    btnPath->setAccessibleName(tr("Browse for the menu library"));
    txtMenuDef = makeNamed<QLineEdit>("txtMenuDef", this);
    QPushButton* btnMenuDef =
        makeButton("btnMenuDef", tr("Br&owse"), &frmIntegrator::btnMenuDef_Click);
    btnMenuDef->setAccessibleName(tr("Browse for the menu definition"));
    for (QLineEdit* field : {txtPath, txtMenuDef}) {
        keepSingleLine(*field);
        connect(field, &QLineEdit::textChanged, this, &frmIntegrator::showHints);
    }
    m_lblPathHint = makeText("lblPathHint", QString(), this);
    m_lblMenuDefHint = makeText("lblMenuDefHint", QString(), this);

    auto* grid = new QGridLayout;
    grid->addWidget(makeText("lblFrm3",
                             tr("Specify the path of the menu library files, i.e. "
                                "zevmenu_loader.js, zevmenu_ns4.js and zevmenu_dom.js"),
                             this),
                    0, 0, 1, 3);
    grid->addWidget(makeLabel("lblPath", tr("&Path:"), tr("Path of the menu library"), txtPath), 1,
                    0);
    grid->addWidget(txtPath, 1, 1);
    grid->addWidget(btnPath, 1, 2);
    grid->addWidget(m_lblPathHint, 2, 1, 1, 2);
    grid->addWidget(makeText("lblFrm5",
                             tr("Specify the JavaScript file containing the menu definition, e.g. "
                                "menu_def.js."),
                             this),
                    4, 0, 1, 3);
    grid->addWidget(
        makeLabel("lblMenuDef", tr("&Filename:"), tr("Menu definition file"), txtMenuDef), 5, 0);
    grid->addWidget(txtMenuDef, 5, 1);
    grid->addWidget(btnMenuDef, 5, 2);
    grid->addWidget(m_lblMenuDefHint, 6, 1, 1, 2);
    m_lblMissing = makeText("lblMissing", QString(), this);
    grid->addWidget(m_lblMissing, 7, 0, 1, 3);
    grid->setRowMinimumHeight(3, fontMetrics().height() / 2);  // sets the two questions apart
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);
    layout->addStretch();
}

void frmIntegrator::makeMenuFrame() {
    QVBoxLayout* layout = addFrame(3, tr("Step 3 of 3"));
    layout->addWidget(
        makeText("lblFrm6", tr("Select how you want the menu to appear on your web page"), this));
    cboIntegration = makeNamed<QComboBox>("cboIntegration", this);
    keepWheelForFocus(*cboIntegration);
    cboIntegration->setToolTip(tr("Horizontal or vertical menu"));
    cboIntegration->addItems(
        {tr("Horizontal or vertical menu"), tr("Popup menu appearing on mouse events!")});
    connect(cboIntegration, &QComboBox::currentIndexChanged, this,
            &frmIntegrator::cboIntegration_Click);
    cboMenuList = makeNamed<QComboBox>("cboMenuList", this);
    keepWheelForFocus(*cboMenuList);
    cboMenuList->setToolTip(tr("Select submenu"));
    optMouse = makeNamed<QRadioButton>("optMouse", this);
    optMouse->setText(tr("Menu appears &beside mouse cursor"));
    optMouse->setAccessibleName(tr("Menu appears beside mouse cursor"));
    optMouse->setChecked(true);
    optXY = makeNamed<QRadioButton>("optXY", this);
    optXY->setText(tr("Menu appears at the following p&osition"));
    optXY->setAccessibleName(tr("Menu appears at the following position"));
    connect(optXY, &QRadioButton::toggled, this, &frmIntegrator::optXY_Change);

    auto* grid = new QGridLayout;
    grid->addWidget(makeLabel("lblInt", tr("&Menu:"), tr("Menu"), cboIntegration), 0, 0);
    grid->addWidget(cboIntegration, 0, 1);
    grid->addWidget(makeLabel("lblMenuList", tr("&Popup Menu:"), tr("Popup Menu"), cboMenuList), 1,
                    0);
    grid->addWidget(cboMenuList, 1, 1);
    grid->addWidget(optMouse, 2, 1);
    grid->addWidget(optXY, 3, 1);
    grid->setColumnStretch(1, 1);
    auto* position = new QHBoxLayout;
    position->addSpacing(24);
    for (const auto& [name, field] : {std::pair("X", &txtX), std::pair("Y", &txtY)}) {
        const PropertyField made = PropertyField::make(name, QString("&%1:").arg(name),
                                                       tr("Position on the page in pixels"), this);
        *field = made.edit;
        made.edit->setCheck(CheckInteger, PropertyEdit::CheckedWhen::Left, m_services.messages);
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
    txtReport = makeTextBox("txtReport", tr("Menu Integration Report"), this);
    txtReport->setUndoRedoEnabled(false);
    layout->addWidget(makeLabel("Label1", tr("Menu Integration &Report"),
                                tr("Menu Integration Report"), txtReport));
    layout->addWidget(txtReport, 1);
    m_pbProgress = makeNamed<QProgressBar>("pbProgress", this);
    m_pbProgress->setAccessibleName(tr("Pages done"));
    m_pbProgress->setFormat(tr("%v of %m pages"));
    btnCancel = makeDialogButton("btnCancel", tr("&Cancel"), this);
    connect(btnCancel, &QPushButton::clicked, this, [this] { m_flow.cancel(); });
    btnSaveReport = makeButton("btnSaveReport", tr("&Save"), &frmIntegrator::btnSaveReport_Click);
    btnSaveReport->setAccessibleName(tr("Save report"));
    auto* row = new QHBoxLayout;
    row->addWidget(btnSaveReport);
    row->addWidget(m_pbProgress, 1);
    row->addWidget(btnCancel);
    row->addStretch();
    layout->addLayout(row);
}

void frmIntegrator::makeCodeFrame() {
    QVBoxLayout* layout = addFrame(5, tr("Step 3 of 3"));
    // In the order of the Tab key.
    txtCode = makeTextBox("txtCode", tr("Code to paste"), this);
    m_btnCopyCode = makeDialogButton("btnCopyCode", tr("&Copy"), this);
    m_btnCopyCode->setAccessibleName(tr("Copy the code"));
    txtLinkCode = makeTextBox("txtLinkCode", tr("Code example for hyperlinks"), this);
    m_btnCopyLinkCode = makeDialogButton("btnCopyLinkCode", tr("Co&py"), this);
    m_btnCopyLinkCode->setAccessibleName(tr("Copy the code example"));
    m_lblSummary = makeText("lblSummary", QString(), this);
    lblMsg = makeText("lblMsg", QString(), this);
    lblLinkCode = makeText("lblLinkCode",
                           tr("Copy the code e&xample below to add the menu to hyperlinks:"), this);
    lblLinkCode->setBuddy(txtLinkCode);
    layout->addWidget(m_lblSummary);
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
    addCode(txtCode, m_btnCopyCode);
    layout->addWidget(lblLinkCode);
    addCode(txtLinkCode, m_btnCopyLinkCode);
    layout->addStretch();
    auto* row = new ExtraRow(this);
    m_btnPlace = row->add(
        "btnPlace", tr("Place &It For Me\u2026"), tr("Place the menu"), [this] { placeMenu(); });
    m_btnUndoRun = row->add(
        "btnUndoRun", tr("&Undo This Run"), tr("Undo this run"), [this] { undoRun(); });
    m_btnReferences = row->add("btnReferences", tr("Earlie&r References\u2026"),
                               tr("Earlier references"), [this] { showReferences(); });
    layout->addWidget(row);
}

QWidget* frmIntegrator::makeButtonRow() {
    auto* buttons = new QWidget(this);
    btnBack = makeButton("btnBack", tr("<< B&ack"), &frmIntegrator::btnBack_Click);
    btnNext = makeButton("btnNext", tr("&Next >>"), &frmIntegrator::btnNext_Click);
    btnNext->setDefault(true);
    btnNext->installEventFilter(this);
    btnExit = makeButton("btnExit", tr("&Exit"), &frmIntegrator::btnExit_Click);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(btnBack);
    row->addWidget(btnNext);
    row->addWidget(btnExit);
    return buttons;
}

}  // namespace zev
