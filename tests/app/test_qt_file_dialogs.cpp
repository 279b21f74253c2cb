// SPDX-License-Identifier: MIT
// The real file dialogs of Qt, answered with real keys.

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include "platform/qt/qt_common_dialogs.h"
#include "when_shown.h"

using namespace zev;

namespace {

void typeName(QFileDialog& dialog, const QString& name) {
    auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
    field->setFocus();
    field->selectAll();
    for (const QChar character : name)
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, character, Qt::NoModifier);
    QTest::keyClick(field, Qt::Key_Return);
}

/// Puts names in quotes into the box as choosing several files does, and opens them.
void openNames(QFileDialog& dialog, const QStringList& names) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText('"' + names.join("\" \"") + '"');
    QMetaObject::invokeMethod(&dialog, "accept");
}

void makeFile(const QString& path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

FileDialogRequest saveRequest(const QString& folder, int filterIndex = 2) {
    FileDialogRequest request;
    request.title = "Save As";
    request.filter = "All Files (*.*)|*.*|JavaScript (*.js)|*.js";
    request.filterIndex = filterIndex;
    request.folder = folder.toStdString();
    request.asksBeforeReplacing = true;
    return request;
}

}  // namespace

class test_qt_file_dialogs : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void filtersAreTranslated_data();
    void filtersAreTranslated();
    void aFilterOfOneKindGivesTheExtension_data();
    void aFilterOfOneKindGivesTheExtension();
    void aFilterReadsAsDescribedAndMatchesAsMeant_data();
    void aFilterReadsAsDescribedAndMatchesAsMeant();
    void openGivesTheFullPath();
    void openShowsTheRequest();
    void openCancelledGivesNothing();
    void openStartsWhereTheLastFileWasChosen();
    void severalFilesAreGivenAsFolderAndNames_data();
    void severalFilesAreGivenAsFolderAndNames();
    void filesOfSeveralFoldersAreRefused();
    void severalFilesCancelledGivesNothing();
    void saveAddsTheExtensionOfTheFilter_data();
    void saveAddsTheExtensionOfTheFilter();
    void savePresetsNameAndFolder();
    void saveAsksAboutTheFileThatIsReallyReplaced();
    void saveAddsTheRequestsExtensionWhereTheFilterGivesNone_data();
    void saveAddsTheRequestsExtensionWhereTheFilterGivesNone();
    void saveReplacesWhenToldSo();
    void saveReplacesUnaskedWhenNotRequested();
    void saveCancelledGivesNothing();
};

void test_qt_file_dialogs::initTestCase() {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void test_qt_file_dialogs::filtersAreTranslated_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("definitions") << "All Files (*.*)|*.*|JavaScript (*.js)|*.js"
                                 << QStringList{"All Files (*.*) (*)", "JavaScript (*.js) (*.js)"};
    QTest::newRow("images") << "Image Files (*.gif;*.jpg)|*.gif;*.jpg"
                            << QStringList{"Image Files (*.gif;*.jpg) (*.gif *.jpg)"};
    QTest::newRow("no patterns in the description") << "Text|*.txt" << QStringList{"Text (*.txt)"};
    QTest::newRow("none") << "" << QStringList{};
}

void test_qt_file_dialogs::filtersAreTranslated() {
    QFETCH(QString, filter);
    QTEST(nameFilters(filter.toStdString()), "expected");
}

void test_qt_file_dialogs::aFilterOfOneKindGivesTheExtension_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("one kind") << "JavaScript (*.js)"
                              << "js";
    QTest::newRow("one kind, all of it") << "JavaScript (*.js) (*.js)"
                                         << "js";
    QTest::newRow("all files") << "All Files (*.*)"
                               << "";
    QTest::newRow("all files, all of it") << "All Files (*.*) (*)"
                                          << "";
    QTest::newRow("two kinds") << "Image Files (*.gif;*.jpg)"
                               << "";
    QTest::newRow("two kinds, all of it") << "Image Files (*.gif;*.jpg) (*.gif *.jpg)"
                                          << "";
}

void test_qt_file_dialogs::aFilterOfOneKindGivesTheExtension() {
    QFETCH(QString, filter);
    QTEST(defaultSuffix(filter), "suffix");
}

void test_qt_file_dialogs::aFilterReadsAsDescribedAndMatchesAsMeant_data() {
    QTest::addColumn<int>("filterIndex");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("all files") << 1 << "All Files (*.*)"
                               << QStringList{"README", "a.gif", "b.jpg", "c.js"};
    QTest::newRow("two kinds") << 2 << "Image Files (*.gif;*.jpg)" << QStringList{"a.gif", "b.jpg"};
}

