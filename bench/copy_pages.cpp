// SPDX-License-Identifier: MIT
// The peer of `zevmenu integrate`: does with each page what has to be done to replace it, without
// looking into it. Reads the page, writes a temporary file beside it, copies that over the page and
// deletes it.
//
// usage: zev_copy_pages flush|leave PAGE...
//   flush: the page is flushed when written, and its folder then
//   leave: nothing is flushed

#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

int checked(int result, const std::string& path) {
    if (result < 0) {
        std::perror(path.c_str());
        std::exit(1);
    }
    return result;
}

std::string readPage(const std::string& path) {
    const int file = checked(::open(path.c_str(), O_RDONLY), path);
    std::string bytes(static_cast<std::size_t>(::lseek(file, 0, SEEK_END)), '\0');
    if (::pread(file, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()))
        checked(-1, path);
    ::close(file);
    return bytes;
}

void flushFolderOf(const std::string& path) {
    const std::string folder = path.substr(0, path.rfind('/'));
    const int descriptor = checked(::open(folder.c_str(), O_RDONLY | O_DIRECTORY), folder);
    checked(::fsync(descriptor), folder);
    ::close(descriptor);
}

void writePage(const std::string& path, std::string_view bytes, bool isFlushed) {
    const int file = checked(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666), path);
    if (::write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        checked(-1, path);
    if (isFlushed)
        checked(::fsync(file), path);
    checked(::close(file), path);
    if (isFlushed)
        flushFolderOf(path);
}

void replacePage(const std::string& path, bool isFlushed) {
    const std::string temporary = path.substr(0, path.rfind('/')) + "/~qxtmp.htm";
    writePage(temporary, readPage(path), false);
    writePage(path, readPage(temporary), isFlushed);
    checked(::unlink(temporary.c_str()), temporary);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::string_view mode = argumentCount > 1 ? arguments[1] : "";
    if (mode != "flush" && mode != "leave") {
        std::fprintf(stderr, "usage: %s flush|leave PAGE...\n", arguments[0]);
        return 2;
    }
    for (int i = 2; i < argumentCount; ++i)
        replacePage(arguments[i], mode == "flush");
    return 0;
}
