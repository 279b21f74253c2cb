#include "model/item_prop.h"

#include <initializer_list>

#include "text/pattern.h"

namespace zev {

namespace {

constexpr std::string_view kEscapedApostrophe = "\\'";
constexpr std::string_view kPlaceholder = "~||~";

void AppendCall(std::string& line, std::string_view function,
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

  private:
    /// Steps behind the next apostrophe that is not escaped and returns the text before it.
    std::string_view skipPiece() {
        std::size_t quote = m_rest.find('\'');
        while (quote != std::string_view::npos && quote > 0 && m_rest[quote - 1] == '\\')
            quote = m_rest.find('\'', quote + 1);
        m_isAtEnd = quote == std::string_view::npos;
        const std::string_view piece = m_rest.substr(0, quote);
        m_rest.remove_prefix(m_isAtEnd ? m_rest.size() : quote + 1);
        return piece;
    }

    std::string_view m_rest;
    bool m_isAtEnd = false;
};

std::string WithPlaceholders(std::string_view argument) {
    return replaceAll(argument, kEscapedApostrophe, kPlaceholder);
}

/// Escaped apostrophes travel as placeholders, so a placeholder that the file itself holds becomes
/// an escaped apostrophe as well.
void ReadArgument(ArgumentCutter& arguments, std::string& member) {
    std::string_view argument;
    if (!arguments.next(argument))
        return;
    if (argument.find(kPlaceholder.front()) == std::string_view::npos)
        member = argument;
    else
        member = replaceAll(WithPlaceholders(argument), kPlaceholder, kEscapedApostrophe);
}

}  // namespace

std::string ItemProp::GetText() const {
    std::string line;
    AppendText(line);
    return line;
}

void ItemProp::AppendText(std::string& script) const {
    if (IsRollover)
        AppendCall(script, "zevmenu.AddRollover", {URL, ImageOut, ImageOver, Target});
    else
        AppendCall(script, "zevmenu.AddItem", {Caption, URL, Target});
}

void ItemProp::Set_ImageProperty(std::string_view StrLine) {
    IsRollover = true;
    ArgumentCutter arguments(StrLine);
    // The link of a rollover item is taken over with its placeholders: the one argument that is not
    // turned back.
    std::string_view link;
    if (arguments.next(link))
        URL = WithPlaceholders(link);
    ReadArgument(arguments, ImageOut);
    ReadArgument(arguments, ImageOver);
    ReadArgument(arguments, Target);
}

void ItemProp::Set_ItemProperty(std::string_view StrLine) {
    IsRollover = false;
    ArgumentCutter arguments(StrLine);
    ReadArgument(arguments, Caption);
    ReadArgument(arguments, URL);
    ReadArgument(arguments, Target);
}

}  // namespace zev
