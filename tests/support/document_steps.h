// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "model/menu_document.h"

namespace zev::test {

/// Adds a node as the last child of `parent` (null: top level), and nothing else.
inline const MenuNode* appendNode(MenuDocument& document, const MenuNode* parent, std::string key,
                                  std::string text, ItemProp item = {}) {
    MenuBranch branch(std::move(key), std::move(text), std::move(item));
    const MenuNode* const node = branch.top();
    const std::size_t row = document.tree().childrenOf(parent).size();
    document.apply(InsertBranch{std::move(branch), parent, row});
    return node;
}

/// A copy of something that a document holds, to be changed and stored at the end of the statement.
template <typename Value>
class Edit {
  public:
    Edit(Value value, std::function<void(Value)> store)
        : m_value(std::move(value)), m_store(std::move(store)) {}
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;
    ~Edit() { m_store(std::move(m_value)); }

    Value* operator->() { return &m_value; }
    Value& operator*() { return m_value; }

  private:
    Value m_value;
    std::function<void(Value)> m_store;
};

inline Edit<ItemProp> editItem(MenuDocument& document, const MenuNode& node) {
    return {node.item, [&](ItemProp item) { document.setItem(node, std::move(item)); }};
}

/// Does not mark the document.
inline Edit<MenuProp> editMenu(MenuDocument& document, const MenuPropOwner& owner) {
    return {document.menuProp(owner),
            [&document, owner](MenuProp properties) {
                document.setMenuUnmarked(owner, std::move(properties));
            }};
}

inline constexpr MenuPropOwner kDefaults{MenuPropOwner::Kind::Defaults};
inline constexpr MenuPropOwner kTopMenu{MenuPropOwner::Kind::TopMenu};

}  // namespace zev::test
