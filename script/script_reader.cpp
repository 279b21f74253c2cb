#include "script/script_reader.h"

#include <algorithm>

#include "script/line_tokenizers.h"
#include "script/menu_script.h"

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

ReadResult ReadScript(std::string_view bytes, MenuContent& content) {
    DefinitionLines lines(bytes);
    // About the length of a short item's line; of another file no more is taken than a menu can
    // hold.
    constexpr std::size_t kShortLineBytes = 32;
    content.tree.reserve(std::min<std::size_t>(bytes.size() / kShortLineBytes, kMaxItemCounter));
    ReadResult result;
    result.warnings = readMenuScript(lines, kDefinition, content);
    result.errorCount = static_cast<std::size_t>(std::count_if(
        result.warnings.begin(), result.warnings.end(), [](const LineWarning& warning) {
            return warning.reason != LineWarning::Reason::NotUnderstood;
        }));
    return result;
}

bool isBinary(std::string_view bytes) {
    return bytes.find('\0') != std::string_view::npos;
}

}  // namespace zev
