// SPDX-License-Identifier: MIT
// The main window: what it is made of, its start and its toolbar.

#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>

#include "tests/support/test_files.h"
#include "window_desk.h"

using namespace zev;

namespace {

/// A menu as text: one line an entry with name, caption and shortcut; submenus indented.
QString menuText(const QMenu& menu, const QString& indent = {}) {
    QString text;
    for (const QAction* entry : menu.actions()) {
        if (entry->isSeparator())
            continue;
        if (entry->menu() != nullptr) {
            text += indent + entry->menu()->objectName() + "|" + entry->text() + "\n" +
                    menuText(*entry->menu(), indent + "  ");
            continue;
        }
        text += indent + entry->objectName() + "|" + entry->text() + "|" +
                entry->shortcut().toString(QKeySequence::PortableText) + "\n";
    }
    return text;
}

QString accessKeyOf(const QString& caption) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    return key.isEmpty() ? QString() : key.toString(QKeySequence::PortableText);
}

}  // namespace

class test_frm_main : public QObject {
    Q_OBJECT

  private slots:
    // What the window is made of

    void theMenuBarHasItsEntries() {
        WindowDesk desk;
        QString text;
        for (const QAction* top : desk.window.menuBar()->actions())
            text +=
                top->menu()->objectName() + "|" + top->text() + "\n" + menuText(*top->menu(), "  ");
        QCOMPARE(text,
                 "mnuFile|&File\n"
                 "  mnuFileNew|&New|Ctrl+N\n"
                 "  mnuFileOpen|&Open|Ctrl+O\n"
                 "  mnuFileSave|&Save|Ctrl+S\n"
                 "  mnuFileSaveAs|Save &As|\n"
                 "  mnuFileImport|&Import\n"
                 "    mnuFileImportQuillmenu|Quillmenu|\n"
                 "    mnuFileImportOrletBar|OrletBar|\n"
                 "    mnuFileImportOrletMenu|OrletMenu|\n"
                 "    mnuFileImportOrletButton|OrletButton|\n"
                 "  mnuFileExit|E&xit|\n"
                 "  mnuFileRestore|&Restore Unsaved Menu\n"
                 "mnuEdit|&Edit\n"
                 "  mnuEditDefault|&Default Menu Properties|F8\n"
                 "  mnuEditMenuProperties|M&enu Properties|F2\n"
                 "  mnuEditAddMenuItem|Add &Menu Item|Ctrl+A\n"
                 "  mnuEditAddSubmenuItem|Add &Submenu Item|Ctrl+W\n"
                 "  mnuEditMoveLeft|Move &Left|Ctrl+L\n"
                 "  mnuEditMoveRight|Move &Right|Ctrl+R\n"
                 "  mnuEditMoveUp|Move &Up|Ctrl+U\n"
                 "  mnuEditMoveDown|Move &Down|Ctrl+D\n"
                 "  mnuEditDelete|Delete &Item|Del\n"
                 "  mnuEditUndo|&Undo|Ctrl+Z\n"
                 "  mnuEditRedo|&Redo|Ctrl+Shift+Z\n"
                 "mnuTools|&Tools\n"
                 "  mnuToolsIntegrate|&Menu Integrator|\n"
                 "  mnuToolsCheck|&Check Menu|\n"
                 "  mnuToolsUndoIntegration|&Undo Integration\u2026|\n"
                 "mnuHelp|&Help\n"
                 "  mnuHelpContents|&Contents|F1\n"
                 "  mnuHelpAbout|&About|\n"
                 "  mnuHelpSupport|&Support && Upgrades|\n");
    }

    void theToolBarHasItsButtonsAndSeparators() {
        WindowDesk desk;
        auto* bar = desk.window.findChild<QToolBar*>("tbToolBar");
        QStringList items;
        for (const QAction* action : bar->actions()) {
            items.append(action->isSeparator() ? "-" : action->toolTip());
            QCOMPARE(action->objectName(), QString("tbToolBar_%1").arg(items.size()));
            QVERIFY(action->isSeparator() || !action->icon().isNull());
        }
        QCOMPARE(items.join(','),
                 "New,Open,Save,-,Default Properties,Menu Properties,-,Add Menu Item,"
                 "Add Submenu Item,-,Move Left,Move Right,Move Up,Move Down,-,Delete");
    }

