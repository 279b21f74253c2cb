// SPDX-License-Identifier: MIT
#include "platform/posix/posix_write_target.h"

#include <linux/magic.h>
#include <sys/vfs.h>

#include <cerrno>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "text/path.h"

namespace zev {

namespace {

void splitPath(WriteTarget& target) {
    const Path path = Path::onThisSystem(target.path);
    target.name = path.name();
    target.folder = path.folder().empty() ? "." : path.folder();
}

/// Links in the proc file system, /proc/self/fd/1 for example, lead to an open file. Their text
/// only describes it: "pipe:[4711]", or the former name of a deleted file.
bool isOnProc(const std::string& folder) {
    struct statfs status {};
    return ::statfs(folder.c_str(), &status) == 0 && status.f_type == PROC_SUPER_MAGIC;
}

int ownDescriptorOf(const WriteTarget& target) {
    std::error_code error;
    if (!std::filesystem::equivalent(target.folder, "/proc/self/fd", error) || error)
        return -1;
    int descriptor = -1;
    const char* const end = target.name.data() + target.name.size();
    const auto [rest, problem] = std::from_chars(target.name.data(), end, descriptor);
    return problem == std::errc() && rest == end ? descriptor : -1;
}

/// Replaces `target.path` by what the link holds. 0 or an errno.
int followLink(WriteTarget& target) {
    std::error_code error;
    const std::filesystem::path link = std::filesystem::read_symlink(target.path, error);
    if (error)
        return error.value();
    target.path = link.is_absolute() ? link.string() : target.folder + "/" + link.string();
    return 0;
}

/// 0 or an errno.
int resolveWithoutLinks(WriteTarget& target) {
    splitPath(target);
    if (::lstat(target.path.c_str(), &target.status) != 0)
        return errno == ENOENT && !target.name.empty() ? 0 : errno;
    const mode_t mode = target.status.st_mode;
    if (S_ISDIR(mode))
        return EISDIR;
    // The other names of a file with hard links are not the program's to write to.
    target.exists = !S_ISLNK(mode) && !(S_ISREG(mode) && target.status.st_nlink > 1);
    target.isWrittenStraight = target.exists && !S_ISREG(mode);
    return 0;
}

}  // namespace

int resolveWriteTarget(const std::string& path, Links links, WriteTarget& target) {
    constexpr int kMaxLinks = 40;  // as many as the system itself follows
    target = WriteTarget();
    target.path = path;
    if (links == Links::Replaced)
        return resolveWithoutLinks(target);
    for (int followed = 0; followed <= kMaxLinks; ++followed) {
        splitPath(target);
        if (::lstat(target.path.c_str(), &target.status) != 0) {
            if (errno == ENOENT && target.name.empty())
                return path.empty() ? ENOENT : EISDIR;
            return errno == ENOENT ? 0 : errno;
        }
        if (!S_ISLNK(target.status.st_mode)) {
            target.exists = true;
            target.isWrittenStraight = !S_ISREG(target.status.st_mode);
            return S_ISDIR(target.status.st_mode) ? EISDIR : 0;
        }
        if (isOnProc(target.folder)) {
            target.exists = true;
            target.isWrittenStraight = true;
            target.ownDescriptor = ownDescriptorOf(target);
            return 0;
        }
        if (const int error = followLink(target))
            return error;
    }
    return ELOOP;
}

}  // namespace zev
