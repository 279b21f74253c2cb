// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "integrator/link_code.h"
#include "integrator/menu_place.h"
#include "integrator/page_edit.h"
#include "integrator/page_note.h"

namespace zev {

/// A text of a page that becomes the link at which a submenu opens.
struct LinkedText {
    std::string text;  ///< as it is spelled in the page
    std::string submenuId;
    PopupPlacement placement;
};

/// The menu's code, and where it is to stand in a page.
struct PlacedMenu {
    MenuPlace place;
    std::string code;  ///< without the marks around it
    std::optional<LinkedText> link = {};
};

/// What places a menu in a page.
struct Placement {
    std::optional<PlaceProblem> problem;  ///< the page has no such place; there are no edits then
    std::vector<PageEdit> edits;          ///< in the order of the page; none where all is there
    std::vector<PageNote> notes;
    bool hasOwnCall =
        false;  ///< somebody pasted the menu's call, and none is placed; a note says so
};

/// Puts the code between marks at its place. A menu that was placed before is replaced where it
/// stands, wherever that is; of several, the first.
Placement placeMenu(std::string_view page, const PlacedMenu& menu);

/// Code of a horizontal or vertical menu, as it is pasted, on one line.
std::string placedMenuCode(const std::string& definitionURL);

/// The edits that make the text, where it first stands as words of its own and in no link or
/// button, the link at which a submenu opens. A link that was made so before is replaced. Nothing
/// when the page has no such text.
std::optional<std::vector<PageEdit>> linkTextEdits(std::string_view page, const LinkedText& link);

}  // namespace zev
