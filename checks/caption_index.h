// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "model/menu_tree.h"

namespace zev {

/// Knows which items of a menu have the same caption. An item costs the same however many there
/// are, so that the index can follow a menu that is being edited. Rollover items and items without
/// a name have no caption to share.
class CaptionIndex {
  public:
    void clear();
    /// Takes the item in as it is and where it stands, without those below it.
    void add(const MenuNode& node);
    /// Takes out an item that was added, whatever has become of it since; nothing for another one.
    void remove(const MenuNode& node);

    /// How many items have the caption of one before them in their menu.
    std::size_t repeatedCount() const { return m_repeatedCount; }
    /// These items, in any order.
    std::vector<const MenuNode*> repeated() const;

  private:
    struct Caption {
        const MenuNode* parent;
        std::string name;
        bool operator==(const Caption&) const = default;
    };
    struct CaptionHash {
        std::size_t operator()(const Caption& caption) const;
    };
    using Groups = std::unordered_map<Caption, std::unordered_set<const MenuNode*>, CaptionHash>;

    Groups m_groups;
    std::unordered_map<const MenuNode*, Groups::value_type*> m_groupOf;
    std::unordered_set<const Groups::value_type*> m_repeated;  ///< those of several items
    std::size_t m_repeatedCount = 0;
};

}  // namespace zev
