#include "script/property_lines.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <variant>

#include "model/menu_document.h"
#include "model/menu_properties.h"
#include "text/ascii.h"
#include "text/pattern.h"

namespace zev {

namespace {

/// The words of positions 1 to 4; any other position has none.
constexpr std::string_view kPositionWords[] = {"", "right", "bottom", "left", "top"};

bool hasWord(std::int16_t position) {
    return position >= 1 && position <= 4;
}

std::int16_t positionOfWord(std::string_view word) {
    const auto* const found = std::find(std::begin(kPositionWords), std::end(kPositionWords), word);
    return found == std::end(kPositionWords)
               ? std::int16_t{0}
               : static_cast<std::int16_t>(found - std::begin(kPositionWords));
}

// What a line holds of each kind of member. One that has a value of its own is set, and not to the
// value that it would have without a line.

bool isOwnValue(const TextMember& text, const MenuProp& prop, const MenuProp& inherited) {
    const std::string& value = prop.*text.member;
    return !value.empty() && value != inherited.*text.member;
}

bool isOwnValue(const FlagMember& flag, const MenuProp& prop, const MenuProp& inherited) {
    return prop.*flag.member != inherited.*flag.member;
}

bool isOwnValue(const PositionMember& position, const MenuProp& prop, const MenuProp& inherited) {
    const std::int16_t value = prop.*position.member;
    return hasWord(value) && value != inherited.*position.member;
}

void appendQuoted(std::string& line, std::string_view value, std::string_view unit = {}) {
    line += '\'';
    line += value;
    line += unit;
    line += '\'';
}

void appendValue(std::string& line, const TextMember& text, const MenuProp& prop) {
    if (text.form == TextForm::Number)
        line += prop.*text.member;
    else
        appendQuoted(line, prop.*text.member, text.form == TextForm::Points ? "pt" : "");
}

void appendValue(std::string& line, const FlagMember& flag, const MenuProp& prop) {
    appendQuoted(line, prop.*flag.member ? flag.word : "none");
}

void appendValue(std::string& line, const PositionMember& position, const MenuProp& prop) {
    appendQuoted(line, kPositionWords[static_cast<std::size_t>(prop.*position.member)]);
}

void assign(const TextMember& text, MenuProp& prop, std::string_view value) {
    if (text.form == TextForm::Points)
        prop.*text.member = replaceAll(value, "pt", "");
    else
        prop.*text.member = value;
}

void assign(const FlagMember& flag, MenuProp& prop, std::string_view value) {
    prop.*flag.member = value == flag.word;
}

void assign(const PositionMember& position, MenuProp& prop, std::string_view value) {
    prop.*position.member = positionOfWord(value);
}

bool hasOwnValue(const MenuPropertyRow& row, const MenuProp& prop, const MenuProp& inherited) {
    return std::visit([&](const auto& member) { return isOwnValue(member, prop, inherited); },
                      row.member);
}

bool isSame(const MenuPropertyRow& row, const MenuProp& prop, const MenuProp& other) {
    return std::visit([&](const auto& kind) { return prop.*kind.member == other.*kind.member; },
                      row.member);
}

const MenuProp& emptySet() {
    static const MenuProp empty;
    return empty;
}

const MenuProp& factorySet() {
    static const MenuProp factory = [] {
        MenuProp prop;
        prop.SetDefault();
        return prop;
    }();
    return factory;
}

bool isInMenu(const MenuPropertyRow& row, const MenuProp& prop, const MenuProp& defaults) {
    if (row.special == Special::Font && !prop.FontSet)
        return false;
    switch (row.inMenu) {
        case MenuLine::Never:
            return false;
        case MenuLine::WhenSet:
            return hasOwnValue(row, prop, emptySet());
        case MenuLine::WhenDifferent:
            return hasOwnValue(row, prop, defaults);
        case MenuLine::UnlessFactory:
            return hasOwnValue(row, prop, factorySet());
        case MenuLine::UnlessStarting:
            return !isSame(row, prop, *NewItemMenuProp());
    }
    return false;
}

void appendLine(std::string& text, std::string_view object, const MenuPropertyRow& row,
                const MenuProp& prop) {
    text += object;
    text += row.name;
    text += " = ";
    std::visit([&](const auto& member) { appendValue(text, member, prop); }, row.member);
    text += ";\r\n";
}

}  // namespace

std::string GetDefaultText(const MenuProp& prop) {
    std::string text;
    for (const MenuPropertyRow& row : kMenuProperties) {
        if (row.inDefaults == DefaultsLine::WhenSet && hasOwnValue(row, prop, emptySet()))
            appendLine(text, "zev_state.", row, prop);
    }
    return text;
}

std::string GetText(const MenuProp& prop, const MenuProp& defaults) {
    std::string text;
    for (const MenuPropertyRow& row : kMenuProperties) {
        if (isInMenu(row, prop, defaults))
            appendLine(text, "zevmenu.", row, prop);
    }
    return text;
}

bool SetProperty(MenuProp& prop, std::string_view StrProp, std::string_view StrValue) {
    const MenuPropertyRow* const row = findMenuProperty(StrProp);
    if (row && row->special != Special::NotReadBack) {
        const std::string_view value = trimSpaces(StrValue);
        std::visit([&](const auto& member) { assign(member, prop, value); }, row->member);
        prop.FontSet = prop.FontSet || row->special == Special::Font;
    }
    return row != nullptr;
}

}  // namespace zev
