// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "integrator/page_list.h"
#include "integrator/wizard/wizard_services.h"

class QCheckBox;
class QFormLayout;
class QLineEdit;

namespace zev {

/// Asks for a folder and which of its files are pages, and finds them.
class AddFolderWindow : public QDialog {
    Q_OBJECT
  public:
    /// `folder`: where to begin; may be empty.
    AddFolderWindow(const IntegratorServices& services, const std::string& folder, QWidget* parent);

    /// After OK: full paths, at least one.
    const std::vector<std::string>& paths() const { return m_paths; }

    /// Looks for the pages; stays open when there are none.
    void accept() override;

  private:
    QLineEdit* addField(QFormLayout& form, const QString& name, const QString& caption,
                        const QString& text);
    void chooseFolder();
    PagePatterns patterns() const;

    IntegratorServices m_services;
    std::vector<std::string> m_paths;

    QLineEdit* m_txtFolder = nullptr;
    QLineEdit* m_txtPatterns = nullptr;
    QLineEdit* m_txtExcluded = nullptr;
    QCheckBox* m_chkSubfolders = nullptr;
};

}  // namespace zev
