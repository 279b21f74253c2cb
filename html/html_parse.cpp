// SPDX-License-Identifier: MIT
#include "html/html_parse.h"

#include <algorithm>
#include <cstddef>

#include "html/html_attributes.h"
#include "html/html_characters.h"
#include "html/server_blocks.h"
#include "text/ascii.h"

namespace zev {

namespace {

/// Finds the first attribute of this name, in whatever case; false when there is none. `nameEnd`
/// is where the tag's name ends.
bool findHtmlAttribute(std::string_view tag, std::size_t nameEnd, std::string_view name,
                       HtmlAttribute& attribute) {
    ServerBlocks blocks(tag);
    HtmlAttributeReader reader(tag, blocks, nameEnd);
    while (reader.next(attribute))
        if (equalsIgnoringCase(
                tag.substr(attribute.nameBegin, attribute.nameEnd - attribute.nameBegin), name))
            return true;
    return false;
}

/// The value as it can stand between such quotes. Quotes in blocks of server-side code stay: they
/// are the code's, not the value's.
std::string quoted(std::string_view value, char quote) {
    std::string text(1, quote);
    ServerBlocks blocks(value);
    const unsigned kinds = htmlCharacter(quote) | html_character::kLessThan;
    std::size_t begin = 0;
    std::size_t end = findHtmlCharacter(value, 0, kinds);
    while (end < value.size()) {
        if (value[end] == '<') {
            end = std::max(end + 1, blocks.endOf(end));
        } else {
            text += value.substr(begin, end - begin);
            text += quote == '"' ? "&quot;" : "&#39;";
            begin = ++end;
        }
        end = findHtmlCharacter(value, end, kinds);
    }
    text += value.substr(begin);
    return text += quote;
}

std::string withChangedValue(std::string_view tagText, const HtmlAttribute& attribute,
                             std::string_view value) {
    const bool hasQuotes = attribute.quote != '\0';
    const std::size_t begin = attribute.valueBegin - (hasQuotes ? 1 : 0);
    // The page's end can cut the closing quote off.
    const std::size_t end = std::min(attribute.valueEnd + (hasQuotes ? 1 : 0), tagText.size());
    std::string text(tagText.substr(0, begin));
    if (!attribute.hasEqualsSign)
        text += '=';
    text += quoted(value, hasQuotes ? attribute.quote : '"');
    return text += tagText.substr(end);
}

std::string withAddedAttribute(std::string_view tagText, std::size_t nameEnd, std::string_view name,
                               std::string_view value) {
    HtmlAttribute last;
    ServerBlocks blocks(tagText);
    HtmlAttributeReader reader(tagText, blocks, nameEnd);
    std::size_t lastEnd = nameEnd;
    while (reader.next(last))
        lastEnd = reader.position();
    // A "/" that ends an unquoted value does not close the tag.
    const bool hasSlash = tagText.size() > lastEnd && tagText.back() == '/';
    const std::size_t place = tagText.size() - (hasSlash ? 1 : 0);
    std::string text(tagText.substr(0, place));
    if (lastEnd > nameEnd && last.hasEqualsSign && last.quote == '\0' &&
        last.valueBegin == last.valueEnd)
        text += "\"\"";  // an equals sign without a value would take the new attribute for it
    if (!isHtmlSpace(text.back()))
        text += ' ';
    text += name;
    text += '=';
    text += quoted(value, '"');
    return text += tagText.substr(place);
}

}  // namespace

void HtmlParse::Load(std::string_view page, HtmlTokens tokens) {
    Close();
    m_passesOrdinary = tokens == HtmlTokens::Notable;
    m_tokenizer.emplace(page);
    if (!m_tokenizer->isAtEnd())
        readBatch();
}

std::string_view HtmlParse::TagText() const {
    return m_changed == m_current ? std::string_view(m_changedText) : m_current->inside;
}

std::string_view HtmlParse::Attribute(std::string_view name) const {
    HtmlAttribute attribute;
    if (!isElementTag() || !findHtmlAttribute(TagText(), nameEnd(), name, attribute))
        return {};
    return TagText().substr(attribute.valueBegin, attribute.valueEnd - attribute.valueBegin);
}

bool HtmlParse::hasAttribute(std::string_view name) const {
    HtmlAttribute attribute;
    return isElementTag() && findHtmlAttribute(TagText(), nameEnd(), name, attribute);
}

void HtmlParse::SetAttribute(std::string_view name, std::string_view value) {
    if (!isElementTag())
        return;
    HtmlAttribute attribute;
    m_changedText = findHtmlAttribute(TagText(), nameEnd(), name, attribute)
                        ? withChangedValue(TagText(), attribute, value)
                        : withAddedAttribute(TagText(), nameEnd(), name, value);
    m_changed = m_current;
}

void HtmlParse::readBatch() {
    std::size_t count = 0;
    do {
        if (m_passesOrdinary)
            m_tokenizer->passOrdinary();
    } while (m_tokenizer->next(m_batch[count]) && ++count < m_batch.size());
    m_current = m_batch.data();
    m_batchEnd = m_current + count;
    m_last = m_tokenizer->isAtEnd() ? m_batchEnd - 1 : nullptr;
    m_changed = nullptr;
}

/// Comments and text have no attributes.
bool HtmlParse::isElementTag() const {
    return m_current->kind == HtmlToken::Kind::StartTag ||
           m_current->kind == HtmlToken::Kind::EndTag;
}

std::string_view HtmlParse::lowerCaseName() const {
    m_lowerCaseName.clear();
    for (const char character : m_current->name)
        m_lowerCaseName += asciiLower(character);
    return m_lowerCaseName;
}

void HtmlParse::Close() {
    m_tokenizer.reset();
    m_batch[0] = {};
    m_current = m_last = m_batch.data();
    m_changed = nullptr;
}

}  // namespace zev
