// SPDX-License-Identifier: MIT
// Unsaved menus by the real widgets: what a program that has ended leaves to the next one.

#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <memory>
#include <vector>

#include "app/recovery_commands.h"
#include "app/strip_line.h"
#include "app/unsaved_changes_window.h"
#include "recovery/recovery_store.h"
#include "when_shown.h"
#include "window_desk.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

constexpr const char* kFolder = "/data/recovery";

/// Copies of the files of a program that is killed now, on a disk without its locks.
FakeFileSystem diskAfterCrash(const WindowDesk& desk) {
    FakeFileSystem disk;
    for (const auto& [path, bytes] : desk.disk.allFiles())
        disk.addFile(path, bytes);
    return disk;
}

/// A program that keeps its menus.
struct Program : WindowDesk {
    Program() { window.keepUnsavedMenus(kFolder); }
    explicit Program(const FakeFileSystem& left) {
        disk = left;
        disk.addFolder("/site");
        window.keepUnsavedMenus(kFolder);
    }

    StripLine& line() { return *window.findChild<StripLine*>("Recovery"); }
    QStringList buttonTexts() {
        QStringList texts;
        for (const QPushButton* button : line().findChildren<QPushButton*>())
            if (!button->isHidden())
                texts << button->text();
        return texts;
    }
    void press(const QString& text) {
        QCoreApplication::processEvents();  // new buttons appear
        for (QPushButton* button : line().findChildren<QPushButton*>())
            if (!button->isHidden() && button->text() == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                return;
            }
        QFAIL(qPrintable("no button " + text));
    }
    /// File > Restore Unsaved Menu, as it opens.
    QMenu& unsavedMenus() {
        auto& menu = *window.findChild<QMenu*>("mnuFileRestore");
        emit menu.aboutToShow();
        return menu;
    }
    QStringList unsavedTexts() {
        QStringList texts;
        for (const QAction* action : unsavedMenus().actions())
            texts << action->text();
        return texts;
    }
    std::string script() { return GenerateScript(document().content()); }
};

QString isToday() {
    return QLocale(QLocale::English).toString(QDate::currentDate(), "dddd");
}

}  // namespace

class test_recovery : public QObject {
    Q_OBJECT

  private slots:
    void keepingBeginsOnceTheWindowIsPainted();
    void keepingBeginsWithACommandBeforeThat();
    void nothingIsSaidWithoutAnUnsavedMenu();
    void aCrashIsOfferedAtTheNextStart();
    void whatIsTypedIsLostOnlySinceTheLastCommand();
    void restoreIsOneStepAndTheMenuIsModified();
    void aRestoredMenuThatCrashesAgainIsOfferedAgain();
    void anOfferNotAnsweredComesAgain();
    void discardForgets();
    void theChangesAreShownAgainstTheFile();
    void exitWithNoIsInTheMenuOnly();
    void exitThatAskedNothingIsOffered();
    void aSavedMenuIsNotOffered();
    void newWithNoKeepsTheMenu();
    void openOverAnUnsavedMenuKeepsIt();
    void undoOfAStepIsKeptToo();
    void theOkOfADialogIsKeptWhileAnotherIsOpen();
    void thatNothingCanBeKeptIsSaidOnce();
    void theMenuEntryStandsBehindTheOthers();
};

void test_recovery::keepingBeginsOnceTheWindowIsPainted() {
    WindowDesk desk;
    desk.add("Home");
    desk.saveAs("/site/menu.js");
    frmMain window(desk.services, "/program", new QWidget);
    window.openDefinition("/site/menu.js");
    window.keepUnsavedMenusSoon(kFolder);
    QCoreApplication::processEvents();
    QVERIFY(!desk.disk.isFolder(kFolder));
    window.show();
    QTRY_VERIFY(desk.disk.isFolder(kFolder));
}

