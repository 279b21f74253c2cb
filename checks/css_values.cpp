// SPDX-License-Identifier: MIT
#include "checks/css_values.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "text/ascii.h"

namespace zev {

namespace {

/// The names of CSS Color 4, in the order of their bytes.
constexpr auto kColourNames = std::to_array<std::string_view>({"accentcolor",
                                                               "accentcolortext",
                                                               "activetext",
                                                               "aliceblue",
                                                               "antiquewhite",
                                                               "aqua",
                                                               "aquamarine",
                                                               "azure",
                                                               "beige",
                                                               "bisque",
                                                               "black",
                                                               "blanchedalmond",
                                                               "blue",
                                                               "blueviolet",
                                                               "brown",
                                                               "burlywood",
                                                               "buttonborder",
                                                               "buttonface",
                                                               "buttontext",
                                                               "cadetblue",
                                                               "canvas",
                                                               "canvastext",
                                                               "chartreuse",
                                                               "chocolate",
                                                               "coral",
                                                               "cornflowerblue",
                                                               "cornsilk",
                                                               "crimson",
                                                               "currentcolor",
                                                               "cyan",
                                                               "darkblue",
                                                               "darkcyan",
                                                               "darkgoldenrod",
                                                               "darkgray",
                                                               "darkgreen",
                                                               "darkgrey",
                                                               "darkkhaki",
                                                               "darkmagenta",
                                                               "darkolivegreen",
                                                               "darkorange",
                                                               "darkorchid",
                                                               "darkred",
                                                               "darksalmon",
                                                               "darkseagreen",
                                                               "darkslateblue",
                                                               "darkslategray",
                                                               "darkslategrey",
                                                               "darkturquoise",
                                                               "darkviolet",
                                                               "deeppink",
                                                               "deepskyblue",
                                                               "dimgray",
                                                               "dimgrey",
                                                               "dodgerblue",
                                                               "field",
                                                               "fieldtext",
                                                               "firebrick",
                                                               "floralwhite",
                                                               "forestgreen",
                                                               "fuchsia",
                                                               "gainsboro",
                                                               "ghostwhite",
                                                               "gold",
                                                               "goldenrod",
                                                               "gray",
                                                               "graytext",
                                                               "green",
                                                               "greenyellow",
                                                               "grey",
                                                               "highlight",
                                                               "highlighttext",
                                                               "honeydew",
                                                               "hotpink",
                                                               "indianred",
                                                               "indigo",
                                                               "ivory",
                                                               "khaki",
                                                               "lavender",
                                                               "lavenderblush",
                                                               "lawngreen",
                                                               "lemonchiffon",
                                                               "lightblue",
                                                               "lightcoral",
                                                               "lightcyan",
                                                               "lightgoldenrodyellow",
                                                               "lightgray",
                                                               "lightgreen",
                                                               "lightgrey",
                                                               "lightpink",
                                                               "lightsalmon",
                                                               "lightseagreen",
                                                               "lightskyblue",
                                                               "lightslategray",
                                                               "lightslategrey",
                                                               "lightsteelblue",
                                                               "lightyellow",
                                                               "lime",
                                                               "limegreen",
                                                               "linen",
                                                               "linktext",
                                                               "magenta",
                                                               "mark",
                                                               "marktext",
                                                               "maroon",
                                                               "mediumaquamarine",
                                                               "mediumblue",
                                                               "mediumorchid",
                                                               "mediumpurple",
                                                               "mediumseagreen",
                                                               "mediumslateblue",
                                                               "mediumspringgreen",
                                                               "mediumturquoise",
                                                               "mediumvioletred",
                                                               "midnightblue",
                                                               "mintcream",
                                                               "mistyrose",
                                                               "moccasin",
                                                               "navajowhite",
                                                               "navy",
                                                               "oldlace",
                                                               "olive",
                                                               "olivedrab",
                                                               "orange",
                                                               "orangered",
                                                               "orchid",
                                                               "palegoldenrod",
                                                               "palegreen",
                                                               "paleturquoise",
                                                               "palevioletred",
                                                               "papayawhip",
                                                               "peachpuff",
                                                               "peru",
                                                               "pink",
                                                               "plum",
                                                               "powderblue",
                                                               "purple",
                                                               "rebeccapurple",
                                                               "red",
                                                               "rosybrown",
                                                               "royalblue",
                                                               "saddlebrown",
                                                               "salmon",
                                                               "sandybrown",
                                                               "seagreen",
                                                               "seashell",
                                                               "selecteditem",
                                                               "selecteditemtext",
                                                               "sienna",
                                                               "silver",
                                                               "skyblue",
                                                               "slateblue",
                                                               "slategray",
                                                               "slategrey",
                                                               "snow",
                                                               "springgreen",
                                                               "steelblue",
                                                               "tan",
                                                               "teal",
                                                               "thistle",
                                                               "tomato",
                                                               "transparent",
                                                               "turquoise",
                                                               "violet",
                                                               "visitedtext",
                                                               "wheat",
                                                               "white",
                                                               "whitesmoke",
                                                               "yellow",
                                                               "yellowgreen"});

constexpr std::string_view kColourFunctions[] = {"rgb(",   "rgba(",  "hsl(",       "hsla(",
                                                 "hwb(",   "lab(",   "lch(",       "oklab(",
                                                 "oklch(", "color(", "color-mix(", "light-dark("};

constexpr std::string_view kBorderStyles[] = {"none",   "hidden", "dotted", "dashed", "solid",
                                              "double", "groove", "ridge",  "inset",  "outset"};

constexpr std::string_view kBorderWidths[] = {"thin", "medium", "thick"};

constexpr std::string_view kUnits[] = {"px", "pt", "em", "rem", "ex", "ch",   "cm",  "mm",
                                       "q",  "in", "pc", "vw",  "vh", "vmin", "vmax"};

template <typename Words>
bool isOneOf(std::string_view text, const Words& words) {
    return std::find(std::begin(words), std::end(words), text) != std::end(words);
}

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), asciiLower);
    return result;
}

