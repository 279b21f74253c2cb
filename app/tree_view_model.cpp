// SPDX-License-Identifier: MIT
#include "app/tree_view_model.h"

#include <algorithm>

namespace zev {

namespace {

QString shownLabel(const std::string& text) {
    // Enough bytes for the longest label whatever it is made of; the rest need not be decoded at
    // every painting.
    constexpr std::size_t kMaxBytes = 4 * (TreeViewModel::kMaxShownLabel + 1);
    QString label =
        QString::fromUtf8(text.data(), static_cast<qsizetype>(std::min(text.size(), kMaxBytes)));
    if (label.size() > TreeViewModel::kMaxShownLabel) {
        label.truncate(TreeViewModel::kMaxShownLabel);
        label.append(QChar(0x2026));
    }
    return label;
}

}  // namespace

TreeViewModel::TreeViewModel(MenuDocument& document, QObject* parent)
    : QAbstractItemModel(parent), m_document(document) {
    m_document.addObserver(*this);
}

TreeViewModel::~TreeViewModel() {
    m_document.removeObserver(*this);
}

const MenuNode* TreeViewModel::nodeAt(const QModelIndex& index) const {
    return static_cast<const MenuNode*>(index.internalPointer());
}

QModelIndex TreeViewModel::indexOf(const MenuNode* node) const {
    if (node == nullptr)
        return {};
    return createIndex(static_cast<int>(node->row()), 0, node);
}

QModelIndex TreeViewModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       m_document.tree().childrenOf(nodeAt(parent))[static_cast<size_t>(row)]);
}

QModelIndex TreeViewModel::parent(const QModelIndex& child) const {
    return child.isValid() ? indexOf(nodeAt(child)->parent()) : QModelIndex();
}

int TreeViewModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0)
        return 0;
    return static_cast<int>(m_document.tree().childrenOf(nodeAt(parent)).size());
}

int TreeViewModel::columnCount(const QModelIndex&) const {
    return 1;
}

bool TreeViewModel::hasChildren(const QModelIndex& parent) const {
    return rowCount(parent) > 0;
}

QVariant TreeViewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const std::string& text = nodeAt(index)->text;
    if (role == Qt::DisplayRole)
        return shownLabel(text);
    if (role == Qt::EditRole)
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return {};
}

Qt::ItemFlags TreeViewModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
}

bool TreeViewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    emit labelEdited(*nodeAt(index), value.toString());
    return true;
}

void TreeViewModel::aboutToInsert(const MenuNode* parent, std::size_t row) {
    m_isChanging = true;
    beginInsertRows(indexOf(parent), static_cast<int>(row), static_cast<int>(row));
}

void TreeViewModel::inserted() {
    endInsertRows();
    m_isChanging = false;
}

void TreeViewModel::aboutToRemove(const MenuNode* parent, std::size_t row) {
    m_isChanging = true;
    beginRemoveRows(indexOf(parent), static_cast<int>(row), static_cast<int>(row));
}

void TreeViewModel::removed() {
    endRemoveRows();
    m_isChanging = false;
}

void TreeViewModel::aboutToMove(const MenuNode& node, const MenuNode* parent, std::size_t row) {
    m_isChanging = true;
    const int from = static_cast<int>(node.row());
    // Qt refuses a move to the place where the row already stands.
    m_isMoving =
        beginMoveRows(indexOf(node.parent()), from, from, indexOf(parent), static_cast<int>(row));
}

void TreeViewModel::moved() {
    if (m_isMoving)
        endMoveRows();
    m_isMoving = false;
    m_isChanging = false;
}

void TreeViewModel::aboutToReplaceContent() {
    m_isChanging = true;
    beginResetModel();
}

void TreeViewModel::contentReplaced() {
    endResetModel();
    m_isChanging = false;
}

void TreeViewModel::labelChanged(const MenuNode& node) {
    const QModelIndex index = indexOf(&node);
    emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
}

void TreeViewModel::expansionChanged(const MenuNode& node) {
    emit nodeExpansionChanged(indexOf(&node), node.isExpanded);
}

}  // namespace zev