void test_recovery::keepingBeginsWithACommandBeforeThat() {
    WindowDesk desk;
    frmMain window(desk.services, "/program", new QWidget);
    window.keepUnsavedMenusSoon(kFolder);
    window.findChild<QAction*>("mnuEditAddMenuItem")->trigger();
    FakeFileSystem left = diskAfterCrash(desk);
    const std::vector<UnsavedMenu> menus = RecoveryStore(left, kFolder).unsavedMenus();
    QCOMPARE(menus.size(), std::size_t(1));
    QCOMPARE(menus.front().changeCount, std::uint64_t(1));
}

void test_recovery::nothingIsSaidWithoutAnUnsavedMenu() {
    Program program;
    QVERIFY(!program.line().isVisible());
    QCOMPARE(program.line().accessibleName(), QString("Recovery"));
    QCOMPARE(program.unsavedTexts(), QStringList{"None"});
    QVERIFY(!program.unsavedMenus().actions().first()->isEnabled());
}

void test_recovery::aCrashIsOfferedAtTheNextStart() {
    Program first;
    first.add("Home");
    first.saveAs("/site/menu.js");
    first.add("News");
    first.choose("mnuEditAddSubmenuItem");
    const std::string script = first.script();
    Program next(diskAfterCrash(first));
    QVERIFY(next.line().isVisible());
    QVERIFY2(next.line().text().startsWith("An unsaved menu of " + isToday()),
             qPrintable(next.line().text()));
    QVERIFY2(next.line().text().endsWith("(site/menu.js, 3 changes) can be restored"),
             qPrintable(next.line().text()));
    QCOMPARE(next.buttonTexts(), (QStringList{"Restore", "Show Changes", "Discard"}));
    next.press("Restore");
    QCOMPARE(next.script(), script);
    QCOMPARE(next.document().SaveFile(), std::string("/site/menu.js"));
    QVERIFY(!next.line().isVisible());
}

void test_recovery::whatIsTypedIsLostOnlySinceTheLastCommand() {
    Program first;
    first.add("Home");
    first.type("txtURL", "home.html");
    QTest::keyClick(&first.field("txtURL"), Qt::Key_Tab);
    const std::string script = first.script();
    first.type("txtTarget", "_blank");
    Program next(diskAfterCrash(first));
    next.press("Restore");
    QCOMPARE(next.script(), script);
    QCOMPARE(next.field("txtURL").text(), QString("home.html"));
}

void test_recovery::restoreIsOneStepAndTheMenuIsModified() {
    Program first;
    first.add("Home");
    first.add("News");
    first.click(first.document().tree().firstNode());
    first.choose("mnuEditMoveDown");
    const QString tree = first.shownTree();
    Program next(diskAfterCrash(first));
    const auto files = next.disk.allFiles();
    next.press("Restore");
    QCOMPARE(next.shownTree(), tree);
    QVERIFY(next.document().bModified());
    QVERIFY(next.action("mnuFileSave").isEnabled());
    QCOMPARE(next.action("mnuEditUndo").text(), QString("&Undo Restore"));
    for (const auto& [path, bytes] : next.disk.allFiles())
        QVERIFY2(path.starts_with("/data/") || files.at(path) == bytes, path.c_str());
    next.choose("mnuEditUndo");
    QCOMPARE(next.shownTree(), QString());
    QVERIFY(!next.document().bModified());
    // It is not gone: what was restored was never saved.
    QCOMPARE(next.unsavedTexts().size(), 1);
    QVERIFY(next.unsavedMenus().actions().first()->isEnabled());
    next.choose("mnuEditRedo");
    QCOMPARE(next.shownTree(), tree);
    QCOMPARE(next.unsavedTexts(), QStringList{"None"});
}

