// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace zev {

/// Something in a page that the person should know of.
struct PageNote {
    enum class Kind {
        SeveralMenus,     ///< more than one menu is placed in the page; only the first was replaced
        LeftOutOfMenu,    ///< stood in a placed menu beside the program's code, and is gone
        ElementReplaced,  ///< an element that a placed menu stands instead of; it does not come
                          ///< back
        ScriptDropped,    ///< only the end tag is left of a script; it does not come back
        QuotesStay,       ///< around a handler; integration may have put them there
        Handwritten,      ///< code for a menu that this program did not put in; it stays
        OwnCall,          ///< draws the menu, by hand; it stays, and no second one is placed
    };
    Kind kind = Kind::Handwritten;
    std::size_t line = 0;  ///< of the page before the change, counted from 1
    std::string text;      ///< what it is about, in the page's own bytes; may be empty
    bool operator==(const PageNote&) const = default;
};

/// Tells the lines of offsets that are asked for in the order of the page.
class LineCounter {
  public:
    /// The page's bytes are not owned and must outlive this object.
    explicit LineCounter(std::string_view page) : m_page(page) {}

    /// Counted from 1. CR LF, CR and LF end a line.
    std::size_t lineAt(std::size_t offset) {
        for (; m_done < offset; ++m_done) {
            const bool isCrOfCrLf =
                m_page[m_done] == '\r' && m_done + 1 < m_page.size() && m_page[m_done + 1] == '\n';
            if (m_page[m_done] == '\n' || (m_page[m_done] == '\r' && !isCrOfCrLf))
                ++m_line;
        }
        return m_line;
    }

  private:
    std::string_view m_page;
    std::size_t m_done = 0;
    std::size_t m_line = 1;
};

}  // namespace zev
