// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "model/item_prop.h"

namespace zev {

/// The item's script line, without line end.
std::string GetText(const ItemProp& item);
/// Appends the same line to `script`.
void appendText(std::string& script, const ItemProp& item);

// Both loaders leave a member unchanged whose argument the line lacks. They return whether the line
// has exactly the arguments of its kind of item, each between two quotes.

/// Loads a rollover item from an "AddRollover" line.
bool Set_ImageProperty(ItemProp& item, std::string_view StrLine);
/// Loads a text item from an "AddItem" line.
bool Set_ItemProperty(ItemProp& item, std::string_view StrLine);

}  // namespace zev
