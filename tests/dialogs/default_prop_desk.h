// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/frm_default_prop.h"
#include "form.h"

namespace zev {

/// The dialog, filled from the factory defaults and shown.
struct DefaultsDesk : DialogDesk {
    explicit DefaultsDesk(const std::function<void(MenuProp&)>& prepare = [](MenuProp&) {}) {
        prepare(*editProp());
        dialog.LoadDefaultDialog();
        form.show();
    }
    const MenuProp& prop() { return document.DefaultProp(); }
    test::Edit<MenuProp> editProp() { return test::editMenu(document, test::kDefaults); }

    frmDefaultProp dialog{host()};
    Form form{dialog};
};

/// A set with a value in every member this dialog edits.
inline MenuProp FilledProp() {
    MenuProp prop;
    prop.Position = 3;
    prop.CloseDelay = "750";
    prop.Spacing = "2";
    prop.Columns = "4";
    prop.MenuOffset = "-7";
    prop.BgImg = "images/back.gif";
    prop.HBgColor = "#102030";
    prop.NBgColor = "#405060";
    prop.HFtColor = "#708090";
    prop.NFtColor = "#A0B0C0";
    prop.FontFamily = "DejaVu Sans";
    prop.FontSize = "13";
    prop.FontStyle = true;
    prop.FontWeight = true;
    prop.marker = "<b>+</b>";
    prop.label = "Shop";
    prop.openDelay = "120";
    prop.fold = "640";
    return prop;
}

}  // namespace zev
