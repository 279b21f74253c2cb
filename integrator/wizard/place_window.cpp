// SPDX-License-Identifier: MIT
#include "integrator/wizard/place_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>
#include <limits>
#include <map>

#include "dialogs/combo_wheel.h"
#include "dialogs/dialog_button.h"
#include "dialogs/single_line.h"
#include "integrator/changed_lines.h"
#include "integrator/wizard/work_progress.h"
#include "integrator/wizard_flow.h"
#include "messages/integration_messages.h"

namespace zev {

namespace {

/// Bytes of a long line, and characters of the window, that are shown.
constexpr std::size_t kShownBytes = 400;
constexpr int kWindowWidth = 100;
constexpr int kPageLines = 4;
constexpr const char* kMarker = "marker";
/// Of an entry of the list of pages: the page's name, where the menu fits.
constexpr int kNameRole = Qt::UserRole;

/// Text bytes of a page of any encoding: what is no UTF-8 is shown letter by letter.
QString shown(const std::string& bytes) {
    const QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return text.contains(QChar::ReplacementCharacter)
               ? QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()))
               : text;
}

/// A line of code can be broken behind each of its tags and statements: the program's own have no
/// blank for longer than a column is wide.
class CodeDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& value, const QLocale& locale) const override {
        constexpr QChar kZeroWidthSpace(0x200B);
        QString text = QStyledItemDelegate::displayText(value, locale);
        for (const QChar end : {QChar(u'>'), QChar(u';')})
            text.replace(end, QString(end) + kZeroWidthSpace);
        return text;
    }
};

QString problemText(PlaceProblem problem) {
    switch (problem) {
        case PlaceProblem::NotFound:
            return PlaceWindow::tr("there is no such place");
        case PlaceProblem::NoEndTag:
            return PlaceWindow::tr("where the element ends cannot be told");
        case PlaceProblem::NoMarkup:
            return PlaceWindow::tr("the element cannot hold a menu");
        case PlaceProblem::HoldsThePage:
            return PlaceWindow::tr("the element holds the page's head or body");
        case PlaceProblem::TextNotFound:
            return PlaceWindow::tr("the words for the link are not found");
    }
    return {};
}

}  // namespace

PlaceWindow::PlaceWindow(const WizardFlow& flow, const FileSystem& files,
                         const WizardAnswers& answers,
                         std::function<std::string(const std::string&)> linkList, QWidget* parent)
    : QDialog(parent),
      m_flow(flow),
      m_files(files),
      m_answers(answers),
      m_linkList(std::move(linkList)) {
    setObjectName("PlaceWindow");
    setWindowTitle(tr("Place the Menu"));
    arrange();
}

void PlaceWindow::arrange() {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeQuestions());
    layout->addWidget(makePreview(), 1);
    addClosingButtons();
    resize(kWindowWidth * fontMetrics().averageCharWidth(), sizeHint().height());
}

QWidget* PlaceWindow::makeQuestions() {
    auto* questions = new QWidget(this);
    auto* form = new QFormLayout(questions);
    form->setContentsMargins(0, 0, 0, 0);
    m_cboPlace = new QComboBox(questions);
    m_cboPlace->setObjectName("cboPlace");
    m_cboPlace->setAccessibleName(tr("Where"));
    keepWheelForFocus(*m_cboPlace);
    m_cboPlace->addItem(tr("First in the page"), "body-start");
    m_cboPlace->addItem(tr("Last in the page"), "body-end");
    m_cboPlace->addItem(tr("Before the element"), "before:");
    m_cboPlace->addItem(tr("Behind the element"), "after:");
    m_cboPlace->addItem(tr("First in the element"), "start:");
    m_cboPlace->addItem(tr("Last in the element"), "end:");
    m_cboPlace->addItem(tr("Instead of the element"), "instead:");
    m_cboElement = new QComboBox(questions);
    m_cboElement->setObjectName("cboElement");
    m_cboElement->setAccessibleName(tr("Element"));
    m_cboElement->setEditable(true);
    m_cboElement->setInsertPolicy(QComboBox::NoInsert);
    m_cboElement->setToolTip(tr("A tag's name, #id, .class, or a tag's name with one of them"));
    keepWheelForFocus(*m_cboElement);
    keepSingleLine(*m_cboElement->lineEdit());
    form->addRow(tr("&Where:"), m_cboPlace);
    form->addRow(tr("&Element:"), m_cboElement);
    m_txtLinkText = new QLineEdit(questions);
    m_txtLinkText->setObjectName("txtLinkText");
    m_txtLinkText->setAccessibleName(tr("Words that become the link"));
    m_txtLinkText->setToolTip(tr("Words of the page. Without any, a link is added at the place."));
    keepSingleLine(*m_txtLinkText);
    if (m_answers.isPopup)
        form->addRow(tr("Words that become the &link:"), m_txtLinkText);
    else
        m_txtLinkText->hide();
    m_chkLinks = new QCheckBox(tr("&Links for visitors without script"), questions);
    m_chkLinks->setObjectName("chkLinks");
    m_chkLinks->setAccessibleName(tr("Links for visitors without script"));
    m_chkLinks->setVisible(m_linkList != nullptr && !m_answers.isPopup);
    form->addRow(QString(), m_chkLinks);
    connect(m_cboPlace, &QComboBox::currentIndexChanged, this, &PlaceWindow::followPlace);
    connect(m_cboElement, &QComboBox::currentIndexChanged, this, &PlaceWindow::followPlace);
    // Each letter would have all pages read again.
    for (const QLineEdit* field : {m_cboElement->lineEdit(), m_txtLinkText})
        connect(field, &QLineEdit::editingFinished, this, &PlaceWindow::followPlace);
    connect(m_chkLinks, &QCheckBox::toggled, this, &PlaceWindow::followPage);
    return questions;
}

