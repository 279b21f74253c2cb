// SPDX-License-Identifier: MIT
// File > Import in the window, from the menu to what the person sees.

#include <QMenu>
#include <QMenuBar>

#include "imported_products.h"
#include "link_tree.h"
#include "property_dialogs_hands.h"
#include "script/script_writer.h"
#include "window_desk.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

QMenu& menuNamed(WindowDesk& desk, const char* name) {
    auto* menu = desk.window.findChild<QMenu*>(name);
    if (menu == nullptr)
        qFatal("no menu named %s", name);
    return *menu;
}

void clickEntry(QMenu& menu, QAction* entry) {
    QTRY_VERIFY(menu.isVisible());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(entry).center());
}

/// Goes through the menus with the mouse.
void chooseByMouse(WindowDesk& desk, const ImportedProduct& product) {
    QMenu& file = menuNamed(desk, "mnuFile");
    QMenu& import = menuNamed(desk, "mnuFileImport");
    QMenuBar* bar = desk.window.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(file.menuAction()).center());
    clickEntry(file, import.menuAction());
    clickEntry(import, &desk.action(product.entry));
}

/// Goes through the menus with access keys; the products themselves have none.
void chooseByKeys(WindowDesk& desk, const ImportedProduct& product) {
    QMenu& file = menuNamed(desk, "mnuFile");
    QMenu& import = menuNamed(desk, "mnuFileImport");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(file.isVisible());
    QTest::keyClick(&file, Qt::Key_I);
    QTRY_VERIFY(import.isVisible());
    for (int steps = 0; import.activeAction() != &desk.action(product.entry); ++steps) {
        QVERIFY2(steps < 8, "the arrow key does not come to the entry");
        QTest::keyClick(&import, Qt::Key_Down);
    }
    QTest::keyClick(&import, Qt::Key_Return);
}

void choose(WindowDesk& desk, const ImportedProduct& product, bool byKeys) {
    if (byKeys)
        chooseByKeys(desk, product);
    else
        chooseByMouse(desk, product);
}

void addProducts() {
    QTest::addColumn<std::size_t>("product");
    QTest::addColumn<bool>("byKeys");
    for (std::size_t product = 0; product < ImportedProducts().size(); ++product) {
        for (const bool byKeys : {false, true})
            QTest::addRow("%s by %s", ImportedProducts()[product].name, byKeys ? "keys" : "mouse")
                << product << byKeys;
    }
}

}  // namespace

class test_frm_main_import : public QObject {
    Q_OBJECT

  private slots:
    void eachEntryImportsItsProduct_data() { addProducts(); }
    void eachEntryImportsItsProduct() {
        QFETCH(std::size_t, product);
        QFETCH(bool, byKeys);
        const ImportedProduct& imported = ImportedProducts()[product];
        WindowDesk desk;
        desk.disk.addFile("/old/menu", imported.file);
        desk.document().setFile("/site/before.js", desk.document().SavePath());
        desk.dialogs.expectOpenFile("/old/menu");
        desk.messages.expect("Finished importing /old/menu. 0 warnings encountered.");
        choose(desk, imported, byKeys);
        QCOMPARE(desk.dialogs.recorded().size(), std::size_t{1});
        QCOMPARE(desk.dialogs.recorded().front().request.filter, std::string(imported.filter));
        QCOMPARE(linkTree(desk.document()), QString(kImportedTree));
        QCOMPARE(desk.document().RootMenuProp().Columns, std::string(imported.columns));
        QCOMPARE(desk.shownTree(), "*Home\nProducts\n  Boats\n");
        QCOMPARE(desk.shownPanel(), "normal|Home|home.html|||");
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator");
        QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
        QVERIFY(desk.script().toPlainText().contains("Boats"));
        QVERIFY(!desk.document().bModified());
    }

    void theCommandsFitTheImportedMenu() {
        WindowDesk desk;
        importFile(desk, ImportedProducts()[1]);
        for (const char* enabled :
             {"mnuEditMenuProperties", "mnuEditAddSubmenuItem", "mnuEditDelete", "mnuEditMoveDown"})
            QVERIFY2(desk.action(enabled).isEnabled(), enabled);
        for (const char* disabled : {"mnuFileSave", "mnuEditMoveUp", "mnuEditMoveLeft"})
            QVERIFY2(!desk.action(disabled).isEnabled(), disabled);
    }

    void theDefaultsDialogShowsTheImportedDefaults() {
        WindowDesk desk;
        importFile(desk, ImportedProducts()[0]);
        inDefaults(desk, [](frmDefaultProp& form) {
            QCOMPARE(textOf(form, "txtNBgColor"), "#112233");
            press(form, "cmdCancel");
        });
    }

