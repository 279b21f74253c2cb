// SPDX-License-Identifier: MIT
// Select Path through its real widgets, over real folders and a disk in memory for the library.

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

#include "dialogs/frm_path.h"
#include "form.h"
#include "platform/fake/fake_file_system.h"

using namespace zev;

namespace {

using Answer = MessageBox::Answer;

/// Two drives: "first" with the folders "a" and "b" (which holds "b1"), and "second" with "c". The
/// program runs in "first/b".
struct PathDesk {
    PathDesk() {
        for (const char* path : {"first/a", "first/b/b1", "second/c"})
            QDir(temporary.path()).mkpath(path);
        before = QDir::currentPath();
        QDir::setCurrent(temporary.filePath("first/b"));
        dialog = std::make_unique<frmPath>(disk, messages,
                                           QStringList{drive("first"), drive("second")}, nullptr);
        form = std::make_unique<Form>(*dialog);
        form->show();
    }
    ~PathDesk() { QDir::setCurrent(before); }

    QString drive(const QString& name) const { return temporary.filePath(name); }
    QListWidget& folders() { return form->named<QListWidget>("listDir"); }
    QStringList shownFolders() {
        QStringList names;
        for (int row = 0; row < folders().count(); ++row)
            names.append(folders().item(row)->text());
        return names;
    }
    /// Opens a folder of the list with the keyboard.
    void open(const QString& name) {
        folders().setFocus();
        folders().setCurrentItem(folders().findItems(name, Qt::MatchExactly).value(0));
        form->press(Qt::Key_Return);
    }
    QString shownPath() { return form->field("txtPath").text(); }
    void expectMissing(const std::string& name, const std::string& folder, Answer answer) {
        messages.expect(
            name + " is missing",
            [=](const MessageRequest& request) {
                return request.text ==
                           name + " not found in " + folder + ". Do you want to proceed?" &&
                       request.buttons == MessageRequest::Buttons::OkCancel &&
                       request.title == "Warning";
            },
            answer);
    }

    QTemporaryDir temporary;
    QString before;
    FakeFileSystem disk;
    FakeMessageBox messages{failDialogTest};
    std::unique_ptr<frmPath> dialog;
    std::unique_ptr<Form> form;
};

}  // namespace

class test_frm_path : public QObject {
    Q_OBJECT

  private slots:
    void theWheelChangesTheDriveOnlyWhileTheListHasTheFocus() {
        PathDesk desk;
        QComboBox& drives = desk.form->list("listDrv");
        desk.folders().setFocus();
        rollWheel(drives);
        QCOMPARE(drives.currentIndex(), 0);
        QVERIFY(desk.folders().hasFocus());
        drives.setFocus();
        rollWheel(drives);
        QCOMPARE(drives.currentIndex(), 1);
    }

    void itHasItsControls() {
        PathDesk desk;
        QCOMPARE(desk.dialog->objectName(), QString("frmPath"));
        QCOMPARE(desk.dialog->windowTitle(), QString("Select Path"));
        QCOMPARE(desk.form->named<QLabel>("lbl1").text(), QString("Enter or select a directory"));
        const QList<std::pair<QString, QString>> labels{
            {"listDrv", "Drives"}, {"listDir", "Directories"}, {"txtPath", "Path"}};
        for (const auto& [name, caption] : labels) {
            auto& control = desk.form->named<QWidget>(name);
            QCOMPARE(desk.form->labelsOf(control), QStringList{caption});
            QCOMPARE(control.accessibleName(), caption);
        }
        QCOMPARE(desk.form->button("btnOK").text().remove('&'), QString("OK"));
        QCOMPARE(desk.form->button("btnCancel").text().remove('&'), QString("Cancel"));
    }

    void itStartsInTheCurrentFolder() {
        PathDesk desk;
        QCOMPARE(desk.shownPath(), desk.drive("first/b"));
        QCOMPARE(desk.form->list("listDrv").currentText(), desk.drive("first"));
        QCOMPARE(desk.shownFolders(), (QStringList{"..", "b1"}));
    }

