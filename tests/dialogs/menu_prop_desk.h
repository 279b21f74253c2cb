// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "form.h"

namespace zev {

inline const FontChoice kDefaultFont = {"DejaVu Sans", 12, true, false};
inline const FontChoice kOwnFont = {"DejaVu Serif", 15, false, true};

/// The dialog and the two it works with, over defaults with colours and a font.
struct MenuDesk : DialogDesk {
    MenuDesk() {
        MenuProp prop = document.DefaultProp();
        prop.HBgColor = "#010000";
        prop.HFtColor = "#020000";
        prop.NBgColor = "#030000";
        prop.NFtColor = "#040000";
        prop.FontFamily = kDefaultFont.name;
        prop.FontSize = "12";
        prop.FontStyle = true;
        prop.FontWeight = false;
        document.setMenuUnmarked(test::kDefaults, prop);
        defaults.LoadDefaultDialog();
    }

    const MenuProp& topMenu() { return document.RootMenuProp(); }
    const MenuProp& submenuOfA() { return *a->item.MenuProperty; }
    test::Edit<MenuProp> editSubmenuOfA() { return editSubmenuOf(a); }
    /// Opens the dialog for the menu that `node` stands in.
    void open(const MenuNode* node) {
        document.select(node);
        if (!dialog.fill())
            failDialogTest("the dialog was not filled");
        form.show();
    }
    void openTopMenu() { open(a); }
    void openSubmenuOfA() { open(a1); }
    QString text(const QString& name) { return form.field(name).text(); }
    const FontChoice& previewFont() { return form.preview("lblFont").fontChoice(); }
    bool previewsHave(const FontChoice& font) {
        return previewFont() == font && form.preview("lblPreviewNormal").fontChoice() == font;
    }

    frmDefaultProp defaults{host()};
    frmAdvProp advanced{host(), nullptr};
    frmMenuProp dialog{host(), defaults, advanced};
    Form form{dialog};
};

inline void GiveOwnFont(MenuProp& prop) {
    prop.FontSet = true;
    prop.FontFamily = kOwnFont.name;
    prop.FontSize = "15";
    prop.FontStyle = kOwnFont.isItalic;
    prop.FontWeight = kOwnFont.isBold;
}

/// A set with a value in every member this dialog edits.
inline MenuProp FilledProp() {
    MenuProp prop;
    prop.Position = 4;
    prop.Columns = "3";
    prop.Spacing = "5";
    prop.BgImg = "images/back.gif";
    prop.HBgColor = "#102030";
    prop.NBgColor = "#405060";
    prop.HFtColor = "#708090";
    prop.NFtColor = "#A0B0C0";
    GiveOwnFont(prop);
    return prop;
}

}  // namespace zev
