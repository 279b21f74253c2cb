// SPDX-License-Identifier: MIT
#include "script/item_lines.h"

#include <cstddef>
#include <initializer_list>

#include "text/pattern.h"

namespace zev {

namespace {

constexpr std::string_view kEscapedApostrophe = "\\'";
constexpr std::string_view kPlaceholder = "~||~";

void appendCall(std::string& line, std::string_view function,
                std::initializer_list<std::string_view> values) {
    constexpr std::string_view kSeparator = "', '";
    line += function;
    line += "('";
    bool isFirst = true;
    for (const std::string_view value : values) {
        if (!isFirst)
            line += kSeparator;
        line += value;
        isFirst = false;
    }
    line += "');";
}

/// Hands out the quoted arguments of a script line from left to right.
class ArgumentCutter {
  public:
    explicit ArgumentCutter(std::string_view line) : m_rest(line) { skipPiece(); }

    /// False when the line has no further argument; `argument` is then unchanged.
    bool next(std::string_view& argument) {
        if (m_isAtEnd)
            return false;
        argument = skipPiece();
        skipPiece();
        return true;
    }

    /// True when all arguments were handed out, `count` of them, and the last one is closed.
    bool isDone(std::size_t count) const { return m_isAtEnd && m_pieceCount == 2 * count + 1; }

  private:
    /// Steps behind the next apostrophe that is not escaped and returns the text before it.
    std::string_view skipPiece() {
        if (m_isAtEnd)
            return {};
        ++m_pieceCount;
        std::size_t quote = m_rest.find('\'');
        while (quote != std::string_view::npos && quote > 0 && m_rest[quote - 1] == '\\')
            quote = m_rest.find('\'', quote + 1);
        m_isAtEnd = quote == std::string_view::npos;
        const std::string_view piece = m_rest.substr(0, quote);
        m_rest.remove_prefix(m_isAtEnd ? m_rest.size() : quote + 1);
        return piece;
    }

    std::string_view m_rest;
    std::size_t m_pieceCount = 0;  ///< before, in and between arguments
    bool m_isAtEnd = false;
};

std::string withPlaceholders(std::string_view argument) {
    return replaceAll(argument, kEscapedApostrophe, kPlaceholder);
}

/// Escaped apostrophes travel as placeholders, so a placeholder that the file itself holds becomes
/// an escaped apostrophe as well.
void readArgument(ArgumentCutter& arguments, std::string& member) {
    std::string_view argument;
    if (!arguments.next(argument))
        return;
    if (argument.find(kPlaceholder.front()) == std::string_view::npos)
        member = argument;
    else
        member = replaceAll(withPlaceholders(argument), kPlaceholder, kEscapedApostrophe);
}

}  // namespace

std::string GetText(const ItemProp& item) {
    std::string line;
    appendText(line, item);
    return line;
}

void appendText(std::string& script, const ItemProp& item) {
    if (item.IsRollover)
        appendCall(script, "zevmenu.AddRollover",
                   {item.URL, item.ImageOut, item.ImageOver, item.Target});
    else
        appendCall(script, "zevmenu.AddItem", {item.Caption, item.URL, item.Target});
}

bool Set_ImageProperty(ItemProp& item, std::string_view StrLine) {
    item.IsRollover = true;
    ArgumentCutter arguments(StrLine);
    // The link of a rollover item is taken over with its placeholders: the one argument that is not
    // turned back.
    std::string_view link;
    if (arguments.next(link))
        item.URL = withPlaceholders(link);
    readArgument(arguments, item.ImageOut);
    readArgument(arguments, item.ImageOver);
    readArgument(arguments, item.Target);
    return arguments.isDone(4);
}

bool Set_ItemProperty(ItemProp& item, std::string_view StrLine) {
    item.IsRollover = false;
    ArgumentCutter arguments(StrLine);
    readArgument(arguments, item.Caption);
    readArgument(arguments, item.URL);
    readArgument(arguments, item.Target);
    return arguments.isDone(3);
}

}  // namespace zev
