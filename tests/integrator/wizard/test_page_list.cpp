// SPDX-License-Identifier: MIT
// Choosing pages beside the file dialog: the list of pages, and what is dropped.

#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QUrl>

#include "integrator/wizard/add_folder_window.h"
#include "integrator/wizard/page_list_window.h"
#include "tests/app/when_shown.h"
#include "wizard_desk.h"

using namespace zev;

namespace {

/// Drags files over a window and lets them go there. True when it takes them.
bool drop(QWidget& window, const QStringList& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    const QPoint place = window.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
    return true;
}

QStringList listed(const QWidget& window) {
    const auto* list = window.findChild<QListView*>("listPages");
    QStringList names;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        names.append(list->model()->index(row, 0).data().toString());
    return names;
}

QStringList items(const QComboBox& list) {
    QStringList names;
    for (int i = 0; i < list.count(); ++i)
        names.append(list.itemText(i));
    return names;
}

/// The window with the list, opened by its key from step 1 with these pages; `work` is done there.
void inPageList(WizardDesk& desk, const std::function<void(PageListWindow&)>& work) {
    bool isDone = false;
    whenShown<PageListWindow>([&](PageListWindow& list) {
        work(list);
        list.close();
        isDone = true;
    });
    QTest::keyClick(&desk.wizard, Qt::Key_L, Qt::AltModifier);
    QTRY_VERIFY(isDone);
}

/// The window that asks for a folder, opened by its key from step 1.
void inAddFolder(WizardDesk& desk, const std::function<void(AddFolderWindow&)>& work) {
    bool isDone = false;
    whenShown<AddFolderWindow>([&](AddFolderWindow& window) {
        work(window);
        window.close();
        isDone = true;
    });
    QTest::keyClick(&desk.wizard, Qt::Key_D, Qt::AltModifier);
    QTRY_VERIFY(isDone);
}

void enter(QWidget& window, const char* name, const QString& text) {
    auto& field = *window.findChild<QLineEdit*>(name);
    field.selectAll();
    QTest::keyClicks(&field, text);
}

void press(QWidget& window, const char* name) {
    window.findChild<QPushButton*>(name)->click();
}

}  // namespace

class test_page_list : public QObject {
    Q_OBJECT

