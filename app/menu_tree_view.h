// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

#include "app/tree_view_model.h"
#include "model/menu_document.h"

namespace zev {

/// The menu tree on screen. Shows the document's tree, expansion and selected node, and tells what
/// the person does to them; decides nothing about the document.
class MenuTreeView : public QTreeView {
    Q_OBJECT
  public:
    /// `document` is not owned and outlives the view.
    explicit MenuTreeView(MenuDocument& document, QWidget* parent = nullptr);

    /// Makes the selection on screen the document's `selectedNode` and scrolls to it.
    void showSelection();
    /// Ends in-place editing, if there is any, as leaving the editor does: the text is taken.
    void commitEditor();

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  signals:
    /// The person chose this node by mouse or keyboard, clicked it again, or folded it over the one
    /// that was selected.
    void nodeClicked(const MenuNode* node);
    /// A label was edited in place; the node already shows it.
    void labelEdited(const zev::MenuNode& node, const QString& text);

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    int sizeHintForColumn(int column) const override;
    /// A tree without items says how to begin.
    void paintEvent(QPaintEvent* event) override;

  private:
    void foldBranch(const QModelIndex& index);
    void showExpansion();
    void showExpansionOf(const MenuNode& top);
    int indentOf(const MenuNode& node) const;

    MenuDocument& m_document;
    TreeViewModel m_model;
};

}  // namespace zev
