// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// A path taken apart. Whoever cuts, joins or compares paths asks this class what they are made of.
/// Like a string_view it does not own its text, which must outlive it. Nothing here touches a disk.
///
///     System      /web/menu.js     only slashes separate; a backslash is part of a name
///     Drive       C:\web\menu.js   understood on every system; both kinds of slash separate
///     BareDrive   C:               the folder of a file in a drive's root
///     Other       web\menu.js      anything else: a relative path, a URL
class Path {
  public:
    enum class Kind { System, Drive, BareDrive, Other };

    explicit Path(std::string_view text);
    /// A path for this system's own file functions, whatever it looks like: slashes separate.
    static Path onThisSystem(std::string_view text) { return Path(text, Kind::System); }

    std::string_view text() const { return m_text; }
    Kind kind() const { return m_kind; }
    /// The system's root folder. It ends in its separator already.
    bool isSystemRoot() const { return m_kind == Kind::System && m_text == "/"; }
    /// "C:\" and nothing more.
    bool isDriveRoot() const { return m_text.substr(m_first.size()) == ":\\"; }
    /// The drive of a path that has one, as a whole code point: any character may be a drive.
    std::string_view firstCharacter() const { return m_first; }
    /// An ASCII letter and a colon at the start, whatever follows ("C:web", "c:/web"): no URL
    /// begins like that.
    bool hasDriveLetter() const;
    /// The same with an upper-case letter only.
    bool hasUpperCaseDriveLetter() const;

    /// What is put between the folders of a path of this kind.
    char separator() const { return m_kind == Kind::System ? '/' : '\\'; }
    /// What follows the last separator.
    std::string_view name() const { return m_text.substr(m_nameBegin); }
    /// What comes before it; "/" for what lies in the system's root, empty when nothing separates.
    std::string_view folder() const;
    /// The path without separators at its end; the system's root stays, a drive's loses its own.
    std::string_view withoutTrailingSeparators() const;
    /// The path of `childName` in this folder, joined the way the folder is written itself.
    std::string child(std::string_view childName) const;

  private:
    Path(std::string_view text, Kind kind);

    std::string_view m_text;
    std::string_view m_first;
    Kind m_kind;
    std::size_t m_nameBegin;  // behind the last separator; 0 when there is none
};

}  // namespace zev
