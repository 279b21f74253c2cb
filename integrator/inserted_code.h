// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "html/html_parse.h"

namespace zev {

// The code that the program puts into pages, and how it is found there again.

inline constexpr std::string_view kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";
inline constexpr std::string_view kMarkerText = "Added by ZEVMenu Creator";
inline constexpr std::string_view kScriptStart = "<script language=\"JavaScript1.2\">";
inline constexpr std::string_view kSourceStart = "<script language=\"JavaScript1.2\" src=\"";
inline constexpr std::string_view kScriptEnd = "</script>";
inline constexpr std::string_view kHandlerCall = "ZEVLoadMenu();";
inline constexpr std::string_view kDisplayCall = "ZEVDisplayMenu();";

// A menu that was placed stands between these two, a link that a popup menu opens at between the
// other two. What is between the former belongs to the program, and so do the tags of the link.
inline constexpr std::string_view kMenuOpen = "<!-- zevmenu menu -->";
inline constexpr std::string_view kMenuClose = "<!-- /zevmenu menu -->";
inline constexpr std::string_view kLinkOpen = "<!-- zevmenu link -->";
inline constexpr std::string_view kLinkClose = "<!-- /zevmenu link -->";
/// First in a placed menu that stands instead of an element; after it, the selector and " -->".
inline constexpr std::string_view kInsteadOpen = "<!-- zevmenu instead:";
inline constexpr std::string_view kCommentEnd = " -->";

/// A comment's text without the white space at its ends; empty for all that is no comment.
std::string_view commentText(const HtmlParse& parser);

/// True for a script that loads the library, whoever wrote it.
bool loadsLibrary(const HtmlParse& parser);

/// True for the start tag of one of the three scripts that integration itself puts in, as written
/// by this program; quotes and letter case do not count, because editors change them.
bool isInsertedScript(const HtmlParse& parser);

/// A piece of a page between two comments. Offsets count bytes from 0.
///
///     <!-- zevmenu menu -->...<!-- /zevmenu menu -->
///     |                    |  |                     |
///     begin     contentBegin  contentEnd          end
struct MarkedPart {
    std::size_t begin = 0;
    std::size_t contentBegin = 0;
    std::size_t contentEnd = 0;
    std::size_t end = 0;
};

/// The parts between comments with the text `name` and, to close, "/" and that. A comment that
/// opens twice counts the second time. What holds the start of the page's head or body, or the end
/// of its body, is no part: a comment has got lost.
std::vector<MarkedPart> findMarkedParts(std::string_view page, std::string_view name);

std::vector<MarkedPart> findPlacedMenus(std::string_view page);
std::vector<MarkedPart> findLinkedTexts(std::string_view page);

/// The comment that a placed menu's content begins with when it stands instead of an element; empty
/// otherwise.
std::string_view insteadNote(std::string_view content);

/// What stands in a placed menu beside the program's code, without the white space at its ends.
std::string_view foreignPart(std::string_view content);

}  // namespace zev
