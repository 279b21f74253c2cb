#include "script/property_lines.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <variant>

#include "model/menu_content.h"
#include "model/menu_properties.h"
#include "text/ascii.h"
#include "text/pattern.h"

namespace zev {

namespace {

/// The words of positions 1 to 4; any other position has none.
constexpr std::string_view kPositionWords[] = {"", "right", "bottom", "left", "top"};

// What a line holds of each kind of member; empty when it cannot say the value.

std::string_view textOf(const TextMember& text, const MenuProp& prop) {
    return prop.*text.member;
}

std::string_view textOf(const FlagMember& flag, const MenuProp& prop) {
    return prop.*flag.member ? flag.word : "none";
}

std::string_view textOf(const PositionMember& position, const MenuProp& prop) {
    const auto index = static_cast<std::size_t>(prop.*position.member);
    return index < std::size(kPositionWords) ? kPositionWords[index] : "";
}

void assign(const TextMember& text, MenuProp& prop, std::string_view value) {
    prop.*text.member = value;
}

void assign(const FlagMember& flag, MenuProp& prop, std::string_view value) {
    prop.*flag.member = value == flag.word;
}

void assign(const PositionMember& position, MenuProp& prop, std::string_view value) {
    prop.*position.member = 0;
    for (std::int16_t side = 1; side < std::ssize(kPositionWords); ++side)
        if (kPositionWords[side] == value)
            prop.*position.member = side;
}

/// True when the property is set, and not to what it would be without a line.
bool hasOwnValue(const MenuPropertyRow& row, const MenuProp& prop, const MenuProp& inherited) {
    return std::visit(
        [&](const auto& kind) {
            return !textOf(kind, prop).empty() && prop.*kind.member != inherited.*kind.member;
        },
        row.member);
}

bool isEqual(const MenuPropertyRow& row, const MenuProp& prop, const MenuProp& other) {
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

bool isWritten(LineRule rule, const MenuPropertyRow& row, const MenuProp& prop,
               const MenuProp& defaults) {
    switch (rule) {
        case LineRule::Never:
            return false;
        case LineRule::WhenSet:
            return hasOwnValue(row, prop, emptySet());
        case LineRule::WhenDifferent:
            return hasOwnValue(row, prop, defaults);
        case LineRule::UnlessFactory:
            return hasOwnValue(row, prop, factorySet());
        case LineRule::UnlessStarting:
            return !isEqual(row, prop, *newItemMenuProp());
    }
    return false;
}

void appendLine(std::string& text, std::string_view object, const MenuPropertyRow& row,
                const MenuProp& prop) {
    const std::string_view value =
        std::visit([&](const auto& kind) { return textOf(kind, prop); }, row.member);
    text += object;
    text += row.name;
    text += row.form == LineForm::Number ? " = " : " = '";
    text += value;
    text += row.form == LineForm::Number   ? ";\r\n"
            : row.form == LineForm::Points ? "pt';\r\n"
                                           : "';\r\n";
}

}  // namespace

std::string GetDefaultText(const MenuProp& prop) {
    std::string text;
    for (const MenuPropertyRow& row : kMenuProperties)
        if (isWritten(row.inDefaults, row, prop, prop))
            appendLine(text, "zev_state.", row, prop);
    return text;
}

std::string GetText(const MenuProp& prop, const MenuProp& defaults) {
    std::string text;
    for (const MenuPropertyRow& row : kMenuProperties) {
        const bool isLeftOut = row.special == Special::Font && !prop.FontSet;
        if (!isLeftOut && isWritten(row.inMenu, row, prop, defaults))
            appendLine(text, "zevmenu.", row, prop);
    }
    return text;
}

bool SetProperty(MenuProp& prop, std::string_view StrProp, std::string_view StrValue) {
    const MenuPropertyRow* const row = findMenuProperty(StrProp);
    if (row && row->special != Special::NotReadBack) {
        std::string_view value = trimSpaces(StrValue);
        std::string withoutUnit;
        if (row->form == LineForm::Points)
            value = withoutUnit = replaceAll(value, "pt", "");
        std::visit([&](const auto& kind) { assign(kind, prop, value); }, row->member);
        prop.FontSet = prop.FontSet || row->special == Special::Font;
    }
    return row != nullptr;
}

}  // namespace zev
