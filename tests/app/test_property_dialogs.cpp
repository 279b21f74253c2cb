// The property dialogs as the main window uses them: opened from its keys, menus and toolbar, over
// its document. What the dialogs do by themselves is tested in tests/dialogs.

#include <QComboBox>
#include <QMenu>
#include <QWindow>
#include <set>

#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "dialogs/preview_label.h"
#include "script/script_writer.h"
#include "when_shown.h"
#include "window_desk.h"

using namespace zev;

namespace {

QLineEdit& fieldOf(QWidget& form, const char* name) {
    auto* field = form.findChild<QLineEdit*>(name);
    if (field == nullptr)
        qFatal("no field named %s", name);
    return *field;
}

QString textOf(QWidget& form, const char* name) {
    return fieldOf(form, name).text();
}

void press(QWidget& form, const char* button) {
    auto* widget = form.findChild<QAbstractButton*>(button);
    if (widget == nullptr)
        qFatal("no button named %s", button);
    QTest::mouseClick(widget, Qt::LeftButton);
}

/// Clicks into a field of a dialog and replaces its text, key by key.
void typeInto(QWidget& form, const char* name, const QString& text) {
    QLineEdit& field = fieldOf(form, name);
    QTest::mouseClick(&field, Qt::LeftButton);
    field.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&field, Qt::Key_Backspace);
    WindowDesk::pressKeys(field, text);
}

