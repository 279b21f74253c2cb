// SPDX-License-Identifier: MIT
#include "messages/definition_messages.h"

#include "model/menu_content.h"

namespace zev {

namespace {

std::string itemsText(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " item" : " items");
}

}  // namespace

std::string itemsLeftOutText(const std::string& path, std::size_t count) {
    return path + ": " + itemsText(count) + " left out; a menu holds " +
           std::to_string(kMaxItemCounter) + " at most";
}

std::string losesItemsText(std::size_t count) {
    return "not written, as it would lose the " + itemsText(count) + " left out";
}

}  // namespace zev
