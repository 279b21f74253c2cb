// SPDX-License-Identifier: MIT
// The wizard over thousands of pages on a real disk: Cancel leaves whole pages, and the window
// answers all the time. How long it did not at most is printed: that is the machine's, too.

#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QProgressDialog>
#include <QTimer>

#include "integrator/wizard/add_folder_window.h"
#include "integrator/wizard/changes_window.h"
#include "integrator/wizard/place_window.h"
#include "platform/posix/posix_file_system.h"
#include "tests/app/when_shown.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"
#include "wizard_desk.h"

using namespace zev;

namespace {

/// Of 4 KB, as integration succeeds on, with a script that would go.
std::string pageText() {
    std::string text = "<html><head><script>own()</script></head><body>\n<header>a</header>\n";
    while (text.size() < 4000)
        text += "<p>Some <b>text</b> of a <a href=\"page.htm\">page</a>.</p>\n";
    return text + "</body></html>\n";
}

/// The longest time between two turns of the event loop since it was asked last.
class LoopWatch {
  public:
    LoopWatch() {
        m_clock.start();
        QObject::connect(&m_timer, &QTimer::timeout, [this] { turn(); });
        m_timer.start(0);
    }
    qint64 longestMs() {
        turn();
        return std::exchange(m_longestMs, 0);
    }
    void startCounting() { m_turnCount = 0; }
    int turnCount() const { return m_turnCount; }

  private:
    void turn() {
        m_longestMs = std::max(m_longestMs, m_clock.restart());
        ++m_turnCount;
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longestMs = 0;
    int m_turnCount = 0;
};

/// Calls back before each page is replaced.
class WatchedRealDisk : public PosixFileSystem {
  public:
    std::function<void()> onWrite;

    FileOutcome writeFileThrough(const std::string& temporaryName, const std::string& path,
                                 std::string_view bytes) override {
        if (onWrite)
            onWrite();
        return PosixFileSystem::writeFileThrough(temporaryName, path, bytes);
    }
};

/// The wizard over pages of a folder of the disk.
struct Site {
    explicit Site(int pageCount) {
        QDir().mkdir(QString::fromStdString(folder / "site"));
        for (int number = 0; number < pageCount; ++number) {
            names.push_back("p" + std::to_string(number) + ".htm");
            test::makeFile(pathOf(names.back()), before);
        }
        wizard.show();
        wizard.activateWindow();
        if (!QTest::qWaitForWindowActive(&wizard))
            failWizardTest("the wizard does not become active");
    }

    template <typename Widget>
    Widget& named(const QString& name) {
        return *wizard.findChild<Widget*>(name);
    }
    void click(const QString& name) {
        QTest::mouseClick(&named<QPushButton>(name), Qt::LeftButton);
    }
    std::string pathOf(const std::string& name) const { return folder / ("site/" + name); }
    /// Adds the folder by the window that asks for it.
    void addFolder() {
        click("btnNext");
        whenShown<AddFolderWindow>([this](AddFolderWindow& window) {
            window.findChild<QLineEdit*>("txtFolder")
                ->setText(QString::fromStdString(folder / "site"));
            window.findChild<QPushButton*>("btnOK")->click();
        });
        click("btnAddFolder");
    }
    /// From the pages to the report, with all scripts that would go gone. `seen` is called when the
    /// window with the changes is shown.
    void goOn(const std::function<void()>& seen = [] {}) {
        bool isSeen = false;
        whenShown<ChangesWindow>([&](ChangesWindow& window) {
            window.findChild<QCheckBox*>("chkKeepAll")->setChecked(false);
            isSeen = true;
            seen();
            window.findChild<QPushButton*>("btnOK")->click();
        });
        click("btnNext");
        QTRY_VERIFY_WITH_TIMEOUT(isSeen, 60000);
        named<QLineEdit>("txtPath").setText("js/");
        named<QLineEdit>("txtMenuDef").setText("js/menu.js");
        click("btnNext");
        click("btnNext");
    }
    /// Presses the button that stops work, in the window that tells of it, before that page is
    /// written, counted from 1.
    void stopAtPage(int number) {
        disk.onWrite = [this, number, count = 0]() mutable {
            if (++count != number)
                return;
            for (auto* progress : wizard.findChildren<QProgressDialog*>())
                progress->findChild<QPushButton*>()->click();
        };
    }
    /// How many pages hold a text; -1 when one is neither as before nor integrated whole.
    int countHolding(const std::string& text) const {
        int count = 0;
        for (const std::string& name : names) {
            const std::string page = test::contentOf(pathOf(name));
            const bool isIntegrated = page.find("zevmenu_loader.js") != std::string::npos &&
                                      page.ends_with("ZEVCreateMenu()</script></body></html>\n");
            if (page != before && !isIntegrated)
                return -1;
            count += page.find(text) != std::string::npos ? 1 : 0;
        }
        return count;
    }

