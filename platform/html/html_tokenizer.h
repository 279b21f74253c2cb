#pragma once

#include <cstddef>
#include <string_view>

#include "platform/html/server_blocks.h"

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
    std::size_t offset = 0;   ///< of the source in the page, in bytes from 0
    std::string_view source;  ///< everything; of a script's start tag the script too
    /// All but text: what stands between "<" and ">". A source that the page's end cuts off has no
    /// ">".
    std::string_view inside;
    /// Of a tag: its name as it is spelled, without "/". A block of server-side code ends it, so
    /// that <body<? ... ?>> is a body.
    std::string_view name;
    /// Text: the source. A comment: what stands between its marks, nothing for declarations and
    /// blocks of server-side code. A script's start tag: the script. Otherwise empty.
    std::string_view text;
};

/// Cuts a page into tokens, in one pass and without memory of its own for a token. The tokens'
/// sources joined are the page. A page that begins with a UTF-16 byte order mark is all text.
class HtmlTokenizer {
  public:
    /// The page's bytes are not owned and must outlive this object and its tokens.
    explicit HtmlTokenizer(std::string_view page);

    /// Reads the next token; false at the end of the page.
    bool next(HtmlToken& token);
    bool isAtEnd() const { return m_position == m_page.size(); }

  private:
    // Each state reads the token that begins at m_position and leaves m_position after it.
    void dataState(HtmlToken& token);
    void tagOpenState(HtmlToken& token);
    void endTagOpenState(HtmlToken& token);
    void tagNameState(HtmlToken& token, std::size_t nameBegin);
    void markupDeclarationOpenState(HtmlToken& token);
    void commentStartState(HtmlToken& token);
    void processingInstructionState(HtmlToken& token);
    void bogusCommentState(HtmlToken& token, std::size_t textBegin);
    void serverBlockState(HtmlToken& token, std::size_t insideEnd);
    void afterStartTagState(HtmlToken& token);

    // These look from an offset on and give the offset where what they name ends.
    std::size_t rawTextState(std::size_t position);
    std::size_t scriptDataState(std::size_t position);
    std::size_t scriptDataEscapedState(std::size_t position);

    bool isMarkup(std::size_t lessThan);
    bool isTagOf(std::size_t nameBegin, std::string_view element) const;
    bool isEndTagOf(std::size_t lessThan, std::string_view element) const;
    std::size_t find(char character, std::size_t from) const;
    std::size_t findCommentEnd(std::size_t from) const;
    template <typename FindEnd>
    std::size_t findOutsideBlocks(std::size_t from, FindEnd findEnd);
    std::string_view slice(std::size_t begin, std::size_t end) const;
    void takeText(HtmlToken& token, std::size_t end);
    void takeMarkup(HtmlToken& token, std::size_t insideEnd);

    std::string_view m_page;
    ServerBlocks m_blocks;
    std::size_t m_position = 0;
    std::string_view m_rawElement;  // whose content comes next, as its tag spells it
};

}  // namespace zev
