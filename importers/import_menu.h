// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/menu_content.h"
#include "script/definition_lines.h"
#include "script/line_warning.h"

namespace zev {

/// An earlier product whose menus can be read, and all that the editor and the command line say of
/// it.
struct ImportFormat {
    std::string_view name;   ///< on the command line
    const char* title;       ///< for people
    const char* menuEntry;   ///< the object name of the editor's command
    const char* fileFilter;  ///< of the dialog that asks for the file
    /// Reads the lines into the content of a new menu; returns the warnings.
    std::vector<LineWarning> (*read)(DefinitionLines& lines, MenuContent& content);
};

/// The formats, in the order of the menu.
std::span<const ImportFormat> importFormats();

/// The format of a name on the command line; null when there is none.
const ImportFormat* findImportFormat(std::string_view name);

/// What an import counted, in the order of the lines. One line can give two warnings.
struct ImportResult {
    std::vector<LineWarning> warnings;
};

/// Reads the menu of an earlier product into `content`, which must be that of a new menu.
///
/// `bytes` is the file's whole content, with the encodings and line ends of a definition file.
/// Lines that mean nothing are skipped. Afterwards the first node is current and selected and
/// `bModified` is false.
ImportResult importMenu(const ImportFormat& format, std::string bytes, MenuContent& content);

}  // namespace zev
