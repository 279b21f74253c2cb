// SPDX-License-Identifier: MIT
#include "script/menu_script.h"

#include <cstddef>
#include <string>
#include <utility>

#include "model/menu_properties.h"
#include "script/item_lines.h"
#include "script/line_tokenizers.h"
#include "script/loaded_keys.h"
#include "script/property_lines.h"
#include "text/pattern.h"

namespace zev {

namespace {

using Reason = LineWarning::Reason;

/// Applies the lines of one script to a new menu, one after the other.
class MenuScriptReader {
  public:
    MenuScriptReader(DefinitionLines& lines, const ScriptDialect& dialect, MenuContent& content,
                     const WarningSink& tell, const EffectSink& note)
        : m_lines(lines), m_dialect(dialect), m_content(content), m_tell(tell), m_note(note) {}

    MenuScriptCounts read() {
        std::string_view line;
        while (m_lines.next(line))
            readLine(line);
        return m_counts;
    }

  private:
    /// A line may be of several kinds at once: an item line that holds "=" is a property line too.
    void readLine(std::string_view line) {
        m_counts.textLines += line.empty() ? 0U : 1U;
        // A large file of other lines is passed quickly.
        if (!line.starts_with(m_dialect.start)) {
            m_counts.foreignLines += line.empty() ? 0U : 1U;
            return;
        }
        bool isUnderstood = false;
        m_isWarned = false;
        if (matchesPattern(line, m_dialect.defaultLine))
            isUnderstood = readDefault(line);
        for (const CreationLine& creation : m_dialect.creationLines) {
            if (matchesPattern(line, creation.pattern)) {
                openMenu(creation, line);
                isUnderstood = true;
            }
        }
        if (matchesPattern(line, m_dialect.propertyLine))
            isUnderstood = readProperty(line);
        if (matchesPattern(line, m_dialect.textItemLine))
            isUnderstood = readItem(line, Set_ItemProperty);
        else if (matchesPattern(line, m_dialect.rolloverLine))
            isUnderstood = readItem(line, Set_ImageProperty);
        if (!isUnderstood && m_dialect.tellsOfLostLines)
            warn(Reason::NotUnderstood);
        m_counts.understoodLines += isUnderstood && !m_isWarned ? 1U : 0U;
    }

    bool isTopLevel() const { return m_menuId == kTopLevelMenuId; }

    MenuProp& editMenuOf(const MenuNode& node) {
        return m_content.tree.edit(node).item.MenuProperty.edit();
    }

    void openMenu(const CreationLine& creation, std::string_view line) {
        m_menuId = creation.idOf ? creation.idOf(line) : kTopLevelMenuId;
        m_itemNumber = 0;
        m_menuNode = isTopLevel() ? nullptr : m_content.tree.find(loadedMenuKey(m_menuId));
        if (!creation.readLook)
            return;
        // A submenu that no item opens is no warning by itself: what is put into it is. That holds
        // for the id "0" too, though what follows goes to the top-level menu.
        if (!creation.idOf)
            creation.readLook(line, m_content.RootMenuProp);
        else if (m_menuNode)
            creation.readLook(line, editMenuOf(*m_menuNode));
    }

    bool readDefault(std::string_view line) {
        const std::string_view name = GetPropName(line);
        const std::string_view value = GetPropValue(line);
        note({m_lines.number(), nullptr, name, value, true});
        return SetProperty(m_content.DefaultProp, name, value);
    }

    bool readProperty(std::string_view line) {
        const std::string_view name = GetPropName(line);
        const std::string_view value = GetPropValue(line);
        if (isTopLevel() || m_menuNode)
            note({m_lines.number(), m_menuNode, name, value});
        if (isTopLevel())
            return SetProperty(m_content.RootMenuProp, name, value);
        if (m_menuNode)
            return SetProperty(editMenuOf(*m_menuNode), name, value);
        warn(Reason::UnknownMenu);
        return findMenuProperty(name) != nullptr;
    }

    /// An item that is refused keeps its number all the same: the ids of the submenus that follow
    /// count it. True when the line has all arguments of an item and no more.
    bool readItem(std::string_view line, bool (*load)(ItemProp&, std::string_view)) {
        ItemProp item;
        item.MenuProperty = newItemMenuProp();
        const bool isWhole = load(item, line);
        ++m_itemNumber;
        const bool isFull = m_content.ItemCounter == kMaxItemCounter;
        bool isAdded = false;
        if (!isTopLevel() && !m_menuNode)
            warn(Reason::UnknownMenu);
        else if (isFull)
            warn(Reason::TooManyItems);
        else
            isAdded = addItem(std::move(item));
        // One of a menu that is not there too: the item that opens it may have been left out.
        m_counts.itemsLeftOut += isFull ? 1U : 0U;
        if (isAdded || (m_dialect.countsRefusedItems && !isFull))
            ++m_content.ItemCounter;
        return isWhole;
    }

    bool addItem(ItemProp&& item) {
        std::string text = item.IsRollover ? item.ImageOut : item.Caption;
        const MenuNode* const node = m_content.tree.append(
            m_menuNode, loadedItemKey(m_menuId, m_itemNumber), std::move(text), std::move(item));
        if (node)
            note({m_lines.number(), node});
        else
            warn(Reason::DuplicateKey);
        return node != nullptr;
    }

    void note(const LineEffect& effect) const {
        if (m_note)
            m_note(effect);
    }

    void warn(Reason reason) {
        m_isWarned = true;
        m_tell({m_lines.number(), reason});
    }

    DefinitionLines& m_lines;
    const ScriptDialect& m_dialect;
    MenuContent& m_content;
    const WarningSink& m_tell;
    const EffectSink& m_note;
    std::string m_menuId;  ///< menu of the last creation line; empty before the first
    const MenuNode* m_menuNode = nullptr;  ///< item that menu opens from; null when there is none
    std::size_t m_itemNumber = 0;          ///< item lines of that menu so far
    bool m_isWarned = false;               ///< of the current line
    MenuScriptCounts m_counts;
};

}  // namespace

MenuScriptCounts readMenuScript(DefinitionLines& lines, const ScriptDialect& dialect,
                                MenuContent& content, const WarningSink& tell,
                                const EffectSink& note) {
    return MenuScriptReader(lines, dialect, content, tell, note).read();
}

}  // namespace zev
