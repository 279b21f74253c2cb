// SPDX-License-Identifier: MIT
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "app/recent_documents.h"
#include "file_commands_desk.h"
#include "platform/posix/posix_file_system.h"

using namespace zev;

namespace {

const QDateTime kNoon(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
const QDateTime kEvening(QDate(2026, 3, 1), QTime(19, 30), Qt::UTC);

/// A document of somebody else's, which this program has not used, between what lists may hold.
const QByteArray kOthersList =
    "<?xml version='1.0' encoding='UTF-8'?>\n"
    "<xbel version='1.0'\n"
    "      xmlns:bookmark='http://www.freedesktop.org/standards/desktop-bookmarks'\n"
    "      xmlns:mime='http://www.freedesktop.org/standards/shared-mime-info'\n"
    ">\n"
    "  <bookmark href='file:///web/menu.js' added='2026-01-01T00:00:00Z'\n"
    "      modified='2026-01-02T00:00:00Z' visited='2026-01-02T00:00:00Z'>\n"
    "    <title>Menu &amp; more</title>\n"
    "    <info>\n"
    "      <metadata owner='http://freedesktop.org'>\n"
    "        <mime:mime-type type='application/javascript'/>\n"
    "        <bookmark:applications>\n"
    "          <bookmark:application name='notes' exec='notes %u'\n"
    "              modified='2026-01-02T00:00:00Z' count='3'/>\n"
    "        </bookmark:applications>\n"
    "      </metadata>\n"
    "    </info>\n"
    "  </bookmark>\n"
    "</xbel>";

/// The list with the document in it, with plain quotation marks.
QByteArray listWith(const QByteArray& list, const std::string& document, const QDateTime& time) {
    return withRecentDocument(list, document, time).replace('"', '\'');
}

}  // namespace

class test_recent_documents : public QObject {
    Q_OBJECT

  private slots:
    void aNewListHoldsTheDocumentAndThisProgram();
    void aDocumentOfAnotherProgramKeepsWhatThatWrote();
    void usedAgainItIsCountedAndNotDoubled();
    void whatIsNoListIsLeftAlone_data();
    void whatIsNoListIsLeftAlone();
    void theFileIsTheUsersAlone();
    void openAndSaveNoteTheDocument();
    void thePreviewIsNoDocument();
};

void test_recent_documents::aNewListHoldsTheDocumentAndThisProgram() {
    const QByteArray expected =
        "<?xml version='1.0' encoding='UTF-8'?>"
        "<xbel xmlns:bookmark='http://www.freedesktop.org/standards/desktop-bookmarks'"
        " xmlns:mime='http://www.freedesktop.org/standards/shared-mime-info' version='1.0'>\n"
        "<bookmark href='file:///web/caf%C3%A9%20&amp;%20co.js' added='2026-03-01T12:00:00Z'"
        " modified='2026-03-01T12:00:00Z' visited='2026-03-01T12:00:00Z'>"
        "<info><metadata owner='http://freedesktop.org'>"
        "<mime:mime-type type='application/x-zevmenu-definition'/>"
        "<bookmark:applications><bookmark:application name='zevmenu-creator'"
        " exec=''zevmenu-creator %f'' modified='2026-03-01T12:00:00Z' count='1'/>"
        "</bookmark:applications></metadata></info></bookmark>\n"
        "</xbel>";
    QCOMPARE(listWith("", "/web/caf\xC3\xA9 & co.js", kNoon), expected);
}

void test_recent_documents::aDocumentOfAnotherProgramKeepsWhatThatWrote() {
    const QByteArray list = listWith(kOthersList, "/web/menu.js", kNoon);
    QCOMPARE(list.count("<bookmark "), 1);
    for (const char* const kept : {"added='2026-01-01T00:00:00Z'", "<title>Menu &amp; more</title>",
                                   "name='notes'", "modified='2026-01-02T00:00:00Z' count='3'",
                                   "<mime:mime-type type='application/javascript'/>",
                                   "visited='2026-03-01T12:00:00Z'", "name='zevmenu-creator'"})
        QVERIFY2(list.contains(kept), qPrintable(kept + ("\n" + list)));
    const QByteArray both =
        listWith(withRecentDocument(kOthersList, "/web/menu.js", kNoon), "/web/other.js", kEvening);
    QCOMPARE(both.count("<bookmark "), 2);
}

void test_recent_documents::usedAgainItIsCountedAndNotDoubled() {
    const QByteArray once = withRecentDocument("", "/web/menu.js", kNoon);
    const QByteArray twice = listWith(once, "/web/menu.js", kEvening);
    QCOMPARE(twice.count("<bookmark "), 1);
    QCOMPARE(twice.count("<bookmark:application "), 1);
    QVERIFY2(twice.contains("modified='2026-03-01T19:30:00Z' count='2'"), twice);
    QVERIFY2(twice.contains("added='2026-03-01T12:00:00Z'"), twice);
}

void test_recent_documents::whatIsNoListIsLeftAlone_data() {
    QTest::addColumn<QByteArray>("list");
    QTest::newRow("cut off") << kOthersList.left(400);
    QTest::newRow("another kind of file") << QByteArray("<html><head/></html>");
    QTest::newRow("no XML") << QByteArray("recent: menu.js\n");
}

void test_recent_documents::whatIsNoListIsLeftAlone() {
    QFETCH(QByteArray, list);
    QCOMPARE(withRecentDocument(list, "/web/menu.js", kNoon), QByteArray());
    FakeFileSystem disk;
    disk.addFile("/list", list.toStdString());
    noteRecentDocument(disk, "/list", "/web/menu.js");
    QCOMPARE(disk.allFiles().at("/list"), list.toStdString());
}

void test_recent_documents::theFileIsTheUsersAlone() {
    const QTemporaryDir folder;
    const QString file = folder.filePath("share/recently-used.xbel");
    PosixFileSystem files;
    noteRecentDocument(files, file.toStdString(), "/web/menu.js");
    noteRecentDocument(files, file.toStdString(), "/web/other.js");
    QFile written(file);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll().count("<bookmark "), 2);
    QCOMPARE(written.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

void test_recent_documents::openAndSaveNoteTheDocument() {
    Desk desk;
    desk.services.noteRecentDocument = [&desk](const std::string& document) {
        noteRecentDocument(desk.files, "/list", document);
    };
    FileCommands commands(desk.document, desk.view, desk.services);
    desk.disk.addFile("/site/old.js", "zev_state.columns = 1;\r\n");
    commands.openDefinition("/site/old.js");
    desk.dialogs.expectSaveFile("/site/new.js");
    desk.messages.expect(Desk::recalculate, MessageBox::Answer::No);
    commands.mnuFileSaveAs_Click();
    const QByteArray list = QByteArray::fromStdString(desk.bytesOf("/list"));
    QVERIFY(list.contains("file:///site/old.js"));
    QVERIFY(list.contains("file:///site/new.js"));
}

void test_recent_documents::thePreviewIsNoDocument() {
    Desk desk;
    desk.services.noteRecentDocument = [&desk](const std::string& document) {
        noteRecentDocument(desk.files, "/list", document);
    };
    FileCommands commands(desk.document, desk.view, desk.services);
    commands.showPreview();
    QVERIFY(!desk.isOnDisk("/list"));
}

QTEST_GUILESS_MAIN(test_recent_documents)
#include "test_recent_documents.moc"