    void itGoesToAFolderOfAnyDrive() {
        PathDesk desk;
        desk.dialog->openFolder(desk.drive("second/c"));
        QCOMPARE(desk.shownPath(), desk.drive("second/c"));
        QCOMPARE(desk.form->list("listDrv").currentText(), desk.drive("second"));
        QCOMPARE(desk.shownFolders(), QStringList{".."});
        desk.dialog->openFolder(desk.drive("second/missing"));
        QCOMPARE(desk.shownPath(), desk.drive("second/c"));
    }

    void aFolderThatIsOpenedIsThePath() {
        PathDesk desk;
        desk.open("b1");
        QCOMPARE(desk.shownPath(), desk.drive("first/b/b1"));
        QCOMPARE(desk.shownFolders(), QStringList{".."});
        QVERIFY2(desk.dialog->isVisible(), "Enter in the list is not OK");
    }

    void aDoubleClickOpensAFolder() {
        PathDesk desk;
        const QPoint place = desk.folders().visualItemRect(desk.folders().item(1)).center();
        QTest::mouseClick(desk.folders().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(desk.folders().viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(desk.shownPath(), desk.drive("first/b/b1"));
    }

    void theFolderAboveIsReachedUpToTheDrivesRoot() {
        PathDesk desk;
        desk.open("..");
        QCOMPARE(desk.shownPath(), desk.drive("first"));
        QCOMPARE(desk.shownFolders(), (QStringList{"a", "b"}));
    }

    void anotherDriveShowsItsCurrentFolder() {
        PathDesk desk;
        desk.form->choose("listDrv", 1);
        QCOMPARE(desk.shownPath(), desk.drive("second"));
        QCOMPARE(desk.shownFolders(), QStringList{"c"});
        desk.open("c");
        desk.form->choose("listDrv", 0);
        QCOMPARE(desk.shownPath(), desk.drive("first/b"));
        desk.form->choose("listDrv", 1);
        QCOMPARE(desk.shownPath(), desk.drive("second/c"));
    }

    void aFolderThatIsGoneIsNotOpened() {
        PathDesk desk;
        QDir(desk.drive("first/b")).rmdir("b1");
        desk.messages.expect("Cannot open " + desk.drive("first/b/b1").toStdString());
        desk.open("b1");
        QCOMPARE(desk.shownPath(), desk.drive("first/b"));
    }

    void theListsFollowATypedPathAndLeaveItAsItIs() {
        PathDesk desk;
        const QString typed = desk.drive("second") + "//c/../";
        desk.form->type("txtPath", typed);
        QCOMPARE(desk.shownFolders(), (QStringList{"..", "b1"}));
        desk.form->press(Qt::Key_Tab);
        QCOMPARE(desk.shownFolders(), QStringList{"c"});
        QCOMPARE(desk.form->list("listDrv").currentText(), desk.drive("second"));
        QCOMPARE(desk.shownPath(), typed);
        desk.open("c");
        QCOMPARE(desk.shownPath(), desk.drive("second/c"));
    }

    void aTypedPathThatIsNoFolderLeavesTheLists() {
        PathDesk desk;
        for (const QString& typed : {desk.drive("second/missing"), QString("b1"), QString()}) {
            desk.form->type("txtPath", typed);
            desk.form->press(Qt::Key_Tab);
            QCOMPARE(desk.shownFolders(), (QStringList{"..", "b1"}));
            QCOMPARE(desk.form->list("listDrv").currentText(), desk.drive("first"));
            QCOMPARE(desk.shownPath(), typed);
        }
    }

    void okWithAllFilesThereAsksNothing() {
        PathDesk desk;
        const std::string folder = desk.drive("first/b").toStdString();
        for (const char* name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
            desk.disk.addFile(folder + "/" + name, "");
        desk.form->click("btnOK");
        QCOMPARE(desk.dialog->result(), int(QDialog::Accepted));
        QVERIFY(!desk.dialog->isVisible());
        QCOMPARE(desk.dialog->path(), folder);
    }

    void eachMissingFileIsAskedFor() {
        PathDesk desk;
        const std::string folder = desk.drive("first/b").toStdString();
        desk.expectMissing("zevmenu_loader.js", folder, Answer::Ok);
        desk.expectMissing("zevmenu_ns4.js", folder, Answer::Ok);
        desk.expectMissing("zevmenu_dom.js", folder, Answer::Ok);
        desk.form->click("btnOK");
        QVERIFY(!desk.dialog->isVisible());
        QCOMPARE(desk.dialog->path(), folder);
    }

    void onlyMissingFilesAreAskedFor() {
        PathDesk desk;
        const std::string folder = desk.drive("first/b").toStdString();
        desk.disk.addFile(folder + "/zevmenu_loader.js", "");
        desk.disk.addFile(folder + "/zevmenu_dom.js", "");
        desk.expectMissing("zevmenu_ns4.js", folder, Answer::Ok);
        desk.form->click("btnOK");
        QVERIFY(!desk.dialog->isVisible());
    }

    void cancelAtTheSecondQuestionKeepsTheDialogOpen() {
        PathDesk desk;
        desk.form->type("txtPath", "/typed");
        desk.expectMissing("zevmenu_loader.js", "/typed", Answer::Ok);
        desk.expectMissing("zevmenu_ns4.js", "/typed", Answer::Cancel);
        desk.form->click("btnOK");
        QVERIFY(desk.dialog->isVisible());
        QCOMPARE(desk.shownPath(), QString("/typed"));
        QCOMPARE(desk.shownFolders(), (QStringList{"..", "b1"}));
        desk.messages.verify();
    }

    void aTypedPathIsHandedOverAsItIs_data() {
        QTest::addColumn<QString>("typed");
        QTest::newRow("a folder that does not exist") << "/no/such";
        QTest::newRow("with its last separator") << "/site/js/";
        QTest::newRow("relative") << "js";
        QTest::newRow("with spaces") << " /site/my js ";
        QTest::newRow("a drive letter") << "C:\\web\\js";
    }
    void aTypedPathIsHandedOverAsItIs() {
        QFETCH(QString, typed);
        PathDesk desk;
        desk.form->type("txtPath", typed);
        for (const char* name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
            desk.expectMissing(name, typed.toStdString(), Answer::Ok);
        desk.form->press(Qt::Key_Return);
        QVERIFY(!desk.dialog->isVisible());
        QCOMPARE(QString::fromStdString(desk.dialog->path()), typed);
    }

    void theFilesOfATypedPathAreFound() {
        PathDesk desk;
        for (const char* name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
            desk.disk.addFile(std::string("/typed/") + name, "");
        desk.form->type("txtPath", "/typed");
        desk.form->click("btnOK");
        QVERIFY(!desk.dialog->isVisible());
    }

    void cancelHandsOverNothing_data() {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("button") << false;
        QTest::newRow("Escape") << true;
    }
    void cancelHandsOverNothing() {
        QFETCH(bool, isByKey);
        PathDesk desk;
        if (isByKey)
            desk.form->press(Qt::Key_Escape);
        else
            desk.form->click("btnCancel");
        QVERIFY(!desk.dialog->isVisible());
        QCOMPARE(desk.dialog->result(), int(QDialog::Rejected));
    }

    void theTabKeyReachesEverything() {
        PathDesk desk;
        desk.form->field("txtPath").setFocus();
        QCOMPARE(desk.form->tabOrder(),
                 (QStringList{"txtPath", "listDrv", "listDir", "btnOK", "btnCancel"}));
    }

    void theDrivesAreTheMountedVolumes() {
        const QStringList drives = mountedDrives();
        QVERIFY(drives.contains("/"));
        QCOMPARE(QSet<QString>(drives.begin(), drives.end()).size(), drives.size());
        // Below a changed root the table of volumes may not name the one that this folder lies on.
        const QStorageInfo ofHere(QDir::currentPath());
        if (ofHere.isValid())
            QVERIFY2(drives.contains(ofHere.rootPath()), qPrintable(ofHere.rootPath()));
        for (const QString& drive : drives)
            QVERIFY2(QFileInfo(drive).isDir(), qPrintable(drive));
    }
};

QTEST_MAIN(test_frm_path)
#include "test_frm_path.moc"
