// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zev {

/// Which elements are meant: by a tag's name, an id or class, or a tag's name with one of them.
struct ElementSelector {
    enum class By { Name, Id, Class };
    By by = By::Name;
    std::string name;   ///< in lower case; empty: of any name
    std::string value;  ///< the id or the class, exactly
    bool operator==(const ElementSelector&) const = default;
};

/// "nav", "#menu", ".bar", "div#menu" or "div.bar"; nothing for anything else.
std::optional<ElementSelector> parseSelector(std::string_view text);

/// Where in a page the menu is to stand.
struct MenuPlace {
    enum class Kind {
        BodyStart,  ///< first in the body
        BodyEnd,    ///< last in it
        Marker,     ///< behind the comment <!-- zevmenu -->
        Before,     ///< of the first element that the selector means: before its start tag
        After,      ///< behind its end tag
        Start,      ///< behind its start tag
        End,        ///< before its end tag
        Instead     ///< in place of it and all that is in it
    };
    Kind kind = Kind::BodyStart;
    ElementSelector selector;
    std::string text;  ///< as it was written
    bool operator==(const MenuPlace&) const = default;
};

/// From "body-start", "body-end", "marker", or "before:", "after:", "start:", "end:" or "instead:"
/// and a selector; nothing for anything else.
std::optional<MenuPlace> parsePlace(std::string_view where);

/// Why a page has no such place.
enum class PlaceProblem {
    NotFound,
    NoEndTag,      ///< the element is there, but where it ends cannot be told
    NoMarkup,      ///< nothing but text can stand in the element: a script, a title
    HoldsThePage,  ///< it would go with the page's head or body
    TextNotFound   ///< that a popup menu is to open at
};

/// A place in a page: so many bytes from an offset on, which give way to the menu.
struct FoundPlace {
    std::size_t offset = 0;
    std::size_t length = 0;
    std::optional<PlaceProblem> problem;  ///< offset and length mean nothing then
};

/// Looks for the first such place outside of comments, text-only elements, server-side code and
/// what is only for browsers without script. In pages of XHTML a "/" at a tag's end ends the
/// element.
FoundPlace findPlace(std::string_view page, const MenuPlace& place);

/// What a person may choose from: "marker" when there is that comment, then the selectors of the
/// page's landmarks, and of the ids of elements that divide it, in its order, each once.
std::vector<std::string> possiblePlaces(std::string_view page);

}  // namespace zev
