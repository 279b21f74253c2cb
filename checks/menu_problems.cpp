// SPDX-License-Identifier: MIT
#include "checks/menu_problems.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <set>
#include <string_view>

#include "checks/css_values.h"
#include "checks/item_names.h"
#include "html/caption_text.h"
#include "html/html_parse.h"
#include "model/menu_properties.h"
#include "script/property_lines.h"
#include "text/ascii.h"

namespace zev {

namespace {

using Kind = MenuProblem::Kind;
using Reason = MenuProblem::Reason;

/// What keeps the value from standing between apostrophes in the script.
std::optional<Reason> scriptProblem(std::string_view value) {
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

bool isNumberFor(std::string_view property, std::string_view text) {
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || rest != end)
        return false;
    for (const Range& range : kRanges)
        if (range.property == property)
            return number >= range.least && number <= range.most &&
                   !(range.isWhole && std::fmod(number, 1) != 0);
    return number >= 0 && number <= 1e9;
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

class ProblemFinder {
  public:
    explicit ProblemFinder(const MenuContent& content) : m_content(content) {}

    std::vector<MenuProblem> find() {
        checkProperties(m_content.DefaultProp, nullptr, true);
        checkProperties(m_content.RootMenuProp, nullptr, false);
        const MenuTree& tree = m_content.tree;
        findSameCaptions(tree.topLevel());
        for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
            checkItem(*node);
            checkProperties(*node->item.MenuProperty, node, false);
            findSameCaptions(node->children());
        }
        return std::move(m_problems);
    }

  private:
    void checkProperties(const MenuProp& prop, const MenuNode* node, bool isDefault) {
        for (const MenuPropertyRow& row : kMenuProperties) {
            const std::string_view value = propertyValue(row, prop);
            if (value.empty())
                continue;
            std::optional<Reason> reason = scriptProblem(value);
            if (!reason)
                reason = propertyProblem(row, value);
            if (reason)
                m_problems.push_back({*reason == Reason::NoColour ? Kind::Colour : Kind::Value,
                                      *reason, node, isDefault, true, std::string(row.name),
                                      std::string(value)});
        }
    }

    void checkItem(const MenuNode& node) {
        const ItemProp& item = node.item;
        checkText(node, "caption", item.Caption);
        checkText(node, "url", item.URL);
        checkText(node, "target", item.Target);
        checkText(node, "out", item.ImageOut);
        checkText(node, "over", item.ImageOver);
        if (item.IsRollover)
            return;
        if (m_sameCaptions.contains(&node))
            add(Kind::Caption, Reason::SameCaption, node, itemName(item));
        if (itemName(item).empty() && !hasPicture(node))
            add(Kind::Caption, Reason::NoCaption, node, item.Caption);
    }

    void checkText(const MenuNode& node, const char* field, const std::string& value) {
        if (const std::optional<Reason> reason = scriptProblem(value))
            m_problems.push_back({Kind::Value, *reason, &node, false, false, field, value});
    }

    /// True for a caption that shows something without a text; images without alt are told.
    bool hasPicture(const MenuNode& node) {
        const std::string caption = withoutEscapes(node.item.Caption);
        HtmlParse html;
        html.Load(caption);
        for (;; html.Next()) {
            if (html.TagName() == "img" || html.TagName() == "hr")
                return true;
            if (html.IsLast())
                return false;
        }
    }

    void findSameCaptions(std::span<const MenuNode* const> items) {
        std::set<std::string> names;
        for (const MenuNode* node : items) {
            const std::string name = itemName(node->item);
            if (!node->item.IsRollover && !name.empty() && !names.insert(name).second)
                m_sameCaptions.insert(node);
        }
    }

    void add(Kind kind, Reason reason, const MenuNode& node, std::string value) {
        m_problems.push_back({kind, reason, &node, false, false, "caption", std::move(value)});
    }

    const MenuContent& m_content;
    std::set<const MenuNode*> m_sameCaptions;
    std::vector<MenuProblem> m_problems;
};

}  // namespace

std::vector<MenuProblem> findBrokenValues(const MenuContent& content) {
    return ProblemFinder(content).find();
}

}  // namespace zev
