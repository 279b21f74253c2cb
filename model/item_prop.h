// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/shared_menu_prop.h"

namespace zev {

/// One entry of a menu: a text item (HTML caption with a link) or an image-rollover item.
///
/// All text is UTF-8 in script form: an apostrophe is held as backslash-apostrophe. A rollover item
/// keeps its caption and a text item its images; they are simply not written.
struct ItemProp {
    std::string ImageOut;         ///< image URL while the mouse is off a rollover item
    std::string ImageOver;        ///< image URL while the mouse is over a rollover item
    std::string Target;           ///< target frame of the link; empty is the menu's default
    std::string URL;              ///< page URL or "javascript:" call
    bool IsRollover = false;      ///< image-rollover item
    SharedMenuProp MenuProperty;  ///< property set of the submenu that opens from this item
    std::string Caption;          ///< caption of a text item, HTML

    bool operator==(const ItemProp&) const = default;
};

}  // namespace zev
