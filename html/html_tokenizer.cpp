// SPDX-License-Identifier: MIT
#include "html/html_tokenizer.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "html/html_characters.h"
#include "html/html_vector.h"
#include "text/ascii.h"

namespace zev {

namespace {

constexpr std::string_view kScript = "script";
constexpr std::string_view kPlaintext = "plaintext";

/// Elements whose content is text up to their end tag; the script apart. `mayHaveRawContent` has to
/// let each of them pass.
constexpr std::array<std::string_view, 8> kRawElements = {
    "style", "title", "textarea", "xmp", "iframe", "noembed", "noframes", kPlaintext};

/// For each letter that the names of tags that are not ordinary begin with, in lower case, the
/// lengths of such names: a bit each. That rules nearly all others out.
constexpr std::array<std::uint16_t, 256> kNotableLengths = [] {
    std::array<std::uint16_t, 256> lengths{};
    const auto add = [&lengths](std::string_view name) {
        auto& entry = lengths[static_cast<unsigned char>(name.front())];
        entry = static_cast<std::uint16_t>(entry | 1U << name.size());
    };
    for (const std::string_view name : kRawElements)
        add(name);
    for (const std::string_view name :
         {kScript, std::string_view("head"), std::string_view("body")})
        add(name);
    return lengths;
}();

bool hasUtf16Mark(std::string_view page) {
    return page.starts_with("\xFF\xFE") || page.starts_with("\xFE\xFF");
}

}  // namespace

bool hasRawContent(std::string_view elementName) {
    return equalsIgnoringCase(elementName, kScript) ||
           std::any_of(
               kRawElements.begin(), kRawElements.end(),
               [&](std::string_view name) { return equalsIgnoringCase(elementName, name); });
}

HtmlTokenizer::HtmlTokenizer(std::string_view page)
    : m_page(page), m_blocks(page), m_rawElement(hasUtf16Mark(page) ? kPlaintext : "") {}

void HtmlTokenizer::passOrdinary() {
    if (!m_rawElement.empty())
        return;
    std::size_t last = m_position;
    while (m_position < m_page.size()) {
        const std::size_t end = endOfOrdinary(m_position);
        if (end == m_position)
            return;
        last = m_position;
        m_position = end;
    }
    m_position = last;
}

/// Where the text or ordinary tag ends that begins here. `position` itself when it may be something
/// else, and near the page's end.
std::size_t HtmlTokenizer::endOfOrdinary(std::size_t position) {
    if (m_page[position] != '<') {
        const std::size_t end = findEither(m_page, position, '<', '<');
        return end == m_page.size() || isMarkup(end) ? end : position;
    }
    if (position + 2 + kHtmlVectorBytes > m_page.size())
        return position;
    const std::size_t nameBegin = position + (m_page[position + 1] == '/' ? 2 : 1);
    if (!isAsciiLetter(m_page[nameBegin]))
        return position;
    const HtmlVector name = htmlVectorAt(m_page, nameBegin);
    const std::size_t length =
        firstInMask((name == '>') | (name == '/') | (name <= ' ') | (name == '<'));
    const unsigned notable =
        kNotableLengths[static_cast<unsigned char>(asciiLower(m_page[nameBegin]))];
    if (length == kHtmlVectorBytes || (notable >> length & 1U) != 0)
        return position;
    const std::size_t nameEnd = nameBegin + length;
    if (m_page[nameEnd] == '>')
        return nameEnd + 1;
    return m_page[nameEnd] == '/' || isHtmlSpace(m_page[nameEnd]) ? endOfAttributes(nameEnd)
                                                                  : position;
}

/// As `attributesEnd`, but after the ">", and quicker where all values are quoted.
std::size_t HtmlTokenizer::endOfAttributes(std::size_t position) {
    std::size_t attribute = position;
    while (position + kHtmlVectorBytes < m_page.size()) {
        const HtmlVector vector = htmlVectorAt(m_page, position);
        const std::size_t first = firstInMask((vector == '=') | (vector == '>') | (vector == '"') |
                                              (vector == '\'') | (vector == '<'));
        position += first;
        if (first == kHtmlVectorBytes)
            continue;
        if (m_page[position] == '>')
            return position + 1;
        // An equals sign that a name comes before, and a quote right after it.
        const char quote = m_page[position + 1];
        if (m_page[position] != '=' || (quote != '"' && quote != '\'') || position == attribute ||
            m_page[position - 1] == '/' || isHtmlSpace(m_page[position - 1]))
            break;
        const std::size_t valueEnd = findEither(m_page, position + 2, quote, '<');
        if (valueEnd == m_page.size() || m_page[valueEnd] == '<')
            break;
        position = attribute = valueEnd + 1;
    }
    return std::min(attributesEnd(attribute) + 1, m_page.size());
}

/// The content of an element that holds no markup, or what comes after it when there is none.
void HtmlTokenizer::rawTextState(HtmlToken& token) {
    const std::size_t end =
        m_rawElement == kPlaintext ? m_page.size() : endOfRawText(m_position, m_rawElement);
    m_rawElement = {};
    if (end > m_position)
        takeText(token, end);
    else
        dataState(token);
}

/// What "<" begins when it is neither a tag nor text.
void HtmlTokenizer::noTagState(HtmlToken& token) {
    token.kind = HtmlToken::Kind::Comment;
    token.name = "!";
    token.hasUpperCase = false;
    token.text = {};
    const std::size_t blockEnd = m_blocks.endOf(m_position);
    if (blockEnd != m_position) {
        // The text of a block stays empty: nobody is to look into it.
        takeMarkup(token, blockEnd - 1);
        return;
    }
    switch (m_page[m_position + 1]) {
        case '!':
            markupDeclarationOpenState(token);
            break;
        case '?':
            processingInstructionState(token);
            break;
        default:  // "</" before something else than a name
            bogusCommentState(token, m_position + 2);
    }
}

/// The content of an element that holds no markup: a script's goes with its start tag.
void HtmlTokenizer::afterStartTagState(HtmlToken& token) {
    if (equalsIgnoringCase(token.name, kScript)) {
        const std::size_t scriptEnd = endOfRawText(m_position, kScript);
        token.text = slice(m_position, scriptEnd);
        token.source = slice(token.offset, scriptEnd);
        m_position = scriptEnd;
        return;
    }
    const auto* const element =
        std::find_if(kRawElements.begin(), kRawElements.end(),
                     [&](std::string_view name) { return equalsIgnoringCase(token.name, name); });
    if (element != kRawElements.end())
        m_rawElement = *element;
}

void HtmlTokenizer::markupDeclarationOpenState(HtmlToken& token) {
    const std::size_t content = m_position + 2;
    if (m_page.substr(content).starts_with("--")) {
        commentStartState(token);
    } else {
        bogusCommentState(token, content);
        if (equalsIgnoringCase(m_page.substr(content, 7), "doctype"))
            token.text = {};
    }
}

void HtmlTokenizer::commentStartState(HtmlToken& token) {
    const std::size_t content = m_position + 4;
    const std::string_view start = m_page.substr(content, 2);
    if (start.starts_with(">") || start == "->") {
        takeMarkup(token, content + start.find('>'));
        return;
    }
    const std::size_t end =
        findOutsideBlocks(content, [this](std::size_t from) { return findCommentEnd(from); });
    token.text = slice(content, end);
    takeMarkup(token, find('>', end));
}

void HtmlTokenizer::processingInstructionState(HtmlToken& token) {
    // The last block of a page may lack its end. Only what can hardly be anything else is taken for
    // one: all the rest of the page is in it.
    const std::string_view start = m_page.substr(m_position + 2, 3);
    if (equalsIgnoringCase(start, "php") || start.starts_with('=') ||
        (!start.empty() && isHtmlSpace(start.front())))
        takeMarkup(token, m_page.size());
    else
        bogusCommentState(token, m_position + 1);
}

void HtmlTokenizer::bogusCommentState(HtmlToken& token, std::size_t textBegin) {
    const std::size_t end =
        findOutsideBlocks(textBegin, [this](std::size_t from) { return find('>', from); });
    token.text = slice(textBegin, end);
    takeMarkup(token, end);
}

/// The content of an element ends at its end tag; a script's escaped parts have rules of their own.
std::size_t HtmlTokenizer::endOfRawText(std::size_t position, std::string_view element) {
    std::size_t lessThan = find('<', position);
    while (lessThan < m_page.size() && !isEndTagOf(lessThan, element)) {
        const std::size_t blockEnd = m_blocks.endOf(lessThan);
        if (blockEnd != lessThan)
            position = blockEnd;
        else if (element == kScript && m_page.substr(lessThan, 4) == "<!--")
            position = scriptDataEscapedState(lessThan + 2);
        else
            position = lessThan + 1;
        lessThan = find('<', position);
    }
    return lessThan;
}

/// Where the escaped part that "<!--" opens is over: after its "-->", or at the script's end tag.
/// In it, a script element within the script has an end tag of its own.
std::size_t HtmlTokenizer::scriptDataEscapedState(std::size_t position) {
    bool isDoubleEscaped = false;
    std::size_t dashes = std::min(m_page.find("-->", position), m_page.size());
    for (;;) {
        const std::size_t lessThan = find('<', position);
        if (dashes < lessThan)
            return dashes + 3;
        if (lessThan == m_page.size())
            return lessThan;
        const std::size_t blockEnd = m_blocks.endOf(lessThan);
        position = blockEnd == lessThan ? lessThan + 1 : blockEnd;
        if (dashes < position)
            dashes = std::min(m_page.find("-->", position), m_page.size());
        if (isEndTagOf(lessThan, kScript)) {
            if (!isDoubleEscaped)
                return lessThan;
            isDoubleEscaped = false;
        } else if (isTagOf(lessThan + 1, kScript)) {
            isDoubleEscaped = true;
        }
    }
}

/// Whether the element's name stands here, and whole.
bool HtmlTokenizer::isTagOf(std::size_t nameBegin, std::string_view element) const {
    const std::size_t nameEnd = nameBegin + element.size();
    return nameEnd < m_page.size() && equalsIgnoringCase(slice(nameBegin, nameEnd), element) &&
           (isHtmlSpace(m_page[nameEnd]) || m_page[nameEnd] == '/' || m_page[nameEnd] == '>');
}

bool HtmlTokenizer::isEndTagOf(std::size_t lessThan, std::string_view element) const {
    return lessThan + 1 < m_page.size() && m_page[lessThan + 1] == '/' &&
           isTagOf(lessThan + 2, element);
}

/// The offset of the next "-->" or "--!>"; the page's size without one.
std::size_t HtmlTokenizer::findCommentEnd(std::size_t from) const {
    for (std::size_t dashes = m_page.find("--", from); dashes != std::string_view::npos;) {
        // A run of dashes can only end a comment with its last two.
        const std::size_t end = std::min(m_page.find_first_not_of('-', dashes), m_page.size());
        const std::string_view rest = m_page.substr(end, 2);
        if (rest.starts_with('>') || rest == "!>")
            return end - 2;
        dashes = m_page.find("--", end);
    }
    return m_page.size();
}

/// What `findEnd` finds from an offset on, without what stands in blocks of server-side code.
template <typename FindEnd>
std::size_t HtmlTokenizer::findOutsideBlocks(std::size_t from, FindEnd findEnd) {
    std::size_t end = findEnd(from);
    for (;;) {
        const std::size_t lessThan = slice(from, end).find('<');
        if (lessThan == std::string_view::npos)
            return end;
        const std::size_t blockEnd = m_blocks.endOf(from + lessThan);
        from = std::max(from + lessThan + 1, blockEnd);
        if (from > end)
            end = findEnd(from);
    }
}

}  // namespace zev
