// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "app/import_commands.h"

namespace zev {

/// A product whose menus the editor imports, and a file of it. All these files hold one menu:
/// "Home", and "Products" with "Boats" below it.
struct ImportedProduct {
    const char* name;    ///< the entry's caption
    const char* entry;   ///< the entry's name
    const char* format;  ///< its name
    const char* filter;
    std::string file;
    const char* columns;  ///< of the imported top menu
};

/// What `linkTree` makes of the imported menus.
inline const char* const kImportedTree =
    "Home -> home.html\nProducts -> products.html\n  Boats -> boats.html\n";

inline const std::vector<ImportedProduct>& ImportedProducts() {
    static const char* const kText = "All Files (*.*)|*.*|Text (*.txt)|*.txt";
    static const std::string kLines =
        ":Home|home.html|~\r\n:Products|products.html\r\n::Boats|boats.html\r\n";
    static const std::vector<ImportedProduct> kProducts = {
        {"Quillmenu", "mnuFileImportQuillmenu", "quillmenu",
         "All Files (*.*)|*.*|JavaScript (*.js)|*.js",
         "qlm_state.nbgcolor = '#112233';\r\n"
         "qlmenu1 = new mainMenu('horizontal');\r\n"
         "qlmenu1.addItems('Home','home.html','');\r\n"
         "qlmenu1.addItems('Products','products.html','');\r\n"
         "qlmenu1 = new subMenu('2');\r\n"
         "qlmenu1.addItems('Boats','boats.html','');\r\n",
         "20"},
        {"OrletBar", "mnuFileImportOrletBar", "orletbar", kText, kLines, "10"},
        {"OrletMenu", "mnuFileImportOrletMenu", "orletmenu", kText, kLines, "1"},
        {"OrletButton", "mnuFileImportOrletButton", "orletbutton", kText,
         ":Home|~|home.html|~\r\n:Products|~|products.html\r\n::Boats|boats.html\r\n", "10"},
    };
    return kProducts;
}

}  // namespace zev
