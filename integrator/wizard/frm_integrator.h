#pragma once

#include <QDialog>
#include <QStringList>
#include <cstdint>
#include <string>
#include <vector>

#include "integrator/page_rewriter.h"
#include "platform/common_dialogs.h"
#include "script/submenu_list.h"

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

class FileSystem;
class MessageBox;
class PropertyEdit;
class frmPath;

/// What the wizard needs. Nothing is owned; all outlives it.
struct IntegratorServices {
    FileSystem& files;
    MessageBox& messages;
    CommonDialogs& dialogs;
};

/// The wizard that puts the menu into pages that exist already: which pages, where the definition
/// and the run-time files are, which kind of menu; then the report, and the code that is left to be
/// pasted by hand. What happens to a page is the engine's work (`page_integration.h`).
class frmIntegrator : public QDialog {
    Q_OBJECT
  public:
    /// `drives`: root folders that the directory chooser offers.
    frmIntegrator(const IntegratorServices& services, const QStringList& drives, QWidget* parent);

    /// Presets the full path of the definition file.
    void setDefinition(const std::string& path);
    /// Fills the list of popup menus.
    void showSubmenus(const std::vector<Submenu>& submenus);

    /// The work of the Next button.
    void NextStep();

    void reject() override;

  protected:
    bool event(QEvent* event) override;

  private:
    void Initialize();
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

    bool canLeaveMenuFrame();
    void countScripts();
    void showScriptCount();
    void showHints();
    void Integrate();
    void showCode(const std::string& definitionURL);
    void ShowResultMessage();
    void setReport(const std::string& report);
    void setRunning(bool isRunning);
    void updateFrames();
    bool isPopup() const;

    IntegratorServices m_services;
    std::int16_t CurStep = 0;
    ChosenFiles InputFiles;
    IntegrationStatus m_status;  ///< of the page last processed
    std::string m_report;        ///< as it is saved
    int m_countedPages = 0;      ///< the first of the chosen pages, less when counting was skipped
    std::size_t m_scriptCount = 0;  ///< scripts that integration drops from those
    bool m_isRunning = false;
    bool m_isCancelled = false;

    QStackedWidget* m_frames = nullptr;
    QComboBox* comboFiles = nullptr;
    QLineEdit* txtPathname = nullptr;
    QCheckBox* chkBackup = nullptr;
    QCheckBox* chkKeepScripts = nullptr;
    QLabel* lblScripts = nullptr;
    QLineEdit* txtPath = nullptr;
    QLabel* lblPathHint = nullptr;
    QLineEdit* txtMenuDef = nullptr;
    QLabel* lblMenuDefHint = nullptr;
    QComboBox* cboIntegration = nullptr;
    QComboBox* cboMenuList = nullptr;
    QRadioButton* optMouse = nullptr;
    QRadioButton* optXY = nullptr;
    PropertyEdit* txtX = nullptr;
    PropertyEdit* txtY = nullptr;
    QPlainTextEdit* txtReport = nullptr;
    QPushButton* btnSaveReport = nullptr;
    QProgressBar* pbProgress = nullptr;
    QPushButton* btnCancel = nullptr;
    QLabel* lblMsg = nullptr;
    QPlainTextEdit* txtCode = nullptr;
    QPushButton* btnCopyCode = nullptr;
    QLabel* lblLinkCode = nullptr;
    QPlainTextEdit* txtLinkCode = nullptr;
    QPushButton* btnCopyLinkCode = nullptr;
    QPushButton* btnBack = nullptr;
    QPushButton* btnNext = nullptr;
    QPushButton* btnExit = nullptr;
    frmPath* m_pathForm = nullptr;
};

}  // namespace zev