    const std::string before = pageText();
    test::TempFolder folder;
    std::vector<std::string> names;
    WatchedRealDisk disk;
    FakeMessageBox messages{failWizardTest};
    FakeCommonDialogs dialogs{failWizardTest};
    frmIntegrator wizard{
        {disk, messages, dialogs, "", folder / "runs", vendorAddresses("zevmenu.example")},
        {"/"},
        nullptr};
};

/// As many pages as are asked for by ZEV_MANY_PAGES, or enough to stop among.
int pageCount(int usual) {
    return qEnvironmentVariableIsSet("ZEV_MANY_PAGES")
               ? qEnvironmentVariableIntValue("ZEV_MANY_PAGES")
               : usual;
}

}  // namespace

class test_many_pages : public QObject {
    Q_OBJECT

  private slots:
    void cancelLeavesWholePages() {
        Site site(120);
        site.addFolder();
        QCOMPARE(site.named<QComboBox>("comboFiles").count(), 120);
        // The window still answers: its button is pressed from the event loop.
        QTimer cancel;
        QObject::connect(&cancel, &QTimer::timeout, [&site] {
            if (site.named<QProgressBar>("pbProgress").value() >= 40)
                site.click("btnCancel");
        });
        cancel.start(0);
        site.goOn();
        cancel.stop();
        const int doneCount = site.countHolding("zevmenu_loader.js");
        QVERIFY2(doneCount >= 40 && doneCount < 50, qPrintable(QString::number(doneCount)));
        const QString report = site.named<QPlainTextEdit>("txtReport").toPlainText();
        QVERIFY(report.contains(
            QString("Cancelled: %1 of 120 pages not processed").arg(120 - doneCount)));
        const QStringList left =
            QDir(QString::fromStdString(site.folder / "site")).entryList({"~*", ".*"}, QDir::Files);
        QCOMPARE(left, QStringList());
    }

    void cancelOfPlacingAndUndoingLeavesWholePages() {
        Site site(60);
        site.addFolder();
        site.goOn();
        QCOMPARE(site.countHolding("zevmenu_loader.js"), 60);
        site.click("btnNext");
        whenShown<PlaceWindow>([&site](PlaceWindow& window) {
            site.stopAtPage(20);
            window.findChild<QPushButton*>("btnPlace")->click();
        });
        site.click("btnPlace");
        QCOMPARE(site.countHolding("<!-- zevmenu menu -->"), 20);
        QCOMPARE(site.countHolding("zevmenu_loader.js"), 60);

        // What was placed is undone first.
        site.stopAtPage(30);
        const auto isStopped = [](const MessageRequest& request) {
            return request.text.find("You stopped it") != std::string::npos;
        };
        site.messages.expect("that it was stopped", isStopped, MessageBox::Answer::Ok);
        site.click("btnUndoRun");
        QCOMPARE(site.countHolding("<!-- zevmenu menu -->"), 0);
        QCOMPARE(site.countHolding("zevmenu_loader.js"), 50);
        site.disk.onWrite = {};
        site.messages.expect("60 pages are as before the run.");
        site.click("btnUndoRun");
        QCOMPARE(site.countHolding("zevmenu_loader.js"), 0);
    }

    /// What takes long lets the event loop turn for each page.
    void theWindowAnswersAllTheTime() {
        Site site(pageCount(60));
        const int count = static_cast<int>(site.names.size());
        LoopWatch watch;
        const auto print = [&watch](const char* what) {
            qInfo("%s: the window did not answer for %lld ms at most", what, watch.longestMs());
        };
        watch.longestMs();
        site.addFolder();
        print("Add Folder, and counting its scripts");
        site.goOn([&] {
            print("What Will Change");
            watch.startCounting();
        });
        QVERIFY2(watch.turnCount() >= count, qPrintable(QString::number(watch.turnCount())));
        print("The run and its report");
        site.click("btnNext");
        print("The last frame");
        whenShown<PlaceWindow>([&](PlaceWindow& window) {
            print("Place It For Me");
            window.findChild<QPushButton*>("btnPlace")->click();
        });
        site.click("btnPlace");
        print("Placing");
        QCOMPARE(site.countHolding("<!-- zevmenu menu -->"), count);
        watch.longestMs();
        site.messages.expect(std::to_string(count) + " pages are as before the run.");
        site.click("btnUndoRun");
        print("Undo This Run");
        QCOMPARE(site.countHolding("zevmenu_loader.js"), 0);
    }
};

QTEST_MAIN(test_many_pages)
#include "test_many_pages.moc"
