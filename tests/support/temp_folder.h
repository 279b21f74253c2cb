// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace zev::test {

/// A new, empty folder that is removed with all it holds when the object goes.
class TempFolder {
  public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zev-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_path = pattern;
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code error;
        // A test may have taken the right to change a folder away.
        for (std::filesystem::recursive_directory_iterator entry(m_path, error), end;
             !error && entry != end; entry.increment(error)) {
            std::error_code ignored;
            if (entry->is_directory(ignored) && !entry->is_symlink(ignored))
                std::filesystem::permissions(entry->path(), std::filesystem::perms::owner_all,
                                             ignored);
        }
        std::filesystem::remove_all(m_path, error);
    }

    const std::string& path() const { return m_path; }
    std::string operator/(const std::string& name) const { return m_path + "/" + name; }

  private:
    std::string m_path;
};

}  // namespace zev::test
