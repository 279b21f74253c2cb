// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zev {

/// Finds where the blocks of server-side code in a page end. A block is opaque: nothing in it is
/// markup, not even a ">" or a quote.
///
///     <? ... ?>          <?xml ...: up to the first ">" when a "<" comes before the "?>"
///     <% ... %>          <%-- ... --%> when there is such an end
///     <!--- ... --->     may hold comments and further blocks of its kind
///
/// What has no end is no block. All look-ups together take time linear in the page's size.
class ServerBlocks {
  public:
    /// The page's bytes are not owned and must outlive this object. All offsets count bytes from 0.
    explicit ServerBlocks(std::string_view page) : m_page(page) {}

    /// `lessThan` is the offset of a "<". Gives the offset after the block that begins there, or
    /// `lessThan` when none does.
    std::size_t endOf(std::size_t lessThan) {
        const std::size_t next = lessThan + 1;
        if (next >= m_page.size())
            return lessThan;
        switch (m_page[next]) {
            case '?':
                return endOfQuestion(lessThan);
            case '%':
                return endOfPercent(lessThan);
            case '!':
                return m_page.substr(next).starts_with("!---") ? endOfComment(lessThan) : lessThan;
            default:
                return lessThan;
        }
    }

  private:
    /// A "<!---" and the offset after its "--->", or its own without one.
    struct Comment {
        std::size_t begin;
        std::size_t end;
    };

    /// A mark that ends blocks, and from where on the page is known to hold none.
    struct EndMark {
        std::string_view spelling;
        std::size_t absentFrom = std::string_view::npos;
    };

    std::size_t endOfQuestion(std::size_t lessThan);
    std::size_t endOfPercent(std::size_t lessThan);
    std::size_t endOfComment(std::size_t lessThan);
    std::size_t after(EndMark& mark, std::size_t from) const;
    void pairComments(std::size_t first);

    std::string_view m_page;
    EndMark m_questionEnd{"?>"};
    EndMark m_percentEnd{"%>"};
    EndMark m_percentCommentEnd{"--%>"};
    bool m_arePaired = false;
    std::vector<Comment> m_comments;  // in the order of the page, once paired
    std::size_t m_nextComment = 0;    // where the next look-up begins
};

}  // namespace zev
