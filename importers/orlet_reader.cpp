// SPDX-License-Identifier: MIT
#include "importers/orlet_reader.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "model/text_rules.h"
#include "script/loaded_keys.h"
#include "text/piece_cutter.h"

namespace zev {

namespace {

using Reason = LineWarning::Reason;

bool isLeftOut(std::string_view field) {
    return field == "~";
}

void readLink(PieceCutter& fields, std::string& member) {
    std::string_view field;
    if (fields.next(field) && !isLeftOut(field))
        member = StripQuotes(EscapeApostrophes(field), 0);
}

void readImage(PieceCutter& fields, std::string& caption) {
    std::string_view image;
    if (fields.next(image) && !isLeftOut(image))
        caption += " <img src=\"" + EscapeApostrophes(image) + "\" border=\"0\">";
}

ItemProp readItem(PieceCutter fields, bool hasImage) {
    ItemProp item;
    item.MenuProperty = newItemMenuProp();
    std::string_view caption;
    fields.next(caption);
    item.Caption = EscapeApostrophes(caption);
    if (hasImage)
        readImage(fields, item.Caption);
    readLink(fields, item.URL);
    readLink(fields, item.Target);
    return item;
}

/// Places the items of one file in a new menu, each relative to the one placed before it.
class OrletReader {
  public:
    OrletReader(DefinitionLines& lines, OrletTopLevel topLevel, MenuContent& content)
        : m_lines(lines), m_topLevel(topLevel), m_content(content) {}

    std::vector<LineWarning> read() {
        std::string_view line;
        while (m_lines.next(line))
            readLine(line);
        return std::move(m_warnings);
    }

  private:
    void readLine(std::string_view line) {
        const std::size_t level = std::min(line.find_first_not_of(':'), line.size());
        if (level == 0)
            return;
        // A climb past the top is refused before it is made: it would take time for every such
        // line.
        const std::size_t climb = m_level > level ? m_level - level : 0;
        if (climb > m_depth)
            warn(Reason::AboveTop);
        else if (m_content.ItemCounter == kMaxItemCounter)
            warn(Reason::TooManyItems);
        else
            addItem(parentOf(level, climb), level, line.substr(level));
    }

    /// The parent of the item of the current line, and its depth into `m_depth`. However much
    /// deeper than the item before it a line is, its item is placed one level deeper.
    const MenuNode* parentOf(std::size_t level, std::size_t climb) {
        if (!m_previous) {
            if (level > 1)
                warn(Reason::StartsDeep);
            return nullptr;
        }
        if (level > m_level) {
            ++m_depth;
            return m_previous;
        }
        m_depth -= climb;
        const MenuNode* sibling = m_previous;
        for (; climb > 0; --climb)
            sibling = sibling->parent();
        return sibling->parent();
    }

    /// The item placed before it has no later sibling and no child yet, nor has any item it lies in
    /// a later sibling: every place is the last of its parent.
    void addItem(const MenuNode* parent, std::size_t level, std::string_view fields) {
        const bool hasImage = level == 1 && m_topLevel == OrletTopLevel::ImageBar;
        ItemProp item = readItem(PieceCutter(fields, '|'), hasImage);
        // The number is new at every item, so the key is never taken.
        ++m_content.ItemCounter;
        std::string key =
            loadedItemKey(kTopLevelMenuId, static_cast<std::size_t>(m_content.ItemCounter));
        std::string text = item.Caption;
        m_previous =
            m_content.tree.append(parent, std::move(key), std::move(text), std::move(item));
        m_level = level;
    }

    void warn(Reason reason) { m_warnings.push_back({m_lines.number(), reason}); }

    DefinitionLines& m_lines;
    OrletTopLevel m_topLevel;
    MenuContent& m_content;
    std::vector<LineWarning> m_warnings;
    const MenuNode* m_previous = nullptr;  ///< the item placed last; null before the first
    std::size_t m_level = 1;  ///< colons of that item's line; may be more than its depth
    std::size_t m_depth = 0;  ///< levels above that item in the tree
};

}  // namespace

std::vector<LineWarning> readOrlet(DefinitionLines& lines, OrletTopLevel topLevel,
                                   MenuContent& content) {
    if (topLevel == OrletTopLevel::List)
        content.RootMenuProp.Columns = "1";
    return OrletReader(lines, topLevel, content).read();
}

}  // namespace zev