QWidget* PlaceWindow::makePreview() {
    auto* preview = new QWidget(this);
    auto* layout = new QVBoxLayout(preview);
    layout->setContentsMargins(0, 0, 0, 0);
    m_lblFits = new QLabel(preview);
    m_lblFits->setObjectName("lblFits");
    m_lblFits->setWordWrap(true);
    m_pages = new QListWidget(preview);
    m_pages->setObjectName("listPages");
    m_pages->setAccessibleName(tr("Pages"));
    m_pages->setUniformItemSizes(true);
    m_pages->setMaximumHeight((kPageLines + 1) * fontMetrics().height() * 5 / 4);
    auto* pagesLabel = new QLabel(tr("P&ages:"), preview);
    pagesLabel->setObjectName("lblPages");
    pagesLabel->setBuddy(m_pages);
    m_changes = new QTableWidget(0, 3, preview);
    m_changes->setObjectName("tableChanges");
    m_changes->setAccessibleName(tr("Changes of the page"));
    m_changes->setHorizontalHeaderLabels({tr("Line"), tr("Now"), tr("Then")});
    m_changes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_changes->setTabKeyNavigation(false);
    m_changes->setTextElideMode(Qt::ElideNone);
    m_changes->setItemDelegate(new CodeDelegate(m_changes));
    m_changes->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_changes->verticalHeader()->hide();
    m_changes->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_changes->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_changes->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    auto* changesLabel = new QLabel(tr("&Changes of the page:"), preview);
    changesLabel->setObjectName("lblChanges");
    changesLabel->setBuddy(m_changes);
    layout->addWidget(m_lblFits);
    layout->addWidget(pagesLabel);
    layout->addWidget(m_pages);
    layout->addWidget(changesLabel);
    layout->addWidget(m_changes, 1);
    connect(m_pages, &QListWidget::currentRowChanged, this, &PlaceWindow::followPage);
    return preview;
}

void PlaceWindow::addClosingButtons() {
    m_btnPlace = makeDialogButton("btnPlace", tr("&Place"), this);
    m_btnPlace->setAccessibleName(tr("Place the menu in the pages"));
    m_btnPlace->setDefault(true);
    connect(m_btnPlace, &QPushButton::clicked, this, [this] {
        const std::optional<MenuPlacing> placing = entered();
        if (!placing)
            return;
        m_placing = *placing;
        accept();
    });
    QPushButton* cancel = makeDialogButton("btnCancel", tr("Ca&ncel"), this);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    static_cast<QVBoxLayout*>(layout())->addLayout(makeClosingRow(m_btnPlace, cancel));
}

/// Shows how far the work is when it takes more than a moment. False when the person stopped it.
bool PlaceWindow::forEachPage(const QString& what,
                              const std::function<void(const std::string&)>& work) {
    const std::vector<std::string>& names = m_flow.integratedPages().names;
    WorkProgress progress(what, tr("&Stop"), this);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!progress.goesOn(i, names.size()))
            return false;
        work(names[i]);
    }
    return true;
}

