// SPDX-License-Identifier: MIT
#include "script/property_lines.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <variant>

#include "model/menu_content.h"
#include "model/menu_properties.h"
#include "script/definition_lines.h"
#include "script/line_tokenizers.h"
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

/// What a property has where the rule leaves its line out.
const MenuProp& setWithoutLine(LineRule rule, const MenuProp& defaults) {
    switch (rule) {
        case LineRule::WhenDifferent:
            return defaults;
        case LineRule::UnlessFactory: {
            static const MenuContent newMenu;
            return newMenu.DefaultProp;
        }
        case LineRule::UnlessStarting:
            return *newItemMenuProp();
        case LineRule::Never:
        case LineRule::WhenSet:
            break;
    }
    static const MenuProp empty;
    return empty;
}

/// Appends the line of one row where its rule wants one. The row is a constant of its own function:
/// a menu has some twenty of them, and a file thousands of menus.
template <std::size_t kRow, LineRule kRule>
void appendLine(std::string& text, std::string_view object, const MenuProp& prop,
                const MenuProp& defaults) {
    constexpr const MenuPropertyRow& kProperty = kMenuProperties[kRow];
    constexpr const auto& kKind = std::get<kProperty.member.index()>(kProperty.member);
    if constexpr (kRule != LineRule::Never) {
        if (prop.*kKind.member == setWithoutLine(kRule, defaults).*kKind.member)
            return;
        const std::string_view value = textOf(kKind, prop);
        if (value.empty() && kRule != LineRule::UnlessStarting)
            return;
        text += object;
        text += kProperty.name;
        text += kProperty.form == LineForm::Number ? " = " : " = '";
        text += value;
        text += kProperty.form == LineForm::Number   ? ";\r\n"
                : kProperty.form == LineForm::Points ? "pt';\r\n"
                                                     : "';\r\n";
    }
}

template <std::size_t... kRow>
void appendDefaults(std::string& text, const MenuProp& prop, std::index_sequence<kRow...>) {
    (appendLine<kRow, kMenuProperties[kRow].inDefaults>(text, "zev_state.", prop, prop), ...);
}

template <std::size_t kRow>
void appendMenuLine(std::string& text, const MenuProp& prop, const MenuProp& defaults) {
    constexpr const MenuPropertyRow& kProperty = kMenuProperties[kRow];
    if (kProperty.special != Special::Font || prop.FontSet)
        appendLine<kRow, kProperty.inMenu>(text, "zevmenu.", prop, defaults);
}

template <std::size_t... kRow>
void appendMenu(std::string& text, const MenuProp& prop, const MenuProp& defaults,
                std::index_sequence<kRow...>) {
    (appendMenuLine<kRow>(text, prop, defaults), ...);
}

constexpr auto kAllRows = std::make_index_sequence<kMenuProperties.size()>();

}  // namespace

std::string GetDefaultText(const MenuProp& prop) {
    std::string text;
    appendDefaults(text, prop, kAllRows);
    return text;
}

std::string GetText(const MenuProp& prop, const MenuProp& defaults) {
    std::string text;
    appendText(text, prop, defaults);
    return text;
}

void appendText(std::string& script, const MenuProp& prop, const MenuProp& defaults) {
    appendMenu(script, prop, defaults, kAllRows);
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

std::string_view propertyValue(const MenuPropertyRow& row, const MenuProp& prop) {
    return std::visit([&](const auto& kind) { return textOf(kind, prop); }, row.member);
}

void loadUnkeptDefaults(std::string bytes, MenuProp& defaults) {
    DefinitionLines lines(std::move(bytes));
    std::string_view line;
    while (lines.next(line)) {
        if (!matchesPattern(line, "zev_state.*=*;"))
            continue;
        const MenuPropertyRow* const row = findMenuProperty(GetPropName(line));
        if (row && row->special == Special::NotReadBack)
            std::visit(
                [&](const auto& kind) { assign(kind, defaults, trimSpaces(GetPropValue(line))); },
                row->member);
    }
}

}  // namespace zev
