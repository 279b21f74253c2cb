// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "model/menu_content.h"
#include "script/definition_lines.h"
#include "script/line_warning.h"

namespace zev {

/// The top-level menu. An item has a caption, a link and a target; one of the top-level menu may
/// have an image beside its caption, in the second field.
enum class OrletTopLevel {
    Bar,       ///< as in a new menu
    List,      ///< one item below the other
    ImageBar,  ///< a bar of items with images
};

/// Reads a menu whose items are lines that begin with colons, one for each level, into a new
/// menu; returns the warnings. Other lines are skipped.
///
///     :Products|products.html|main
///     ::Seeds|seeds.html
///     :Contact|~|~                    "~" is an empty field
std::vector<LineWarning> readOrlet(DefinitionLines& lines, OrletTopLevel topLevel,
                                   MenuContent& content);

}  // namespace zev
