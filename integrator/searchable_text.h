// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "integrator/page_edit.h"
#include "integrator/page_note.h"

namespace zev {

/// A page's bytes as they can be searched for markup. ISO-2022-JP and its like, and HZ, write other
/// characters with the bytes of ASCII between escapes, and "<R" is no tag there:
///
///     <p>ESC $ B <R ESC ( B</p>
///
/// Such bytes have their high bit set here; nothing else differs, and offsets are the same. A page
/// without such escapes, with other bytes outside of ASCII, or that declares another encoding is
/// searched as it is, and so is what has been made searchable already.
class SearchableText {
  public:
    /// The page's bytes are not owned and must outlive this object.
    explicit SearchableText(std::string_view page);
    SearchableText(const SearchableText&) = delete;
    SearchableText& operator=(const SearchableText&) = delete;

    std::string_view bytes() const { return m_escapes ? m_marked : m_page; }
    /// Whether the bytes differ from the page's.
    bool isEscaped() const { return m_escapes.has_value(); }
    /// What was cut out of the bytes gets back those of the page.
    void restore(std::vector<PageEdit>& edits) const;
    void restore(std::vector<PageNote>& notes) const;

  private:
    enum class Escapes { Iso2022, Hz };
    static std::optional<Escapes> escapesOf(std::string_view page);
    void flip(std::string& text) const;

    std::string_view m_page;
    std::optional<Escapes> m_escapes;
    std::string m_marked;
};

}  // namespace zev
