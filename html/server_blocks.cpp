// SPDX-License-Identifier: MIT
#include "html/server_blocks.h"

#include <algorithm>

#include "text/ascii.h"

namespace zev {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

}  // namespace

/// The offset after the next such mark, or npos.
std::size_t ServerBlocks::after(EndMark& mark, std::size_t from) const {
    if (from >= mark.absentFrom)
        return kNone;
    const std::size_t found = m_page.find(mark.spelling, from);
    if (found == kNone) {
        mark.absentFrom = from;
        return kNone;
    }
    return found + mark.spelling.size();
}

std::size_t ServerBlocks::endOfQuestion(std::size_t lessThan) {
    const std::size_t content = lessThan + 2;
    // Word processors write <?xml:namespace ... /> without "?>": looking further for one could
    // swallow half a page. An XML declaration holds no "<".
    if (equalsIgnoringCase(m_page.substr(content, 3), "xml")) {
        const std::string_view declaration =
            m_page.substr(content, m_page.find('<', content) - content);
        const std::size_t close = declaration.find("?>");
        return close == kNone ? lessThan : content + close + 2;
    }
    const std::size_t end = after(m_questionEnd, content);
    return end == kNone ? lessThan : end;
}

std::size_t ServerBlocks::endOfPercent(std::size_t lessThan) {
    const std::size_t content = lessThan + 2;
    if (m_page.substr(content, 2) == "--") {
        const std::size_t end = after(m_percentCommentEnd, content + 2);
        if (end != kNone)
            return end;
    }
    const std::size_t end = after(m_percentEnd, content);
    return end == kNone ? lessThan : end;
}

std::size_t ServerBlocks::endOfComment(std::size_t lessThan) {
    if (!m_arePaired) {
        pairComments(lessThan);
        m_arePaired = true;
    }
    // Whoever reads a page asks in its order: then it is the comment asked for last or the next.
    for (int i = 0; i < 2 && m_nextComment < m_comments.size(); ++i, ++m_nextComment)
        if (m_comments[m_nextComment].begin == lessThan)
            return m_comments[m_nextComment].end;
    const auto found = std::lower_bound(
        m_comments.begin(), m_comments.end(), lessThan,
        [](const Comment& comment, std::size_t offset) { return comment.begin < offset; });
    m_nextComment = static_cast<std::size_t>(found - m_comments.begin());
    return found != m_comments.end() && found->begin == lessThan ? found->end : lessThan;
}

/// Pairs every "<!---" from offset `first` on with its "--->".
///
/// Many an ordinary page opens a comment with three dashes and closes it with two, or the other way
/// round. So that such a comment swallows nothing, ordinary comments are paired too: the "--->" of
///
///     <!--- one --> <body> <!-- two --->
///
/// is taken by the second comment, the first is left without an end and thus is no block.
void ServerBlocks::pairComments(std::size_t first) {
    std::vector<std::size_t> open;  // indexes in m_comments; npos for an ordinary comment
    for (std::size_t dashes = m_page.find("--", first); dashes != kNone;) {
        const std::size_t end = std::min(m_page.find_first_not_of('-', dashes), m_page.size());
        const bool isThree = end - dashes > 2;
        const bool isOpening = dashes >= 2 && m_page.substr(dashes - 2, 2) == "<!";
        const bool isClosing = end < m_page.size() && m_page[end] == '>';
        if (isOpening && !isClosing) {
            open.push_back(isThree ? m_comments.size() : kNone);
            if (isThree)
                m_comments.push_back({dashes - 2, dashes - 2});
        } else if (isClosing && !isOpening && !open.empty() && (isThree || open.back() == kNone)) {
            if (open.back() != kNone)
                m_comments[open.back()].end = end + 1;
            open.pop_back();
        }
        dashes = m_page.find("--", end);
    }
}

}  // namespace zev
