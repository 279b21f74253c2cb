#include "platform/html/html_attributes.h"

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
    do {
        skipCharacterOrBlock();
    } while (!isAtEnd() && m_page[m_position] != '=' && m_page[m_position] != '>' &&
             m_page[m_position] != '/' && !isHtmlSpace(m_page[m_position]));
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
    while (!isAtEnd() && m_page[m_position] != attribute.quote) {
        skipCharacterOrBlock();
    }
    attribute.valueEnd = m_position;
    if (!isAtEnd()) {
        ++m_position;
    }
}

void HtmlAttributeReader::attributeValueUnquotedState(HtmlAttribute& attribute) {
    attribute.valueBegin = m_position;
    while (!isAtEnd() && m_page[m_position] != '>' && !isHtmlSpace(m_page[m_position])) {
        skipCharacterOrBlock();
    }
    attribute.valueEnd = m_position;
}

void HtmlAttributeReader::skipSpace() {
    while (!isAtEnd() && isHtmlSpace(m_page[m_position])) {
        ++m_position;
    }
}

void HtmlAttributeReader::skipCharacterOrBlock() {
    const std::size_t end = m_page[m_position] == '<' ? m_blocks.endOf(m_position) : m_position;
    m_position = end == m_position ? m_position + 1 : end;
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
