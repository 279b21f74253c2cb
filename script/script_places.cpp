// SPDX-License-Identifier: MIT
#include "script/script_places.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "script/item_lines.h"
#include "script/property_lines.h"
#include "script/submenu_walk.h"

namespace zev {

namespace {

using Part = ScriptPlace::Part;

/// Goes through the parts of a script in their order until it has passed the line.
class PlaceFinder {
  public:
    explicit PlaceFinder(std::size_t line) : m_linesLeft(line) {}

    bool isFound() const { return m_linesLeft == 0; }
    const ScriptPlace& place() const { return m_place; }

    void passMenu(const MenuNode* node, const MenuProp& menu, const MenuProp& defaults,
                  std::span<const MenuNode* const> items) {
        pass(1, {Part::Menu, node});
        passText(GetText(menu, defaults), {Part::Menu, node});
        pass(1, {});
        for (const MenuNode* item : items) {
            if (isFound())
                return;
            passText(GetText(item->item), {Part::Item, item});
            pass(1, {Part::Item, item});
        }
        pass(1, {});
    }
    void passText(std::string_view text, const ScriptPlace& place) {
        pass(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')), place);
    }
    void pass(std::size_t lines, const ScriptPlace& place) {
        if (isFound())
            return;
        if (m_linesLeft <= lines)
            m_place = place;
        m_linesLeft -= std::min(lines, m_linesLeft);
    }

  private:
    std::size_t m_linesLeft;
    ScriptPlace m_place;
};

}  // namespace

ScriptPlace placeOfLine(const MenuContent& content, std::size_t line) {
    PlaceFinder finder(line);
    finder.passText(GetDefaultText(content.DefaultProp), {Part::Defaults});
    finder.pass(1, {});
    if (content.tree.isEmpty())
        return finder.place();
    finder.passMenu(nullptr, content.RootMenuProp, content.DefaultProp, content.tree.topLevel());
    SubmenuWalk walk(content.tree);
    while (const MenuNode* node = finder.isFound() ? nullptr : walk.next())
        finder.passMenu(node, *node->item.MenuProperty, content.DefaultProp, node->children());
    return finder.place();
}

}  // namespace zev