bool isHexDigit(char character) {
    const char lower = asciiLower(character);
    return isAsciiDigit(character) || (lower >= 'a' && lower <= 'f');
}

/// A number that is not negative, with its unit; 0 needs none.
bool isWidth(std::string_view word) {
    const std::size_t unit = std::min(word.find_first_not_of("0123456789."), word.size());
    const std::string_view number = word.substr(0, unit);
    if (number.empty() || number.ends_with('.') ||
        std::count(number.begin(), number.end(), '.') > 1)
        return isOneOf(word, kBorderWidths);
    if (unit == word.size())
        return number.find_first_not_of("0.") == std::string_view::npos;
    return isOneOf(word.substr(unit), kUnits);
}

/// Cut at blanks outside of parentheses.
std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    std::size_t begin = 0;
    int depth = 0;
    for (std::size_t at = 0; at <= text.size(); ++at) {
        const char character = at < text.size() ? text[at] : ' ';
        depth += character == '(' ? 1 : character == ')' ? -1 : 0;
        if ((character != ' ' || depth > 0) && at < text.size())
            continue;
        if (at > begin)
            words.push_back(text.substr(begin, at - begin));
        begin = at + 1;
    }
    return words;
}

}  // namespace

bool isCssColour(std::string_view text) {
    const std::string colour = lowerCase(trimSpaces(text));
    if (colour.starts_with('#')) {
        const std::size_t digits = colour.size() - 1;
        return std::all_of(colour.begin() + 1, colour.end(), isHexDigit) &&
               (digits == 3 || digits == 4 || digits == 6 || digits == 8);
    }
    if (std::binary_search(kColourNames.begin(), kColourNames.end(), colour))
        return true;
    return colour.ends_with(')') &&
           std::any_of(std::begin(kColourFunctions), std::end(kColourFunctions),
                       [&](std::string_view function) { return colour.starts_with(function); });
}

bool isCssBorder(std::string_view text) {
    const std::string border = lowerCase(text);
    int widths = 0;
    int styles = 0;
    int colours = 0;
    for (const std::string_view word : wordsOf(border))
        if (isWidth(word))
            ++widths;
        else if (isOneOf(word, kBorderStyles))
            ++styles;
        else if (isCssColour(word))
            ++colours;
        else
            return false;
    return widths <= 1 && styles <= 1 && colours <= 1 && widths + styles + colours > 0;
}

}  // namespace zev
