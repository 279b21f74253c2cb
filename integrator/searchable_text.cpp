// SPDX-License-Identifier: MIT
#include "integrator/searchable_text.h"

#include <algorithm>
#include <cstddef>

#include "text/ascii.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

constexpr char kEscape = '\x1B';
constexpr char kShiftOut = '\x0E';
constexpr char kShiftIn = '\x0F';

/// Where browsers look for the encoding that a page declares.
constexpr std::size_t kDeclarationBytes = 1024;

/// The encoding that the page says it is in, in lower case; empty when it says none.
std::string declaredEncoding(std::string_view page) {
    std::string start(page.substr(0, kDeclarationBytes));
    std::transform(start.begin(), start.end(), start.begin(), asciiLower);
    constexpr std::string_view kWord = "charset";
    for (std::size_t at = start.find(kWord); at != std::string::npos;
         at = start.find(kWord, at + 1)) {
        std::size_t begin = start.find_first_not_of(" \t\r\n\f", at + kWord.size());
        if (begin == std::string::npos || start[begin] != '=')
            continue;
        begin = std::min(start.find_first_not_of(" \t\r\n\f\"'", begin + 1), start.size());
        return start.substr(begin, start.find_first_of(" \t\r\n\f\"';/>", begin) - begin);
    }
    return {};
}

/// Looks for its rarer letter: every page is asked.
bool mayDeclareHz(std::string_view page) {
    page = page.substr(0, kDeclarationBytes);
    for (const char z : {'z', 'Z'})
        for (std::size_t at = page.find(z); at != std::string_view::npos; at = page.find(z, at + 1))
            if (at > 0 && asciiLower(page[at - 1]) == 'h')
                return true;
    return false;
}

/// A byte of a character, with its high bit or without. Others mean the same everywhere.
bool isCharacterByte(char byte) {
    const int code = static_cast<unsigned char>(byte) & 0x7F;
    return code > 0x20 && code < 0x7F;
}

void flipByte(char& byte) {
    if (isCharacterByte(byte))
        byte = static_cast<char>(byte ^ '\x80');
}

/// Steps over text with the escapes of ISO 2022 and knows in what state it is.
class Iso2022Walk {
  public:
    Iso2022Walk(std::string& text, bool hasSecondSet)
        : m_text(text), m_hasSecondSet(hasSecondSet) {}

    void flip() {
        for (std::size_t i = 0; i < m_text.size();) {
            if (m_text[i] == kEscape) {
                i = afterEscape(i);
                continue;
            }
            if (m_text[i] == kShiftOut || m_text[i] == kShiftIn)
                m_isShifted = m_hasSecondSet && m_text[i] == kShiftOut;
            else if (m_isShifted || !m_isFirstAscii)
                flipByte(m_text[i]);
            ++i;
        }
    }

  private:
    //     ESC $ B    ESC $ ( D    two bytes a character     ESC ( B    ESC ( J    ASCII, or nearly
    //     ESC $ ) C    two bytes a character, after a shift     ESC ( I    one byte a character
    std::size_t afterEscape(std::size_t at) {
        const std::string_view rest = std::string_view(m_text).substr(at + 1, 3);
        if (rest.starts_with('$'))
            m_isFirstAscii = m_isFirstAscii && rest.starts_with("$)");
        else if (rest.starts_with('('))
            m_isFirstAscii = rest.substr(1).starts_with('B') || rest.substr(1).starts_with('J');
        else
            return at + 1;
        const bool isLong = rest.starts_with("$(") || rest.starts_with("$)");
        return std::min(at + (isLong ? 4 : 3), m_text.size());
    }

    std::string& m_text;
    const bool m_hasSecondSet;
    bool m_isFirstAscii = true;
    bool m_isShifted = false;
};

/// "~{" and "~}" are around what is written with two bytes a character; a line's end ends it too.
void flipHz(std::string& text) {
    bool isChinese = false;
    for (std::size_t i = 0; i < text.size();) {
        const std::string_view pair = std::string_view(text).substr(i, 2);
        const bool isEscape = pair == "~{" || pair == "~}" || pair == "~~";
        if (isEscape && pair != "~~")
            isChinese = pair == "~{";
        else if (pair.starts_with('\n'))
            isChinese = false;
        const bool isWhole = isEscape || (isChinese && pair.size() == 2 && pair[1] != '\n');
        const std::size_t end = i + (isWhole ? 2 : 1);
        for (; i < end; ++i)
            if (isChinese && !isEscape)
                flipByte(text[i]);
    }
}

}  // namespace

SearchableText::SearchableText(std::string_view page)
    : m_page(page), m_escapes(escapesOf(page)), m_marked(m_escapes ? page : "") {
    flip(m_marked);
}

std::optional<SearchableText::Escapes> SearchableText::escapesOf(std::string_view page) {
    const bool hasEscapes = page.find(kEscape) != std::string_view::npos;
    if ((!hasEscapes && !mayDeclareHz(page)) || !isAscii(page))
        return {};
    const std::string encoding = declaredEncoding(page);
    if (encoding.starts_with("hz"))
        return Escapes::Hz;
    const bool isIso2022 = encoding.empty() || encoding.find("2022") != std::string::npos;
    return hasEscapes && isIso2022 ? std::optional(Escapes::Iso2022) : std::nullopt;
}

/// Twice is not at all.
void SearchableText::flip(std::string& text) const {
    if (m_escapes == Escapes::Iso2022)
        // The page says once for all of its parts that there is a second set.
        Iso2022Walk(text, m_page.find("\x1B$)") != std::string_view::npos).flip();
    else if (m_escapes == Escapes::Hz)
        flipHz(text);
}

void SearchableText::restore(std::vector<PageEdit>& edits) const {
    if (m_escapes)
        for (PageEdit& edit : edits)
            flip(edit.text);
}

void SearchableText::restore(std::vector<PageNote>& notes) const {
    for (PageNote& note : notes)
        flip(note.text);
}

}  // namespace zev
