#pragma once

#include <vector>

#include "importers/import_menu.h"
#include "script/definition_lines.h"

namespace zev {

/// What the fields of a top-level item are. All other items have a caption, a link and a target.
enum class OrletTopLevel {
    LinkItems,   ///< the same
    ImageItems,  ///< caption, image beside it, link, target
};

/// Reads a menu whose items are lines that begin with colons, one for each level, into a new
/// menu; returns the warnings. Other lines are skipped.
///
///     :Products|products.html|main
///     ::Seeds|seeds.html
///     :Contact|~|~                    "~" is an empty field
std::vector<ImportWarning> ReadOrlet(DefinitionLines& lines, OrletTopLevel topLevel,
                                     MenuContent& content);

}  // namespace zev
