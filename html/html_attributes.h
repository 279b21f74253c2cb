// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "html/html_characters.h"
#include "html/html_vector.h"
#include "html/server_blocks.h"

namespace zev {

/// An attribute as it is spelled in a tag. Offsets count bytes of the page from 0.
///
///     onload = "init()"
///     |     |   |     |
///     |     |   |     valueEnd
///     |     |   valueBegin
///     |     nameEnd
///     nameBegin
struct HtmlAttribute {
    std::size_t nameBegin = 0;
    std::size_t nameEnd = 0;
    std::size_t valueBegin = 0;  ///< without a value: as `valueEnd`, where one would have to stand
    std::size_t valueEnd = 0;
    bool hasEqualsSign = false;
    char quote = '\0';  ///< around the value: " or ', or NUL for none
};

/// Walks the attributes of a tag in their order, duplicates included. A block of server-side code
/// is part of the name or value it touches; one that stands before a name is passed over like white
/// space.
class HtmlAttributeReader {
  public:
    /// `page` and `blocks` (of the same page) are not owned and must outlive this object.
    /// `position` is the offset after the tag's name.
    HtmlAttributeReader(std::string_view page, ServerBlocks& blocks, std::size_t position)
        : m_page(page), m_blocks(blocks), m_position(position) {}

    /// Reads the next attribute; false when the tag has no more.
    bool next(HtmlAttribute& attribute);
    /// Where reading stands; after `next` gave false, at the tag's ">" or the page's end.
    std::size_t position() const { return m_position; }

  private:
    bool beforeAttributeNameState();
    void attributeNameState();
    bool afterAttributeNameState();
    void beforeAttributeValueState(HtmlAttribute& attribute);
    void attributeValueQuotedState(HtmlAttribute& attribute);
    void attributeValueUnquotedState(HtmlAttribute& attribute);
    bool isAtEnd() const { return m_position >= m_page.size(); }
    void skipSpace();
    void passUntil(unsigned ends);

    std::string_view m_page;
    ServerBlocks& m_blocks;
    std::size_t m_position;
};

// Every tag of a page goes through the states below: they are here so that the compiler can make
// one function of them and of whoever reads.

inline bool HtmlAttributeReader::next(HtmlAttribute& attribute) {
    if (!beforeAttributeNameState())
        return false;
    attribute.nameBegin = m_position;
    attributeNameState();
    attribute.nameEnd = m_position;
    attribute.quote = '\0';
    attribute.hasEqualsSign = afterAttributeNameState();
    if (attribute.hasEqualsSign) {
        beforeAttributeValueState(attribute);
    } else {
        attribute.valueBegin = attribute.nameEnd;
        attribute.valueEnd = attribute.nameEnd;
    }
    return true;
}

/// Goes to the next name; false when the tag ends before one.
inline bool HtmlAttributeReader::beforeAttributeNameState() {
    for (; !isAtEnd(); ++m_position) {
        const char character = m_page[m_position];
        if (character == '>')
            return false;
        if (isHtmlSpace(character) || character == '/')
            continue;
        if (character != '<')
            return true;
        const std::size_t end = m_blocks.endOf(m_position);
        // A block that stands for a name ends at the equals sign.
        if (end == m_position || (end < m_page.size() && m_page[end] == '='))
            return true;
        m_position = end - 1;
    }
    return false;
}

inline void HtmlAttributeReader::attributeNameState() {
    // An equals sign that comes first is part of the name.
    if (m_page[m_position] == '=')
        ++m_position;
    passUntil(html_character::kEqualsSign | html_character::kGreaterThan | html_character::kSlash |
              html_character::kSpace);
}

/// True when an equals sign follows; it is passed then.
inline bool HtmlAttributeReader::afterAttributeNameState() {
    skipSpace();
    if (isAtEnd() || m_page[m_position] != '=')
        return false;
    ++m_position;
    return true;
}

inline void HtmlAttributeReader::beforeAttributeValueState(HtmlAttribute& attribute) {
    skipSpace();
    if (!isAtEnd() && (m_page[m_position] == '"' || m_page[m_position] == '\'')) {
        attribute.quote = m_page[m_position];
        ++m_position;
        attributeValueQuotedState(attribute);
    } else {
        attributeValueUnquotedState(attribute);
    }
}

inline void HtmlAttributeReader::attributeValueQuotedState(HtmlAttribute& attribute) {
    attribute.valueBegin = m_position;
    m_position = findEither(m_page, m_position, attribute.quote, '<');
    while (!isAtEnd() && m_page[m_position] == '<')
        m_position = findEither(m_page, std::max(m_position + 1, m_blocks.endOf(m_position)),
                                attribute.quote, '<');
    attribute.valueEnd = m_position;
    if (!isAtEnd())
        ++m_position;
}

inline void HtmlAttributeReader::attributeValueUnquotedState(HtmlAttribute& attribute) {
    attribute.valueBegin = m_position;
    passUntil(html_character::kGreaterThan | html_character::kSpace);
    attribute.valueEnd = m_position;
}

inline void HtmlAttributeReader::skipSpace() {
    while (!isAtEnd() && isHtmlSpace(m_page[m_position]))
        ++m_position;
}

/// Goes to the next such character outside of blocks, or to the page's end.
inline void HtmlAttributeReader::passUntil(unsigned ends) {
    ends |= html_character::kLessThan;
    for (;;) {
        m_position = findHtmlCharacter(m_page, m_position, ends);
        if (isAtEnd() || m_page[m_position] != '<')
            return;
        m_position = std::max(m_position + 1, m_blocks.endOf(m_position));
    }
}

}  // namespace zev