void test_recovery::aRestoredMenuThatCrashesAgainIsOfferedAgain() {
    Program first;
    first.add("Home");
    first.choose("mnuEditAddMenuItem");
    Program second(diskAfterCrash(first));
    second.press("Restore");
    second.choose("mnuEditAddMenuItem");
    const std::string script = second.script();
    Program third(diskAfterCrash(second));
    third.press("Restore");
    QCOMPARE(third.script(), script);
    QVERIFY(!third.line().isVisible());
    third.saveAs("/site/menu.js");
    Program fourth(diskAfterCrash(third));
    QVERIFY(!fourth.line().isVisible());
    QCOMPARE(fourth.unsavedTexts(), QStringList{"None"});
}

void test_recovery::anOfferNotAnsweredComesAgain() {
    Program first;
    first.add("Home");
    first.choose("mnuEditAddMenuItem");
    Program second(diskAfterCrash(first));
    const QString offer = second.line().text();
    second.add("Other");
    second.choose("mnuEditAddMenuItem");
    Program third(diskAfterCrash(second));
    QVERIFY(third.line().isVisible());
    QCOMPARE(third.unsavedTexts().size(), 2);
    third.press("Discard");
    QVERIFY(third.line().isVisible());
    third.press("Discard");
    QVERIFY(!third.line().isVisible());
}

void test_recovery::discardForgets() {
    Program first;
    first.add("Home");
    first.choose("mnuEditAddMenuItem");
    Program second(diskAfterCrash(first));
    second.press("Discard");
    QVERIFY(!second.line().isVisible());
    QVERIFY(second.document().tree().isEmpty());
    QCOMPARE(second.unsavedTexts(), QStringList{"None"});
    Program third(diskAfterCrash(second));
    QVERIFY(!third.line().isVisible());
}

void test_recovery::theChangesAreShownAgainstTheFile() {
    Program first;
    first.add("Home");
    first.add("News");
    first.saveAs("/site/menu.js");
    first.choose("mnuEditDelete");
    first.type("txtURL", "home.html");
    QTest::keyClick(&first.field("txtURL"), Qt::Key_Tab);
    Program next(diskAfterCrash(first));
    QStringList lines;
    whenShown<UnsavedChangesWindow>([&](UnsavedChangesWindow& changes) {
        const auto* list = changes.findChild<QListWidget*>();
        for (int row = 0; row < list->count(); ++row)
            lines << list->item(row)->text();
        QTest::keyClick(&changes, Qt::Key_Escape);
    });
    next.press("Show Changes");
    QCOMPARE(lines.join('\n'),
             (QStringList{"added Home: url \"home.html\"", "removed News"}.join('\n')));
    QVERIFY(next.line().isVisible());
    QVERIFY(next.document().tree().isEmpty());
}

void test_recovery::exitWithNoIsInTheMenuOnly() {
    Program first;
    first.add("Home");
    first.messages.expect(Desk::saveChanges, Answer::No);
    first.choose("mnuFileExit");
    const std::string script = first.script();
    Program next(diskAfterCrash(first));
    QVERIFY(!next.line().isVisible());
    QCOMPARE(next.unsavedTexts().size(), 1);
    QVERIFY2(next.unsavedTexts().first().endsWith("changes)"),
             qPrintable(next.unsavedTexts().first()));
    next.unsavedMenus().actions().first()->trigger();
    QCOMPARE(next.script(), script);
    QVERIFY(next.document().bModified());
    QCOMPARE(next.unsavedTexts(), QStringList{"None"});
}

void test_recovery::exitThatAskedNothingIsOffered() {
    Program first;
    first.add("Home");
    first.dialogs.expectOpenFile("");
    first.choose("mnuFileOpen");  // cancelled, which clears the mark
    first.choose("mnuFileExit");
    Program next(diskAfterCrash(first));
    QVERIFY(next.line().isVisible());
}

void test_recovery::aSavedMenuIsNotOffered() {
    Program first;
    first.add("Home");
    first.saveAs("/site/menu.js");
    Program next(diskAfterCrash(first));
    QVERIFY(!next.line().isVisible());
    first.choose("mnuFileExit");
    QCOMPARE(first.disk.listFolder(kFolder).value(), std::vector<std::string>{});
}

