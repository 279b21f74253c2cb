// SPDX-License-Identifier: MIT
#pragma once

#include "model/document_observer.h"
#include "model/menu_document.h"
#include "recovery/record_bytes.h"

namespace zev {

/// What a record of a journal says, one behind the other. Each is a number, and what stands behind
/// it in the brackets. Nodes are named by their keys.
enum class JournalEntry : unsigned {
    State = 1,  ///< seconds since 1970, unsaved changes; none when it is saved
    GivenUp,    ///< the person wanted the changes no more
    Content,    ///< overfull file, defaults, top menu, nodes
    File,       ///< SaveFile, SavePath
    Place,      ///< ItemCounter, selected node, current node: 1 and its key, or 0
    Insert,     ///< parent, row, nodes
    Remove,     ///< key
    Move,       ///< key, parent, row
    Item,       ///< key, item
    Label,      ///< key, text
    Expanded,   ///< key, 0 or 1
    Menu,       ///< kind of `MenuPropOwner`, key or nothing, properties
};

/// Listens to a document and puts down what happens to it, as entries of a record.
class ChangeLog : private DocumentObserver {
  public:
    /// `document` is not owned and outlives the log.
    explicit ChangeLog(MenuDocument& document);
    ~ChangeLog() override;
    ChangeLog(const ChangeLog&) = delete;
    ChangeLog& operator=(const ChangeLog&) = delete;

    /// Something that a file would hold has changed since `clear`.
    bool hasContent() const { return m_hasContent; }
    /// Another content came in the place of the whole old one: what the log has is not enough.
    bool isReplaced() const { return m_isReplaced; }
    const std::string& entries() const { return m_record.bytes(); }
    void clear();

    /// Adds the entries from which the whole document can be had.
    static void writeContent(RecordWriter& record, const MenuDocument& document);
    /// Adds what is told with every record: counter and selection.
    static void writePlace(RecordWriter& record, const MenuDocument& document);

  private:
    void begin(JournalEntry entry);

    void aboutToInsert(const MenuNode* parent, std::size_t row) override;
    void inserted() override;
    void aboutToRemove(const MenuNode* parent, std::size_t row) override;
    void aboutToMove(const MenuNode& node, const MenuNode* parent, std::size_t row) override;
    void contentReplaced() override;
    void labelChanged(const MenuNode& node) override;
    void expansionChanged(const MenuNode& node) override;
    void itemChanged(const MenuNode& node) override;
    void menuChanged(const MenuPropOwner& owner) override;
    void fileChanged() override;

    MenuDocument& m_document;
    RecordWriter m_record;
    bool m_hasContent = false;
    bool m_isReplaced = false;
    const MenuNode* m_parent = nullptr;  ///< where a branch is about to be put
    std::size_t m_row = 0;
};

}  // namespace zev
