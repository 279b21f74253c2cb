// SPDX-License-Identifier: MIT
#include "html/html_tokenizer.h"

#include <algorithm>
#include <array>

#include "html/html_characters.h"
#include "text/ascii.h"

namespace zev {

namespace {

constexpr std::string_view kScript = "script";
constexpr std::string_view kPlaintext = "plaintext";

/// Elements whose content is text up to their end tag; the script apart. `mayHaveRawContent` has to
/// let each of them pass.
constexpr std::array<std::string_view, 8> kRawElements = {
    "style", "title", "textarea", "xmp", "iframe", "noembed", "noframes", kPlaintext};

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