    void cancelInTheQuestionLeavesEverything() {
        for (const ImportedProduct& product : ImportedProducts()) {
            WindowDesk desk;
            desk.add("mine");
            desk.type("txtURL", "mine.html");
            desk.messages.expect(WindowDesk::saveChanges, Answer::Cancel);
            chooseByMouse(desk, product);
            QCOMPARE(desk.shownTree(), "*mine\n");
            QCOMPARE(desk.shownPanel(), "normal|mine|mine.html|||");
            QVERIFY(desk.document().bModified());
            QVERIFY(desk.action("mnuFileSave").isEnabled());
            QVERIFY(desk.dialogs.recorded().empty());
        }
    }

    // What was typed into a field that still has the focus is saved too.
    void yesInTheQuestionSavesTheMenuFirst() {
        WindowDesk desk;
        desk.disk.addFile("/old/menu.txt", ImportedProducts()[1].file);
        desk.add("mine");
        desk.type("txtURL", "typed.html");
        desk.messages.expect(WindowDesk::saveChanges, Answer::Yes);
        desk.dialogs.expectSaveFile("/site/mine.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::No);
        desk.dialogs.expectOpenFile("/old/menu.txt");
        desk.messages.expect("Finished importing /old/menu.txt. 0 warnings encountered.");
        chooseByMouse(desk, ImportedProducts()[1]);
        QVERIFY(desk.disk.allFiles().at("/site/mine.js").find("'mine', 'typed.html'") !=
                std::string::npos);
        QCOMPARE(desk.shownTree(), "*Home\nProducts\n  Boats\n");
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator");
    }

    void aCancelledDialogLeavesANewMenu() {
        WindowDesk desk;
        desk.add("mine");
        desk.messages.expect(WindowDesk::saveChanges, Answer::No);
        desk.dialogs.expectOpenFile("");
        chooseByMouse(desk, ImportedProducts()[2]);
        QCOMPARE(desk.shownTree(), "");
        QCOMPARE(desk.shownPanel(), "normal|||||");
        QVERIFY(!desk.document().bModified());
    }

    void theImportedMenuCanBeEditedAndSaved() {
        WindowDesk desk;
        importFile(desk, ImportedProducts()[3]);
        desk.click(desk.document().tree().topLevel().back());
        desk.type("txtCaption", "Goods");
        desk.choose("mnuEditMoveUp");
        desk.dialogs.expectSaveFile("/site/menu.js");
        desk.messages.expect(WindowDesk::recalculate, Answer::No);
        desk.clickToolBar(3);
        QCOMPARE(desk.dialogs.recorded().back().request.fileName, std::string());
        QCOMPARE(desk.shownTree(), "*Goods\n  Boats\nHome\n");
        QVERIFY(desk.disk.allFiles().at("/site/menu.js").find("'Goods', 'products.html'") !=
                std::string::npos);
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator (/site/menu.js)");
    }

    void theJavaScriptTabFollowsAnImport() {
        WindowDesk desk;
        desk.clickTab("JavaScript");
        importFile(desk, ImportedProducts()[2]);
        QVERIFY(desk.script().isVisible());
        QVERIFY(
            desk.script().toPlainText().contains("zevmenu.AddItem('Boats', 'boats.html', '');"));
    }

    void thePreviewShowsTheImportedMenu() {
        WindowDesk desk;
        importFile(desk, ImportedProducts()[2]);
        desk.clickTab("Preview");
        QCOMPARE(desk.browser.recorded(), std::vector<std::string>{"/program/orlet_temp.html"});
        QCOMPARE(desk.disk.allFiles().at("/program/orlet_temp.js"),
                 definitionFileBytes(GenerateScript(desk.document().content())));
    }

    void importsCanFollowEachOther() {
        WindowDesk desk;
        for (const ImportedProduct& product : ImportedProducts()) {
            importFile(desk, product);
            QCOMPARE(desk.shownTree(), "*Home\nProducts\n  Boats\n");
            QCOMPARE(desk.document().RootMenuProp().Columns, std::string(product.columns));
        }
    }

  private:
    static void importFile(WindowDesk& desk, const ImportedProduct& product) {
        desk.disk.addFile("/old/menu", product.file);
        desk.dialogs.expectOpenFile("/old/menu");
        desk.messages.expect("Finished importing /old/menu. 0 warnings encountered.");
        desk.choose(product.entry);
    }
};

QTEST_MAIN(test_frm_main_import)
#include "test_frm_main_import.moc"
