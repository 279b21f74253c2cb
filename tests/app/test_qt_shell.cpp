// SPDX-License-Identifier: MIT
// Programs of a made-up desktop, really started.

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTest>
#include <cerrno>
#include <filesystem>
#include <memory>

#include "platform/qt/qt_shell.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

using namespace zev;
using test::contentOf;
using test::makeFile;
using test::TempFolder;

namespace {

/// A desktop of its own, whose programs are those in bin/.
class Desktop {
  public:
    Desktop() {
        std::filesystem::create_directory(folder / "bin");
        qputenv("PATH", (folder / "bin").c_str());
        addProgram("xdg-mime",
                   "[ \"$*\" = 'query default text/html' ] || exit 1\necho my-browser.desktop");
        addProgram("xdg-open", "for a in \"$@\"; do echo \"<$a>\"; done > '" + (folder / "part") +
                                   "'\n/bin/mv '" + (folder / "part") + "' '" + record() + "'");
    }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop() { qputenv("PATH", m_oldPath); }

    void addProgram(const std::string& name, const std::string& body) {
        addScript(name, "#!/bin/sh\n" + body + "\n");
    }
    void addScript(const std::string& name, const std::string& text) {
        makeFile(folder / "bin/" + name, text);
        std::filesystem::permissions(folder / "bin/" + name, std::filesystem::perms(0755));
    }
    std::string record() const { return folder / "record"; }
    /// What a program has recorded: the browser the arguments it was started with, one a line.
    std::string recorded() const {
        const auto isThere = [&] {
            return std::filesystem::exists(record()) && contentOf(record()).ends_with('\n');
        };
        (void)QTest::qWaitFor(isThere);
        return contentOf(record());
    }

    TempFolder folder;
    QtShell shell;

  private:
    QByteArray m_oldPath = qgetenv("PATH");
};

}  // namespace

class test_qt_shell : public QObject {
    Q_OBJECT

  private slots:
    void init() { m_desktop = std::make_unique<Desktop>(); }
    void cleanup() { m_desktop.reset(); }
    void findsAndStartsTheProgramThatOpensAddressesInTheBrowser();
    void findsNothingForAFileThatIsNoWebPage();
    void findsNothingWhenAnyLinkIsMissing();
    void anXdgMimeThatHangsIsGivenUp();
    void startsAProgramGivenByPathEvenWithSpacesInIt();
    void anArgumentStaysOne_data();
    void anArgumentStaysOne();
    void saysWhenAProgramCannotBeStarted();
    void aStartedProgramIsNoChildOfOurs();
    void aStartedProgramHasASessionOfItsOwn();
    void aStartedProgramHasNeitherInputNorOutputOfOurs();

  private:
    std::unique_ptr<Desktop> m_desktop;
};

void test_qt_shell::findsAndStartsTheProgramThatOpensAddressesInTheBrowser() {
    for (const char* const file : {"/x/~temp.htm", "a.html", "a.HTM"})
        QCOMPARE(m_desktop->shell.FindExecutable(file), m_desktop->folder / "bin/xdg-open");
    const std::string program = m_desktop->shell.FindExecutable("/x/~temp.htm");
    QVERIFY(m_desktop->shell.ShellExecute(program, "http://a.b/c d?e=f&g='h'$(i)%u"));
    QCOMPARE(m_desktop->recorded(), std::string("<http://a.b/c d?e=f&g='h'$(i)%u>\n"));
}

void test_qt_shell::findsNothingForAFileThatIsNoWebPage() {
    for (const char* const file : {"a.txt", "htm"})
        QCOMPARE(m_desktop->shell.FindExecutable(file), std::string());
}

void test_qt_shell::findsNothingWhenAnyLinkIsMissing() {
    Desktop& desktop = *m_desktop;
    for (const char* const answer :
         {"exit 3", "echo a; exit 3", "echo a; kill -9 $$", "echo", "echo '  '", "exit 0"}) {
        desktop.addProgram("xdg-mime", answer);
        QVERIFY2(desktop.shell.FindExecutable("a.htm").empty(), answer);
    }
    std::filesystem::remove(desktop.folder / "bin/xdg-mime");
    QCOMPARE(desktop.shell.FindExecutable("a.htm"), std::string());
    desktop.addProgram("xdg-mime", "echo my-browser.desktop");
    QVERIFY(!desktop.shell.FindExecutable("a.htm").empty());
    std::filesystem::remove(desktop.folder / "bin/xdg-open");
    QCOMPARE(desktop.shell.FindExecutable("a.htm"), std::string());
}

