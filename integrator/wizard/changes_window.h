// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>
#include <string>
#include <vector>

#include "integrator/survey.h"
#include "integrator/wizard_answers.h"

class QCheckBox;
class QListWidget;

namespace zev {

/// What the window shows. Names and survey are not owned and outlive it.
struct ChangesToShow {
    const std::vector<std::string>& names;
    const std::vector<SurveyedPage>& survey;
    QStringList notes;  ///< about the run as a whole
    bool wasSeen;       ///< and answered: what was answered is shown
};

/// Shows what the chosen pages would lose before they do, and asks what is to stay.
class ChangesWindow : public QDialog {
    Q_OBJECT
  public:
    ChangesWindow(const ChangesToShow& changes, const WizardAnswers& answers, QWidget* parent);

    bool keepsAll() const;
    /// Names of the scripts that stay when not all do.
    std::vector<std::string> keptScripts() const;
    bool skipsFailing() const;

  private:
    void showNotes(const QStringList& notes);
    void showPages(const ChangesToShow& changes);
    void showScripts(const ChangesToShow& changes, const WizardAnswers& answers);
    void showSkipping(const ChangesToShow& changes, const WizardAnswers& answers);
    void addClosingButtons();
    QCheckBox* addCheckBox(const QString& name, const QString& caption);

    QCheckBox* m_chkKeepAll = nullptr;
    QListWidget* m_scripts = nullptr;
    QCheckBox* m_chkSkip = nullptr;
};

}  // namespace zev
