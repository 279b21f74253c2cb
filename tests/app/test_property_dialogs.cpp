// SPDX-License-Identifier: MIT
// The property dialogs as the main window opens and fills them: from its keys, menus and toolbar,
// over its document. What the dialogs do by themselves is tested in tests/dialogs.

#include <QMenu>
#include <QWindow>
#include <set>

#include "dialogs/preview_label.h"
#include "property_dialogs_hands.h"
#include "script/script_writer.h"
#include "tests/support/document_steps.h"

using namespace zev;

namespace {

enum class Way { Key, KeyInField, Menu, ToolBar };

}  // namespace

Q_DECLARE_METATYPE(Way)

class test_property_dialogs : public QObject {
    Q_OBJECT

  private slots:
    // Opening

    void everyWayOpensTheDialog_data() {
        QTest::addColumn<Way>("way");
        QTest::addColumn<bool>("ofDefaults");
        for (const bool ofDefaults : {true, false}) {
            const char* form = ofDefaults ? "Default Menu Properties" : "Menu Properties";
            QTest::addRow("%s by key in the tree", form) << Way::Key << ofDefaults;
            QTest::addRow("%s by key in a field", form) << Way::KeyInField << ofDefaults;
            QTest::addRow("%s by the menu", form) << Way::Menu << ofDefaults;
            QTest::addRow("%s by the toolbar", form) << Way::ToolBar << ofDefaults;
        }
    }
    void everyWayOpensTheDialog() {
        QFETCH(Way, way);
        QFETCH(bool, ofDefaults);
        WindowDesk desk;
        desk.add("a");
        const Qt::Key key = ofDefaults ? Qt::Key_F8 : Qt::Key_F2;
        const auto open = [&] {
            switch (way) {
                case Way::Key:
                    QTest::keyClick(&desk.tree(), key);
                    break;
                case Way::KeyInField:
                    QTest::keyClick(&desk.field("txtCaption"), key);
                    break;
                case Way::Menu: {
                    QTest::keyClick(&desk.window, Qt::Key_E, Qt::AltModifier);
                    auto* menu = desk.window.findChild<QMenu*>("mnuEdit");
                    QTRY_VERIFY(menu->isVisible());
                    // A menu opened by key stands on its first entry.
                    QTest::keyClick(menu, ofDefaults ? Qt::Key_Return : Qt::Key_E);
                    break;
                }
                case Way::ToolBar:
                    desk.clickToolBar(ofDefaults ? 5 : 6);
            }
        };
        QString name;
        QString title;
        during<QDialog>(open, [&](QDialog& form) {
            name = form.objectName();
            title = form.windowTitle();
            press(form, "cmdCancel");
        });
        QCOMPARE(name, ofDefaults ? "frmDefaultProp" : "frmMenuProp");
        QCOMPARE(title, ofDefaults ? "Default Menu Properties" : "Menu Properties");
    }

    void menuPropertiesNeedAnItem() {
        WindowDesk desk;
        QVERIFY(!desk.action("mnuEditMenuProperties").isEnabled());
        QVERIFY(!desk.action("tbToolBar_6").isEnabled());
        QTest::keyClick(&desk.tree(), Qt::Key_F2);
        desk.window.mnuEditMenuProperties_Click();
        QVERIFY(!desk.window.findChild<frmMenuProp*>()->isVisible());
        inDefaults(desk, [](frmDefaultProp& form) { press(form, "cmdCancel"); });
    }

    void aFieldIsLeftBeforeTheDialogOpens() {
        WindowDesk desk;
        desk.add("It's");
        during<frmDefaultProp>([&] { QTest::keyClick(&desk.field("txtCaption"), Qt::Key_F8); },
                               [&](frmDefaultProp& form) {
                                   QCOMPARE(desk.field("txtCaption").text(), "It\\'s");
                                   press(form, "cmdCancel");
                               });
    }

