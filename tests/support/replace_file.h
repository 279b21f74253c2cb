// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/posix/posix_file_replace.h"

namespace zev::test {

/// Replaces one file alone: looks for leftovers now.
inline FileOutcome replaceFile(const std::string& path, std::string_view bytes,
                               Links links = Links::Followed) {
    FolderLeftovers leftovers;
    return zev::replaceFile(path, bytes, links, leftovers);
}

}  // namespace zev::test
