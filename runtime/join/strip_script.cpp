// SPDX-License-Identifier: MIT
#include "runtime/join/strip_script.h"

#include <algorithm>
#include <array>

namespace zev {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Words after which a slash starts a regular expression.
constexpr std::array<std::string_view, 12> kOperatorWords = {
    "return", "typeof", "case", "in",   "of",         "delete",
    "void",   "throw",  "new",  "else", "instanceof", "do"};

bool isSpace(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool isWord(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_' || character == '$' ||
           character == '#' || static_cast<unsigned char>(character) >= 0x80;
}

/// Walks over a script token by token. A position of kNone: something does not end.
class Scanner {
  public:
    explicit Scanner(std::string_view source) : m_source(source) {}

    /// The end of the white space and comments that start at `start`.
    std::size_t endOfGap(std::size_t start) const {
        std::size_t end = start;
        while (end < m_source.size()) {
            if (isSpace(m_source[end])) {
                ++end;
            } else if (startsWith(end, "//")) {
                end = std::min(m_source.find('\n', end), m_source.size());
            } else if (startsWith(end, "/*")) {
                const std::size_t close = m_source.find("*/", end + 2);
                if (close == kNone)
                    return kNone;
                end = close + 2;
            } else {
                break;
            }
        }
        return end;
    }

    /// The end of the token that starts at `start`, and follows the token `last`.
    std::size_t endOfToken(std::size_t start, std::string_view last) const {
        const char first = m_source[start];
        if (first == '"' || first == '\'')
            return endOfQuoted(start);
        if (first == '`')
            return endOfTemplate(start);
        if (first == '/' && isExpressionDue(last))
            return endOfPattern(start);
        if (!isWord(first))
            return start + 1;
        std::size_t end = start;
        while (end < m_source.size() && isWord(m_source[end]))
            ++end;
        return end;
    }

  private:
    bool startsWith(std::size_t position, std::string_view text) const {
        return m_source.substr(position, text.size()) == text;
    }

    static bool isExpressionDue(std::string_view last) {
        if (last.empty())
            return true;
        if (isWord(last.back()))
            return std::ranges::find(kOperatorWords, last) != kOperatorWords.end();
        return std::string_view(")]}\"'`").find(last.back()) == kNone;
    }

    std::size_t endOfQuoted(std::size_t start) const {
        for (std::size_t i = start + 1; i < m_source.size() && m_source[i] != '\n'; ++i)
            if (m_source[i] == '\\')
                ++i;
            else if (m_source[i] == m_source[start])
                return i + 1;
        return kNone;
    }

    std::size_t endOfPattern(std::size_t start) const {
        bool isInClass = false;
        for (std::size_t i = start + 1; i < m_source.size() && m_source[i] != '\n'; ++i)
            if (m_source[i] == '\\')
                ++i;
            else if (m_source[i] == '[' || m_source[i] == ']')
                isInClass = m_source[i] == '[';
            else if (m_source[i] == '/' && !isInClass)
                return i + 1;
        return kNone;
    }

    std::size_t endOfTemplate(std::size_t start) const {
        std::size_t i = start + 1;
        while (i < m_source.size()) {
            if (m_source[i] == '`')
                return i + 1;
            if (m_source[i] == '\\') {
                i += 2;
            } else if (startsWith(i, "${")) {
                i = endOfBraces(i + 1);
                if (i == kNone)
                    return kNone;
            } else {
                ++i;
            }
        }
        return kNone;
    }

    std::size_t endOfBraces(std::size_t start) const {
        std::size_t position = start;
        int depth = 0;
        std::string_view last;
        while ((position = endOfGap(position)) < m_source.size()) {
            const std::size_t end = endOfToken(position, last);
            if (end == kNone)
                return kNone;
            last = m_source.substr(position, end - position);
            position = end;
            if (last == "{")
                ++depth;
            if (last == "}" && --depth == 0)
                return position;
        }
        return kNone;
    }

    std::string_view m_source;
};

// "a - -b", "a / /b/" and "1 .x" mean something else without their spaces.
bool wouldMerge(char before, char after) {
    return (isWord(before) && isWord(after)) || (before >= '0' && before <= '9' && after == '.') ||
           (before == after && std::string_view("+-/").find(before) != kNone);
}

// A line cannot end a statement after the one or before the other.
bool isWithinStatement(char before, char after) {
    return std::string_view("{([,&|?:=;").find(before) != kNone ||
           std::string_view("})],.&|?:").find(after) != kNone;
}

}  // namespace

std::optional<std::string> stripScript(std::string_view source) {
    const Scanner scanner(source);
    std::string result;
    std::string_view last;
    std::size_t position = 0;
    while (true) {
        const std::size_t start = scanner.endOfGap(position);
        if (start == kNone)
            return std::nullopt;
        const std::string_view gap = source.substr(position, start - position);
        if (start == source.size())
            return result;
        if (!last.empty() && !gap.empty()) {
            const bool isLineEnd = gap.find('\n') != kNone;
            if (isLineEnd && !isWithinStatement(last.back(), source[start]))
                result += '\n';
            else if (!isLineEnd && wouldMerge(last.back(), source[start]))
                result += ' ';
        }
        const std::size_t end = scanner.endOfToken(start, last);
        if (end == kNone)
            return std::nullopt;
        last = source.substr(start, end - start);
        result += last;
        position = end;
    }
}

}  // namespace zev
