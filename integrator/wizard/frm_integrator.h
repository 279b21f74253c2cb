// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

#include "integrator/wizard/wizard_services.h"
#include "integrator/wizard_flow.h"
#include "integrator/wizard_memory.h"

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

class PropertyEdit;
class frmPath;

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

    /// Gives the list of the menu's links, for the definition's address as a page sees it, that can
    /// be placed with the menu.
    void setLinkList(std::function<std::string(const std::string& definitionURL)> linkList);
    /// The open menu has changes that its file has not: the person is told.
    void sayUnsaved();
    /// Enters what was entered when the wizard was last closed for the definition that is entered
    /// now. Called once, after the definition and the popup menus are shown.
    void recallEntries();

    void reject() override;
    /// Keeps the second press of a double click from the Next button.
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;
    /// F6 leads to the buttons beside the steps.
    void keyPressEvent(QKeyEvent* event) override;
    /// Pages can be dropped on the step that asks for them.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void Initialize();
    void btnNext_Click();
    void btnBack_Click();
    void btnExit_Click();
    void BtnInputFile_Click();
    void goOn();
    void addFolder();
    void changePageList();
    void placeMenu();
    void showReferences();
    void undoRun();
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
    void showPages();
    void useNewPages();
    void addPages(const std::vector<std::string>& paths);
    void showEntries(const WizardEntries& entries);
    void rememberEntries();
    void surveyPages();
    bool needsReview();
    QStringList missingPaths() const;
    void showChanges(void (frmIntegrator::*next)());
    void showScriptCount();
    void showHints();
    void integrate();
    void ShowResultMessage();
    void showSummary();
    void runFurther(const QString& what,
                    const std::function<void(const WizardFlow::Progress&)>& work);
    void showReport();
    void setRunning(bool isRunning);
    void updateFrames();

    static constexpr int kPopupKind = 1;  ///< index in `cboIntegration`

    IntegratorServices m_services;
    WizardFlow m_flow;
    WizardMemory m_memory;
    std::string m_openDefinition;
    WizardEntries m_knownEntries;  ///< what the memory holds
    std::vector<std::string> m_keptScripts;
    bool m_skipsFailing = false;
    std::function<std::string(const std::string&)> m_linkList;

    QStackedWidget* m_frames = nullptr;
    QLabel* m_lblUnsaved = nullptr;
    QComboBox* comboFiles = nullptr;
    QLineEdit* txtPathname = nullptr;
    QCheckBox* chkBackup = nullptr;
    QCheckBox* m_chkKeepScripts = nullptr;
    QLabel* m_lblScripts = nullptr;
    QLineEdit* txtPath = nullptr;
    QLabel* m_lblPathHint = nullptr;
    QLineEdit* txtMenuDef = nullptr;
    QLabel* m_lblMenuDefHint = nullptr;
    QLabel* m_lblMissing = nullptr;
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
    QLabel* m_lblSummary = nullptr;
    QLabel* lblMsg = nullptr;
    QPlainTextEdit* txtCode = nullptr;
    QPushButton* m_btnCopyCode = nullptr;
    QLabel* lblLinkCode = nullptr;
    QPlainTextEdit* txtLinkCode = nullptr;
    QPushButton* m_btnCopyLinkCode = nullptr;
    QPushButton* m_btnChanges = nullptr;
    QPushButton* m_btnPlace = nullptr;
    QPushButton* m_btnReferences = nullptr;
    QPushButton* m_btnUndoRun = nullptr;
    QPushButton* btnBack = nullptr;
    QPushButton* btnNext = nullptr;
    QPushButton* btnExit = nullptr;
    frmPath* m_pathForm = nullptr;
};

}  // namespace zev