void test_qt_shell::anXdgMimeThatHangsIsGivenUp() {
    m_desktop->addProgram("xdg-mime",
                          "echo $$ > '" + m_desktop->record() + "'; exec /bin/sleep 60");
    QElapsedTimer time;
    time.start();
    QCOMPARE(m_desktop->shell.FindExecutable("a.htm"), std::string());
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
    const pid_t hanging = std::stoi(m_desktop->recorded());
    QCOMPARE(kill(hanging, 0), -1);
}

void test_qt_shell::startsAProgramGivenByPathEvenWithSpacesInIt() {
    const TempFolder& folder = m_desktop->folder;
    std::filesystem::create_directory(folder / "my programs");
    std::filesystem::rename(folder / "bin/xdg-open", folder / "my programs/xdg-open");
    QVERIFY(m_desktop->shell.ShellExecute(folder / "my programs/xdg-open", "%u stays"));
    QCOMPARE(m_desktop->recorded(), std::string("<%u stays>\n"));
}

void test_qt_shell::anArgumentStaysOne_data() {
    QTest::addColumn<QString>("argument");
    QTest::newRow("blanks") << " a  b ";
    QTest::newRow("quotes") << R"("a" 'b' \")";
    QTest::newRow("shell") << "a;b|c&d>e`f`$(g)$h*?~#!";
    QTest::newRow("like an option") << "--help";
    QTest::newRow("outside ASCII") << QString::fromUtf8("men\xc3\xbc");
    QTest::newRow("empty") << "";
}

void test_qt_shell::anArgumentStaysOne() {
    QFETCH(QString, argument);
    QVERIFY(m_desktop->shell.ShellExecute("xdg-open", argument.toStdString()));
    QCOMPARE(m_desktop->recorded(), '<' + argument.toStdString() + ">\n");
}

void test_qt_shell::saysWhenAProgramCannotBeStarted() {
    QtShell& shell = m_desktop->shell;
    QVERIFY(!shell.ShellExecute("nowhere-to-be-found", "page"));
    QVERIFY(!shell.ShellExecute("", "page"));
    m_desktop->addScript("broken", "#!/nowhere/interpreter\n");
    QVERIFY(!shell.ShellExecute("broken", "page"));
}

void test_qt_shell::aStartedProgramIsNoChildOfOurs() {
    QVERIFY(m_desktop->shell.ShellExecute("xdg-open", "page"));
    QCOMPARE(waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
    QCOMPARE(m_desktop->recorded(), std::string("<page>\n"));
}

void test_qt_shell::aStartedProgramHasASessionOfItsOwn() {
    m_desktop->addProgram("waiting", "echo $$ > '" + m_desktop->record() + "'; exec /bin/sleep 60");
    QVERIFY(m_desktop->shell.ShellExecute("waiting", "page"));
    const pid_t started = std::stoi(m_desktop->recorded());
    const pid_t session = getsid(started);
    QCOMPARE(kill(started, SIGKILL), 0);
    QVERIFY(session > 0);
    QVERIFY(session != getsid(0));
}

void test_qt_shell::aStartedProgramHasNeitherInputNorOutputOfOurs() {
    m_desktop->addProgram("listing",
                          "all=$(for i in 0 1 2; do /bin/readlink /proc/$$/fd/$i; done)\n"
                          "echo \"$all\" > '" +
                              m_desktop->record() + "'");
    QVERIFY(m_desktop->shell.ShellExecute("listing", "page"));
    QCOMPARE(m_desktop->recorded(), std::string("/dev/null\n/dev/null\n/dev/null\n"));
}

QTEST_GUILESS_MAIN(test_qt_shell)
#include "test_qt_shell.moc"
