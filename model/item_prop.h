#pragma once

#include <string>
#include <string_view>

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

    /// The item's script line, without line end.
    std::string GetText() const;
    /// Appends the same line to `script`.
    void AppendText(std::string& script) const;

    /// Loads a rollover item from an "AddRollover" line. An argument the line lacks leaves its
    /// member unchanged.
    void Set_ImageProperty(std::string_view StrLine);

    /// Loads a text item from an "AddItem" line. An argument the line lacks leaves its member
    /// unchanged.
    void Set_ItemProperty(std::string_view StrLine);
};

}  // namespace zev
