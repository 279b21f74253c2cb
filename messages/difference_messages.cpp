// SPDX-License-Identifier: MIT
#include "messages/difference_messages.h"

namespace zev {

namespace {

using Kind = MenuDifference::Kind;
using Owner = MenuDifference::Owner;

std::string ownerText(const MenuDifference& difference) {
    if (difference.owner == Owner::Defaults)
        return "the defaults";
    if (difference.owner == Owner::Item)
        return itemPathText(difference.item);
    return difference.item.empty() ? "the top menu"
                                   : "the menu of " + itemPathText(difference.item);
}

std::string quoted(const std::string& value) {
    return '"' + value + '"';
}

std::string verb(Kind kind) {
    switch (kind) {
        case Kind::Moved:
            return "moved ";
        case Kind::Changed:
            return "changed ";
        case Kind::Added:
            return "added ";
        case Kind::Removed:
            return "removed ";
    }
    return {};
}

}  // namespace

std::string itemPathText(std::span<const std::string> path) {
    std::string text;
    for (const std::string& name : path)
        text += (text.empty() ? "" : " > ") + (name.empty() ? "?" : name);
    return text;
}

std::string differenceText(const MenuDifference& difference) {
    if (difference.kind == Kind::Moved)
        return difference.oldPath == difference.item
                   ? "moved " + itemPathText(difference.item) + " within its menu"
                   : "moved " + itemPathText(difference.oldPath) + " to " +
                         itemPathText(difference.item);
    std::string text = verb(difference.kind) + ownerText(difference);
    if (difference.field.empty())
        return text;
    text += ": " + difference.field + ' ';
    if (difference.kind == Kind::Changed)
        return text + quoted(difference.oldValue) + " to " + quoted(difference.newValue);
    return text +
           quoted(difference.kind == Kind::Added ? difference.newValue : difference.oldValue);
}

}  // namespace zev
