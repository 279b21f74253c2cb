#include "importers/quillmenu_reader.h"

#include <string>
#include <string_view>
#include <utility>

#include "script/line_tokenizers.h"
#include "script/loaded_keys.h"
#include "text/pattern.h"
#include "text/piece_cutter.h"

namespace zev {

namespace {

using Reason = ImportWarning::Reason;

/// The quoted arguments of a creation line lie between every other pair of apostrophes. Every
/// apostrophe counts: an escaped one ends an argument too. False when there is no further argument.
bool NextArgument(PieceCutter& pieces, std::string_view& argument) {
    std::string_view between;
    return pieces.next(between) && pieces.next(argument);
}

/// The arguments of a creation line that follow the first. At the first one the line lacks the rest
/// keep their values.
void ReadLook(PieceCutter& pieces, MenuProp& menu) {
    for (std::string MenuProp::*const member :
         {&MenuProp::NBgColor, &MenuProp::HBgColor, &MenuProp::NFtColor, &MenuProp::HFtColor,
          &MenuProp::BgImg}) {
        std::string_view argument;
        if (!NextArgument(pieces, argument))
            return;
        menu.*member = argument;
    }
}

/// Applies the lines of one menu script to a new menu, one after the other.
class QuillmenuReader {
  public:
    explicit QuillmenuReader(MenuContent& content) : m_content(content) {}

    /// A line may be of several kinds at once: an item line that holds "=" is a property line too.
    void readLine(std::string_view line, std::size_t number) {
        // How every line that means anything begins; a large file of other lines is passed quickly.
        if (!line.starts_with("qlm"))
            return;
        m_lineNumber = number;
        if (matchesPattern(line, "qlm_state.*=*;"))
            m_content.DefaultProp.SetProperty(GetPropName(line), GetPropValue(line));
        if (matchesPattern(line, "qlmenu1 = new mainMenu('*');"))
            openMainMenu(line);
        if (matchesPattern(line, "qlmenu1 = new subMenu('*');"))
            openSubmenu(line);
        if (matchesPattern(line, "qlmenu1.*=*;"))
            readProperty(line);
        if (matchesPattern(line, "qlmenu1.addItems(*);"))
            readItem(line, false);
        else if (matchesPattern(line, "qlmenu1.addImages(*);"))
            readItem(line, true);
    }

    std::vector<ImportWarning> takeWarnings() { return std::move(m_warnings); }

  private:
    bool isTopLevel() const { return m_menuId == kTopLevelMenuId; }

    void openMenu(std::string_view id) {
        m_menuId = id;
        m_itemNumber = 0;
        m_menuNode = isTopLevel() ? nullptr : m_content.tree.find(LoadedMenuKey(m_menuId));
    }

    void openMainMenu(std::string_view line) {
        openMenu(kTopLevelMenuId);
        PieceCutter pieces(line, '\'');
        std::string_view orientation;
        NextArgument(pieces, orientation);
        m_content.RootMenuProp.Columns = orientation == "horizontal" ? "20" : "1";
        ReadLook(pieces, m_content.RootMenuProp);
    }

    void openSubmenu(std::string_view line) {
        PieceCutter pieces(line, '\'');
        std::string_view id;
        NextArgument(pieces, id);
        openMenu(id);
        // A submenu that no item opens is no warning by itself: what is put into it is. That holds
        // for the id "0" too, though what follows goes to the top-level menu.
        if (!m_menuNode)
            return;
        MenuProp& menu = m_menuNode->item.MenuProperty.edit();
        menu.Columns = "1";
        ReadLook(pieces, menu);
    }

    void readProperty(std::string_view line) {
        if (isTopLevel())
            m_content.RootMenuProp.SetProperty(GetPropName(line), GetPropValue(line));
        else if (m_menuNode)
            m_menuNode->item.MenuProperty.edit().SetProperty(GetPropName(line), GetPropValue(line));
        else
            warn(Reason::UnknownMenu);
    }

    /// An item that is refused keeps its numbers all the same: the ids of the submenus that follow
    /// count it.
    void readItem(std::string_view line, bool isRollover) {
        ++m_itemNumber;
        const bool isFull = m_content.ItemCounter == kMaxItemCounter;
        if (!isFull)
            ++m_content.ItemCounter;
        if (!isTopLevel() && !m_menuNode)
            warn(Reason::UnknownMenu);
        else if (isFull)
            warn(Reason::TooManyItems);
        else
            addItem(line, isRollover);
    }

    void addItem(std::string_view line, bool isRollover) {
        ItemProp item;
        item.MenuProperty = NewItemMenuProp();
        if (isRollover)
            item.Set_ImageProperty(line);
        else
            item.Set_ItemProperty(line);
        std::string text = isRollover ? item.ImageOut : item.Caption;
        if (!m_content.tree.append(m_menuNode, LoadedItemKey(m_menuId, m_itemNumber),
                                   std::move(text), std::move(item)))
            warn(Reason::DuplicateKey);
    }

    void warn(Reason reason) { m_warnings.push_back({m_lineNumber, reason}); }

    MenuContent& m_content;
    std::vector<ImportWarning> m_warnings;
    std::size_t m_lineNumber = 0;
    std::string m_menuId;            ///< menu of the last creation line; empty before the first
    MenuNode* m_menuNode = nullptr;  ///< item that menu opens from; null when there is none
    std::size_t m_itemNumber = 0;    ///< item lines of that menu so far
};

}  // namespace

std::vector<ImportWarning> ReadQuillmenu(DefinitionLines& lines, MenuContent& content) {
    QuillmenuReader reader(content);
    std::string_view line;
    while (lines.next(line))
        reader.readLine(line, lines.number());
    return reader.takeWarnings();
}

}  // namespace zev
