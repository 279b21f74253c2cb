// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "integrator/site_run.h"
#include "platform/file_system.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTableWidget;

namespace zev {

class WizardFlow;

/// Puts the menu into the pages: asks where, tells where that fits, and shows what would change.
class PlaceWindow : public QDialog {
    Q_OBJECT
  public:
    /// `linkList` gives the list of the menu's links for a definition's address; null: there is no
    /// menu to take them from. `flow` is not owned and outlives the window.
    PlaceWindow(const WizardFlow& flow, const FileSystem& files, const WizardAnswers& answers,
                std::function<std::string(const std::string&)> linkList, QWidget* parent);

    /// Looks through the pages for places; to be called before the window is shown. False when the
    /// person stopped it.
    bool lookForPlaces();
    /// After OK.
    const MenuPlacing& placing() const { return m_placing; }

  private:
    void arrange();
    QWidget* makeQuestions();
    QWidget* makePreview();
    void addClosingButtons();
    std::optional<MenuPlacing> entered() const;
    void followPlace();
    void lookWhereItFits();
    void followPage();
    void showChanges(const std::string& name);
    bool forEachPage(const QString& what, const std::function<void(const std::string&)>& work);

    const WizardFlow& m_flow;
    const FileSystem& m_files;
    WizardAnswers m_answers;
    std::function<std::string(const std::string&)> m_linkList;
    MenuPlacing m_placing;

    QComboBox* m_cboPlace = nullptr;
    QComboBox* m_cboElement = nullptr;
    QLineEdit* m_txtLinkText = nullptr;
    QCheckBox* m_chkLinks = nullptr;
    QLabel* m_lblFits = nullptr;
    QListWidget* m_pages = nullptr;
    QTableWidget* m_changes = nullptr;
    QPushButton* m_btnPlace = nullptr;
};

}  // namespace zev
