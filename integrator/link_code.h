// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

// The code that the author pastes into an integrated page by hand. Lines end in CR LF, the last one
// in nothing.

/// Arguments of the calls that open and close a submenu, from an entry of the submenu list such as
/// "Products (1i2)": "'zev1i1', '2'". An entry without an id counts as one with an empty id.
std::string MenuList_GetString(std::string_view entry);

/// Where a popup menu opens.
struct PopupPlacement {
    bool isAtMouse = true;
    std::string x;  ///< with `y` the position on the page in pixels, when not at the mouse;
    std::string y;  ///< both go into the code as they are
    bool operator==(const PopupPlacement&) const = default;
};

/// Reference to the definition file. `definitionURL` goes into the code as it is, but for double
/// quotes, angle brackets and control characters, line breaks among them: each is written as "%22"
/// and the like.
std::string definitionReference(const std::string& definitionURL);

/// Code of a horizontal or vertical menu: the reference and the call that draws the menu in place.
std::string menuCode(const std::string& definitionURL);

/// Start tag of the hyperlink below.
std::string popupLinkTag(const std::string& submenuId, const PopupPlacement& placement);

/// Hyperlink that opens, and beside the mouse also closes, the submenu of this id, which goes into
/// the code as it is: see `isSubmenuId`.
std::string popupLinkCode(const std::string& submenuId, const PopupPlacement& placement);

}  // namespace zev
