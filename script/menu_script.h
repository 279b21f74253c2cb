// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "model/menu_content.h"
#include "script/definition_lines.h"
#include "script/line_warning.h"

namespace zev {

/// A line that creates a menu, to which the property and item lines that follow belong.
struct CreationLine {
    std::string_view pattern;
    /// The menu's id, part of the line; null when the line creates the top-level menu.
    std::string_view (*idOf)(std::string_view line) = nullptr;
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

/// Told of each warning, in the order of the lines. A file can have tens of millions, so what is
/// kept of them is the caller's choice.
using WarningSink = std::function<void(const LineWarning& warning)>;

/// What a line has set.
struct LineEffect {
    std::size_t line = 0;            ///< counted from 1
    const MenuNode* item = nullptr;  ///< null: the top-level menu, or the menu-wide defaults
    std::string_view property = {};  ///< its name in the script; empty: the item itself
    std::string_view value = {};     ///< of a property, as the line has it, without quotes
    bool isDefault = false;          ///< one of the menu-wide defaults
};

/// Told of each line that sets something, in their order. Name and value are parts of the line.
using EffectSink = std::function<void(const LineEffect& effect)>;

/// What a script had to give.
struct MenuScriptCounts {
    std::size_t itemsLeftOut = 0;     ///< that came when the menu held `kMaxItemCounter`
    std::size_t textLines = 0;        ///< lines that are not empty
    std::size_t foreignLines = 0;     ///< of these, the ones that begin as no line of a menu does
    std::size_t understoodLines = 0;  ///< and the ones that were applied without a warning
};

/// Replays a menu script into `content`, which must be that of a new menu. `note` may be empty.
MenuScriptCounts readMenuScript(DefinitionLines& lines, const ScriptDialect& dialect,
                                MenuContent& content, const WarningSink& tell,
                                const EffectSink& note = {});

}  // namespace zev
