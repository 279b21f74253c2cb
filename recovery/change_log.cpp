// SPDX-License-Identifier: MIT
#include "recovery/change_log.h"

#include "recovery/menu_record.h"

namespace zev {

namespace {

void writeEntry(RecordWriter& record, JournalEntry entry) {
    record.number(static_cast<unsigned>(entry));
}

/// A node or none.
void writeNode(RecordWriter& record, const MenuNode* node) {
    record.number(node != nullptr ? 1 : 0);
    if (node != nullptr)
        record.text(node->key());
}

void writeFile(RecordWriter& record, const MenuDocument& document) {
    writeEntry(record, JournalEntry::File);
    record.text(document.SaveFile());
    record.text(document.SavePath());
}

}  // namespace

ChangeLog::ChangeLog(MenuDocument& document) : m_document(document) {
    m_document.addObserver(*this);
}

ChangeLog::~ChangeLog() {
    m_document.removeObserver(*this);
}

void ChangeLog::clear() {
    m_record.clear();
    m_hasContent = false;
    m_isReplaced = false;
}

void ChangeLog::writeContent(RecordWriter& record, const MenuDocument& document) {
    writeFile(record, document);
    writeEntry(record, JournalEntry::Content);
    record.text(document.content().overfullFile);
    writeProperties(record, document.DefaultProp());
    writeProperties(record, document.RootMenuProp());
    writeNodes(record, document.tree().topLevel());
}

void ChangeLog::writePlace(RecordWriter& record, const MenuDocument& document) {
    writeEntry(record, JournalEntry::Place);
    record.number(static_cast<std::uint16_t>(document.ItemCounter()));
    writeNode(record, document.selectedNode());
    writeNode(record, document.CurNode());
}

void ChangeLog::begin(JournalEntry entry) {
    writeEntry(m_record, entry);
    m_hasContent = true;
}

void ChangeLog::aboutToInsert(const MenuNode* parent, std::size_t row) {
    m_parent = parent;
    m_row = row;
}

void ChangeLog::inserted() {
    begin(JournalEntry::Insert);
    writeNode(m_record, m_parent);
    m_record.number(m_row);
    writeNodes(m_record, m_document.tree().childrenOf(m_parent).subspan(m_row, 1));
}

void ChangeLog::aboutToRemove(const MenuNode* parent, std::size_t row) {
    begin(JournalEntry::Remove);
    m_record.text(m_document.tree().childrenOf(parent)[row]->key());
}

void ChangeLog::aboutToMove(const MenuNode& node, const MenuNode* parent, std::size_t row) {
    begin(JournalEntry::Move);
    m_record.text(node.key());
    writeNode(m_record, parent);
    m_record.number(row);
}

void ChangeLog::contentReplaced() {
    clear();
    m_hasContent = true;
    m_isReplaced = true;
}

void ChangeLog::labelChanged(const MenuNode& node) {
    writeEntry(m_record, JournalEntry::Label);
    m_record.text(node.key());
    m_record.text(node.text);
}

void ChangeLog::expansionChanged(const MenuNode& node) {
    writeEntry(m_record, JournalEntry::Expanded);
    m_record.text(node.key());
    m_record.number(node.isExpanded ? 1 : 0);
}

void ChangeLog::itemChanged(const MenuNode& node) {
    begin(JournalEntry::Item);
    m_record.text(node.key());
    writeItem(m_record, node.item);
}

void ChangeLog::menuChanged(const MenuPropOwner& owner) {
    begin(JournalEntry::Menu);
    m_record.number(static_cast<unsigned>(owner.kind));
    writeNode(m_record, owner.node);
    writeProperties(m_record, m_document.menuProp(owner));
}

void ChangeLog::fileChanged() {
    writeFile(m_record, m_document);
}

}  // namespace zev