void test_recovery::newWithNoKeepsTheMenu() {
    Program first;
    first.add("Home");
    first.choose("mnuEditAddMenuItem");
    const std::string script = first.script();
    first.messages.expect(Desk::saveChanges, Answer::No);
    first.choose("mnuFileNew");
    QCOMPARE(first.unsavedTexts().size(), 1);
    QVERIFY(first.unsavedMenus().actions().first()->isEnabled());
    Program next(diskAfterCrash(first));
    QVERIFY(!next.line().isVisible());
    next.unsavedMenus().actions().first()->trigger();
    QCOMPARE(next.script(), script);
    // Undo brings it back as well, and then there is nothing more to restore.
    first.choose("mnuEditUndo");
    QCOMPARE(first.script(), script);
    QCOMPARE(first.unsavedTexts(), QStringList{"None"});
}

void test_recovery::openOverAnUnsavedMenuKeepsIt() {
    Program first;
    first.disk.addFile("/site/other.js", "zevmenu = new ZEVMenu('0');\r\n");
    first.add("Home");
    first.choose("mnuEditAddMenuItem");
    const std::string script = first.script();
    first.dialogs.expectOpenFile("/site/other.js");
    first.choose("mnuFileOpen");
    QVERIFY(first.document().tree().isEmpty());
    Program next(diskAfterCrash(first));
    QVERIFY(!next.line().isVisible());
    next.unsavedMenus().actions().first()->trigger();
    QCOMPARE(next.script(), script);
}

void test_recovery::undoOfAStepIsKeptToo() {
    Program first;
    first.add("Home");
    first.choose("mnuEditAddMenuItem");
    first.choose("mnuEditAddMenuItem");
    first.choose("mnuEditUndo");
    const std::string script = first.script();
    Program next(diskAfterCrash(first));
    next.press("Restore");
    QCOMPARE(next.script(), script);
}

void test_recovery::theOkOfADialogIsKeptWhileAnotherIsOpen() {
    Program first;
    first.add("Home");
    FakeFileSystem left;
    whenShown<QDialog>([&](QDialog& menu) {
        whenShown<QDialog>([&](QDialog& advanced) {
            advanced.findChild<QLineEdit*>("txtDivider")->setText("|");
            advanced.findChild<QAbstractButton*>("cmdOK")->click();
        });
        menu.findChild<QAbstractButton*>("cmdAdvanced")->click();
        left = diskAfterCrash(first);
        menu.reject();
    });
    first.choose("mnuEditMenuProperties");
    Program next(left);
    next.press("Restore");
    QCOMPARE(next.document().RootMenuProp().Divider, std::string("|"));
}

void test_recovery::thatNothingCanBeKeptIsSaidOnce() {
    FakeFileSystem disk;
    disk.addFolder("/data");
    disk.setWritable("/data", false);
    Program program(disk);
    QVERIFY(!program.line().isVisible());
    program.add("Home");
    program.choose("mnuEditAddMenuItem");
    QVERIFY(program.line().isVisible());
    QCOMPARE(program.line().text(), QString("What is not saved cannot be restored after a crash. "
                                            "/data/recovery: Permission denied"));
    QCOMPARE(program.buttonTexts(), QStringList{"Hide"});
    program.press("Hide");
    program.choose("mnuEditAddMenuItem");
    QVERIFY(!program.line().isVisible());
}

void test_recovery::theMenuEntryStandsBehindTheOthers() {
    Program program;
    const QList<QAction*> entries = program.window.findChild<QMenu*>("mnuFile")->actions();
    QStringList texts;
    for (const QAction* entry : entries)
        texts << (entry->isSeparator() ? "-" : entry->text());
    QCOMPARE(texts, (QStringList{"&New", "&Open", "&Save", "Save &As", "-", "&Import", "-", "E&xit",
                                 "-", "&Restore Unsaved Menu"}));
}

QTEST_MAIN(test_recovery)
#include "test_recovery.moc"
