// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "dialog_desk.h"
#include "dialogs/frm_adv_prop.h"

namespace zev {

struct BoxOf {
    const char* name;
    std::string MenuProp::*member;
};

inline constexpr BoxOf kBoxes[] = {
    {"txtDivider", &MenuProp::Divider},         {"txtHTMLBefore", &MenuProp::HTMLBefore},
    {"txtHTMLAfter", &MenuProp::HTMLAfter},     {"txtTarget", &MenuProp::Target},
    {"txtItemBorder", &MenuProp::ItemBorder},   {"txtMenuBorder", &MenuProp::MenuBorder},
    {"txtCellPadding", &MenuProp::CellPadding}, {"txtFade", &MenuProp::FilterFade},
    {"txtOpacity", &MenuProp::FilterOpacity},   {"txtShadow", &MenuProp::FilterShadow},
};

inline constexpr const char* kPaddingRange = "Please enter a value between 0 and 10";
inline constexpr const char* kFadeRange = "Please enter a value between 0 and 5";
inline constexpr const char* kOpacityRange = "Please enter a value between 1 and 100";

/// A set in which all that this dialog edits begins with `sign`, the numbers included.
inline MenuProp signedSet(char sign) {
    MenuProp prop;
    for (const BoxOf& box : kBoxes)
        prop.*box.member = sign + std::string(box.name);
    prop.CellPadding = std::string("0.") + sign;
    prop.FilterFade = std::string("1.") + sign;
    prop.FilterOpacity = std::string("2.") + sign;
    return prop;
}

/// The dialog, filled for the item "a" and shown.
struct AdvDesk : DialogDesk {
    AdvDesk() { open(); }
    /// With another message box than the one that answers from a script.
    explicit AdvDesk(MessageBox& other) {
        dialog = std::make_unique<frmAdvProp>(DialogHost{document, other, dialogs}, &window);
        open();
    }

    void open() {
        QVERIFY(form().fill());
        show(form());
    }
    void open(const MenuNode* node) {
        document.apply(SetSelection{{document.selectedNode(), node}});
        open();
    }
    frmAdvProp& form() { return *dialog; }
    QLineEdit& box(const QString& name) { return DialogDesk::box(form(), name); }
    QString text(const QString& name) { return box(name).text(); }
    void type(const QString& name, const QString& text) { DialogDesk::type(form(), name, text); }
    void click(const QString& button) { DialogDesk::click(form(), button); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(form().focusWidget(), key, modifiers);
    }
    /// What the ten boxes show.
    QStringList shown() {
        QStringList texts;
        for (const BoxOf& each : kBoxes)
            texts << text(each.name);
        return texts;
    }
    static QStringList textsOf(const MenuProp& prop) {
        QStringList texts;
        for (const BoxOf& each : kBoxes)
            texts << QString::fromStdString(prop.*each.member);
        return texts;
    }

    QWidget window;
    std::unique_ptr<frmAdvProp> dialog = std::make_unique<frmAdvProp>(host(), &window);
};

}  // namespace zev
