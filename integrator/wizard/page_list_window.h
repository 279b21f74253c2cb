// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "integrator/wizard/wizard_services.h"
#include "platform/common_dialogs.h"

class QLabel;
class QListView;
class QPushButton;
class QStringListModel;

namespace zev {

/// The list of the chosen pages, to which single ones are added and from which they are taken.
/// Pages can be dropped on it.
class PageListWindow : public QDialog {
    Q_OBJECT
  public:
    PageListWindow(const IntegratorServices& services, const ChosenFiles& pages, QWidget* parent);

    /// Full paths of the pages that are listed.
    const std::vector<std::string>& paths() const { return m_paths; }

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void arrange();
    void addPages();
    void addFolder();
    void addList();
    void add(const std::vector<std::string>& paths);
    void removeSelected();
    void showPaths();
    void followSelection();

    IntegratorServices m_services;
    std::vector<std::string> m_paths;
    std::string m_folder;  ///< that holds all of them

    QLabel* m_lblFolder = nullptr;
    QListView* m_list = nullptr;
    QStringListModel* m_names = nullptr;
    QPushButton* m_btnRemove = nullptr;
};

}  // namespace zev
