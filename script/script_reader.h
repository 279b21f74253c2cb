#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "model/menu_content.h"

namespace zev {

/// No menu comes near this size; a larger file was chosen by mistake and would only fill memory.
inline constexpr std::uint64_t kMaxDefinitionFileBytes = std::uint64_t{256} << 20;

/// What the reader counted.
struct ReadResult {
    std::size_t errorCount = 0;  ///< lines that were recognised but could not be applied
};

/// Replays a definition file into `content`, which must be that of a new menu.
///
/// `bytes` is the file's whole content: UTF-8 with or without a byte order mark, else Windows-1252.
/// Lines end at LF; a CR before it is dropped. Unrecognised lines are skipped.
ReadResult ReadScript(std::string_view bytes, MenuContent& content);

/// True when `bytes` cannot be a text file: it holds a NUL byte.
bool IsBinary(std::string_view bytes);

}  // namespace zev
