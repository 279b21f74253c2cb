// SPDX-License-Identifier: MIT
#include "integrator/wizard/changes_window.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "dialogs/dialog_button.h"
#include "integrator/wizard/page_changes_model.h"

namespace zev {

namespace {

/// Of an entry of the list of scripts: the name, whole.
constexpr int kNameRole = Qt::UserRole;
/// Scripts, and characters of the window and of a column at most, that are seen at once.
constexpr int kScriptLines = 4;
constexpr int kWindowWidth = 100;
constexpr int kColumnWidth = 26;

}  // namespace

ChangesWindow::ChangesWindow(const ChangesToShow& changes, const WizardAnswers& answers,
                             QWidget* parent)
    : QDialog(parent) {
    setObjectName("ChangesWindow");
    setWindowTitle(tr("What Will Change"));
    new QVBoxLayout(this);
    showNotes(changes.notes);
    showPages(changes);
    showScripts(changes, answers);
    showSkipping(changes, answers);
    addClosingButtons();
    resize(kWindowWidth * fontMetrics().averageCharWidth(), sizeHint().height());
}

void ChangesWindow::showNotes(const QStringList& notes) {
    auto* label = new QLabel(notes.join(u'\n'), this);
    label->setObjectName("lblNotes");
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setVisible(!notes.isEmpty());
    layout()->addWidget(label);
}

void ChangesWindow::showPages(const ChangesToShow& changes) {
    auto* label = new QLabel(tr("&Pages"), this);
    label->setObjectName("lblPages");
    auto* table = new QTableView(this);
    table->setObjectName("tablePages");
    table->setAccessibleName(tr("Pages"));
    table->setModel(new PageChangesModel(changes.names, changes.survey, table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    // Measures what is seen, not all of thousands of rows.
    table->horizontalHeader()->setResizeContentsPrecision(0);
    table->resizeColumnsToContents();
    const int limit = kColumnWidth * fontMetrics().averageCharWidth();
    for (int column = 0; column < PageChangesModel::ColumnCount; ++column)
        table->setColumnWidth(column, std::min(table->columnWidth(column), limit));
    table->horizontalHeader()->setStretchLastSection(true);
    if (table->model()->rowCount() > 0)
        table->setCurrentIndex(table->model()->index(0, 0));
    label->setBuddy(table);
    layout()->addWidget(label);
    static_cast<QVBoxLayout*>(layout())->addWidget(table, 1);
}

QCheckBox* ChangesWindow::addCheckBox(const QString& name, const QString& caption) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(name);
    box->setAccessibleName(QString(caption).remove(u'&'));
    layout()->addWidget(box);
    return box;
}

void ChangesWindow::showScripts(const ChangesToShow& changes, const WizardAnswers& answers) {
    m_chkKeepAll = addCheckBox("chkKeepAll", tr("&Keep all scripts"));
    auto* label = new QLabel(tr("Scripts that would go; &tick those that stay:"), this);
    label->setObjectName("lblScripts");
    m_scripts = new QListWidget(this);
    m_scripts->setObjectName("listScripts");
    m_scripts->setAccessibleName(tr("Scripts that stay"));
    m_scripts->setMaximumHeight((kScriptLines + 1) * fontMetrics().height() * 5 / 4);
    m_scripts->setUniformItemSizes(true);
    label->setBuddy(m_scripts);
    const std::vector<std::string>& kept = answers.keptScripts;
    for (const auto& [name, pageCount] : scriptsThatGo(changes.survey)) {
        const QString text = QString::fromStdString(name);
        auto* item =
            new QListWidgetItem(pageCount == 1 ? tr("%1 (1 page)").arg(text)
                                               : tr("%1 (%2 pages)").arg(text).arg(pageCount),
                                m_scripts);
        item->setData(kNameRole, text);
        const bool isKept = std::find(kept.begin(), kept.end(), name) != kept.end();
        item->setCheckState(isKept ? Qt::Checked : Qt::Unchecked);
    }
    // Ticked when something would go or may go, but for a person who has chosen otherwise.
    const bool isAllKnown = changes.survey.size() == changes.names.size();
    const bool mayLose = m_scripts->count() > 0 || !isAllKnown;
    m_chkKeepAll->setChecked(answers.keepsOtherScripts ||
                             (!changes.wasSeen && kept.empty() && mayLose));
    m_scripts->setEnabled(!m_chkKeepAll->isChecked());
    connect(m_chkKeepAll, &QCheckBox::toggled, m_scripts, &QWidget::setDisabled);
    layout()->addWidget(label);
    layout()->addWidget(m_scripts);
    label->setVisible(m_scripts->count() > 0);
    m_scripts->setVisible(m_scripts->count() > 0);
}

void ChangesWindow::showSkipping(const ChangesToShow& changes, const WizardAnswers& answers) {
    const auto count =
        std::count_if(changes.survey.begin(), changes.survey.end(),
                      [](const SurveyedPage& page) { return !page.canBeIntegrated(); });
    m_chkSkip =
        addCheckBox("chkSkipPages",
                    count == 1 ? tr("&Skip the page that cannot be integrated")
                               : tr("&Skip these %1 pages that cannot be integrated").arg(count));
    m_chkSkip->setChecked(count > 0 && (!changes.wasSeen || answers.skipsFailing));
    m_chkSkip->setVisible(count > 0);
}

void ChangesWindow::addClosingButtons() {
    QPushButton* ok = makeDialogButton("btnOK", tr("&OK"), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    QPushButton* cancel = makeDialogButton("btnCancel", tr("&Cancel"), this);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    static_cast<QVBoxLayout*>(layout())->addLayout(makeClosingRow(ok, cancel));
}

bool ChangesWindow::keepsAll() const {
    return m_chkKeepAll->isChecked();
}

std::vector<std::string> ChangesWindow::keptScripts() const {
    std::vector<std::string> names;
    for (int row = 0; row < m_scripts->count(); ++row)
        if (m_scripts->item(row)->checkState() == Qt::Checked)
            names.push_back(m_scripts->item(row)->data(kNameRole).toString().toStdString());
    return names;
}

bool ChangesWindow::skipsFailing() const {
    return m_chkSkip->isChecked();
}

}  // namespace zev
