// SPDX-License-Identifier: MIT
#include "recovery/journal.h"

#include "recovery/change_log.h"
#include "recovery/menu_record.h"
#include "text/hash.h"

namespace zev {

namespace {

constexpr std::size_t kLengthBytes = 4;
constexpr std::size_t kHashBytes = 8;

void addLowestFirst(std::string& bytes, std::uint64_t value, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i));
}

std::uint64_t takeLowestFirst(std::string_view& bytes, std::size_t count) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    bytes.remove_prefix(count);
    return value;
}

/// The entries of the first record, which is taken away; nothing when it is not whole.
std::optional<std::string_view> takeRecord(std::string_view& bytes) {
    if (bytes.size() < kLengthBytes + kHashBytes)
        return {};
    const std::uint64_t length = takeLowestFirst(bytes, kLengthBytes);
    const std::uint64_t hash = takeLowestFirst(bytes, kHashBytes);
    if (length > bytes.size() || hashOf(bytes.substr(0, length)) != hash)
        return {};
    const std::string_view entries = bytes.substr(0, length);
    bytes.remove_prefix(length);
    return entries;
}

/// Does again what the entries say.
class Replay {
  public:
    explicit Replay(JournalledMenu& menu) : m_menu(menu) {}

    bool hasContent() const { return m_hasContent; }
    /// False when the record is not what a log has written for this document; it may have been
    /// done in part.
    bool run(std::string_view entries) {
        RecordReader record(entries);
        while (!record.isAtEnd())
            if (!runEntry(record) || record.hasFailed())
                return false;
        return true;
    }

  private:
    bool runEntry(RecordReader& record) {
        using enum JournalEntry;
        const auto entry = static_cast<JournalEntry>(record.number());
        switch (entry) {
            case State:
                m_menu.time = static_cast<std::int64_t>(record.number());
                m_menu.unsavedChanges = record.number();
                return true;
            case GivenUp:
                m_menu.isGivenUp = true;
                return true;
            case Content:
                return !m_hasContent && readContent(record);
            case File:
                m_menu.SaveFile = record.text();
                m_menu.SavePath = record.text();
                return true;
            case Place:
                return readPlace(record);
            case Insert:
                return insert(record);
            case Remove:
                return remove(record);
            case Move:
                return move(record);
            case Item:
            case Label:
            case Expanded:
                return setNode(record, entry);
            case Menu:
                return setMenu(record);
        }
        return false;
    }

    bool readContent(RecordReader& record) {
        m_menu.content.overfullFile = record.text();
        m_menu.content.DefaultProp = readProperties(record);
        m_menu.content.RootMenuProp = readProperties(record);
        m_hasContent = readNodes(record, tree(), nullptr, 0);
        return m_hasContent;
    }

    bool readPlace(RecordReader& record) {
        m_menu.content.ItemCounter = static_cast<std::int16_t>(record.number());
        return readNode(record, m_menu.selection.selected) &&
               readNode(record, m_menu.selection.current);
    }

    bool insert(RecordReader& record) {
        const MenuNode* parent = nullptr;
        if (!readNode(record, parent))
            return false;
        const std::uint64_t row = record.number();
        return readNodes(record, tree(), parent, row);
    }

    bool remove(RecordReader& record) {
        const MenuNode* const node = tree().find(std::string(record.text()));
        if (node == nullptr)
            return false;
        // The next entry of the place tells what is selected now.
        m_menu.selection = {};
        tree().take(*node);
        return true;
    }

    bool move(RecordReader& record) {
        const MenuNode* const node = tree().find(std::string(record.text()));
        const MenuNode* parent = nullptr;
        if (node == nullptr || !readNode(record, parent) ||
            (parent != nullptr && isInBranch(parent, *node)))
            return false;
        const std::uint64_t row = record.number();
        if (row > tree().childrenOf(parent).size())
            return false;
        tree().move(*node, parent, row);
        return true;
    }

    bool setMenu(RecordReader& record) {
        const auto kind = static_cast<MenuPropOwner::Kind>(record.number());
        const MenuNode* node = nullptr;
        if (!readNode(record, node))
            return false;
        if (kind == MenuPropOwner::Kind::Defaults)
            m_menu.content.DefaultProp = readProperties(record);
        else if (kind == MenuPropOwner::Kind::TopMenu)
            m_menu.content.RootMenuProp = readProperties(record);
        else if (node != nullptr)
            tree().edit(*node).item.MenuProperty = SharedMenuProp(readProperties(record));
        return kind != MenuPropOwner::Kind::Submenu || node != nullptr;
    }

    bool setNode(RecordReader& record, JournalEntry entry) {
        const MenuNode* const node = tree().find(std::string(record.text()));
        if (node == nullptr)
            return false;
        MenuNode& changed = tree().edit(*node);
        if (entry == JournalEntry::Item)
            readItem(record, changed.item);
        else if (entry == JournalEntry::Label)
            changed.text = record.text();
        else
            changed.isExpanded = record.number() != 0;
        return true;
    }

    /// A node, or none; false when it is not there.
    bool readNode(RecordReader& record, const MenuNode*& node) {
        const bool isNone = record.number() == 0;
        node = isNone ? nullptr : tree().find(std::string(record.text()));
        return isNone || node != nullptr;
    }

    MenuTree& tree() { return m_menu.content.tree; }

    JournalledMenu& m_menu;
    bool m_hasContent = false;
};

}  // namespace

std::string journalRecord(std::string_view entries) {
    std::string bytes;
    bytes.reserve(kLengthBytes + kHashBytes + entries.size());
    addLowestFirst(bytes, entries.size(), kLengthBytes);
    addLowestFirst(bytes, hashOf(entries), kHashBytes);
    bytes += entries;
    return bytes;
}

std::optional<JournalledMenu> readJournal(std::string_view bytes) {
    if (!bytes.starts_with(kJournalHead))
        return {};
    bytes.remove_prefix(kJournalHead.size());
    JournalledMenu menu;
    Replay replay(menu);
    for (auto entries = takeRecord(bytes); entries; entries = takeRecord(bytes))
        if (!replay.run(*entries))
            break;
    if (!replay.hasContent())
        return {};
    return menu;
}

}  // namespace zev