void test_qt_file_dialogs::aFilterReadsAsDescribedAndMatchesAsMeant() {
    QFETCH(int, filterIndex);
    QFETCH(QString, caption);
    QFETCH(QStringList, shown);
    QTemporaryDir folder;
    for (const char* const name : {"README", "a.gif", "b.jpg", "c.js"})
        makeFile(folder.filePath(name));
    FileDialogRequest request;
    request.filter = "All Files (*.*)|*.*|Image Files (*.gif;*.jpg)|*.gif;*.jpg";
    request.filterIndex = filterIndex;
    request.folder = folder.path().toStdString();
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        const auto* kinds = dialog.findChild<QComboBox*>("fileTypeCombo");
        QVERIFY(kinds != nullptr && kinds->isVisible());
        QCOMPARE(kinds->currentText(), caption);
        QCOMPARE(kinds->itemText(0), QString("All Files (*.*)"));
        const auto* list = dialog.findChild<QTreeView*>("treeView");
        const auto names = [&] {
            QStringList found;
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                found.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
            found.sort();
            return found;
        };
        QTRY_COMPARE(names(), shown);
        dialog.reject();
    });
    QtCommonDialogs().openFile(request);
}

void test_qt_file_dialogs::openGivesTheFullPath() {
    QTemporaryDir folder;
    const QString name = QString::fromUtf8("men\xc3\xbc 1.js");
    makeFile(folder.filePath(name));
    QtCommonDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog& dialog) { typeName(dialog, name); });
    QCOMPARE(QString::fromStdString(dialogs.openFile(saveRequest(folder.path()))),
             folder.filePath(name));
}

void test_qt_file_dialogs::openShowsTheRequest() {
    QTemporaryDir folder;
    FileDialogRequest request = saveRequest(folder.path());
    request.title = "Open";
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Open"));
        QCOMPARE(dialog.selectedNameFilter(), QString("JavaScript (*.js)"));
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.reject();
    });
    QtCommonDialogs().openFile(request);
}

void test_qt_file_dialogs::openCancelledGivesNothing() {
    QTemporaryDir folder;
    whenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().openFile(saveRequest(folder.path())), std::string());
}

void test_qt_file_dialogs::openStartsWhereTheLastFileWasChosen() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    QtCommonDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog& dialog) { typeName(dialog, "menu.js"); });
    dialogs.openFile(saveRequest(folder.path()));
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        dialog.reject();
    });
    dialogs.openFile(saveRequest(QString()));
}

void test_qt_file_dialogs::severalFilesAreGivenAsFolderAndNames_data() {
    QTest::addColumn<QStringList>("names");
    QTest::newRow("one") << QStringList{"a.js"};
    QTest::newRow("not in the order of the alphabet") << QStringList{"c.js", "a.js", "b.js"};
    QTest::newRow("unusual characters")
        << QStringList{"a b.js", QString::fromUtf8("\xc3\xbc;|'.js"), "#%.js"};
}

void test_qt_file_dialogs::severalFilesAreGivenAsFolderAndNames() {
    QFETCH(QStringList, names);
    QTemporaryDir folder;
    for (const QString& name : names)
        makeFile(folder.filePath(name));
    QtCommonDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Save As"));
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        openNames(dialog, names);
    });
    const ChosenFiles files = dialogs.openFiles(saveRequest(folder.path()));
    QStringList given;
    for (const std::string& name : files.names)
        given.append(QString::fromStdString(name));
    QCOMPARE(given, names);
    QCOMPARE(QString::fromStdString(files.folder), folder.path());
    // The next dialog starts in that folder.
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        dialog.reject();
    });
    dialogs.openFile(saveRequest(QString()));
}

void test_qt_file_dialogs::filesOfSeveralFoldersAreRefused() {
    QTemporaryDir folder;
    QDir(folder.path()).mkdir("sub");
    makeFile(folder.filePath("a.js"));
    makeFile(folder.filePath("sub/b.js"));
    QString notice;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        whenShown<QMessageBox>([&](QMessageBox& box) {
            QCOMPARE(box.windowTitle(), QString("ZEVMenu Creator"));
            notice = box.text();
            whenShown<QFileDialog>([&](QFileDialog& again) { again.reject(); });
            QTest::keyClick(&box, Qt::Key_Return);
        });
        openNames(dialog, {folder.filePath("a.js"), folder.filePath("sub/b.js")});
    });
    QCOMPARE(QtCommonDialogs().openFiles(saveRequest(folder.path())), ChosenFiles());
    QCOMPARE(notice, QString("Please choose files of one folder only."));
}

void test_qt_file_dialogs::severalFilesCancelledGivesNothing() {
    QTemporaryDir folder;
    whenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().openFiles(saveRequest(folder.path())), ChosenFiles());
}

