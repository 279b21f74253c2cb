// SPDX-License-Identifier: MIT
#include "checks/difference_json.h"

#include "text/json_text.h"

namespace zev {

namespace {

constexpr std::string_view kKinds[] = {"moved", "changed", "added", "removed"};
constexpr std::string_view kOwners[] = {"item", "menu", "defaults"};

template <std::size_t kCount, typename Enum>
std::string wordOf(const std::string_view (&words)[kCount], Enum value) {
    return jsonString(words[static_cast<std::size_t>(value)]);
}

}  // namespace

std::string differencesJson(std::span<const MenuDifference> differences) {
    std::string json = "[";
    for (const MenuDifference& difference : differences) {
        const bool isMoved = difference.kind == MenuDifference::Kind::Moved;
        const std::string item = jsonStrings(difference.item);
        json += json.size() > 1 ? ",\n" : "\n";
        json += "{\"kind\": " + wordOf(kKinds, difference.kind) +
                ", \"owner\": " + wordOf(kOwners, difference.owner) + ", \"item\": " + item +
                ", \"field\": " + jsonString(difference.field) + ", \"old\": " +
                (isMoved ? jsonStrings(difference.oldPath) : jsonString(difference.oldValue)) +
                ", \"new\": " + (isMoved ? item : jsonString(difference.newValue)) + "}";
    }
    return json += differences.empty() ? "]\n" : "\n]\n";
}

}  // namespace zev
