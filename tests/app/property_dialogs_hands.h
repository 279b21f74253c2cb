// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "when_shown.h"
#include "window_desk.h"

namespace zev {

// What a person does in the property dialogs of the main window.

inline QLineEdit& fieldOf(QWidget& form, const char* name) {
    auto* field = form.findChild<QLineEdit*>(name);
    if (field == nullptr)
        qFatal("no field named %s", name);
    return *field;
}

inline QString textOf(QWidget& form, const char* name) {
    return fieldOf(form, name).text();
}

inline void press(QWidget& form, const char* button) {
    auto* widget = form.findChild<QAbstractButton*>(button);
    if (widget == nullptr)
        qFatal("no button named %s", button);
    QTest::mouseClick(widget, Qt::LeftButton);
}

/// Clicks into a field of a dialog and replaces its text, key by key.
inline void typeInto(QWidget& form, const char* name, const QString& text) {
    QLineEdit& field = fieldOf(form, name);
    QTest::mouseClick(&field, Qt::LeftButton);
    field.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&field, Qt::Key_Backspace);
    WindowDesk::pressKeys(field, text);
}

inline void choosePosition(QWidget& form, int index) {
    auto* list = form.findChild<QComboBox*>("cboPosition");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(list, Qt::Key_Down);
}

/// Runs `open`, which is to show a dialog of type Form, and `step` once it is there. The step is to
/// close the dialog.
template <typename Form>
void during(const std::function<void()>& open, const std::function<void(Form&)>& step) {
    bool wasShown = false;
    whenShown<Form>([&](Form& form) {
        wasShown = true;
        step(form);
        if (form.isVisible()) {
            form.close();
            failQtTest("the dialog was left open");
        }
    });
    open();
    QVERIFY2(wasShown, "the dialog was not shown");
}

inline void inDefaults(WindowDesk& desk, const std::function<void(frmDefaultProp&)>& step) {
    during<frmDefaultProp>([&] { desk.choose("mnuEditDefault"); }, step);
}

inline void inMenuProperties(WindowDesk& desk, const std::function<void(frmMenuProp&)>& step) {
    during<frmMenuProp>([&] { desk.choose("mnuEditMenuProperties"); }, step);
}

/// Opens Menu Properties, from there the advanced ones for `step`, and then presses `closing`.
inline void inAdvanced(WindowDesk& desk, const char* closing,
                       const std::function<void(frmAdvProp&)>& step) {
    inMenuProperties(
        desk,
        [&](frmMenuProp& form) {
            during<frmAdvProp>([&] { press(form, "cmdAdvanced"); }, step);
            press(form, closing);
        });
}

}  // namespace zev