void test_qt_file_dialogs::saveAddsTheExtensionOfTheFilter_data() {
    QTest::addColumn<int>("filterIndex");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::newRow("no extension") << 2 << "menu"
                                  << "menu.js";
    QTest::newRow("the extension") << 2 << "menu.js"
                                   << "menu.js";
    QTest::newRow("another extension") << 2 << "menu.txt"
                                       << "menu.txt";
    QTest::newRow("all files") << 1 << "menu"
                               << "menu";
}

void test_qt_file_dialogs::saveAddsTheExtensionOfTheFilter() {
    QFETCH(int, filterIndex);
    QFETCH(QString, typed);
    QFETCH(QString, name);
    QTemporaryDir folder;
    whenShown<QFileDialog>([&](QFileDialog& dialog) { typeName(dialog, typed); });
    QCOMPARE(
        QString::fromStdString(QtCommonDialogs().saveFile(saveRequest(folder.path(), filterIndex))),
        folder.filePath(name));
}

void test_qt_file_dialogs::savePresetsNameAndFolder() {
    QTemporaryDir folder;
    FileDialogRequest request = saveRequest("/");
    request.fileName = folder.filePath("menu.js").toStdString();
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        QCOMPARE(dialog.directory().absolutePath(), folder.path());
        QCOMPARE(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), QString("menu.js"));
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.reject();
    });
    QtCommonDialogs().saveFile(request);
}

void test_qt_file_dialogs::saveAsksAboutTheFileThatIsReallyReplaced() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    bool isAsked = false;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        whenShown<QMessageBox>([&](QMessageBox& box) {
            isAsked = true;
            QCOMPARE(box.windowTitle(), QString("ZEVMenu Creator"));
            QCOMPARE(box.text(), QString("menu.js already exists.\nDo you want to replace it?"));
            // After No the dialog is there again, for another name.
            whenShown<QFileDialog>([](QFileDialog& again) { typeName(again, "other"); });
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        typeName(dialog, "menu");
    });
    const std::string chosen = QtCommonDialogs().saveFile(saveRequest(folder.path()));
    QVERIFY(isAsked);
    QCOMPARE(QString::fromStdString(chosen), folder.filePath("other.js"));
}

void test_qt_file_dialogs::saveAddsTheRequestsExtensionWhereTheFilterGivesNone_data() {
    QTest::addColumn<int>("filterIndex");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("two kinds") << 1 << "report"
                               << "report.txt";
    QTest::newRow("all files") << 2 << "report"
                               << "report.txt";
    QTest::newRow("one kind") << 3 << "report"
                              << "report.js";
    QTest::newRow("a name with one") << 1 << "report.log"
                                     << "report.log";
}

void test_qt_file_dialogs::saveAddsTheRequestsExtensionWhereTheFilterGivesNone() {
    QFETCH(int, filterIndex);
    QFETCH(QString, typed);
    QFETCH(QString, chosen);
    QTemporaryDir folder;
    makeFile(folder.filePath(chosen));
    FileDialogRequest request = saveRequest(folder.path(), filterIndex);
    request.filter = "Text Files (*.txt;*.log)|*.txt;*.log|All Files (*.*)|*.*|Script|*.js";
    request.extension = "txt";
    QString asked;
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        whenShown<QMessageBox>([&](QMessageBox& box) {
            asked = box.text();
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        typeName(dialog, typed);
    });
    QCOMPARE(QString::fromStdString(QtCommonDialogs().saveFile(request)), folder.filePath(chosen));
    QCOMPARE(asked, chosen + " already exists.\nDo you want to replace it?");
}

void test_qt_file_dialogs::saveReplacesWhenToldSo() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    whenShown<QFileDialog>([](QFileDialog& dialog) {
        whenShown<QMessageBox>(
            [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Y, Qt::AltModifier); });
        typeName(dialog, "menu.js");
    });
    QCOMPARE(QString::fromStdString(QtCommonDialogs().saveFile(saveRequest(folder.path()))),
             folder.filePath("menu.js"));
}

void test_qt_file_dialogs::saveReplacesUnaskedWhenNotRequested() {
    QTemporaryDir folder;
    makeFile(folder.filePath("menu.js"));
    FileDialogRequest request = saveRequest(folder.path());
    request.asksBeforeReplacing = false;
    whenShown<QFileDialog>([](QFileDialog& dialog) { typeName(dialog, "menu.js"); });
    QCOMPARE(QString::fromStdString(QtCommonDialogs().saveFile(request)),
             folder.filePath("menu.js"));
}

void test_qt_file_dialogs::saveCancelledGivesNothing() {
    QTemporaryDir folder;
    whenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().saveFile(saveRequest(folder.path())), std::string());
}

QTEST_MAIN(test_qt_file_dialogs)
#include "test_qt_file_dialogs.moc"
