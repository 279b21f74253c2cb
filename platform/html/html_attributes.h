#pragma once

#include <cstddef>
#include <string_view>

#include "platform/html/server_blocks.h"

namespace zev {

/// An attribute as it is spelled in a tag. Offsets count bytes of the page from 0.
///
///     onload = "init()"
///     |     |   |     |
///     |     |   |     valueEnd
///     |     |   valueBegin
///     |     nameEnd
///     nameBegin
struct HtmlAttribute {
    std::size_t nameBegin = 0;
    std::size_t nameEnd = 0;
    std::size_t valueBegin = 0;  ///< without a value: as `valueEnd`, where one would have to stand
    std::size_t valueEnd = 0;
    bool hasEqualsSign = false;
    char quote = '\0';  ///< around the value: " or ', or NUL for none
};

/// Walks the attributes of a tag in their order, duplicates included. A block of server-side code
/// is part of the name or value it touches; one that stands before a name is passed over like white
/// space.
class HtmlAttributeReader {
  public:
    /// `page` and `blocks` (of the same page) are not owned and must outlive this object.
    /// `position` is the offset after the tag's name.
    HtmlAttributeReader(std::string_view page, ServerBlocks& blocks, std::size_t position)
        : m_page(page), m_blocks(blocks), m_position(position) {}

    /// Reads the next attribute; false when the tag has no more.
    bool next(HtmlAttribute& attribute);
    /// Where reading stands; after `next` gave false, at the tag's ">" or the page's end.
    std::size_t position() const { return m_position; }

  private:
    bool beforeAttributeNameState();
    void attributeNameState();
    bool afterAttributeNameState();
    void beforeAttributeValueState(HtmlAttribute& attribute);
    void attributeValueQuotedState(HtmlAttribute& attribute);
    void attributeValueUnquotedState(HtmlAttribute& attribute);
    bool isAtEnd() const { return m_position >= m_page.size(); }
    void skipSpace();
    template <typename IsEnd>
    void passUntil(IsEnd isEnd);

    std::string_view m_page;
    ServerBlocks& m_blocks;
    std::size_t m_position;
};

/// Finds the first attribute of this name, in whatever case; false when there is none. `position`
/// as for the reader.
bool findHtmlAttribute(std::string_view tag, std::size_t position, std::string_view name,
                       HtmlAttribute& attribute);

}  // namespace zev
