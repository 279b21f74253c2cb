#pragma once

#include <string>
#include <string_view>

#include "platform/posix/posix_file_replace.h"

namespace zev::test {

/// Replaces one file alone: looks for leftovers now.
inline FileOutcome replaceFile(const std::string& path, std::string_view bytes) {
    FolderLeftovers leftovers;
    return zev::replaceFile(path, bytes, leftovers);
}

}  // namespace zev::test
