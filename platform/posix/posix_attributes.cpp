// SPDX-License-Identifier: MIT
#include "platform/posix/posix_attributes.h"

#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace zev {

namespace {

/// Labels that the system itself or a security module keeps; an ordinary user may not set them.
bool isKeptBySystem(std::string_view name) {
    return name.starts_with("security.") || name.starts_with("trusted.");
}

/// Calls `read(buffer, size)`, which follows the manners of listxattr() and getxattr(), with a
/// buffer that is large enough. Empty when it fails.
template <typename Read>
std::optional<std::string> readGrowing(Read read) {
    for (;;) {
        const ssize_t needed = read(nullptr, std::size_t{0});
        if (needed < 0)
            return {};
        std::string buffer(static_cast<std::size_t>(needed), '\0');
        if (needed == 0)
            return buffer;
        const ssize_t length = read(buffer.data(), buffer.size());
        if (length >= 0) {
            buffer.resize(static_cast<std::size_t>(length));
            return buffer;
        }
        if (errno != ERANGE)  // it grew in between
            return {};
    }
}

/// Names are separated, and the last one ended, by NUL characters.
std::vector<std::string> splitNames(const std::string& list) {
    std::vector<std::string> names;
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find('\0', start), list.size());
        names.push_back(list.substr(start, end - start));
        start = end + 1;
    }
    return names;
}

std::optional<std::string> attributeOf(int descriptor, const std::string& name) {
    return readGrowing([&](char* buffer, std::size_t size) {
        return ::fgetxattr(descriptor, name.c_str(), buffer, size);
    });
}

/// An attribute that is there already need not be set, which may be forbidden.
bool copyAttribute(const std::string& path, const std::string& name, int descriptor) {
    const auto value = readGrowing([&](char* buffer, std::size_t size) {
        return ::lgetxattr(path.c_str(), name.c_str(), buffer, size);
    });
    return value && (attributeOf(descriptor, name) == value ||
                     ::fsetxattr(descriptor, name.c_str(), value->data(), value->size(), 0) == 0);
}

/// Owner and group, or the group alone, which may be one of the user's own.
bool copyOwner(const struct stat& status, int descriptor) {
    return ::fchown(descriptor, status.st_uid, status.st_gid) == 0 ||
           ::fchown(descriptor, static_cast<uid_t>(-1), status.st_gid) == 0;
}

}  // namespace

FileAttributes::FileAttributes(const std::string& path, const struct stat& status)
    : m_path(path), m_status(status) {
    const auto list = readGrowing(
        [&](char* buffer, std::size_t size) { return ::llistxattr(path.c_str(), buffer, size); });
    m_areKnown = list || errno == ENOTSUP;
    m_names = splitNames(list.value_or(""));
}

unsigned FileAttributes::modeToBeginWith() const {
    const mode_t mode = m_status.st_mode & 0777;
    // Where a group has the same rights as everybody else, it does not matter which group it is.
    const bool isSameForAll = (mode >> 3 & 07) == (mode & 07);
    const bool isPlain = m_areKnown && m_names.empty() && m_status.st_uid == ::geteuid();
    return isSameForAll && isPlain ? mode : 0600;
}

Carried FileAttributes::giveTo(int descriptor, struct stat own) const {
    const bool isOwned = own.st_uid == m_status.st_uid && own.st_gid == m_status.st_gid;
    bool isChanged = !isOwned;
    if ((!isOwned && !copyOwner(m_status, descriptor)) ||
        !giveExtendedAttributes(descriptor, isChanged) ||
        (isChanged && ::fstat(descriptor, &own) != 0))
        return Carried::Less;
    const bool isOwnerKept = own.st_uid == m_status.st_uid;
    const mode_t mode = m_status.st_mode & (isOwnerKept ? 07777 : 0777);
    if ((own.st_mode & 07777) != mode) {
        // Last, for the two before may change it.
        if (::fchmod(descriptor, mode) != 0)
            return Carried::Failed;
        // Some systems drop bits without an error.
        if (::fstat(descriptor, &own) != 0 || (own.st_mode & 07777) != mode)
            return Carried::Less;
    }
    return isOwnerKept ? Carried::All : Carried::AllButOwner;
}

/// Sets `isChanged` where the file has or had any.
bool FileAttributes::giveExtendedAttributes(int descriptor, bool& isChanged) const {
    if (!m_areKnown)
        return false;
    const auto present = readGrowing(
        [&](char* buffer, std::size_t size) { return ::flistxattr(descriptor, buffer, size); });
    isChanged = isChanged || !m_names.empty() || !present.value_or("").empty();
    // A new file may have inherited an access control list from its folder.
    for (const std::string& name : splitNames(present.value_or("")))
        if (std::find(m_names.begin(), m_names.end(), name) == m_names.end() &&
            !isKeptBySystem(name) && ::fremovexattr(descriptor, name.c_str()) != 0)
            return false;
    return std::all_of(m_names.begin(), m_names.end(), [&](const std::string& name) {
        return copyAttribute(m_path, name, descriptor);
    });
}

}  // namespace zev
