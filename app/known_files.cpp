// SPDX-License-Identifier: MIT
#include "app/known_files.h"

#include "text/hash.h"

namespace zev {

KnownFiles::Version KnownFiles::versionOf(std::string_view bytes) {
    return {bytes.size(), hashOf(bytes)};
}

void KnownFiles::see(const std::string& path, std::string_view bytes, bool losesLines) {
    const Version version = versionOf(bytes);
    m_files.insert_or_assign(path, File{version, version, losesLines});
}

bool KnownFiles::isAsSeen(const std::string& path, std::string_view bytes) const {
    const auto file = m_files.find(path);
    return file != m_files.end() && file->second.seen == versionOf(bytes);
}

bool KnownFiles::losesLines(const std::string& path) const {
    const auto file = m_files.find(path);
    return file != m_files.end() && file->second.losesLines;
}

void KnownFiles::dismiss(const std::string& path, std::string_view bytes) {
    m_files.at(path).dismissed = versionOf(bytes);
}

bool KnownFiles::isDismissed(const std::string& path, std::string_view bytes) const {
    const auto file = m_files.find(path);
    return file != m_files.end() && file->second.dismissed == versionOf(bytes);
}

}  // namespace zev