bool PlaceWindow::lookForPlaces() {
    std::vector<std::string> places;
    std::map<std::string, std::size_t> countOfPlace;
    const bool isWhole = forEachPage(tr("Looking for places"), [&](const std::string& name) {
        const FileResult<std::string> page =
            m_files.readFile(pagePath(m_flow.integratedPages().folder, name),
                             std::numeric_limits<std::uint64_t>::max());
        if (!page.isOk())
            return;
        for (const std::string& place : possiblePlaces(page.value()))
            if (++countOfPlace[place] == 1)
                places.push_back(place);
    });
    for (const std::string& place : places)
        if (place != kMarker)
            m_cboElement->addItem(QString::fromStdString(place));
    if (countOfPlace.contains(kMarker))
        m_cboPlace->insertItem(2, tr("At the comment <!-- zevmenu -->"), kMarker);
    followPlace();
    return isWhole;
}

/// Nothing when the element is not entered as it has to be.
std::optional<MenuPlacing> PlaceWindow::entered() const {
    std::string where = m_cboPlace->currentData().toString().toStdString();
    if (where.ends_with(':'))
        where += m_cboElement->currentText().trimmed().toStdString();
    const std::optional<MenuPlace> place = parsePlace(where);
    if (!place)
        return {};
    MenuPlacing placing{*place, m_txtLinkText->text().toStdString()};
    if (m_chkLinks->isChecked())
        placing.addition = m_linkList;
    return placing;
}

void PlaceWindow::followPlace() {
    m_cboElement->setEnabled(m_cboPlace->currentData().toString().endsWith(u':'));
    lookWhereItFits();
    followPage();
}

void PlaceWindow::lookWhereItFits() {
    m_pages->clear();
    m_btnPlace->setEnabled(false);
    const std::optional<MenuPlacing> placing = entered();
    if (!placing) {
        m_lblFits->setText(
            tr("Please enter a tag's name, #id, .class, or a tag's name with one "
               "of them."));
        return;
    }
    QStringList fitting;
    QStringList others;
    forEachPage(tr("Looking where the menu fits"), [&](const std::string& name) {
        const FileResult<Placement> placement = m_flow.placementIn(name, m_answers, *placing);
        const QString page = QString::fromStdString(name);
        if (!placement.isOk())
            others.append(tr("%1: cannot be read").arg(page));
        else if (placement.value().problem)
            others.append(tr("%1: %2").arg(page, problemText(*placement.value().problem)));
        else if (placement.value().hasOwnCall)
            others.append(tr("%1: %2").arg(
                page, QString::fromStdString(noteText(placement.value().notes.front()))));
        else
            fitting.append(page);
    });
    m_lblFits->setText(tr("It fits in %1 of %2 pages; the others stay as they are.")
                           .arg(fitting.size())
                           .arg(m_flow.integratedPages().names.size()));
    m_pages->addItems(others);
    for (const QString& name : fitting)
        (new QListWidgetItem(name, m_pages))->setData(kNameRole, name);
    m_btnPlace->setEnabled(!fitting.isEmpty());
    m_pages->setCurrentRow(fitting.isEmpty() ? 0 : static_cast<int>(others.size()));
}

void PlaceWindow::followPage() {
    m_changes->setRowCount(0);
    const QListWidgetItem* item = m_pages->currentItem();
    if (item != nullptr && item->data(kNameRole).isValid())
        showChanges(item->data(kNameRole).toString().toStdString());
}

void PlaceWindow::showChanges(const std::string& name) {
    const std::optional<MenuPlacing> placing = entered();
    const FileResult<std::string> page = m_files.readFile(
        pagePath(m_flow.integratedPages().folder, name), std::numeric_limits<std::uint64_t>::max());
    if (!placing || !page.isOk())
        return;
    const FileResult<Placement> placement = m_flow.placementIn(name, m_answers, *placing);
    if (!placement.isOk())
        return;
    for (const ChangedLines& change :
         changedLines(page.value(), placement.value().edits, kShownBytes)) {
        const int row = m_changes->rowCount();
        m_changes->insertRow(row);
        int column = 0;
        for (const QString& text :
             {QString::number(change.line), shown(change.before), shown(change.after)}) {
            auto* item = new QTableWidgetItem(text);
            item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
            m_changes->setItem(row, column++, item);
        }
    }
    m_changes->resizeRowsToContents();
}

}  // namespace zev
