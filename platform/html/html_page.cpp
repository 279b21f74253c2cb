#include "platform/html/html_page.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

#include "platform/html/html_attributes.h"
#include "platform/html/html_characters.h"
#include "platform/html/server_blocks.h"

namespace zev {

namespace {

/// The value as it can stand between such quotes. Quotes in blocks of server-side code stay: they
/// are the code's, not the value's.
std::string quoted(std::string_view value, char quote) {
    std::string text(1, quote);
    ServerBlocks blocks(value);
    for (std::size_t i = 0; i < value.size();) {
        const std::size_t blockEnd = value[i] == '<' ? blocks.endOf(i) : i;
        if (blockEnd != i) {
            text += value.substr(i, blockEnd - i);
            i = blockEnd;
            continue;
        }
        if (value[i] == quote) {
            text += quote == '"' ? "&quot;" : "&#39;";
        } else {
            text += value[i];
        }
        ++i;
    }
    return text += quote;
}

std::string withChangedValue(std::string_view tagText, const HtmlAttribute& attribute,
                             std::string_view value) {
    const bool hasQuotes = attribute.quote != '\0';
    const std::size_t begin = attribute.valueBegin - (hasQuotes ? 1 : 0);
    // The page's end can cut the closing quote off.
    const std::size_t end = std::min(attribute.valueEnd + (hasQuotes ? 1 : 0), tagText.size());
    std::string text(tagText.substr(0, begin));
    if (!attribute.hasEqualsSign) {
        text += '=';
    }
    text += quoted(value, hasQuotes ? attribute.quote : '"');
    return text += tagText.substr(end);
}

std::string withAddedAttribute(std::string_view tagText, std::size_t nameEnd, std::string_view name,
                               std::string_view value) {
    HtmlAttribute last;
    ServerBlocks blocks(tagText);
    HtmlAttributeReader reader(tagText, blocks, nameEnd);
    std::size_t lastEnd = nameEnd;
    while (reader.next(last)) {
        lastEnd = reader.position();
    }
    // A "/" that ends an unquoted value does not close the tag.
    const bool hasSlash = tagText.size() > lastEnd && tagText.back() == '/';
    const std::size_t place = tagText.size() - (hasSlash ? 1 : 0);
    std::string text(tagText.substr(0, place));
    if (lastEnd > nameEnd && last.hasEqualsSign && last.quote == '\0' &&
        last.valueBegin == last.valueEnd) {
        text += "\"\"";  // an equals sign without a value would take the new attribute for it
    }
    if (!isHtmlSpace(text.back())) {
        text += ' ';
    }
    text += name;
    text += '=';
    text += quoted(value, '"');
    return text += tagText.substr(place);
}

}  // namespace

FileOutcome HtmlPage::LoadFile(const std::string& path) {
    Close();
    m_file.emplace(m_files.readFile(path, std::numeric_limits<std::uint64_t>::max()));
    if (!m_file->isOk()) {
        FileError error = m_file->error();
        Close();
        return error;
    }
    m_tokenizer.emplace(m_file->value());
    Next();
    return {};
}

bool HtmlPage::IsLast() const {
    return !m_tokenizer || m_tokenizer->isAtEnd();
}

bool HtmlPage::IsTag() const {
    return !m_name.empty();
}

std::string_view HtmlPage::TagText() const {
    return m_changedText ? *m_changedText : m_token.inside;
}

std::string_view HtmlPage::Attribute(std::string_view name) const {
    HtmlAttribute attribute;
    if (m_token.name.empty() || !findHtmlAttribute(TagText(), nameEnd(), name, attribute)) {
        return {};
    }
    return TagText().substr(attribute.valueBegin, attribute.valueEnd - attribute.valueBegin);
}

void HtmlPage::SetAttribute(std::string_view name, std::string_view value) {
    if (m_token.name.empty()) {
        return;
    }
    HtmlAttribute attribute;
    m_changedText = findHtmlAttribute(TagText(), nameEnd(), name, attribute)
                        ? withChangedValue(TagText(), attribute, value)
                        : withAddedAttribute(TagText(), nameEnd(), name, value);
}

void HtmlPage::Next() {
    if (IsLast()) {
        return;
    }
    m_tokenizer->next(m_token);
    m_changedText.reset();
    setName();
}

void HtmlPage::Close() {
    m_tokenizer.reset();
    m_file.reset();
    m_token = {};
    m_name = {};
    m_changedText.reset();
}

void HtmlPage::setName() {
    if (m_token.kind == HtmlToken::Kind::Text) {
        m_name = {};
        return;
    }
    if (m_token.kind == HtmlToken::Kind::Comment) {
        m_name = "!";
        return;
    }
    m_name = m_token.inside.substr(0, nameEnd());
    if (std::any_of(m_name.begin(), m_name.end(), isAsciiUpper)) {
        m_lowerCaseName.resize(m_name.size());
        std::transform(m_name.begin(), m_name.end(), m_lowerCaseName.begin(), asciiLower);
        m_name = m_lowerCaseName;
    }
}

/// Of a tag: where its attributes begin in its text.
std::size_t HtmlPage::nameEnd() const {
    const std::size_t slash = m_token.kind == HtmlToken::Kind::EndTag ? 1 : 0;
    return slash + m_token.name.size();
}

}  // namespace zev
