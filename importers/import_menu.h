#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "model/menu_content.h"

namespace zev {

/// Earlier products whose menus can be read.
enum class ImportFormat { Quillmenu, OrletBar, OrletMenu, OrletButton };

/// A line that could not be applied as it stands.
struct ImportWarning {
    enum class Reason {
        UnknownMenu,   ///< a property or item of a menu that no item opens
        DuplicateKey,  ///< the item's place is taken by an earlier one
        AboveTop,      ///< the item goes up past the top level
        StartsDeep,    ///< the first item is deeper than the top level; it was put there
        TooManyItems,  ///< the menu holds as many items as it can
    };
    std::size_t line = 0;  ///< counted from 1
    Reason reason = Reason::UnknownMenu;
    bool operator==(const ImportWarning&) const = default;
};

/// What an import counted, in the order of the lines. One line can give two warnings.
struct ImportResult {
    std::vector<ImportWarning> warnings;
};

/// Reads the menu of an earlier product into `content`, which must be that of a new menu.
///
/// `bytes` is the file's whole content, with the encodings and line ends of a definition file.
/// Lines that mean nothing are skipped.
ImportResult ImportMenu(ImportFormat format, std::string_view bytes, MenuContent& content);

}  // namespace zev
