// SPDX-License-Identifier: MIT
#include "integrator/menu_place.h"

#include <algorithm>
#include <array>
#include <set>

#include "html/html_characters.h"
#include "html/html_parse.h"
#include "html/html_tokenizer.h"
#include "integrator/inserted_code.h"
#include "integrator/searchable_text.h"
#include "text/ascii.h"

namespace zev {

namespace {

using Kind = MenuPlace::Kind;

constexpr std::string_view kMarkerComment = "zevmenu";

constexpr auto kVoidElements = std::to_array<std::string_view>(
    {"area", "base", "basefont", "bgsound", "br", "col", "embed", "frame", "hr", "img", "input",
     "keygen", "link", "meta", "param", "source", "track", "wbr"});

constexpr auto kLandmarks =
    std::to_array<std::string_view>({"header", "nav", "main", "aside", "footer"});

/// Elements whose ids are worth offering.
constexpr auto kDividers = std::to_array<std::string_view>(
    {"header", "nav", "main", "aside", "footer", "section", "article", "div", "center", "table",
     "td", "ul", "ol", "form"});

struct PlaceWord {
    std::string_view word;
    Kind kind;
    bool hasSelector;
};

constexpr auto kPlaceWords = std::to_array<PlaceWord>({{"body-start", Kind::BodyStart, false},
                                                       {"body-end", Kind::BodyEnd, false},
                                                       {"marker", Kind::Marker, false},
                                                       {"before", Kind::Before, true},
                                                       {"after", Kind::After, true},
                                                       {"start", Kind::Start, true},
                                                       {"end", Kind::End, true},
                                                       {"instead", Kind::Instead, true}});

/// Elements whose content a browser with script does not show.
bool isForNoScript(std::string_view name) {
    return name == "noscript" || name == "template";
}

template <typename Names>
bool holds(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isTagName(std::string_view name) {
    return std::all_of(
        name.begin(), name.end(),
        [](char c) {
            return isAsciiLetter(c) || isAsciiDigit(c) || c == '-' || c == ':' || c == '_';
        });
}

/// What would mean something else in a selector, or could not stand in a comment, is no part of it.
bool isIdOrClass(std::string_view value) {
    return !value.empty() &&
           value.find_first_of(" \t\r\n\f#.,*+~=|<>[](){}\"'\\`") == std::string_view::npos;
}

bool hasClass(std::string_view classes, std::string_view name) {
    while (!classes.empty()) {
        const auto* const space = std::find_if(classes.begin(), classes.end(), isHtmlSpace);
        const auto length = static_cast<std::size_t>(space - classes.begin());
        if (classes.substr(0, length) == name)
            return true;
        classes.remove_prefix(std::min(length + 1, classes.size()));
    }
    return false;
}

bool isMeant(const HtmlParse& parser, const ElementSelector& selector) {
    const std::string_view name = parser.TagName();
    if (!parser.IsTag() || name.starts_with('/') || name.starts_with('!') ||
        (!selector.name.empty() && name != selector.name))
        return false;
    switch (selector.by) {
        case ElementSelector::By::Name:
            return true;
        case ElementSelector::By::Id:
            return parser.Attribute("id") == selector.value;
        case ElementSelector::By::Class:
            return hasClass(parser.Attribute("class"), selector.value);
    }
    return false;
}

/// Steps through a page and knows what does not show: what is in <noscript> and <template>.
class PageWalk {
  public:
    explicit PageWalk(std::string_view page) { m_parser.Load(page); }

    const HtmlParse& token() const { return m_parser; }
    std::size_t begin() const { return m_parser.offset(); }
    std::size_t end() const { return m_parser.offset() + m_parser.Source().size(); }
    bool isShown() const { return m_hiddenLevel == 0; }

    /// False, and nothing else, on the page's last token.
    bool next() {
        if (m_parser.IsLast())
            return false;
        const std::string_view name = m_parser.TagName();
        if (isForNoScript(name))
            ++m_hiddenLevel;
        else if (m_hiddenLevel > 0 && name.starts_with('/') && isForNoScript(name.substr(1)))
            --m_hiddenLevel;
        else if (name == "html" && !m_parser.Attribute("xmlns").empty())
            m_isXml = true;
        m_parser.Next();
        return true;
    }

    /// True for the start tag of an element that has no content.
    bool isWhole() const {
        return holds(kVoidElements, m_parser.TagName()) ||
               (m_isXml && m_parser.TagText().ends_with('/'));
    }

  private:
    HtmlParse m_parser;
    std::size_t m_hiddenLevel = 0;
    bool m_isXml = false;
};

FoundPlace failed(PlaceProblem problem) {
    return {0, 0, problem};
}

/// The place in the element at whose start tag the walk stands.
FoundPlace placeAtElement(PageWalk& walk, Kind kind) {
    const std::string name(walk.token().TagName());
    const std::size_t begin = walk.begin();
    const std::size_t contentBegin = walk.end();
    if (kind == Kind::Before)
        return {begin, 0, {}};
    if (walk.isWhole())
        return kind == Kind::Instead ? FoundPlace{begin, contentBegin - begin, {}}
                                     : FoundPlace{contentBegin, 0, {}};
    const bool isInside = kind == Kind::Start || kind == Kind::End;
    if (isInside && (hasRawContent(name) || isForNoScript(name)))
        return failed(PlaceProblem::NoMarkup);
    if (kind == Kind::Start)
        return {contentBegin, 0, {}};
    const std::string endName = "/" + name;
    bool holdsThePage = name == "head" || name == "body";
    std::size_t level = 1;
    while (level > 0 && walk.next()) {
        const std::string_view tag = walk.token().TagName();
        if (tag == name && !walk.isWhole())
            ++level;
        else if (tag == endName)
            --level;
        holdsThePage = holdsThePage || tag == "head" || tag == "body" || tag == "/body";
    }
    if (level > 0)
        return failed(PlaceProblem::NoEndTag);
    if (kind == Kind::Instead)
        return holdsThePage ? failed(PlaceProblem::HoldsThePage)
                            : FoundPlace{begin, walk.end() - begin, {}};
    return {kind == Kind::End ? walk.begin() : walk.end(), 0, {}};
}

/// Whether the walk stands at what the place is counted from.
bool isAtPlace(const PageWalk& walk, const MenuPlace& place) {
    const HtmlParse& token = walk.token();
    // Integration leaves the page's last token alone; it may be a tag that never ends.
    if (token.TagName() == "body" && token.IsLast())
        return false;
    switch (place.kind) {
        case Kind::BodyStart:
            return token.TagName() == "body";
        case Kind::BodyEnd:
            return token.TagName() == "/body";
        case Kind::Marker:
            return commentText(token) == kMarkerComment;
        default:
            return isMeant(token, place.selector);
    }
}

}  // namespace

std::optional<ElementSelector> parseSelector(std::string_view text) {
    const std::size_t mark = std::min(text.find_first_of("#."), text.size());
    ElementSelector selector;
    for (const char character : text.substr(0, mark))
        selector.name += asciiLower(character);
    if (!isTagName(selector.name) || (!selector.name.empty() && !isAsciiLetter(text.front())))
        return {};
    if (mark == text.size())
        return selector.name.empty() ? std::nullopt : std::optional(selector);
    selector.by = text[mark] == '#' ? ElementSelector::By::Id : ElementSelector::By::Class;
    selector.value = text.substr(mark + 1);
    return isIdOrClass(selector.value) ? std::optional(selector) : std::nullopt;
}

std::optional<MenuPlace> parsePlace(std::string_view where) {
    const std::size_t colon = where.find(':');
    const bool hasSelector = colon != std::string_view::npos;
    for (const PlaceWord& word : kPlaceWords) {
        if (word.word != where.substr(0, colon) || word.hasSelector != hasSelector)
            continue;
        if (!hasSelector)
            return MenuPlace{word.kind, {}, std::string(where)};
        const std::optional<ElementSelector> selector = parseSelector(where.substr(colon + 1));
        if (selector)
            return MenuPlace{word.kind, *selector, std::string(where)};
    }
    return {};
}

FoundPlace findPlace(std::string_view page, const MenuPlace& place) {
    PageWalk walk(page);
    do {
        if (!walk.isShown() || !isAtPlace(walk, place))
            continue;
        switch (place.kind) {
            case Kind::BodyStart:
            case Kind::Marker:
                return {walk.end(), 0, {}};
            case Kind::BodyEnd:
                return {walk.begin(), 0, {}};
            default:
                return placeAtElement(walk, place.kind);
        }
    } while (walk.next());
    return failed(PlaceProblem::NotFound);
}

std::vector<std::string> possiblePlaces(std::string_view page) {
    std::vector<std::string> places;
    std::set<std::string> seen;
    const auto add = [&places, &seen](const std::string& selector) {
        if (parseSelector(selector) && seen.insert(selector).second)
            places.push_back(selector);
    };
    bool hasMarker = false;
    const SearchableText text(page);
    PageWalk walk(text.bytes());
    do {
        if (!walk.isShown())
            continue;
        const HtmlParse& token = walk.token();
        if (commentText(token) == kMarkerComment)
            hasMarker = true;
        if (holds(kLandmarks, token.TagName()))
            add(std::string(token.TagName()));
        if (holds(kDividers, token.TagName()))
            add("#" + std::string(token.Attribute("id")));
    } while (walk.next());
    if (hasMarker)
        places.insert(places.begin(), "marker");
    return places;
}

}  // namespace zev
