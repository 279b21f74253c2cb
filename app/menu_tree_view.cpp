// SPDX-License-Identifier: MIT
#include "app/menu_tree_view.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cstddef>
#include <vector>

#include "dialogs/single_line.h"

namespace zev {

namespace {

/// Space between the lines of the tree, so that a row is easy to hit.
constexpr int kRowPaddingPx = 6;

/// Properties of the in-place editor: its text, and what that was when it was opened.
constexpr const char* kText = "text";
constexpr const char* kShownText = "shownText";

/// Fainter than an item's label, and still easy to read on light and dark backgrounds.
constexpr qreal kHintOpacity = 0.7;

class LabelDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* line = qobject_cast<QLineEdit*>(editor)) {
            line->setAccessibleName(QObject::tr("Item label"));
            keepSingleLine(*line);
        }
        return editor;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        QStyledItemDelegate::setEditorData(editor, index);
        editor->setProperty(kShownText, editor->property(kText));
    }

    // A label that is only looked at stays as it is, also when the editor cannot show all of it.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override {
        if (editor->property(kText) != editor->property(kShownText))
            QStyledItemDelegate::setModelData(editor, model, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowPaddingPx);
    }
};

}  // namespace

MenuTreeView::MenuTreeView(MenuDocument& document, QWidget* parent)
    : QTreeView(parent), m_document(document), m_model(document) {
    setModel(&m_model);
    setItemDelegate(new LabelDelegate(this));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    // A double click edits the label; F2 belongs to Menu Properties.
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
    // Wide enough for the rows in sight, so that deep levels can be scrolled to.
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setResizeContentsPrecision(0);
    header()->setStretchLastSection(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);

    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        m_document.setExpanded(*m_model.nodeAt(index), true);
    });
    connect(this, &QTreeView::collapsed, this, &MenuTreeView::foldBranch);
    connect(&m_model, &TreeViewModel::nodeExpansionChanged, this, &QTreeView::setExpanded);
    connect(&m_model, &TreeViewModel::modelReset, this, &MenuTreeView::showExpansion);
    connect(&m_model, &TreeViewModel::rowsInserted, this,
            [this](const QModelIndex& above, int row) {
                const QModelIndex index = m_model.index(row, 0, above);
                showExpansionOf(*m_model.nodeAt(index));
            });
    connect(&m_model, &TreeViewModel::labelEdited, this, &MenuTreeView::labelEdited);
    // Also a click on the node that is selected already.
    connect(this, &QTreeView::pressed, this,
            [this](const QModelIndex& index) { emit nodeClicked(m_model.nodeAt(index)); });
}

void MenuTreeView::showSelection() {
    const QModelIndex index = m_model.indexOf(m_document.selectedNode());
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        return;
    }
    selectionModel()->clear();
}

void MenuTreeView::commitEditor() {
    if (state() != EditingState)
        return;
    QWidget* editor = indexWidget(currentIndex());
    if (editor == nullptr)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

// The base class scrolls to the column's left edge; a label many levels down begins far right of
// it.
void MenuTreeView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QScrollBar& bar = *horizontalScrollBar();
    const int before = bar.value();
    QTreeView::scrollTo(index, hint);
    const MenuNode* node = m_model.nodeAt(index);
    if (node == nullptr)
        return;
    // The scroll bar must know the width of the rows that have just come into sight.
    resizeColumnToContents(0);
    updateGeometries();
    const int left = indentOf(*node) - indentation();
    const int right =
        std::min(indentOf(*node) + sizeHintForIndex(index).width(), left + viewport()->width());
    bar.setValue(std::clamp(before, right - viewport()->width(), left));
}

// A click on the selected label edits it after the time of a double click. By then the person may
// be typing elsewhere; the editor would take the focus from there.
bool MenuTreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool isDelayed = trigger == AllEditTriggers;
    return (isDelayed && !hasFocus()) || QTreeView::edit(index, trigger, event);
}

void MenuTreeView::selectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (selected.isEmpty() || m_model.isChanging())
        return;
    const MenuNode* node = m_model.nodeAt(selected.indexes().constFirst());
    if (node != m_document.selectedNode())
        emit nodeClicked(node);
}

// Ctrl with a click or the space bar, and a click beside the rows, would take the selection away:
// then no item would be selected while the panel still shows one.
QItemSelectionModel::SelectionFlags MenuTreeView::selectionCommand(const QModelIndex& index,
                                                                   const QEvent* event) const {
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    const QItemSelectionModel::SelectionFlags flags = QTreeView::selectionCommand(index, event);
    if (flags & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle))
        return QItemSelectionModel::ClearAndSelect;
    return flags;
}

int MenuTreeView::sizeHintForColumn(int column) const {
    return std::max(QTreeView::sizeHintForColumn(column), viewport()->width());
}

void MenuTreeView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (m_document.tree().firstNode() != nullptr)
        return;
    QPainter painter(viewport());
    painter.setOpacity(kHintOpacity);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("The menu has no items yet.\nAdd Menu Item (Ctrl+A) makes the first one."));
}

/// The person is never left with a selected node that cannot be seen: the folded one is chosen in
/// its place. A branch that the tree itself collapsed is its own affair.
void MenuTreeView::foldBranch(const QModelIndex& index) {
    const MenuNode* folded = m_model.nodeAt(index);
    if (!folded->isExpanded)
        return;
    m_document.setExpanded(*folded, false);
    const MenuNode* node = m_document.selectedNode();
    while (node && node->parent() != folded)
        node = node->parent();
    if (node)
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

// A reset view has every node collapsed.
void MenuTreeView::showExpansion() {
    for (const MenuNode* node : m_document.tree().childrenOf(nullptr))
        showExpansionOf(*node);
}

/// Of a node that the view has just been given, and of all below it.
/// A list instead of recursion: a menu may be thousands of levels deep.
void MenuTreeView::showExpansionOf(const MenuNode& top) {
    std::vector<const MenuNode*> branch = {&top};
    for (std::size_t i = 0; i < branch.size(); ++i) {
        if (branch[i]->isExpanded)
            setExpanded(m_model.indexOf(branch[i]), true);
        branch.insert(branch.end(), branch[i]->children().begin(), branch[i]->children().end());
    }
}

int MenuTreeView::indentOf(const MenuNode& node) const {
    int levels = rootIsDecorated() ? 1 : 0;
    for (const MenuNode* ancestor = node.parent(); ancestor; ancestor = ancestor->parent())
        ++levels;
    return levels * indentation();
}

}  // namespace zev
