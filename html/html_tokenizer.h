// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "html/html_attributes.h"
#include "html/html_characters.h"
#include "html/html_token.h"
#include "html/server_blocks.h"
#include "text/ascii.h"

namespace zev {

/// True for elements that hold nothing but text up to their end tag; the name's case does not
/// matter.
bool hasRawContent(std::string_view elementName);

/// Cuts a page into tokens, in one pass and without memory of its own for a token. The tokens'
/// sources joined are the page. A page that begins with a UTF-16 byte order mark is all text.
class HtmlTokenizer {
  public:
    /// The page's bytes are not owned and must outlive this object and its tokens.
    explicit HtmlTokenizer(std::string_view page);

    /// Reads the next token; false at the end of the page.
    bool next(HtmlToken& token);
    /// Passes over text and ordinary tags, as long as that takes little more than a glance at each.
    /// What comes next is any other token, or the page's last one. Ordinary are all tags but those
    /// of head, of body, and of elements that hold nothing but text.
    void passOrdinary();
    bool isAtEnd() const { return m_position == m_page.size(); }

  private:
    // Each state reads the token that begins at m_position and leaves m_position after it.
    void rawTextState(HtmlToken& token);
    void dataState(HtmlToken& token);
    void tagOpenState(HtmlToken& token);
    void tagNameState(HtmlToken& token, std::size_t position);
    void afterStartTagState(HtmlToken& token);
    void noTagState(HtmlToken& token);
    void markupDeclarationOpenState(HtmlToken& token);
    void commentStartState(HtmlToken& token);
    void processingInstructionState(HtmlToken& token);
    void bogusCommentState(HtmlToken& token, std::size_t textBegin);

    // These look from an offset on and give the offset where what they name ends.
    std::size_t endOfRawText(std::size_t position, std::string_view element);
    std::size_t scriptDataEscapedState(std::size_t position);

    std::size_t attributesEnd(std::size_t position);
    std::size_t endOfOrdinary(std::size_t position);
    std::size_t endOfAttributes(std::size_t position);
    bool isMarkup(std::size_t position);
    static bool mayHaveRawContent(std::string_view name);
    bool isTagOf(std::size_t nameBegin, std::string_view element) const;
    bool isEndTagOf(std::size_t lessThan, std::string_view element) const;
    std::size_t find(char character, std::size_t from) const;
    std::size_t findCommentEnd(std::size_t from) const;
    template <typename FindEnd>
    std::size_t findOutsideBlocks(std::size_t from, FindEnd findEnd);
    std::string_view slice(std::size_t begin, std::size_t end) const;
    void takeText(HtmlToken& token, std::size_t end);
    void takeMarkup(HtmlToken& token, std::size_t insideEnd);

    std::string_view m_page;
    ServerBlocks m_blocks;
    std::size_t m_position = 0;
    std::string_view m_rawElement;  // whose content comes next
};

// Nearly every token of a page goes through the states below: they are here so that the compiler
// can make one loop of them and of whoever reads. The rarer ones are functions of their own.

inline bool HtmlTokenizer::next(HtmlToken& token) {
    if (isAtEnd())
        return false;
    token.offset = m_position;
    if (m_rawElement.empty())
        dataState(token);
    else
        rawTextState(token);
    return true;
}

inline void HtmlTokenizer::dataState(HtmlToken& token) {
    if (isMarkup(m_position)) {
        tagOpenState(token);
        return;
    }
    std::size_t end = m_position;
    do {
        end = find('<', end + 1);
    } while (end < m_page.size() && !isMarkup(end));
    takeText(token, end);
}

inline void HtmlTokenizer::tagOpenState(HtmlToken& token) {
    const bool isEndTag = m_page[m_position + 1] == '/';
    const std::size_t nameBegin = m_position + (isEndTag ? 2 : 1);
    if (nameBegin < m_page.size() && isAsciiLetter(m_page[nameBegin])) {
        token.kind = isEndTag ? HtmlToken::Kind::EndTag : HtmlToken::Kind::StartTag;
        tagNameState(token, nameBegin);
    } else {
        noTagState(token);
    }
}

/// Goes on from the name's first letter to the end of the tag.
inline void HtmlTokenizer::tagNameState(HtmlToken& token, std::size_t position) {
    using namespace html_character;
    unsigned seen = 0;
    for (; position < m_page.size(); ++position) {
        const unsigned character = htmlCharacter(m_page[position]);
        if ((character & (kGreaterThan | kSlash | kSpace | kLessThan)) != 0 &&
            (character != kLessThan || m_blocks.endOf(position) != position))
            break;
        seen |= character;
    }
    token.name = slice(m_position + 1, position);
    token.hasUpperCase = (seen & kUpperCase) != 0;
    token.text = {};
    if (position < m_page.size() && m_page[position] == '>')
        takeMarkup(token, position);
    else
        takeMarkup(token, attributesEnd(position));
    if (token.kind == HtmlToken::Kind::StartTag && mayHaveRawContent(token.name))
        afterStartTagState(token);
}

/// The offset of the ">" after the attributes; the page's size without one.
inline std::size_t HtmlTokenizer::attributesEnd(std::size_t position) {
    HtmlAttributeReader attributes(m_page, m_blocks, position);
    HtmlAttribute attribute;
    while (attributes.next(attribute)) {
    }
    return attributes.position();
}

/// Whether a "<" that is no text stands here.
inline bool HtmlTokenizer::isMarkup(std::size_t position) {
    const std::size_t next = position + 1;
    if (m_page[position] != '<' || next >= m_page.size())
        return false;
    if ((htmlCharacter(m_page[next]) & html_character::kMarkupStart) != 0)
        return true;
    return m_page[next] == '/' ? next + 1 < m_page.size() : m_blocks.endOf(position) != position;
}

/// Rules most elements out by what is quickly looked at.
inline bool HtmlTokenizer::mayHaveRawContent(std::string_view name) {
    return name.size() > 2 && name.size() != 4 &&
           (htmlCharacter(name.front()) & html_character::kRawInitial) != 0;
}

/// The offset of the next such character; the page's size without one.
inline std::size_t HtmlTokenizer::find(char character, std::size_t from) const {
    return std::min(m_page.find(character, from), m_page.size());
}

inline std::string_view HtmlTokenizer::slice(std::size_t begin, std::size_t end) const {
    return {m_page.data() + begin, end - begin};
}

inline void HtmlTokenizer::takeText(HtmlToken& token, std::size_t end) {
    token.kind = HtmlToken::Kind::Text;
    token.hasUpperCase = false;
    const std::string_view text = slice(m_position, end);
    token.source = text;
    token.text = text;
    token.inside = {};
    token.name = {};
    m_position = end;
}

/// `insideEnd` is the offset of the ">" or, where it is missing, the page's size.
inline void HtmlTokenizer::takeMarkup(HtmlToken& token, std::size_t insideEnd) {
    const std::size_t end = std::min(insideEnd + 1, m_page.size());
    token.inside = slice(m_position + 1, insideEnd);
    token.source = slice(m_position, end);
    m_position = end;
}

}  // namespace zev
