// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace zev {

/// A run-time file as the build made it.
struct BuiltFile {
    std::string_view name;
    std::uint64_t sizeBytes;
    std::uint64_t hash;  ///< `hashOf` its bytes
};

}  // namespace zev
