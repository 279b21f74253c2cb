// SPDX-License-Identifier: MIT
#include "checks/menu_problems.h"

#include <algorithm>
#include <charconv>
#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <unordered_set>

#include "checks/caption_index.h"
#include "checks/css_values.h"
#include "checks/item_names.h"
#include "html/caption_text.h"
#include "html/html_parse.h"
#include "model/menu_properties.h"
#include "script/property_lines.h"
#include "text/ascii.h"
#include "text/pattern.h"

namespace zev {

namespace {

using Kind = MenuProblem::Kind;
using Reason = MenuProblem::Reason;

/// A character of those that a script problem is made of.
constexpr bool isSuspect(char character) {
    return character == '\r' || character == '\n' || character == '~' || character == '\'' ||
           character == '\\';
}

/// What keeps the value from standing between apostrophes in the script.
std::optional<Reason> scriptProblem(std::string_view value) {
    // Nearly every value of a menu ends here.
    if (std::none_of(value.begin(), value.end(), isSuspect))
        return {};
    if (value.find_first_of("\r\n") != std::string_view::npos)
        return Reason::LineBreak;
    if (value.find("~||~") != std::string_view::npos)
        return Reason::Placeholder;
    bool isEscaped = false;
    for (const char character : value) {
        if (character == '\'' && !isEscaped)
            return Reason::BareApostrophe;
        isEscaped = character == '\\' && !isEscaped;
    }
    if (isEscaped)
        return Reason::LastBackslash;
    return {};
}

struct Range {
    std::string_view property;
    double least;
    double most;
    bool isWhole = false;
};

/// What the library takes; of the numbers that are not here, any from 0 on.
constexpr Range kRanges[] = {{"columns", 1, 1e6, true}, {"hspacing", 0, 1e4},
                             {"cellpadding", 0, 1e4},   {"menuoffset", -1e4, 1e4},
                             {"ffade", 0, 5},           {"fopacity", 1, 100}};

/// Fractions not by std::from_chars, which needs libm for them: loading it takes a tenth of a
/// command's run.
std::optional<double> numberOf(std::string_view text) {
    int whole = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, whole);
    if (error == std::errc() && rest == end)
        return whole;
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    double number = 0;
    stream >> std::noskipws >> number;
    if (stream.fail() || !stream.eof() || text.starts_with('+'))
        return {};
    return number;
}

bool isNumberFor(std::string_view property, std::string_view text) {
    const std::optional<double> number = numberOf(text);
    if (!number)
        return false;
    for (const Range& range : kRanges)
        if (range.property == property)
            return *number >= range.least && *number <= range.most &&
                   !(range.isWhole && *number != static_cast<int>(*number));
    return *number >= 0 && *number <= 1e9;
}

bool isHtmlField(std::string_view field) {
    return field == "caption" || field == "htmlBefore" || field == "htmlAfter" ||
           field == "divider" || field == "marker";
}

bool isAddressField(std::string_view field) {
    return field == "url" || field == "out" || field == "over" || field == "bgimage";
}

bool isColourProperty(std::string_view name) {
    return name == "fshadow" || name.ends_with("color");
}

/// What a browser does not understand in the value of the property.
std::optional<Reason> propertyProblem(const MenuPropertyRow& row, std::string_view value) {
    if (row.form != LineForm::Quoted || row.name == "ffade" || row.name == "fopacity")
        return isNumberFor(row.name, value) ? std::nullopt : std::optional(Reason::NoNumber);
    if (isColourProperty(row.name) && !isCssColour(value))
        return Reason::NoColour;
    if (row.name.ends_with("border") && !isCssBorder(value))
        return Reason::NoBorder;
    return {};
}

void addTextProblem(const MenuNode& node, const char* field, const std::string& value,
                    std::vector<MenuProblem>& problems) {
    if (const std::optional<Reason> reason = scriptProblem(value))
        problems.push_back({Kind::Value, *reason, &node, false, false, field, value});
}

/// True for a caption that shows something without a text; images without alt are told.
bool hasPicture(const std::string& caption) {
    HtmlParse html;
    html.Load(caption);
    for (;; html.Next()) {
        if (html.TagName() == "img" || html.TagName() == "hr")
            return true;
        if (html.IsLast())
            return false;
    }
}

/// A value with what is wrong with it for this reason mended, wherever it is.
std::string mended(Reason reason, std::string_view field, std::string_view value) {
    if (reason == Reason::LineBreak)
        return replaceAll(replaceAll(replaceAll(value, "\r\n", " "), "\n", " "), "\r", " ");
    if (reason == Reason::Placeholder)
        return replaceAll(value, "~||~",
                          isHtmlField(field)      ? "~&#124;|~"
                          : isAddressField(field) ? "~%7C|~"
                                                  : "");
    if (reason == Reason::LastBackslash)
        return std::string(value) + '\\';
    std::string result;
    bool isEscaped = false;
    for (const char character : value) {
        if (character == '\'' && !isEscaped)
            result += '\\';
        isEscaped = character == '\\' && !isEscaped;
        result += character;
    }
    return result;
}

}  // namespace

