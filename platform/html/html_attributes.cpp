#include "platform/html/html_attributes.h"

#include <algorithm>

#include "platform/html/html_characters.h"

namespace zev {

bool HtmlAttributeReader::next(HtmlAttribute& attribute) {
    if (!beforeAttributeNameState()) {
        return false;
    }
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
bool HtmlAttributeReader::beforeAttributeNameState() {
    for (; !isAtEnd(); ++m_position) {
        const char character = m_page[m_position];
        if (character == '>') {
            return false;
        }
        if (isHtmlSpace(character) || character == '/') {
            continue;
        }
        if (character != '<') {
            return true;
        }
        const std::size_t end = m_blocks.endOf(m_position);
        // A block that stands for a name ends at the equals sign.
        if (end == m_position || (end < m_page.size() && m_page[end] == '=')) {
            return true;
        }
        m_position = end - 1;
    }
    return false;
}

void HtmlAttributeReader::attributeNameState() {
    // An equals sign that comes first is part of the name.
    if (m_page[m_position] == '=') {
        ++m_position;
    }
    passUntil([](char character) {
        return character == '=' || character == '>' || character == '/' || isHtmlSpace(character);
    });
}

/// True when an equals sign follows; it is passed then.
bool HtmlAttributeReader::afterAttributeNameState() {
    skipSpace();
    if (isAtEnd() || m_page[m_position] != '=') {
        return false;
    }
    ++m_position;
    return true;
}

void HtmlAttributeReader::beforeAttributeValueState(HtmlAttribute& attribute) {
    skipSpace();
    if (!isAtEnd() && (m_page[m_position] == '"' || m_page[m_position] == '\'')) {
        attribute.quote = m_page[m_position];
        ++m_position;
        attributeValueQuotedState(attribute);
    } else {
        attributeValueUnquotedState(attribute);
    }
}

void HtmlAttributeReader::attributeValueQuotedState(HtmlAttribute& attribute) {
    attribute.valueBegin = m_position;
    passUntil([quote = attribute.quote](char character) { return character == quote; });
    attribute.valueEnd = m_position;
    if (!isAtEnd()) {
        ++m_position;
    }
}

void HtmlAttributeReader::attributeValueUnquotedState(HtmlAttribute& attribute) {
    attribute.valueBegin = m_position;
    passUntil([](char character) { return character == '>' || isHtmlSpace(character); });
    attribute.valueEnd = m_position;
}

void HtmlAttributeReader::skipSpace() {
    while (!isAtEnd() && isHtmlSpace(m_page[m_position])) {
        ++m_position;
    }
}

/// Goes to the next character outside of blocks for which `isEnd` is true, or to the page's end.
template <typename IsEnd>
void HtmlAttributeReader::passUntil(IsEnd isEnd) {
    std::size_t position = m_position;  // a local one stays in a register
    while (position < m_page.size() && !isEnd(m_page[position])) {
        const std::size_t blockEnd = m_page[position] == '<' ? m_blocks.endOf(position) : position;
        position = std::max(position + 1, blockEnd);
    }
    m_position = position;
}

bool findHtmlAttribute(std::string_view tag, std::size_t position, std::string_view name,
                       HtmlAttribute& attribute) {
    ServerBlocks blocks(tag);
    HtmlAttributeReader reader(tag, blocks, position);
    while (reader.next(attribute)) {
        if (equalsIgnoringCase(
                tag.substr(attribute.nameBegin, attribute.nameEnd - attribute.nameBegin), name)) {
            return true;
        }
    }
    return false;
}

}  // namespace zev