    void everyIconDrawsSomethingAndPalesWhenDisabled() {
        WindowDesk desk;
        QList<QIcon> icons;
        for (const QAction* action : desk.window.findChild<QToolBar*>("tbToolBar")->actions())
            if (!action->isSeparator())
                icons.append(action->icon());
        for (const char* name : {"cmdCaptionImg", "cmdURL", "cmdImgOut", "cmdImgOver"})
            icons.append(desk.button(name).icon());
        const auto ink = [](const QIcon& icon, QIcon::Mode mode) {
            const QImage image = icon.pixmap(QSize(24, 24), mode).toImage();
            int sum = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    sum += image.pixelColor(x, y).alpha();
            return sum;
        };
        for (const QIcon& icon : icons) {
            QVERIFY(ink(icon, QIcon::Normal) > 255 * 24);
            QVERIFY(ink(icon, QIcon::Disabled) < ink(icon, QIcon::Normal));
            QVERIFY(ink(icon, QIcon::Disabled) > 0);
        }
    }

    void thePanelHasItsCaptionsAndTooltips_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("tooltip");
        QTest::newRow("optRollover")
            << "optRollover"
            << "Image Rollover Effect"
            << "Add menu item with image rollover effects. Select Text/Image if image rollovers "
               "are not required";
        QTest::newRow("optNormal") << "optNormal"
                                   << "Text/Image"
                                   << "Add menu item with text or image";
        QTest::newRow("txtCaption") << "txtCaption"
                                    << "Menu Description (HTML syntax)"
                                    << "Menu item text/image displayed on the menu";
        QTest::newRow("txtURL") << "txtURL"
                                << "URL/JavaScript function"
                                << "Menu item link. Usage similar to HREF attribute. JavaScript "
                                   "functions can be called using javascript:";
        QTest::newRow("txtTarget") << "txtTarget"
                                   << "Target Frame"
                                   << "Target frame or window of menu item link";
        QTest::newRow("txtImgOut")
            << "txtImgOut"
            << "MouseOut Image"
            << "Menu item image displayed when the mouse is outside the menu item";
        QTest::newRow("txtImgOver")
            << "txtImgOver"
            << "MouseOver Image"
            << "Menu item image displayed when the mouse is over the menu item";
        QTest::newRow("cmdCaptionImg") << "cmdCaptionImg"
                                       << ""
                                       << "Add <img> tag to menu description";
        QTest::newRow("cmdURL") << "cmdURL"
                                << ""
                                << "Browse";
        QTest::newRow("cmdImgOut") << "cmdImgOut"
                                   << ""
                                   << "Browse";
        QTest::newRow("cmdImgOver") << "cmdImgOver"
                                    << ""
                                    << "Browse";
    }
    void thePanelHasItsCaptionsAndTooltips() {
        QFETCH(QString, name);
        QFETCH(QString, label);
        QFETCH(QString, tooltip);
        WindowDesk desk;
        auto* control = desk.window.findChild<QWidget*>(name);
        QVERIFY(control != nullptr);
        QCOMPARE(control->toolTip(), tooltip);
        QString shown;
        if (const auto* option = qobject_cast<QAbstractButton*>(control)) {
            shown = option->text();
        } else {
            auto* caption = desk.window.findChild<QLabel*>(QString(name).replace("txt", "lbl"));
            QVERIFY(caption != nullptr);
            QCOMPARE(caption->buddy(), control);
            shown = caption->text();
        }
        QCOMPARE(shown.remove('&'), label);
    }

    void framesAndTabsHaveTheirCaptions() {
        WindowDesk desk;
        QCOMPARE(desk.window.findChild<QGroupBox*>("FrameType")->title(), "Item Type");
        QCOMPARE(desk.window.findChild<QGroupBox*>("FrameAttribute")->title(), "Item Attributes");
        QCOMPARE(desk.window.findChild<QLabel*>("lblCaption")->toolTip(),
                 "Menu text/image displayed on the menu");
        QStringList captions;
        for (int tab = 0; tab < desk.tabs().count(); ++tab)
            captions.append(desk.tabs().tabText(tab));
        QCOMPARE(captions.join(','), "Menu,JavaScript,Preview");
        QVERIFY(desk.window.findChild<QWidget*>("WebBrowser") != nullptr);
        auto* status = desk.window.findChild<QStatusBar*>("sbStatusBar");
        QVERIFY(status->isVisible());
        QCOMPARE(status->currentMessage(), "");
    }

    void saysAtTheStartThatRunTimeFilesAreNotTheProgramsOwn() {
        WindowDesk desk;
        const auto noticeIn = [](const frmMain& window) {
            const auto* notice = window.findChild<QLabel*>("changedFiles");
            return notice != nullptr ? notice->text() : QString();
        };
        const std::vector<std::string> names{"zevmenu_loader.js", "zevmenu_dom.js",
                                             "zevmenu_ns4.js", "zevmenu.html"};
        for (const std::string& name : names)
            desk.disk.addFile("/built/" + name, test::contentOf(ZEV_BUILT_FOLDER "/" + name));
        const frmMain same(desk.services, "/built", new QWidget);
        QCOMPARE(noticeIn(same), "");

        const std::string folder = "/built" + std::string(300, 'x');
        for (const std::string& name : names)
            desk.disk.addFile(folder + "/" + name, desk.disk.allFiles().at("/built/" + name));
        desk.disk.addFile(folder + "/zevmenu_dom.js", "another version");
        frmMain other(desk.services, folder, new QWidget);
        QCOMPARE(noticeIn(other),
                 QString::fromStdString(folder + ": not the files this program was built with: "
                                                 "zevmenu_dom.js"));
        other.show();
        QVERIFY(other.findChild<QLabel*>("changedFiles")->isVisible());
        QCOMPARE(other.width(), desk.window.width());
    }

    void accessKeysDoNotClash() {
        WindowDesk desk;
        QStringList keys;
        for (const QAction* top : desk.window.menuBar()->actions())
            keys.append(accessKeyOf(top->text()));
        for (const QLabel* label : desk.window.findChildren<QLabel*>(QRegularExpression("^lbl"))) {
            if (label->window() != &desk.window)
                continue;
            QVERIFY2(!accessKeyOf(label->text()).isEmpty(), qPrintable(label->text()));
            keys.append(accessKeyOf(label->text()));
        }
        for (const QRadioButton* option : desk.window.findChildren<QRadioButton*>()) {
            QVERIFY2(!accessKeyOf(option->text()).isEmpty(), qPrintable(option->text()));
            keys.append(accessKeyOf(option->text()));
        }
        QCOMPARE(keys.size(), 11);
        QCOMPARE(keys.removeDuplicates(), 0);
    }

    void everyControlHasANameOfItsOwnForAssistiveTechnology() {
        WindowDesk desk;
        QStringList names;
        for (const char* name :
             {"optRollover", "optNormal", "txtCaption", "txtURL", "txtTarget", "txtImgOut",
              "txtImgOver", "cmdCaptionImg", "cmdURL", "cmdImgOut", "cmdImgOver", "TreeView",
              "txtJavaScript", "WebBrowser", "MenuTab"}) {
            const auto* control = desk.window.findChild<QWidget*>(name);
            QVERIFY2(control != nullptr, name);
            QVERIFY2(!control->accessibleName().isEmpty(), name);
            names.append(control->accessibleName());
        }
        QCOMPARE(names.removeDuplicates(), 0);
        QCOMPARE(names.join(", "),
                 "Image Rollover Effect, Text/Image, Menu Description (HTML syntax), "
                 "URL/JavaScript function, Target Frame, MouseOut Image, MouseOver Image, "
                 "Add image tag to menu description, Browse for link, Browse for mouse-out image, "
                 "Browse for mouse-over image, Menu items, JavaScript, Preview, Views of the menu");
    }

    void theTabKeyReachesEveryControlInReadingOrder() {
        WindowDesk desk;
        desk.add("a");
        QStringList order;
        desk.button("optNormal").setFocus();
        for (int i = 0; i < 7; ++i) {
            order.append(desk.window.focusWidget()->objectName());
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order.join(' '),
                 "optNormal txtCaption cmdCaptionImg txtURL cmdURL txtTarget TreeView");
        desk.click(desk.button("optRollover"));
        order.clear();
        for (int i = 0; i < 9; ++i) {
            order.append(desk.window.focusWidget()->objectName());
            QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order.join(' '),
                 "optRollover txtURL cmdURL txtTarget txtImgOut cmdImgOut "
                 "txtImgOver cmdImgOver TreeView");
    }

    void theWindowFitsASmallScreenAtTwiceTheSize() {
        WindowDesk desk;
        desk.window.resize(512, 384);
        QCoreApplication::processEvents();
        QCOMPARE(desk.window.size(), QSize(512, 384));
        desk.add("a");
        desk.click(desk.button("optRollover"));
        // The last field can be reached although the panel is higher than the window.
        QLineEdit& last = desk.field("txtImgOver");
        desk.field("txtImgOut").setFocus();
        QTest::keyClick(&desk.field("txtImgOut"), Qt::Key_Tab);
        QTest::keyClick(desk.window.focusWidget(), Qt::Key_Tab);
        QVERIFY(last.hasFocus());
        auto* area = desk.window.findChild<QScrollArea*>();
        QVERIFY(
            area->viewport()->rect().contains(last.mapTo(area->viewport(), last.rect().center())));
        desk.window.resize(1024, 768);
        QCoreApplication::processEvents();
        QVERIFY(!area->verticalScrollBar()->isVisible());
    }

    // Start

    void aNewWindowShowsAnEmptyMenu() {
        WindowDesk desk;
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator");
        QCOMPARE(desk.shownTree(), "");
        QCOMPARE(desk.script().toPlainText(), "");
        QCOMPARE(desk.document().SaveFile(), "");
        QCOMPARE(desk.document().SavePath(), "/program");
        QVERIFY(!desk.document().bModified());
        QStringList disabled;
        for (const QAction* action : desk.window.findChildren<QAction*>())
            if (!action->isEnabled() && !action->objectName().isEmpty())
                disabled.append(action->objectName());
        disabled.sort();
        QCOMPARE(disabled.join(' '),
                 "mnuEditAddSubmenuItem mnuEditDelete mnuEditMenuProperties mnuEditMoveDown "
                 "mnuEditMoveUp mnuEditRedo mnuEditUndo mnuFileSave tbHistory_1 tbHistory_2 "
                 "tbToolBar_11 tbToolBar_12 tbToolBar_13 tbToolBar_14 "
                 "tbToolBar_16 tbToolBar_3 tbToolBar_6 tbToolBar_9");
    }

    void moveLeftAndRightStayUsableInAnEmptyMenuAndDoNothing() {
        WindowDesk desk;
        for (const char* entry : {"mnuEditMoveLeft", "mnuEditMoveRight"}) {
            QVERIFY(desk.action(entry).isEnabled());
            desk.choose(entry);
        }
        QCOMPARE(desk.shownTree(), "");
        QVERIFY(!desk.document().bModified());
    }

    void theTopItemThatIsFirstCanOnlyMoveDown() {
        WindowDesk desk;
        const MenuNode* a = desk.add("a");
        QVERIFY(!desk.action("mnuEditMoveDown").isEnabled());
        desk.add("b");
        desk.click(a);
        for (const char* name : {"mnuEditMoveLeft", "mnuEditMoveRight", "mnuEditMoveUp",
                                 "tbToolBar_11", "tbToolBar_12", "tbToolBar_13"})
            QVERIFY2(!desk.action(name).isEnabled(), name);
        QVERIFY(desk.action("mnuEditMoveDown").isEnabled());
        QVERIFY(desk.action("tbToolBar_14").isEnabled());
    }

    void commandsThatAreNeverDisabledStayEnabled() {
        WindowDesk desk;
        desk.add("a");
        desk.choose("mnuEditDelete");
        for (const char* name :
             {"mnuFileNew", "mnuFileOpen", "mnuFileSaveAs", "mnuFileImportQuillmenu", "mnuFileExit",
              "mnuEditDefault", "mnuEditAddMenuItem", "mnuToolsIntegrate", "mnuHelpContents",
              "mnuHelpAbout", "mnuHelpSupport", "tbToolBar_1", "tbToolBar_2", "tbToolBar_5",
              "tbToolBar_8"})
            QVERIFY2(desk.action(name).isEnabled(), name);
    }

    // Toolbar

    void toolBarButtonsRunTheirCommands() {
        WindowDesk desk;
        desk.clickToolBar(8);
        desk.clickToolBar(8);
        QCOMPARE(desk.shownTree(), "Item 0\n*Item 1\n");
        desk.clickToolBar(13);
        QCOMPARE(desk.shownTree(), "*Item 1\nItem 0\n");
        desk.clickToolBar(14);
        QCOMPARE(desk.shownTree(), "Item 0\n*Item 1\n");
        desk.clickToolBar(12);
        QCOMPARE(desk.shownTree(), "Item 0\n  *Item 1\n");
        desk.clickToolBar(11);
        QCOMPARE(desk.shownTree(), "Item 0\n*Item 1\n");
        desk.clickToolBar(9);
        QCOMPARE(desk.shownTree(), "Item 0\n*Item 1\n  Item 4\n");
        desk.clickToolBar(16);
        QCOMPARE(desk.shownTree(), "*Item 0\n");
        desk.dialogs.expectSaveFile("/site/menu.js");
        desk.messages.expect(WindowDesk::recalculate, MessageBox::Answer::No);
        desk.clickToolBar(3);
        QCOMPARE(desk.document().SaveFile(), "/site/menu.js");
        desk.dialogs.expectOpenFile("");
        desk.clickToolBar(2);
        desk.clickToolBar(1);
        QCOMPARE(desk.shownTree(), "");
    }

    void anUnknownToolBarKeyDoesNothing_data() {
        QTest::addColumn<QString>("key");
        QTest::newRow("other letter case") << "add menu item";
        QTest::newRow("empty") << "";
        QTest::newRow("unknown") << "Print";
    }
    void anUnknownToolBarKeyDoesNothing() {
        QFETCH(QString, key);
        WindowDesk desk;
        desk.window.tbToolBar_ButtonClick(key);
        QCOMPARE(desk.shownTree(), "");
        desk.window.tbToolBar_ButtonClick("Add Menu Item");
        QCOMPARE(desk.shownTree(), "*Item 0\n");
    }
};

QTEST_MAIN(test_frm_main)
#include "test_frm_main.moc"
