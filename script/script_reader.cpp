#include "script/script_reader.h"

#include <algorithm>
#include <string>
#include <utility>

#include "script/definition_lines.h"
#include "script/line_tokenizers.h"
#include "script/loaded_keys.h"
#include "text/pattern.h"

namespace zev {

namespace {

/// Applies the lines of one definition file to a new menu, one after the other.
class ScriptReader {
  public:
    explicit ScriptReader(MenuContent& content) : m_content(content) {}

    /// A line may be of several kinds at once: an item line that holds "=" is a property line too.
    void readLine(std::string_view line) {
        // How every line that means anything begins; a large file of other lines is passed quickly.
        if (!line.starts_with("zev"))
            return;
        if (matchesPattern(line, "zev_state.*=*;"))
            m_content.DefaultProp.SetProperty(GetPropName(line), GetPropValue(line));
        if (matchesPattern(line, "zevmenu = new ZEVMenu('*');"))
            openMenu(GetMenuId(line));
        if (matchesPattern(line, "zevmenu.*=*;"))
            readProperty(line);
        if (matchesPattern(line, "zevmenu.AddItem(*);"))
            readItem(line, false);
        else if (matchesPattern(line, "zevmenu.AddRollover(*);"))
            readItem(line, true);
    }

    std::size_t errorCount() const { return m_errorCount; }

  private:
    bool isTopLevel() const { return m_menuId == kTopLevelMenuId; }

    void openMenu(std::string id) {
        m_menuId = std::move(id);
        m_itemNumber = 0;
        m_menuNode = isTopLevel() ? nullptr : m_content.tree.find(LoadedMenuKey(m_menuId));
    }

    void readProperty(std::string_view line) {
        if (isTopLevel())
            m_content.RootMenuProp.SetProperty(GetPropName(line), GetPropValue(line));
        else if (m_menuNode)
            m_menuNode->item.MenuProperty.edit().SetProperty(GetPropName(line), GetPropValue(line));
        else
            ++m_errorCount;
    }

    void readItem(std::string_view line, bool isRollover) {
        // An item that cannot be added keeps its number all the same: the ids of the submenus that
        // follow count it.
        ++m_itemNumber;
        const bool hasMenu = isTopLevel() || m_menuNode;
        if (!hasMenu || m_content.ItemCounter == kMaxItemCounter) {
            ++m_errorCount;
            return;
        }
        ItemProp item;
        item.MenuProperty = NewItemMenuProp();
        if (isRollover)
            item.Set_ImageProperty(line);
        else
            item.Set_ItemProperty(line);
        std::string text = isRollover ? item.ImageOut : item.Caption;
        if (m_content.tree.append(m_menuNode, LoadedItemKey(m_menuId, m_itemNumber),
                                  std::move(text), std::move(item)))
            ++m_content.ItemCounter;
        else
            ++m_errorCount;
    }

    MenuContent& m_content;
    std::string m_menuId;            ///< menu of the last creation line; empty before the first
    MenuNode* m_menuNode = nullptr;  ///< item that menu opens from; null when there is none
    std::size_t m_itemNumber = 0;    ///< items of that menu read so far
    std::size_t m_errorCount = 0;
};

}  // namespace

ReadResult ReadScript(std::string_view bytes, MenuContent& content) {
    DefinitionLines lines(bytes);
    // About the length of a short item's line; of another file no more is taken than a menu can
    // hold.
    constexpr std::size_t kShortLineBytes = 32;
    content.tree.reserve(std::min<std::size_t>(bytes.size() / kShortLineBytes, kMaxItemCounter));
    ScriptReader reader(content);
    std::string_view line;
    while (lines.next(line))
        reader.readLine(line);

    return {reader.errorCount()};
}

bool IsBinary(std::string_view bytes) {
    return bytes.find('\0') != std::string_view::npos;
}

}  // namespace zev
