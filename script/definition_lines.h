// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zev {

/// The lines of a menu file, one after the other: UTF-8 whatever the file's encoding
/// (`decodeDefinition`), without the spaces at both ends.
///
/// A line ends at LF; a CR before it is dropped.
class DefinitionLines {
  public:
    /// `bytes` is the file's whole content. Of bytes that had to be converted only the text is
    /// kept.
    explicit DefinitionLines(std::string bytes);
    DefinitionLines(const DefinitionLines&) = delete;
    DefinitionLines& operator=(const DefinitionLines&) = delete;

    /// The number of the line that `next` gave last, counted from 1.
    std::size_t number() const { return m_number; }

    /// False when there is no further line; `line` is then unchanged. The text is a view that is
    /// valid as long as this object.
    bool next(std::string_view& line);

  private:
    std::string m_text;
    std::string_view m_rest;
    std::size_t m_number = 0;
};

}  // namespace zev
