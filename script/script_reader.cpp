// SPDX-License-Identifier: MIT
#include "script/script_reader.h"

#include <algorithm>
#include <utility>

#include "script/line_tokenizers.h"

namespace zev {

namespace {

constexpr CreationLine kCreationLines[] = {{"zevmenu = new ZEVMenu('*');", GetMenuId}};

constexpr ScriptDialect kDefinition = {.start = "zev",
                                       .defaultLine = "zev_state.*=*;",
                                       .creationLines = kCreationLines,
                                       .propertyLine = "zevmenu.*=*;",
                                       .textItemLine = "zevmenu.AddItem(*);",
                                       .rolloverLine = "zevmenu.AddRollover(*);",
                                       .tellsOfLostLines = true};

}  // namespace

void ReadResult::count(const LineWarning& warning) {
    if (warning.reason == LineWarning::Reason::NotUnderstood)
        ++lostLineCount;
    else
        ++errorCount;
    if (warnings.size() < kMaxKeptWarnings)
        warnings.push_back(warning);
}

ReadResult ReadScript(std::string bytes, MenuContent& content, const EffectSink& note) {
    // About the length of a short item's line; of another file no more is taken than a menu can
    // hold.
    constexpr std::size_t kShortLineBytes = 32;
    content.tree.reserve(std::min<std::size_t>(bytes.size() / kShortLineBytes, kMaxItemCounter));
    DefinitionLines lines(std::move(bytes));
    ReadResult result;
    const MenuScriptCounts counts = readMenuScript(
        lines, kDefinition, content, [&](const LineWarning& warning) { result.count(warning); },
        note);
    result.itemsLeftOut = counts.itemsLeftOut;
    result.foreignLineCount = counts.foreignLines;
    result.hasNoMenu = counts.textLines > 0 && counts.understoodLines == 0;
    return result;
}

bool isBinary(std::string_view bytes) {
    return bytes.find('\0') != std::string_view::npos;
}

}  // namespace zev
