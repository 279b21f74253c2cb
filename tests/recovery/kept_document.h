// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>

#include "model/document_history.h"
#include "model/tree_editing.h"
#include "recovery/journal.h"
#include "script/script_writer.h"
#include "tests/support/document_steps.h"

namespace zev::test {

/// All that a restored menu must have: the script, keys, labels and folding of the nodes, the
/// selection, the counter and the file.
inline std::string drawn(const MenuContent& content, const NodeSelection& selection,
                         const std::string& SaveFile, const std::string& SavePath) {
    std::string text = SaveFile + "|" + SavePath + "|" + std::to_string(content.ItemCounter) + "|" +
                       content.overfullFile + "\n";
    const MenuTree& tree = content.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        text += node->parent() ? node->parent()->key() : "";
        text += ">" + node->key() + "|" + node->text + (node->isExpanded ? "|open" : "|");
        // The script has no images of text items and no captions of rollover items.
        text += node->item.Caption + "|" + node->item.ImageOut + "|" + node->item.ImageOver;
        text += node == selection.selected ? "|selected" : "";
        text += node == selection.current ? "|current\n" : "\n";
    }
    return text + GenerateScript(content);
}

inline std::string drawn(const MenuDocument& document) {
    return drawn(document.content(), {document.selectedNode(), document.CurNode()},
                 document.SaveFile(), document.SavePath());
}

inline std::string drawn(const JournalledMenu& menu) {
    return drawn(menu.content, menu.selection, menu.SaveFile, menu.SavePath);
}

/// A document with its history, and commands at random.
class EditedDocument {
  public:
    explicit EditedDocument(unsigned seed = 1) : m_random(seed) {}

    template <typename Command>
    void step(Command command) {
        history.begin();
        command();
        history.end("step");
    }

    void act() {
        const unsigned choice = below(16);
        if (choice == 0 && history.undoName())
            history.undo();
        else if (choice == 1 && history.redoName())
            history.redo();
        else
            step([&] { command(choice); });
    }

    MenuDocument document{"/program"};
    DocumentHistory history{document};

  private:
    unsigned below(unsigned count) { return unsigned(m_random()) % count; }

    void command(unsigned choice) {
        static constexpr EditResult (*kCommands[])(MenuDocument&) = {
            addMenuItem, addMenuItem, addSubmenuItem, addSubmenuItem, deleteItem,
            moveLeft,    moveRight,   moveUp,         moveDown};
        if (choice < 11) {
            kCommands[below(std::size(kCommands))](document);
            if (const MenuNode* node = anyNode())
                document.select(node);
            return;
        }
        if (choice == 11) {
            const bool isTop = below(2) == 0;
            editMenu(document, isTop ? kTopMenu : kDefaults)->BgImg = word();
            return;
        }
        if (choice == 12 && below(4) == 0) {
            document.open(MenuContent(), "/site/" + word() + ".js", "/site");
            return;
        }
        const MenuNode* const node = anyNode();
        if (node == nullptr)
            return;
        if (choice == 13) {
            MenuProp properties = *node->item.MenuProperty;
            properties.Position = std::int16_t(below(5));
            properties.FontSet = below(2) == 0;
            properties.FontStyle = below(2) == 0;
            properties.Divider = word();
            document.setMenu({MenuPropOwner::Kind::Submenu, node}, properties);
        } else if (choice == 14) {
            document.setLabel(*node, word());
            document.makeVisible(*node);
            document.markSaved();
        } else {
            auto item = editItem(document, *node);
            item->Caption = word();
            item->URL = word();
            item->ImageOut = word();
            item->IsRollover = below(2) == 0;
        }
    }

    const MenuNode* anyNode() {
        const MenuNode* node = document.tree().firstNode();
        for (unsigned steps = node ? below(unsigned(document.tree().size())) : 0; steps > 0;
             --steps)
            node = document.tree().nextInTreeOrder(*node);
        return node;
    }
    std::string word() {
        return std::string(below(3), '\0') + "w\xc3\xa4" + std::to_string(below(99));
    }

    std::mt19937 m_random;
};

}  // namespace zev::test
