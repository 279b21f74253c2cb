// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>

#include "model/menu_document.h"

namespace zev {

/// Shows a document's tree to Qt's item views: one column, the nodes' labels as plain text. An
/// adapter: the document stays the only store, and what happens to it is passed on as it happens.
class TreeViewModel : public QAbstractItemModel, private DocumentObserver {
    Q_OBJECT
  public:
    /// Longest label, in UTF-16 units, that is shown in full. A longer one is cut for the eye only;
    /// laying out megabytes of text in one row would stall the window.
    static constexpr qsizetype kMaxShownLabel = 1000;

    /// `document` is not owned and outlives the model, which is its observer meanwhile.
    explicit TreeViewModel(MenuDocument& document, QObject* parent = nullptr);
    ~TreeViewModel() override;

    /// Null for an invalid index.
    const MenuNode* nodeAt(const QModelIndex& index) const;
    /// Invalid for null.
    QModelIndex indexOf(const MenuNode* node) const;
    /// True while the tree is between two states: what views announce then (a selection moved away
    /// from a node that goes) is not the person's doing.
    bool isChanging() const { return m_isChanging; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Asks for another label of a node by `labelEdited`.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  signals:
    /// A label was edited in the view.
    void labelEdited(const zev::MenuNode& node, const QString& text);
    /// The tree expanded or collapsed a node.
    void nodeExpansionChanged(const QModelIndex& index, bool isExpanded);

  private:
    void aboutToInsert(const MenuNode* parent, std::size_t row) override;
    void inserted() override;
    void aboutToRemove(const MenuNode* parent, std::size_t row) override;
    void removed() override;
    void aboutToMove(const MenuNode& node, const MenuNode* parent, std::size_t row) override;
    void moved() override;
    void aboutToReplaceContent() override;
    void contentReplaced() override;
    void labelChanged(const MenuNode& node) override;
    void expansionChanged(const MenuNode& node) override;

    MenuDocument& m_document;
    bool m_isChanging = false;
    bool m_isMoving = false;
};

}  // namespace zev
