// SPDX-License-Identifier: MIT
#include "text/path.h"

#include "text/ascii.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

Path::Kind kindOf(std::string_view text) {
    if (text.starts_with('/'))
        return Path::Kind::System;
    const std::string_view rest = text.substr(firstCodePoint(text).size());
    if (rest.starts_with(":\\"))
        return Path::Kind::Drive;
    return rest == ":" ? Path::Kind::BareDrive : Path::Kind::Other;
}

}  // namespace

Path::Path(std::string_view text) : Path(text, kindOf(text)) {}

Path::Path(std::string_view text, Kind kind)
    : m_text(text),
      m_first(firstCodePoint(text)),
      m_kind(kind),
      m_nameBegin(text.find_last_of(kind == Kind::System ? "/" : "/\\") + 1) {}

bool Path::hasDriveLetter() const {
    return m_text.size() >= 2 && isAsciiLetter(m_text[0]) && m_text[1] == ':';
}

bool Path::hasUpperCaseDriveLetter() const {
    return hasDriveLetter() && isAsciiUpper(m_text[0]);
}

std::string_view Path::folder() const {
    if (m_nameBegin == 0)
        return {};
    const bool isInSystemRoot = m_kind == Kind::System && m_nameBegin == 1;
    return m_text.substr(0, isInSystemRoot ? 1 : m_nameBegin - 1);
}

std::string_view Path::withoutTrailingSeparators() const {
    const std::size_t rest = m_text.find_last_not_of(separator()) + 1;
    return m_text.substr(0, rest == 0 && m_kind == Kind::System ? 1 : rest);
}

std::string Path::child(std::string_view childName) const {
    std::string path(m_text);
    if (m_kind == Kind::BareDrive)
        path += '\\';
    else if (m_nameBegin < m_text.size())
        path += m_nameBegin > 0 ? m_text[m_nameBegin - 1] : '/';
    path += childName;
    return path;
}

}  // namespace zev