    void aRefusedNumberCanBeHadBackAndIsNotTakenUnchecked() {
        WindowDesk desk;
        const char* const refusal = "Please enter a value between 1 and 100";
        inDefaults(desk, [&](frmDefaultProp& form) {
            QLineEdit& box = fieldOf(form, "txtColumns");
            desk.messages.expect(refusal);
            typeInto(form, "txtColumns", "500");
            QCOMPARE(box.text(), "");
            box.setFocus();
            QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(box.text(), "500");
            QTest::keyClick(&box, Qt::Key_End);
            QTest::keyClick(&box, Qt::Key_Backspace);
            QCOMPARE(box.text(), "50");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.document().DefaultProp().Columns, std::string("50"));
        inDefaults(desk, [&](frmDefaultProp& form) {
            QLineEdit& box = fieldOf(form, "txtColumns");
            desk.messages.expect(refusal);
            typeInto(form, "txtColumns", "500");
            box.setFocus();
            QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
            desk.messages.expect(refusal);
            press(form, "cmdOK");
        });
        QCOMPARE(desk.document().DefaultProp().Columns, std::string(""));
    }

    void theTextThatAnAdvancedBoxCleanedCanBeHadBack() {
        WindowDesk desk;
        desk.add("Tea");
        inAdvanced(desk, "cmdOK", [&](frmAdvProp& form) {
            QLineEdit& box = fieldOf(form, "txtHTMLBefore");
            typeInto(form, "txtHTMLBefore", "it's");
            fieldOf(form, "txtHTMLAfter").setFocus();
            QCOMPARE(box.text(), "it\\'s");
            box.setFocus();
            QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(box.text(), "it's");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.document().RootMenuProp().HTMLBefore, std::string("it\\'s"));
    }

    void theWindowsShortcutsDoNothingInADialog() {
        WindowDesk desk;
        desk.add("a");
        inDefaults(desk, [&](frmDefaultProp& form) {
            QLineEdit& field = fieldOf(form, "txtHBgColor");
            field.setFocus();
            field.deselect();
            for (const auto& [key, modifiers] : {std::pair{Qt::Key_A, Qt::ControlModifier},
                                                 {Qt::Key_W, Qt::ControlModifier},
                                                 {Qt::Key_F2, Qt::NoModifier},
                                                 {Qt::Key_F8, Qt::NoModifier}}) {
                QTest::keyClick(&field, key, modifiers);
                QCOMPARE(QApplication::activeModalWidget(), &form);
            }
            QCOMPARE(field.selectedText(), "#888888");
            QTest::keyClick(&field, Qt::Key_Delete);
            QCOMPARE(field.text(), "");
            press(form, "cmdCancel");
        });
        QCOMPARE(desk.shownTree(), "*a\n");
    }

    // Otherwise a click on the dialog behind it could cover the one that waits for an answer.
    void eachDialogStaysInFrontOfTheWindowItWasOpenedFrom() {
        WindowDesk desk;
        desk.add("a");
        inDefaults(
            desk,
            [&](frmDefaultProp& form) {
                QCOMPARE(form.windowHandle()->transientParent(), desk.window.windowHandle());
                press(form, "cmdCancel");
            });
        inMenuProperties(desk, [&](frmMenuProp& form) {
            QCOMPARE(form.windowHandle()->transientParent(), desk.window.windowHandle());
            during<frmAdvProp>([&] { press(form, "cmdAdvanced"); },
                               [&](frmAdvProp& advanced) {
                                   QCOMPARE(advanced.windowHandle()->transientParent(),
                                            form.windowHandle());
                                   press(advanced, "cmdCancel");
                               });
            press(form, "cmdCancel");
        });
    }

    void theFormsAreMadeOnce() {
        WindowDesk desk;
        desk.add("a");
        std::set<QWidget*> shown;
        for (int round = 0; round < 2; ++round) {
            inDefaults(
                desk,
                [&](frmDefaultProp& form) {
                    shown.insert(&form);
                    press(form, "cmdOK");
                });
            inMenuProperties(desk, [&](frmMenuProp& form) {
                shown.insert(&form);
                during<frmAdvProp>([&] { press(form, "cmdAdvanced"); },
                                   [&](frmAdvProp& advanced) {
                                       shown.insert(&advanced);
                                       press(advanced, "cmdCancel");
                                   });
                press(form, "cmdOK");
            });
            desk.forgetChanges();
            desk.choose("mnuFileNew");
            desk.add("b");
        }
        QCOMPARE(shown.size(), std::size_t(3));
    }

    // Filling

    void theDialogsAreMadeWhenTheFirstIsUsedAndKept() {
        WindowDesk desk;
        QVERIFY(desk.window.findChild<frmDefaultProp*>() == nullptr);
        desk.window.mnuEditMenuProperties_Click();
        auto* const form = desk.window.findChild<frmDefaultProp*>();
        auto* const menuForm = desk.window.findChild<frmMenuProp*>();
        QVERIFY(form != nullptr);
        QVERIFY(menuForm != nullptr);
        QCOMPARE(textOf(*form, "txtCloseDelay"), "500");
        inDefaults(desk, [form](frmDefaultProp& shown) {
            QCOMPARE(&shown, form);
            press(shown, "cmdCancel");
        });
        desk.add("a");
        inMenuProperties(desk, [menuForm](frmMenuProp& shown) {
            QCOMPARE(&shown, menuForm);
            press(shown, "cmdCancel");
        });
    }

    void theDefaultsAreFilledWithTheDialogAtOpenAndAtNew() {
        WindowDesk desk;
        inDefaults(desk, [](frmDefaultProp& form) { press(form, "cmdCancel"); });
        auto& form = *desk.window.findChild<frmDefaultProp*>();
        QCOMPARE(textOf(form, "txtHBgColor"), "#888888");
        QCOMPARE(textOf(form, "txtCloseDelay"), "500");
        desk.disk.addFile("/site/menu.js", "zev_state.hbgcolor = '#123456';\r\n");
        desk.dialogs.expectOpenFile("/site/menu.js");
        desk.choose("mnuFileOpen");
        QCOMPARE(textOf(form, "txtHBgColor"), "#123456");
        desk.choose("mnuFileNew");
        QCOMPARE(textOf(form, "txtHBgColor"), "#888888");
    }

    void whatWasOpenedIsShownChangedAndSavedWithTheOtherLinesAsTheyWere() {
        WindowDesk desk;
        MenuContent menu;
        menu.tree.append(nullptr, "Key 0", "A");
        menu.DefaultProp.marker = "<b>+</b>";
        menu.DefaultProp.fold = "640";
        menu.DefaultProp.openDelay = "120";
        menu.DefaultProp.label = "Shop";
        desk.disk.addFile("/site/menu.js", definitionFileBytes(GenerateScript(menu)));
        desk.dialogs.expectOpenFile("/site/menu.js");
        desk.choose("mnuFileOpen");
        inDefaults(desk, [](frmDefaultProp& form) {
            QCOMPARE(textOf(form, "txtMarker"), "<b>+</b>");
            QCOMPARE(textOf(form, "txtFold"), "640");
            QCOMPARE(textOf(form, "txtOpenDelay"), "120");
            QCOMPARE(textOf(form, "txtLabel"), "Shop");
            typeInto(form, "txtMarker", "");
            typeInto(form, "txtLabel", "Bob's shop");
            press(form, "cmdOK");
        });
        desk.choose("mnuFileSave");
        menu.DefaultProp.marker = "";
        menu.DefaultProp.label = "Bob\\'s shop";
        QCOMPARE(desk.disk.readFile("/site/menu.js", 10000).value(),
                 definitionFileBytes(GenerateScript(menu)));
    }

    void theDefaultsAreFilledAgainEachTime() {
        WindowDesk desk;
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "red");
            press(form, "cmdCancel");
        });
        test::editMenu(desk.document(), test::kDefaults)->Columns = "7";
        inDefaults(desk, [](frmDefaultProp& form) {
            QCOMPARE(textOf(form, "txtHBgColor"), "#888888");
            QCOMPARE(textOf(form, "txtColumns"), "7");
            press(form, "cmdCancel");
        });
    }

    // The colour boxes of the defaults stand in for empty ones, opened or not.
    void anEmptyColourShowsTheOneOfTheDefaultsThatWereNeverOpened() {
        WindowDesk desk;
        desk.disk.addFile("/site/menu.js",
                          "zev_state.hbgcolor = '#123456';\r\nzevmenu = new ZEVMenu('0');\r\n"
                          "zevmenu.hbgcolor = '#FF0000';\r\nzevmenu.AddItem('a', '', '');\r\n");
        desk.window.openDefinition("/site/menu.js");
        inMenuProperties(desk, [](frmMenuProp& form) {
            const auto* label = form.findChild<PreviewLabel*>("lblFont");
            QCOMPARE(label->backColor(), 0x0000FF);
            typeInto(form, "txtHBgColor", "");
            fieldOf(form, "txtColumns").setFocus();
            QCOMPARE(label->backColor(), 0x563412);
            press(form, "cmdCancel");
        });
    }

    void menuPropertiesEditTheMenuThatTheItemStandsIn() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        const MenuNode* b = desk.addChild("b");
        const MenuNode* c = desk.addChild("c");
        const auto setColumns = [&](const MenuNode* node, const char* columns) {
            desk.click(node);
            inMenuProperties(desk, [&](frmMenuProp& form) {
                typeInto(form, "txtColumns", columns);
                press(form, "cmdOK");
            });
        };
        setColumns(c, "3");
        setColumns(b, "2");
        setColumns(a, "1");
        QCOMPARE(desk.document().RootMenuProp().Columns, "1");
        QCOMPARE(a->item.MenuProperty->Columns, "2");
        QCOMPARE(b->item.MenuProperty->Columns, "3");
        QCOMPARE(c->item.MenuProperty->Columns, "");
    }
};

QTEST_MAIN(test_property_dialogs)
#include "test_property_dialogs.moc"