  private slots:
    void singlePagesAreTakenFromTheList() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm", "b.htm", "c.htm", "d.htm"});
        inPageList(desk, [&](PageListWindow& window) {
            QCOMPARE(listed(window), (QStringList{"a.htm", "b.htm", "c.htm", "d.htm"}));
            auto& list = *window.findChild<QListView*>("listPages");
            QVERIFY(!window.findChild<QPushButton*>("btnRemovePages")->isEnabled());
            list.setFocus();
            list.setCurrentIndex(list.model()->index(1, 0));
            QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
            QTest::keyClick(&list, Qt::Key_Delete);
            QCOMPARE(listed(window), (QStringList{"a.htm", "d.htm"}));
            list.setCurrentIndex(list.model()->index(0, 0));
            press(window, "btnRemovePages");
            QCOMPARE(listed(window), QStringList{"d.htm"});
            press(window, "btnOK");
        });
        QCOMPARE(items(desk.list("comboFiles")), QStringList{"d.htm"});
    }

    void pagesOfAnotherFolderAreAdded() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"}, "/site/x");
        inPageList(desk, [&](PageListWindow& window) {
            desk.dialogs.expectOpenFiles({"/site/y", {"a.htm", "b.htm"}});
            press(window, "btnAddPages");
            QCOMPARE(desk.dialogs.recorded().back().request.folder, std::string("/site/x"));
            QCOMPARE(listed(window), (QStringList{"x/a.htm", "y/a.htm", "y/b.htm"}));
            desk.dialogs.expectOpenFiles({});
            press(window, "btnAddPages");
            desk.dialogs.expectOpenFiles({"/site/x", {"a.htm"}});
            press(window, "btnAddPages");
            QCOMPARE(listed(window).size(), 3);
            press(window, "btnOK");
        });
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"x/a.htm", "y/a.htm", "y/b.htm"}));
        QCOMPARE(desk.field("txtPathname").text(), QString("/site"));
    }

    void cancelKeepsTheChosenPages() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm", "b.htm"});
        inPageList(desk, [&](PageListWindow& window) {
            window.findChild<QListView*>("listPages")->selectAll();
            press(window, "btnRemovePages");
            QCOMPARE(listed(window), QStringList());
            press(window, "btnCancel");
        });
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"a.htm", "b.htm"}));
    }

    void withoutAPageLeftTheStepStays() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        inPageList(desk, [&](PageListWindow& window) {
            window.findChild<QListView*>("listPages")->selectAll();
            press(window, "btnRemovePages");
            press(window, "btnOK");
        });
        QCOMPARE(desk.list("comboFiles").count(), 0);
        desk.messages.expect("Please select at least one file to continue");
        desk.next();
    }

    void filesAreDroppedOnTheStepOfThePages() {
        WizardDesk desk;
        QVERIFY(!drop(desk.wizard, {"/site/a.htm"}));
        desk.next();
        QVERIFY(drop(desk.wizard, {"/site/a.htm", "/site/x/b.htm"}));
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"a.htm", "x/b.htm"}));
        QVERIFY(drop(desk.wizard, {"/site/a.htm", "/site/c.htm"}));
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"a.htm", "x/b.htm", "c.htm"}));
    }

    void whatIsNoFileIsNotTaken() {
        WizardDesk desk;
        desk.next();
        QMimeData data;
        data.setUrls({QUrl("http://zevmenu.example/a.htm")});
        QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&desk.wizard, &enter);
        QVERIFY(!enter.isAccepted());
    }

    void filesAreDroppedOnTheList() {
        WizardDesk desk;
        desk.next();
        inPageList(desk, [&](PageListWindow& window) {
            QVERIFY(drop(window, {"/site/b.htm", "/site/a.htm"}));
            QCOMPARE(listed(window), (QStringList{"b.htm", "a.htm"}));
            press(window, "btnOK");
        });
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"b.htm", "a.htm"}));
    }

    void theFolderOfASiteIsAdded() {
        WizardDesk desk;
        for (const char* page : {"/site/x/c.html", "/site/x/old/d.htm", "/site/x/e.txt"})
            desk.disk.addFile(page, kPage);
        desk.next();
        inAddFolder(desk, [&](AddFolderWindow& window) {
            enter(window, "txtFolder", "/site");
            enter(window, "txtExcluded", "x/old/* ; nothing");
            press(window, "btnOK");
        });
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"a.htm", "b.htm", "x/c.html"}));
        QCOMPARE(desk.field("txtPathname").text(), QString("/site"));
    }

    void theFolderIsBrowsedFor() {
        WizardDesk desk;
        desk.wizard.setDefinition("/site/js/menu.js");
        desk.next();
        inAddFolder(desk, [&](AddFolderWindow& window) {
            QCOMPARE(window.findChild<QLineEdit*>("txtFolder")->text(), QString("/site/js"));
            desk.dialogs.expectOpenFolder("/site");
            press(window, "btnBrowseFolder");
            QCOMPARE(desk.dialogs.recorded().back().request.folder, std::string("/site/js"));
            QCOMPARE(window.findChild<QLineEdit*>("txtFolder")->text(), QString("/site"));
            desk.dialogs.expectOpenFolder("");
            press(window, "btnBrowseFolder");
            QCOMPARE(window.findChild<QLineEdit*>("txtFolder")->text(), QString("/site"));
        });
        QCOMPARE(desk.list("comboFiles").count(), 0);
    }

    void subfoldersCanBeLeftOut() {
        WizardDesk desk;
        desk.disk.addFile("/site/x/c.htm", kPage);
        desk.next();
        inAddFolder(desk, [&](AddFolderWindow& window) {
            enter(window, "txtFolder", "/site");
            QTest::keyClick(window.findChild<QWidget*>("chkSubfolders"), Qt::Key_Space);
            press(window, "btnOK");
        });
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"a.htm", "b.htm"}));
    }

    void otherPatternsFindOtherPages() {
        WizardDesk desk;
        desk.disk.addFile("/site/c.php", kPage);
        desk.next();
        inAddFolder(desk, [&](AddFolderWindow& window) {
            enter(window, "txtFolder", "/site");
            enter(window, "txtPatterns", "*.php;b.*");
            press(window, "btnOK");
        });
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"b.htm", "c.php"}));
    }

    void aFolderWithoutPagesKeepsTheWindowOpen() {
        WizardDesk desk;
        desk.next();
        inAddFolder(desk, [&](AddFolderWindow& window) {
            desk.messages.expect("Please enter a folder");
            press(window, "btnOK");
            enter(window, "txtFolder", "/nowhere");
            desk.messages.expect("/nowhere is not a folder");
            press(window, "btnOK");
            enter(window, "txtFolder", "/site/js");
            desk.messages.expect("No pages found in /site/js");
            press(window, "btnOK");
            QVERIFY(window.isVisible());
        });
        QCOMPARE(desk.list("comboFiles").count(), 0);
    }

    void pagesComeFromAList_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("relative and full paths") << "a.htm\n/site/b.htm\n";
        QTest::newRow("lines of another system") << "a.htm\r\nb.htm\r\n";
        QTest::newRow("a site map")
            << "<?xml version=\"1.0\"?><urlset "
               "xmlns=\"http://www.sitemaps.org/schemas/sitemap/0.9\">"
               "<url><loc>http://zevmenu.example/a.htm</loc></url>"
               "<url><loc>http://zevmenu.example/b.htm</loc></url></urlset>";
    }
    void pagesComeFromAList() {
        QFETCH(QString, text);
        WizardDesk desk;
        desk.disk.addFile("/site/list", text.toStdString());
        desk.next();
        inPageList(desk, [&](PageListWindow& window) {
            desk.dialogs.expectOpenFile("/site/list");
            press(window, "btnAddList");
            QCOMPARE(listed(window), (QStringList{"a.htm", "b.htm"}));
            press(window, "btnOK");
        });
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"a.htm", "b.htm"}));
    }

    void aListThatIsNoHelpIsTold() {
        WizardDesk desk;
        desk.disk.addFile("/site/empty", "\n");
        desk.next();
        inPageList(desk, [&](PageListWindow& window) {
            desk.dialogs.expectOpenFile("/site/empty");
            desk.messages.expect("No pages found in /site/empty");
            press(window, "btnAddList");
            desk.dialogs.expectOpenFile("/site/gone");
            desk.messages.expect("/site/gone not read: No such file or directory");
            press(window, "btnAddList");
            desk.dialogs.expectOpenFile("");
            press(window, "btnAddList");
        });
    }

    void thePagesOfADroppedFolderAreTaken() {
        WizardDesk desk;
        desk.disk.addFile("/site/x/c.htm", kPage);
        desk.next();
        QVERIFY(drop(desk.wizard, {"/site"}));
        QCOMPARE(items(desk.list("comboFiles")), (QStringList{"a.htm", "b.htm", "x/c.htm"}));
    }

    void pagesOfTwoFoldersAreIntegratedInOneRun() {
        WizardDesk desk;
        desk.disk.addFile("/site/x/c.htm", kPage);
        desk.next();
        QVERIFY(drop(desk.wizard, {"/site/a.htm", "/site/x/c.htm"}));
        desk.next();
        desk.type("txtPath", "/site/js");
        desk.type("txtMenuDef", "/site/menu_def.js");
        desk.next(2);
        QVERIFY(desk.page("a.htm").find("src=\"js/zevmenu_loader.js\"") != std::string::npos);
        QVERIFY(desk.page("x/c.htm").find("src=\"../js/zevmenu_loader.js\"") != std::string::npos);
        desk.next();
        QVERIFY2(desk.text("txtCode").contains("Code for the pages in /site\n") &&
                     desk.text("txtCode").contains("src=\"menu_def.js\"") &&
                     desk.text("txtCode").contains("Code for the pages in /site/x\n") &&
                     desk.text("txtCode").contains("src=\"../menu_def.js\""),
                 qPrintable(desk.text("txtCode")));
    }

    void f6LeadsToTheButtonsBesideTheSteps() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.list("comboFiles").setFocus();
        QStringList names;
        do {
            QTest::keyClick(desk.wizard.focusWidget(), Qt::Key_F6);
            names.append(desk.wizard.focusWidget()->objectName());
        } while (desk.wizard.focusWidget()->focusPolicy() == Qt::NoFocus && names.size() < 9);
        QCOMPARE(names.mid(0, 3), (QStringList{"btnAddFolder", "btnPageList", "btnChanges"}));
        QCOMPARE(desk.wizard.focusWidget()->focusPolicy() == Qt::NoFocus, false);
    }

    void everyControlOfTheListHasANameAndAKey() {
        WizardDesk desk;
        desk.next();
        inPageList(desk, [](PageListWindow& window) {
            QStringList keys;
            for (const QPushButton* button : window.findChildren<QPushButton*>()) {
                QVERIFY(!button->accessibleName().isEmpty());
                const QString key = QKeySequence::mnemonic(button->text()).toString();
                QVERIFY2(!key.isEmpty() && !keys.contains(key), qPrintable(button->text()));
                keys.append(key);
            }
            QVERIFY(!window.findChild<QListView*>("listPages")->accessibleName().isEmpty());
        });
    }
};

QTEST_MAIN(test_page_list)
#include "test_page_list.moc"
