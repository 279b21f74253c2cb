// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace zev {

/// Cuts a text at every separator and hands out the pieces from left to right: one more than there
/// are separators. Only the pieces asked for take time.
class PieceCutter {
  public:
    /// The pieces are views of `text`.
    PieceCutter(std::string_view text, char separator) : m_rest(text), m_separator(separator) {}

    /// False when there is no further piece; `piece` is then unchanged.
    bool next(std::string_view& piece) {
        if (m_isAtEnd)
            return false;
        const std::size_t end = m_rest.find(m_separator);
        piece = m_rest.substr(0, end);
        m_isAtEnd = end == std::string_view::npos;
        m_rest.remove_prefix(m_isAtEnd ? m_rest.size() : end + 1);
        return true;
    }

  private:
    std::string_view m_rest;
    char m_separator;
    bool m_isAtEnd = false;
};

}  // namespace zev
