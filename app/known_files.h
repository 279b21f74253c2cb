// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace zev {

/// What the program last read or wrote of definition files, and so what another program has changed
/// since. Files are told apart by content alone: touched, or rewritten with the same bytes, a file
/// is the same.
class KnownFiles {
  public:
    /// The file at `path` holds `bytes`. `losesLines`: written again as a menu it would lack lines
    /// that it has now.
    void see(const std::string& path, std::string_view bytes, bool losesLines);
    bool isKnown(const std::string& path) const { return m_files.contains(path); }
    /// True when the file, if it holds `bytes`, is as it was seen last.
    bool isAsSeen(const std::string& path, std::string_view bytes) const;
    /// As told when the file was seen last; false for one that never was.
    bool losesLines(const std::string& path) const;

    /// The person knows of the change that made `bytes` of a known file, and keeps what is here.
    void dismiss(const std::string& path, std::string_view bytes);
    bool isDismissed(const std::string& path, std::string_view bytes) const;

  private:
    struct Version {
        std::size_t size = 0;
        std::uint64_t hash = 0;
        bool operator==(const Version&) const = default;
    };
    struct File {
        Version seen;
        Version dismissed;
        bool losesLines = false;
    };
    static Version versionOf(std::string_view bytes);

    std::map<std::string, File> m_files;
};

}  // namespace zev
