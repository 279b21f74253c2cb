// SPDX-License-Identifier: MIT
#include "script/definition_lines.h"

#include <utility>

#include "text/ascii.h"
#include "text/text_encoding.h"

namespace zev {

DefinitionLines::DefinitionLines(std::string bytes)
    : m_text(std::move(bytes)), m_rest(decodeDefinition(m_text, m_text)) {}

bool DefinitionLines::next(std::string_view& line) {
    if (m_rest.empty())
        return false;
    ++m_number;
    const std::size_t end = m_rest.find('\n');
    line = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    line = trimSpaces(line);
    return true;
}

}  // namespace zev
