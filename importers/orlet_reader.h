#pragma once

#include <vector>

#include "model/menu_document.h"
#include "script/definition_lines.h"
#include "script/line_warning.h"

namespace zev {

/// The top-level menu. An item has a caption, a link and a target; one of the top-level menu may
/// have an image beside its caption, in the second field.
enum class OrletTopLevel {
    Bar,       ///< as in a new document
    List,      ///< one item below the other
    ImageBar,  ///< a bar of items with images
};

/// Reads a menu whose items are lines that begin with colons, one for each level, into a new
/// document; returns the warnings. Other lines are skipped.
///
///     :Products|products.html|main
///     ::Seeds|seeds.html
///     :Contact|~|~                    "~" is an empty field
///
/// `CurNode`, `selectedNode` and `bModified` are left to the caller.
std::vector<LineWarning> ReadOrlet(DefinitionLines& lines, OrletTopLevel topLevel,
                                   MenuDocument& document);

}  // namespace zev
