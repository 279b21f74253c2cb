// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "model/menu_prop.h"

namespace zev {

/// A value of the defaults or of the top-level menu that a saved file, opened again, does not bring
/// back.
struct UnkeptValue {
    bool isDefault = false;  ///< else of the top-level menu
    std::string field;       ///< its name in the script
    std::string value;       ///< empty: it is not set
    std::string opened;      ///< what the next Open shows
    bool operator==(const UnkeptValue&) const = default;
};

/// Compares what is with what a written and opened file would hold. Values that are inherited
/// instead, and are the same then, count as kept. Left out are those that break the script, and
/// those that no file brings back whatever they are (`Special::NotReadBack`).
std::vector<UnkeptValue> findUnkeptValues(const MenuProp& defaults, const MenuProp& topMenu);

}  // namespace zev
