// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace zev {

/// A line of a menu file that could not be applied as it stands.
struct LineWarning {
    enum class Reason {
        UnknownMenu,    ///< a property or item of a menu that no item opens
        DuplicateKey,   ///< the item's place is taken by an earlier one
        AboveTop,       ///< the item goes up past the top level
        StartsDeep,     ///< the first item is deeper than the top level; it was put there
        TooManyItems,   ///< the menu holds as many items as it can
        NotUnderstood,  ///< it begins as the format's lines do, but says nothing or too much
    };
    std::size_t line = 0;  ///< counted from 1
    Reason reason = Reason::UnknownMenu;
    bool operator==(const LineWarning&) const = default;
};

}  // namespace zev
