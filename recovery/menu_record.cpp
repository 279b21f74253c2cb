// SPDX-License-Identifier: MIT
#include "recovery/menu_record.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>
#include <vector>

#include "model/menu_properties.h"

namespace zev {

namespace {

/// Stands among the names of the properties, none of which it is.
constexpr std::string_view kFontSet = "FontSet";
constexpr std::string_view kOn = "on";

// Bits of the numbers that stand for yes and no.
constexpr unsigned kRollover = 1;
constexpr unsigned kExpanded = 2;
constexpr unsigned kSameProperties = 4;

std::string valueOf(const MenuProp& set, const TextMember& text) {
    return set.*text.member;
}
std::string valueOf(const MenuProp& set, const FlagMember& flag) {
    return set.*flag.member ? std::string(kOn) : std::string();
}
std::string valueOf(const MenuProp& set, const PositionMember& position) {
    return set.*position.member == 0 ? std::string() : std::to_string(set.*position.member);
}

void setValue(MenuProp& set, const TextMember& text, std::string_view value) {
    set.*text.member = value;
}
void setValue(MenuProp& set, const FlagMember& flag, std::string_view value) {
    set.*flag.member = value == kOn;
}
void setValue(MenuProp& set, const PositionMember& position, std::string_view value) {
    std::from_chars(value.data(), value.data() + value.size(), set.*position.member);
}

void writeProperty(RecordWriter& record, std::string_view name, std::string_view value) {
    if (value.empty())
        return;
    record.text(name);
    record.text(value);
}

const MenuNode* addNode(MenuTree& tree, const MenuNode* parent, std::size_t row, std::string key,
                        std::string text) {
    if (tree.find(key) != nullptr || row > tree.childrenOf(parent).size())
        return nullptr;
    MenuBranch branch(std::move(key), std::move(text));
    const MenuNode* const node = branch.top();
    tree.insert(std::move(branch), parent, row);
    return node;
}

}  // namespace

void writeProperties(RecordWriter& record, const MenuProp& properties) {
    for (const MenuPropertyRow& row : kMenuProperties)
        std::visit(
            [&](const auto& member) {
                writeProperty(record, row.name, valueOf(properties, member));
            },
            row.member);
    writeProperty(record, kFontSet, properties.FontSet ? kOn : std::string_view());
    record.text("");
}

MenuProp readProperties(RecordReader& record) {
    MenuProp properties;
    for (std::string_view name = record.text(); !name.empty(); name = record.text()) {
        const std::string_view value = record.text();
        if (name == kFontSet)
            properties.FontSet = value == kOn;
        else if (const MenuPropertyRow* row = findMenuProperty(name))
            std::visit([&](const auto& member) { setValue(properties, member, value); },
                       row->member);
    }
    return properties;
}

void writeItem(RecordWriter& record, const ItemProp& item) {
    record.number(item.IsRollover ? kRollover : 0U);
    for (const std::string* text :
         {&item.Caption, &item.URL, &item.Target, &item.ImageOut, &item.ImageOver})
        record.text(*text);
}

void readItem(RecordReader& record, ItemProp& item) {
    item.IsRollover = (record.number() & kRollover) != 0;
    for (std::string* text :
         {&item.Caption, &item.URL, &item.Target, &item.ImageOut, &item.ImageOver})
        *text = record.text();
}

// Each node has its depth before it, counted from 1, so that 0 is the end. A list instead of
// recursion: a menu may be thousands of levels deep.
void writeNodes(RecordWriter& record, std::span<const MenuNode* const> nodes) {
    std::vector<std::pair<const MenuNode*, std::size_t>> waiting;
    const auto add = [&](std::span<const MenuNode* const> siblings, std::size_t depth) {
        for (auto node = siblings.rbegin(); node != siblings.rend(); ++node)
            waiting.emplace_back(*node, depth);
    };
    SharedMenuProp properties;
    add(nodes, 1);
    while (!waiting.empty()) {
        const auto [node, depth] = waiting.back();
        waiting.pop_back();
        const bool isSame = node->item.MenuProperty == properties;
        record.number(depth);
        record.text(node->key());
        record.text(node->text);
        record.number((node->isExpanded ? kExpanded : 0U) | (isSame ? kSameProperties : 0U));
        writeItem(record, node->item);
        if (!isSame)
            writeProperties(record, *node->item.MenuProperty);
        properties = node->item.MenuProperty;
        add(node->children(), depth + 1);
    }
    record.number(0);
}

bool readNodes(RecordReader& record, MenuTree& tree, const MenuNode* parent, std::size_t row) {
    std::vector<const MenuNode*> above = {parent};  // of the next node, by depth
    SharedMenuProp properties;
    for (std::uint64_t depth = record.number(); depth > 0; depth = record.number()) {
        if (depth > above.size())
            return false;
        above.resize(depth);
        std::string key(record.text());
        std::string text(record.text());
        const std::uint64_t flags = record.number();
        const MenuNode* const over = above.back();
        const std::size_t place = depth == 1 ? row++ : over->children().size();
        const MenuNode* const node = addNode(tree, over, place, std::move(key), std::move(text));
        if (node == nullptr)
            return false;
        MenuNode& added = tree.edit(*node);
        added.isExpanded = (flags & kExpanded) != 0;
        readItem(record, added.item);
        if ((flags & kSameProperties) == 0)
            properties = SharedMenuProp(readProperties(record));
        added.item.MenuProperty = properties;
        above.push_back(node);
    }
    return !record.hasFailed();
}

}  // namespace zev
