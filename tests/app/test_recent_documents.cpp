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
const QByteArray kOthersList = R"(<?xml version="1.0" encoding="UTF-8"?>
<xbel version="1.0"
      xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
      xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info"
>
  <bookmark href="file:///web/menu.js" added="2026-01-01T00:00:00Z" modified="2026-01-02T00:00:00Z" visited="2026-01-02T00:00:00Z">
    <title>Menu &amp; more</title>
    <info>
      <metadata owner="http://freedesktop.org">
        <mime:mime-type type="application/javascript"/>
        <bookmark:applications>
          <bookmark:application name="notes" exec="&apos;notes %u&apos;" modified="2026-01-02T00:00:00Z" count="3"/>
        </bookmark:applications>
      </metadata>
    </info>
  </bookmark>
</xbel>)";

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
    const QByteArray list = withRecentDocument("", "/web/caf\xC3\xA9 & co.js", kNoon);
    QCOMPARE(list, QByteArray(
                       R"(<?xml version="1.0" encoding="UTF-8"?>)"
                       R"(<xbel version="1.0")"
                       R"( xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks")"
                       R"( xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info">)"
                       "\n"
                       R"(<bookmark href="file:///web/caf%C3%A9%20&amp;%20co.js")"
                       R"( added="2026-03-01T12:00:00Z" modified="2026-03-01T12:00:00Z")"
                       R"( visited="2026-03-01T12:00:00Z"><info>)"
                       R"(<metadata owner="http://freedesktop.org">)"
                       R"(<mime:mime-type type="application/x-zevmenu-definition"/>)"
                       R"(<bookmark:applications>)"
                       R"(<bookmark:application name="zevmenu-creator")"
                       R"( exec="'zevmenu-creator %f'" modified="2026-03-01T12:00:00Z")"
                       R"( count="1"/></bookmark:applications></metadata></info></bookmark>)"
                       "\n</xbel>"));
}

void test_recent_documents::aDocumentOfAnotherProgramKeepsWhatThatWrote() {
    const QByteArray list = withRecentDocument(kOthersList, "/web/menu.js", kNoon);
    QCOMPARE(list.count("<bookmark "), 1);
    for (const char* const kept :
         {R"(added="2026-01-01T00:00:00Z")", "<title>Menu &amp; more</title>", R"(name="notes")",
          R"(modified="2026-01-02T00:00:00Z" count="3")",
          R"(<mime:mime-type type="application/javascript"/>)"})
        QVERIFY2(list.contains(kept), kept);
    QVERIFY(list.contains(R"(visited="2026-03-01T12:00:00Z")"));
    QVERIFY(list.contains(R"(name="zevmenu-creator")"));
    const QByteArray two = withRecentDocument(list, "/web/other.js", kEvening);
    QCOMPARE(two.count("<bookmark "), 2);
}

void test_recent_documents::usedAgainItIsCountedAndNotDoubled() {
    const QByteArray once = withRecentDocument("", "/web/menu.js", kNoon);
    const QByteArray twice = withRecentDocument(once, "/web/menu.js", kEvening);
    QCOMPARE(twice.count("<bookmark "), 1);
    QCOMPARE(twice.count("<bookmark:application "), 1);
    QVERIFY(twice.contains(R"(modified="2026-03-01T19:30:00Z" count="2")"));
    QVERIFY(twice.contains(R"(added="2026-03-01T12:00:00Z")"));
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
    desk.services.recentDocuments = "/list";
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
    desk.services.recentDocuments = "/list";
    FileCommands commands(desk.document, desk.view, desk.services);
    commands.showPreview();
    QVERIFY(!desk.isOnDisk("/list"));
}

QTEST_GUILESS_MAIN(test_recent_documents)
#include "test_recent_documents.moc"
