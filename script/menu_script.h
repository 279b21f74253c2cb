#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/menu_content.h"
#include "script/definition_lines.h"
#include "script/line_warning.h"

namespace zev {

/// A line that creates a menu, to which the property and item lines that follow belong.
struct CreationLine {
    std::string_view pattern;
    /// The menu's id; null when the line creates the top-level menu.
    std::string (*idOf)(std::string_view line) = nullptr;
    /// Reads the line's other arguments; null when it has none.
    void (*readLook)(std::string_view line, MenuProp& menu) = nullptr;
};

/// How the statements of a menu script are spelled, one a line. Of the property lines' names and
/// values and the item lines' arguments no dialect has its own.
struct ScriptDialect {
    std::string_view start;  ///< how every line begins that means anything
    std::string_view defaultLine;
    std::span<const CreationLine> creationLines;
    std::string_view propertyLine;
    std::string_view textItemLine;
    std::string_view rolloverLine;
    bool countsRefusedItems = false;  ///< `ItemCounter` grows by items that are not added too
    bool tellsOfLostLines = false;    ///< a line that is not understood is a warning
};

/// Replays a menu script into `content`, which must be that of a new menu; returns the warnings in
/// the order of the lines.
std::vector<LineWarning> readMenuScript(DefinitionLines& lines, const ScriptDialect& dialect,
                                        MenuContent& content);

}  // namespace zev
