#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "model/menu_content.h"
#include "script/line_warning.h"

namespace zev {

/// No menu comes near this size; a larger file was chosen by mistake and would only fill memory.
inline constexpr std::uint64_t kMaxDefinitionFileBytes = std::uint64_t{256} << 20;

/// What the reader counted and what it could not make use of.
struct ReadResult {
    /// Lines that were recognised but could not be applied; one line can count twice.
    std::size_t errorCount = 0;
    /// Each of these errors, and, not counted, each line that begins with "zev" and is neither the
    /// creation of a menu nor a property of `kMenuProperties` nor an item with exactly its
    /// arguments (`NotUnderstood`). In the order of the lines.
    std::vector<LineWarning> warnings;
};

/// Replays a definition file into `content`, which must be that of a new menu.
///
/// `bytes` is the file's whole content: UTF-8 with or without a byte order mark, else Windows-1252.
/// Lines end at LF; a CR before it is dropped. Unrecognised lines are skipped.
ReadResult ReadScript(std::string_view bytes, MenuContent& content);

/// True when `bytes` cannot be a text file: it holds a NUL byte.
bool isBinary(std::string_view bytes);

}  // namespace zev