void choosePosition(QWidget& form, int index) {
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

void inDefaults(WindowDesk& desk, const std::function<void(frmDefaultProp&)>& step) {
    during<frmDefaultProp>([&] { desk.choose("mnuEditDefault"); }, step);
}

void inMenuProperties(WindowDesk& desk, const std::function<void(frmMenuProp&)>& step) {
    during<frmMenuProp>([&] { desk.choose("mnuEditMenuProperties"); }, step);
}

/// Opens Menu Properties, from there the advanced ones for `step`, and then presses `closing`.
void inAdvanced(WindowDesk& desk, const char* closing,
                const std::function<void(frmAdvProp&)>& step) {
    inMenuProperties(desk, [&](frmMenuProp& form) {
        during<frmAdvProp>([&] { press(form, "cmdAdvanced"); }, step);
        press(form, closing);
    });
}

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
        inDefaults(desk, [&](frmDefaultProp& form) {
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
            inDefaults(desk, [&](frmDefaultProp& form) {
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

    void theDefaultsAreFilledWithTheWindowAtOpenAndAtNew() {
        WindowDesk desk;
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

    void theDefaultsAreFilledAgainEachTime() {
        WindowDesk desk;
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "red");
            press(form, "cmdCancel");
        });
        desk.document().DefaultProp.Columns = "7";
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
        MenuNode* a = desk.add("a");
        MenuNode* b = desk.addChild("b");
        MenuNode* c = desk.addChild("c");
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
        QCOMPARE(desk.document().RootMenuProp.Columns, "1");
        QCOMPARE(a->item.MenuProperty->Columns, "2");
        QCOMPARE(b->item.MenuProperty->Columns, "3");
        QCOMPARE(c->item.MenuProperty->Columns, "");
    }

    // What OK and Cancel mean for the document

    void okMarksTheMenuAsChangedAndCancelDoesNot_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isModified");
        for (const char* entry : {"mnuEditDefault", "mnuEditMenuProperties"}) {
            QTest::addRow("%s, OK", entry) << entry << "cmdOK" << true;
            QTest::addRow("%s, Cancel", entry) << entry << "cmdCancel" << false;
        }
    }
    void okMarksTheMenuAsChangedAndCancelDoesNot() {
        QFETCH(QString, entry);
        QFETCH(QString, button);
        QFETCH(bool, isModified);
        WindowDesk desk;
        desk.add("a");
        desk.forgetChanges();
        const std::string before = GenerateScript(desk.document());
        during<QDialog>([&] { desk.choose(entry); },
                        [&](QDialog& form) { press(form, button.toLatin1()); });
        QCOMPARE(desk.document().bModified, isModified);
        QCOMPARE(desk.action("mnuFileSave").isEnabled(), isModified);
        QCOMPARE(desk.action("tbToolBar_3").isEnabled(), isModified);
        // Nothing was edited.
        QCOMPARE(GenerateScript(desk.document()), before);
    }

    void okWithoutTheFontButtonKeepsTheFontsOfTheDefaults() {
        WindowDesk desk;
        desk.disk.addFile("/site/menu.js",
                          "zev_state.fontFamily = 'No Such Font';\r\n"
                          "zev_state.fontSize = '10.5pt';\r\n");
        desk.window.openDefinition("/site/menu.js");
        inDefaults(desk, [](frmDefaultProp& form) { press(form, "cmdOK"); });
        QCOMPARE(desk.document().DefaultProp.FontFamily, "No Such Font");
        QCOMPARE(desk.document().DefaultProp.FontSize, "10.5");
    }

    // The fonts are written from the first use of the button on, in every later menu as well.
    void theFontButtonCountsForAsLongAsTheProgramRuns() {
        WindowDesk desk;
        desk.dialogs.expectChooseFont(FontChoice{"Serif", 12, true, false});
        inDefaults(desk, [](frmDefaultProp& form) {
            press(form, "cmdFont");
            press(form, "cmdCancel");
        });
        desk.disk.addFile("/site/menu.js", "zev_state.fontSize = '10.5pt';\r\n");
        desk.window.openDefinition("/site/menu.js");
        inDefaults(desk, [](frmDefaultProp& form) { press(form, "cmdOK"); });
        QCOMPARE(desk.document().DefaultProp.FontFamily, "Arial");
        QCOMPARE(desk.document().DefaultProp.FontSize, "10");
    }

    void aBackgroundImageIsRelativeToTheMenusFolder_data() {
        QTest::addColumn<QString>("entry");
        QTest::newRow("defaults") << "mnuEditDefault";
        QTest::newRow("menu") << "mnuEditMenuProperties";
    }
    void aBackgroundImageIsRelativeToTheMenusFolder() {
        QFETCH(QString, entry);
        WindowDesk desk;
        desk.add("a");
        desk.document().SavePath = "/site/menus";
        desk.dialogs.expectOpenFile("/site/images/back.gif");
        during<QDialog>([&] { desk.choose(entry); },
                        [](QDialog& form) {
                            press(form, "cmdBrowseBgImg");
                            QCOMPARE(textOf(form, "txtBgImg"), "../images/back.gif");
                            press(form, "cmdCancel");
                        });
    }

    void advancedOkAndThenCancelStoresButDoesNotMarkTheMenuAsChanged() {
        WindowDesk desk;
        desk.add("a");
        desk.forgetChanges();
        inAdvanced(desk, "cmdCancel", [](frmAdvProp& form) {
            typeInto(form, "txtTarget", "main");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.document().RootMenuProp.Target, "main");
        QVERIFY(!desk.document().bModified);
        QVERIFY(!desk.action("mnuFileSave").isEnabled());
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            QCOMPARE(textOf(form, "txtTarget"), "main");
            press(form, "cmdCancel");
        });
        QCOMPARE(desk.document().RootMenuProp.Target, "main");
        QVERIFY(desk.document().bModified);
        QVERIFY(desk.action("mnuFileSave").isEnabled());
    }

    // Copy and paste between menus

    void propertiesCopiedInOneMenuArePastedIntoAnother() {
        WindowDesk desk;
        desk.add("a");
        desk.dialogs.expectChooseFont(FontChoice{"Serif", 12, true, true});
        inMenuProperties(desk, [](frmMenuProp& form) {
            choosePosition(form, 3);
            for (const auto& [name, text] : {std::pair{"txtColumns", "4"},
                                             {"txtSpacing", "5"},
                                             {"txtBgImg", "back.gif"},
                                             {"txtHBgColor", "#010203"},
                                             {"txtNBgColor", "#040506"},
                                             {"txtHFtColor", "#070809"},
                                             {"txtNFtColor", "transparent"}})
                typeInto(form, name, text);
            press(form, "cmdFont");
            press(form, "cmdCopy");
            press(form, "cmdCancel");
        });
        const MenuProp root = desk.document().RootMenuProp;
        QCOMPARE(root.Columns, "10");

        // Another menu of another file, while the program runs on.
        desk.forgetChanges();
        desk.choose("mnuFileNew");
        MenuNode* b = desk.add("b");
        desk.addChild("c");
        inMenuProperties(desk, [](frmMenuProp& form) {
            press(form, "cmdPaste");
            press(form, "cmdOK");
        });
        MenuProp expected = *NewItemMenuProp();
        expected.Position = 3;
        expected.Columns = "4";
        expected.Spacing = "5";
        expected.BgImg = "back.gif";
        expected.HBgColor = "#010203";
        expected.NBgColor = "#040506";
        expected.HFtColor = "#070809";
        expected.NFtColor = "transparent";
        expected.FontSet = true;
        expected.FontFamily = "Serif";
        expected.FontSize = "12";
        expected.FontStyle = true;
        expected.FontWeight = true;
        QVERIFY(*b->item.MenuProperty == expected);
        QVERIFY(desk.document().RootMenuProp == root);
    }

    void advancedPropertiesHaveACopyOfTheirOwn() {
        WindowDesk desk;
        desk.add("a");
        inMenuProperties(desk, [](frmMenuProp& form) {
            press(form, "cmdCopy");
            press(form, "cmdCancel");
        });
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            typeInto(form, "txtDivider", "|");
            press(form, "cmdPaste");
            QCOMPARE(textOf(form, "txtDivider"), "|");
            press(form, "cmdCopy");
            press(form, "cmdCancel");
        });
        MenuNode* b = desk.document().CurNode;
        desk.addChild("b");
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            QCOMPARE(textOf(form, "txtDivider"), "&nbsp;");
            press(form, "cmdPaste");
            press(form, "cmdOK");
        });
        QCOMPARE(b->item.MenuProperty->Divider, "|");
        QCOMPARE(desk.document().RootMenuProp.Divider, "&nbsp;");
    }

    // The tab that is shown

    void theJavaScriptTabFollows() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("JavaScript");
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "#ABCDEF");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
        QVERIFY(desk.script().toPlainText().contains("zev_state.hbgcolor = '#ABCDEF';\n"));
        inMenuProperties(desk, [](frmMenuProp& form) {
            typeInto(form, "txtColumns", "3");
            press(form, "cmdOK");
        });
        QVERIFY(desk.script().toPlainText().contains("zevmenu.columns = 3;\n"));
        inAdvanced(desk, "cmdCancel", [](frmAdvProp& form) {
            typeInto(form, "txtTarget", "main");
            press(form, "cmdOK");
        });
        QVERIFY(desk.script().toPlainText().contains("zevmenu.target = 'main';\n"));
    }

    void theJavaScriptTabShowsTheChangeWhenItIsOpenedLater() {
        WindowDesk desk;
        desk.add("a");
        inMenuProperties(desk, [](frmMenuProp& form) {
            typeInto(form, "txtNBgColor", "#ABCDEF");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.script().toPlainText(), "");
        desk.clickTab("JavaScript");
        QVERIFY(desk.script().toPlainText().contains("zevmenu.nbgcolor = '#ABCDEF';\n"));
    }

    void thePreviewTabFollowsAChangeOnly() {
        WindowDesk desk;
        desk.add("a");
        desk.clickTab("Preview");
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "#ABCDEF");
            press(form, "cmdCancel");
        });
        inMenuProperties(desk, [](frmMenuProp& form) { press(form, "cmdOK"); });
        QCOMPARE(desk.browser.recorded().size(), std::size_t(1));
        inDefaults(desk, [](frmDefaultProp& form) {
            typeInto(form, "txtHBgColor", "#ABCDEF");
            press(form, "cmdOK");
        });
        QCOMPARE(desk.browser.recorded().size(), std::size_t(2));
        QVERIFY(desk.disk.allFiles().at("/program/orlet_temp.js").find("#ABCDEF") !=
                std::string::npos);
    }
};

QTEST_MAIN(test_property_dialogs)
#include "test_property_dialogs.moc"
