// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "model/menu_prop.h"
#include "model/menu_properties.h"

namespace zev {

// A property set as the lines of a definition file, by the rows of `kMenuProperties`.

/// The `zev_state` lines of the menu-wide defaults, each ending in CR LF.
std::string GetDefaultText(const MenuProp& prop);

/// The `zevmenu` lines of one menu level, each ending in CR LF; may be empty. Values equal to
/// those of `defaults` are left out where inheritance supplies them.
std::string GetText(const MenuProp& prop, const MenuProp& defaults);
/// Appends the same lines to `script`.
void appendText(std::string& script, const MenuProp& prop, const MenuProp& defaults);

/// Assigns the property with the script name `StrProp` (exact, case-sensitive) from a value
/// without quotes and semicolon; spaces around the value are dropped. A property that no file
/// brings back is left as it is. False when no property has the name.
bool SetProperty(MenuProp& prop, std::string_view StrProp, std::string_view StrValue);

/// What a line holds of one property, without quotes and unit; empty when it is not set. Flags that
/// are off are "none". The text is part of `prop` or a constant.
std::string_view propertyValue(const MenuPropertyRow& row, const MenuProp& prop);

/// Sets those defaults that `SetProperty` leaves as they are to what the file holds. `bytes` is its
/// whole content.
void loadUnkeptDefaults(std::string bytes, MenuProp& defaults);

}  // namespace zev
