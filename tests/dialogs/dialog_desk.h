// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <string>

#include "dialogs/dialog_host.h"
#include "model/menu_document.h"
#include "model/tree_editing.h"
#include "platform/fake/fake_services.h"
#include "roll_wheel.h"
#include "tests/support/document_steps.h"

namespace zev {

inline void failDialogTest(const std::string& problem) {
    QTest::qFail(problem.c_str(), __FILE__, __LINE__);
}

/// A document with the items "a" (current), its child "a1", and "b", and services that answer from
/// a script; and hands for the dialogs over it.
struct DialogDesk : private DocumentObserver {
    DialogDesk() {
        document.NewDocument();
        addMenuItem(document);
        a = document.CurNode();
        addSubmenuItem(document);
        a1 = a->children().front();
        document.select(a);
        addMenuItem(document);
        b = document.CurNode();
        document.select(a);
        document.markSaved();
        document.addObserver(*this);
    }

    DialogHost host() { return {document, messages, dialogs}; }
    /// Shows the dialog and waits until it has the focus.
    static void show(QWidget& dialog) {
        dialog.show();
        dialog.activateWindow();
        if (!QTest::qWaitForWindowActive(&dialog))
            failDialogTest("the dialog does not become active");
    }

    template <typename Widget>
    static Widget& find(QWidget& dialog, const QString& name) {
        auto* widget = dialog.findChild<Widget*>(name);
        if (widget == nullptr)
            qFatal("no widget named %s", qPrintable(name));
        return *widget;
    }
    static QLineEdit& box(QWidget& dialog, const QString& name) {
        return find<QLineEdit>(dialog, name);
    }
    static void click(QWidget& dialog, const QString& button) {
        QTest::mouseClick(&find<QAbstractButton>(dialog, button), Qt::LeftButton);
    }
    /// Clicks into a box and replaces its text, key by key. The box keeps the focus.
    static void type(QWidget& dialog, const QString& name, const QString& text) {
        QLineEdit& target = box(dialog, name);
        QTest::mouseClick(&target, Qt::LeftButton);
        target.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&target, Qt::Key_Backspace);
        QTest::keyClicks(&target, text);
    }
    static QString focused() {
        return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName()
                                                      : "(nothing)";
    }

    test::Edit<MenuProp> editTopMenu() { return test::editMenu(document, test::kTopMenu); }
    test::Edit<MenuProp> editSubmenuOf(const MenuNode* node) {
        return test::editMenu(document, {MenuPropOwner::Kind::Submenu, node});
    }

    MenuDocument document{"/program"};
    FakeMessageBox messages{failDialogTest};
    FakeCommonDialogs dialogs{failDialogTest};
    int updates = 0;           ///< how often the window was told to update its commands
    bool wasModified = false;  ///< the document then
    const MenuNode* a = nullptr;
    const MenuNode* a1 = nullptr;
    const MenuNode* b = nullptr;

  private:
    void modifiedChanged() override {
        ++updates;
        wasModified = document.bModified();
    }
};

}  // namespace zev
