// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>
#include <string>
#include <vector>

#include "integrator/wizard_flow.h"
#include "text/vendor_addresses.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QVBoxLayout;

namespace zev {

class CommonDialogs;
class FileSystem;
class MessageBox;
class PropertyEdit;
class frmPath;

/// What the wizard needs. No service is owned; all outlive it.
struct IntegratorServices {
    FileSystem& files;
    MessageBox& messages;
    CommonDialogs& dialogs;
    VendorAddresses vendor = vendorAddresses();
};

/// The window of the Menu Integrator: shows the steps of `WizardFlow` and tells it what is entered.
class frmIntegrator : public QDialog {
    Q_OBJECT
  public:
    /// `drives`: root folders that the directory chooser offers.
    frmIntegrator(const IntegratorServices& services, const QStringList& drives, QWidget* parent);

    /// Presets the full path of the definition file.
    void setDefinition(const std::string& path);
    /// Fills the list of popup menus.
    void showSubmenus(const std::vector<Submenu>& submenus);

    void reject() override;
    /// Keeps the second press of a double click from the Next button.
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;

  private:
    void Initialize();
    void btnNext_Click();
    void btnBack_Click();
    void btnExit_Click();
    void BtnInputFile_Click();
    void btnPath_Click();
    void btnMenuDef_Click();
    void cboIntegration_Click();
    void optXY_Change();
    void btnSaveReport_Click();

    QVBoxLayout* addFrame(int step, const QString& title);
    void makeWelcome();
    void makePagesFrame();
    void makePathsFrame();
    void makeMenuFrame();
    void makeReportFrame();
    void makeCodeFrame();
    QWidget* makeButtonRow();
    QPushButton* makeButton(const QString& name, const QString& caption,
                            void (frmIntegrator::*click)());

    WizardAnswers answers() const;
    void countScripts();
    void showScriptCount();
    void showHints();
    void integrate();
    void ShowResultMessage();
    void showReport();
    void setRunning(bool isRunning);
    void updateFrames();

    IntegratorServices m_services;
    WizardFlow m_flow;

    QStackedWidget* m_frames = nullptr;
    QComboBox* comboFiles = nullptr;
    QLineEdit* txtPathname = nullptr;
    QCheckBox* chkBackup = nullptr;
    QCheckBox* m_chkKeepScripts = nullptr;
    QLabel* m_lblScripts = nullptr;
    QLineEdit* txtPath = nullptr;
    QLabel* m_lblPathHint = nullptr;
    QLineEdit* txtMenuDef = nullptr;
    QLabel* m_lblMenuDefHint = nullptr;
    QComboBox* cboIntegration = nullptr;
    QComboBox* cboMenuList = nullptr;
    QRadioButton* optMouse = nullptr;
    QRadioButton* optXY = nullptr;
    PropertyEdit* txtX = nullptr;
    PropertyEdit* txtY = nullptr;
    QPlainTextEdit* txtReport = nullptr;
    QPushButton* btnSaveReport = nullptr;
    QProgressBar* m_pbProgress = nullptr;
    QPushButton* btnCancel = nullptr;
    QLabel* lblMsg = nullptr;
    QPlainTextEdit* txtCode = nullptr;
    QPushButton* m_btnCopyCode = nullptr;
    QLabel* lblLinkCode = nullptr;
    QPlainTextEdit* txtLinkCode = nullptr;
    QPushButton* m_btnCopyLinkCode = nullptr;
    QPushButton* btnBack = nullptr;
    QPushButton* btnNext = nullptr;
    QPushButton* btnExit = nullptr;
    frmPath* m_pathForm = nullptr;
};

}  // namespace zev