void addBrokenValues(const MenuProp& prop, const MenuNode* node, bool isDefault,
                     std::vector<MenuProblem>& problems) {
    for (const MenuPropertyRow& row : kMenuProperties) {
        const std::string_view value = propertyValue(row, prop);
        if (value.empty())
            continue;
        std::optional<Reason> reason = scriptProblem(value);
        if (!reason)
            reason = propertyProblem(row, value);
        if (reason)
            problems.push_back({*reason == Reason::NoColour ? Kind::Colour : Kind::Value, *reason,
                                node, isDefault, true, std::string(row.name), std::string(value)});
    }
}

void addBrokenValues(const MenuNode& node, std::vector<MenuProblem>& problems) {
    const ItemProp& item = node.item;
    if (!item.IsRollover)
        addTextProblem(node, "caption", item.Caption, problems);
    addTextProblem(node, "url", item.URL, problems);
    addTextProblem(node, "target", item.Target, problems);
    if (item.IsRollover) {
        addTextProblem(node, "out", item.ImageOut, problems);
        addTextProblem(node, "over", item.ImageOver, problems);
    } else if (itemName(item).empty() && !hasPicture(withoutEscapes(item.Caption))) {
        problems.push_back(
            {Kind::Caption, Reason::NoCaption, &node, false, false, "caption", item.Caption});
    }
}

MenuProblem sameCaption(const MenuNode& node) {
    return {Kind::Caption, Reason::SameCaption, &node, false, false,
            "caption",     itemName(node.item)};
}

std::vector<MenuProblem> findBrokenValues(const MenuContent& content) {
    const MenuTree& tree = content.tree;
    CaptionIndex captions;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node))
        captions.add(*node);
    const std::vector<const MenuNode*> repeated = captions.repeated();
    const std::unordered_set<const MenuNode*> isRepeated(repeated.begin(), repeated.end());

    std::vector<MenuProblem> problems;
    addBrokenValues(content.DefaultProp, nullptr, true, problems);
    addBrokenValues(content.RootMenuProp, nullptr, false, problems);
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        addBrokenValues(*node, problems);
        if (isRepeated.contains(node))
            problems.push_back(sameCaption(*node));
        addBrokenValues(*node->item.MenuProperty, node, false, problems);
    }
    return problems;
}

std::optional<MenuProblem> lineProblem(const LineEffect& effect) {
    if (effect.property != "position")
        return {};
    MenuProp prop;
    const std::string value(trimSpaces(effect.value));
    SetProperty(prop, effect.property, value);
    if (prop.Position != 0)
        return {};
    return MenuProblem{Kind::Value, Reason::NoSide, effect.item, effect.isDefault,
                       true,        "position",     value};
}

std::optional<std::string> mendedValue(const MenuProblem& problem) {
    std::string value = problem.value;
    std::optional<Reason> reason =
        problem.kind == Kind::Value ? scriptProblem(value) : std::nullopt;
    if (!reason)
        return {};
    for (; reason; reason = scriptProblem(value))
        value = mended(*reason, problem.field, value);
    return value;
}

}  // namespace zev
