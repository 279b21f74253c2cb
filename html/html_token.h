// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace zev {

/// A piece of a page. The views are the page's own bytes. Text runs to the next markup, but the
/// content of an element such as <title> is one text, whatever is in it.
struct HtmlToken {
    enum class Kind {
        Text,
        StartTag,
        EndTag,
        /// Also what is no comment but can be ignored like one: declarations, processing
        /// instructions, blocks of server-side code, "</" before anything but a name.
        Comment,
    };
    Kind kind = Kind::Text;
    bool hasUpperCase = false;  ///< in its name
    std::size_t offset = 0;     ///< of the source in the page, in bytes from 0
    std::string_view source;    ///< everything; of a script's start tag the script too
    /// All but text: what stands between "<" and ">". A source that the page's end cuts off has no
    /// ">".
    std::string_view inside;
    /// Of a tag: its name as it is spelled, of an end tag with the leading "/". A block of
    /// server-side code ends it, so that <body<? ... ?>> is a body. "!" for a comment.
    std::string_view name;
    /// Text: the source. A comment: what stands between its marks, nothing for declarations and
    /// blocks of server-side code. A script's start tag: the script. Otherwise empty.
    std::string_view text;
};

}  // namespace zev
