// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/menu_content.h"
#include "script/line_warning.h"
#include "script/menu_script.h"

namespace zev {

/// No menu comes near this size; a larger file was chosen by mistake and would only fill memory.
inline constexpr std::uint64_t kMaxDefinitionFileBytes = std::uint64_t{256} << 20;

/// More are only counted: nobody reads on, and a file of nothing else would fill the memory.
inline constexpr std::size_t kMaxKeptWarnings = 10'000;

/// What the reader counted and what it could not make use of.
struct ReadResult {
    /// Lines that were recognised but could not be applied; one line can count twice.
    std::size_t errorCount = 0;
    /// Lines, not counted as errors, that begin with "zev" and are neither the creation of a menu
    /// nor a property of `kMenuProperties` nor an item with exactly its arguments
    /// (`NotUnderstood`).
    std::size_t lostLineCount = 0;
    /// Lines with text that begin as no line of a menu does: comments, other scripts, other texts.
    std::size_t foreignLineCount = 0;
    /// Items, each of them an error too, that came when the menu held `kMaxItemCounter`: it lacks
    /// them, and written over its file it would lose them.
    std::size_t itemsLeftOut = 0;
    /// There is text in the file, but not one line of it is understood.
    bool hasNoMenu = false;
    /// The first `kMaxKeptWarnings` of the errors and lost lines, in the order of the lines.
    std::vector<LineWarning> warnings;

    /// True when the file, written again, would lack lines that it has.
    bool losesLines() const { return errorCount + lostLineCount + foreignLineCount > 0; }

    /// Counts a warning, and keeps it while there are few.
    void count(const LineWarning& warning);
};

/// Replays a definition file into `content`, which must be that of a new menu.
///
/// `bytes` is the file's whole content: UTF-8 with or without a byte order mark, else Windows-1252.
/// Lines end at LF; a CR before it is dropped. Unrecognised lines are skipped.
/// `note` may be empty.
ReadResult ReadScript(std::string bytes, MenuContent& content, const EffectSink& note = {});

/// True when `bytes` cannot be a text file: it holds a NUL byte.
bool isBinary(std::string_view bytes);

}  // namespace zev
