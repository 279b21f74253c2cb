// SPDX-License-Identifier: MIT
#include <QTest>

#include "app/open_url.h"
#include "file_commands_desk.h"

using namespace zev;

namespace {

const std::string kAddress = "https://zevmenu.example/support.html?a=1&b=2";
const std::string kScratchFile = "/opt/editor~temp.htm";

}  // namespace

class test_open_url : public QObject {
    Q_OBJECT

  private slots:
    void startsTheProgramForWebPagesWithTheAddress();
    void looksTheProgramUpThroughAScratchFileBesideTheProgramsFolder();
    void theScratchFileTakesThePlaceOfALink();
    void tellsWhenThereIsNoBrowser_data();
    void tellsWhenThereIsNoBrowser();
    void tellsWhenTheBrowserCannotBeStarted();
    void aScratchFileThatCannotBeWrittenDoesNotMatter();
    void aFileThatIsNotItsOwnStays();
};

/// A desk whose program folder is "/opt/editor".
struct OpenURLDesk : Desk {
    OpenURLDesk() { disk.addFolder("/opt/editor"); }
    void open() { OpenURL(kAddress, "/opt/editor", services); }

    /// The next box must be a warning with these texts and an OK button.
    void expectWarning(const std::string& text, const std::string& title) {
        messages.expect(
            text,
            [=](const MessageRequest& request) {
                return request.text == text && request.title == title &&
                       request.icon == MessageRequest::Icon::Exclamation &&
                       request.buttons == MessageRequest::Buttons::Ok;
            },
            MessageBox::Answer::Ok);
    }
};

void test_open_url::startsTheProgramForWebPagesWithTheAddress() {
    OpenURLDesk desk;
    desk.shell.expectFindExecutable("/usr/bin/browser");
    desk.shell.expectShellExecute("/usr/bin/browser", kAddress);
    desk.open();
    QVERIFY(desk.messages.recorded().empty());
    QVERIFY(!desk.isOnDisk(kScratchFile));
}

void test_open_url::looksTheProgramUpThroughAScratchFileBesideTheProgramsFolder() {
    OpenURLDesk desk;
    desk.disk.addFile(kScratchFile, "left over");
    std::string content;
    desk.shell.expectFindExecutable([&](const std::string& file) {
        content = desk.bytesOf(file);
        return std::string("/usr/bin/browser");
    });
    desk.shell.expectShellExecute("/usr/bin/browser", kAddress);
    desk.open();
    QCOMPARE(desk.shell.recordedFiles(), std::vector<std::string>{kScratchFile});
    QCOMPARE(content, std::string("\"<HTML> <\\HTML>\"\r\n"));
    QVERIFY(!desk.isOnDisk(kScratchFile));
}

void test_open_url::theScratchFileTakesThePlaceOfALink() {
    OpenURLDesk desk;
    desk.disk.addFile("/home/rc", "mine");
    desk.disk.addLink(kScratchFile, "/home/rc");
    desk.shell.expectFindExecutable("/usr/bin/browser");
    desk.shell.expectShellExecute("/usr/bin/browser", kAddress);
    desk.open();
    QCOMPARE(desk.bytesOf("/home/rc"), std::string("mine"));
}

void test_open_url::tellsWhenThereIsNoBrowser_data() {
    QTest::addColumn<QString>("program");
    QTest::newRow("none") << "";
    QTest::newRow("nothing but spaces") << "   ";
}

void test_open_url::tellsWhenThereIsNoBrowser() {
    QFETCH(QString, program);
    OpenURLDesk desk;
    desk.shell.expectFindExecutable(program.toStdString());
    desk.expectWarning("Could not find associated browser", "Browser Not Found");
    desk.open();
    QVERIFY(desk.shell.recordedStarts().empty());
    QVERIFY(!desk.isOnDisk(kScratchFile));
}

void test_open_url::tellsWhenTheBrowserCannotBeStarted() {
    OpenURLDesk desk;
    desk.shell.expectFindExecutable("/usr/bin/browser");
    desk.shell.expectShellExecute("/usr/bin/browser", kAddress, false);
    desk.expectWarning("Web Page not Opened", "URL Failed");
    desk.open();
    QVERIFY(!desk.isOnDisk(kScratchFile));
}

void test_open_url::aScratchFileThatCannotBeWrittenDoesNotMatter() {
    OpenURLDesk desk;
    desk.disk.setWritable("/opt", false);
    desk.shell.expectFindExecutable("/usr/bin/browser");
    desk.shell.expectShellExecute("/usr/bin/browser", kAddress);
    desk.open();
    QVERIFY(desk.messages.recorded().empty());
}

void test_open_url::aFileThatIsNotItsOwnStays() {
    OpenURLDesk desk;
    desk.disk.addFile(kScratchFile, "somebody's");
    desk.files.failOperation(desk.files.operationCount() + 1,
                             {FileError::Code::NoPermission, "", "Permission denied"});
    desk.shell.expectFindExecutable("/usr/bin/browser");
    desk.shell.expectShellExecute("/usr/bin/browser", kAddress);
    desk.open();
    QCOMPARE(desk.bytesOf(kScratchFile), std::string("somebody's"));
}

QTEST_GUILESS_MAIN(test_open_url)
#include "test_open_url.moc"
