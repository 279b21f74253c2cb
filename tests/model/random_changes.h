// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "model/menu_document.h"

namespace zev::test {

/// All that a document holds. Equal states have the same nodes at the same addresses.
struct DocumentState {
    struct Node {
        const MenuNode* node;
        const MenuNode* parent;
        std::size_t row;
        std::string key;
        std::string text;
        ItemProp item;
        bool isExpanded;
        bool operator==(const Node&) const = default;
    };

    explicit DocumentState(const MenuDocument& document)
        : DefaultProp(document.DefaultProp()),
          RootMenuProp(document.RootMenuProp()),
          ItemCounter(document.ItemCounter()),
          SaveFile(document.SaveFile()),
          SavePath(document.SavePath()),
          bModified(document.bModified()),
          selection{document.selectedNode(), document.CurNode()} {
        const MenuTree& tree = document.tree();
        for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
            nodes.push_back({node, node->parent(), node->row(), node->key(), node->text, node->item,
                             node->isExpanded});
    }
    bool operator==(const DocumentState&) const = default;

    std::vector<Node> nodes;
    MenuProp DefaultProp;
    MenuProp RootMenuProp;
    std::int16_t ItemCounter;
    std::string SaveFile;
    std::string SavePath;
    bool bModified;
    NodeSelection selection;
};

/// Makes the same random changes for a seed in every run and on every machine, each fit for the
/// document as it is.
class ChangeMaker {
  public:
    explicit ChangeMaker(const MenuDocument& document, unsigned seed = 2026)
        : m_document(document), m_random(seed) {}

    std::size_t below(std::size_t count) { return m_random() % count; }

    Change next() {
        const bool hasNodes = !tree().isEmpty();
        switch (m_random() % 26) {
            case 0:
                return aReplacement();
            case 1:
                return SetItemCounter{static_cast<std::int16_t>(below(100))};
            case 2:
                return SetFile{aText(), aText()};
            case 3:
                return SetModified{below(2) == 0};
            case 4:
                return SetMenu{{MenuPropOwner::Kind::Defaults}, aMenu()};
            case 5:
                return SetMenu{{MenuPropOwner::Kind::TopMenu}, aMenu()};
            case 6:
                return SetSelection{{any(), any()}};
            case 7:
            case 8:
                if (hasNodes)
                    return RemoveBranch{some()};
                break;
            case 9:
                if (hasNodes)
                    return RemoveBranch{some(), NodeSelection{any(), any()}};
                break;
            case 10:
            case 11:
            case 12:
            case 13:
                if (hasNodes)
                    return aMove();
                break;
            case 14:
            case 15:
                if (hasNodes)
                    return SetItem{some(), anItem()};
                break;
            case 16:
                if (hasNodes)
                    return SetLabel{some(), aText()};
                break;
            case 17:
                if (hasNodes)
                    return SetExpanded{some(), below(2) == 0};
                break;
            case 18:
                if (hasNodes)
                    return SetMenu{{MenuPropOwner::Kind::Submenu, some()}, aMenu()};
                break;
            default:
                break;
        }
        return anInsertion();
    }

  private:
    const MenuTree& tree() const { return m_document.tree(); }
    std::string aText() { return "text " + std::to_string(below(5)); }
    std::string aKey() { return "key " + std::to_string(m_nextKey++); }

    const MenuNode* some() {
        const MenuNode* node = tree().firstNode();
        for (std::size_t steps = below(tree().size()); steps > 0; --steps)
            node = tree().nextInTreeOrder(*node);
        return node;
    }
    const MenuNode* any() { return tree().isEmpty() || below(4) == 0 ? nullptr : some(); }

    SharedMenuProp aMenu() {
        MenuProp menu;
        menu.Columns = std::to_string(below(4));
        return menu;
    }
    ItemProp anItem() {
        ItemProp item;
        item.Caption = aText();
        item.URL = aText();
        if (below(2) == 0)
            item.MenuProperty = aMenu();
        return item;
    }
    Change aReplacement() {
        auto content = std::make_unique<MenuContent>();
        const MenuNode* parent = nullptr;
        for (std::size_t count = below(6); count > 0; --count) {
            const MenuNode* node = content->tree.append(parent, aKey(), aText(), anItem());
            if (below(2) == 0)
                parent = node;
        }
        content->RootMenuProp = *aMenu();
        content->ItemCounter = static_cast<std::int16_t>(below(100));
        const MenuNode* const first = content->tree.firstNode();
        return ReplaceContent{std::move(content), {first, below(2) == 0 ? first : nullptr}};
    }
    Change anInsertion() {
        const MenuNode* const parent = any();
        InsertBranch change{MenuBranch(aKey(), aText(), anItem()), parent,
                            below(tree().childrenOf(parent).size() + 1)};
        if (below(2) == 0)
            change.selection = {change.branch.top(), any()};
        return change;
    }
    Change aMove() {
        const MenuNode* const node = some();
        const MenuNode* parent = any();
        if (isInBranch(parent, *node))
            parent = node->parent();
        return MoveBranch{node, parent, below(tree().childrenOf(parent).size() + 1)};
    }

    const MenuDocument& m_document;
    std::mt19937 m_random;
    std::size_t m_nextKey = 0;
};

}  // namespace zev::test
