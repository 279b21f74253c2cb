#include "platform/posix/posix_shell.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <thread>

#include "platform/posix/posix_process.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

using test::contentOf;
using test::makeFile;
using test::TempFolder;

/// A desktop of its own, whose programs are those in bin/.
class PosixShellTest : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directory(folder / "bin");
        setenv("PATH", (folder / "bin").c_str(), 1);
        addProgram("xdg-mime",
                   "[ \"$*\" = 'query default text/html' ] || exit 1\necho my-browser.desktop");
        addProgram("xdg-open", "for a in \"$@\"; do echo \"<$a>\"; done > '" + (folder / "part") +
                                   "'\n/bin/mv '" + (folder / "part") + "' '" + record() + "'");
    }
    void TearDown() override {
        if (m_oldPath)
            setenv("PATH", m_oldPath->c_str(), 1);
        else
            unsetenv("PATH");
    }

    void addProgram(const std::string& name, const std::string& body) {
        makeFile(folder / "bin/" + name, "#!/bin/sh\n" + body + "\n");
        ASSERT_EQ(chmod((folder / "bin/" + name).c_str(), 0755), 0);
    }
    std::string record() const { return folder / "record"; }
    /// What the browser was started with, one argument a line.
    std::string recorded() const {
        for (int i = 0; i < 500 && !std::filesystem::exists(record()); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return contentOf(record());
    }

    TempFolder folder;
    PosixShell shell;

  private:
    static std::optional<std::string> variable(const char* name) {
        const char* const value = std::getenv(name);
        return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
    }
    std::optional<std::string> m_oldPath = variable("PATH");
};

TEST_F(PosixShellTest, FindsAndStartsTheProgramThatOpensAddressesInTheBrowser) {
    for (const char* const file : {"/x/~temp.htm", "a.html", "a.HTM"})
        EXPECT_EQ(shell.FindExecutable(file), folder / "bin/xdg-open") << file;
    const std::string program = shell.FindExecutable("/x/~temp.htm");
    ASSERT_TRUE(shell.ShellExecute(program, "http://a.b/c d?e=f&g='h'$(i)%u"));
    EXPECT_EQ(recorded(), "<http://a.b/c d?e=f&g='h'$(i)%u>\n");
}

TEST_F(PosixShellTest, FindsNothingWhenAnyLinkIsMissing) {
    EXPECT_EQ(shell.FindExecutable("a.txt"), "") << "no web page";
    EXPECT_EQ(shell.FindExecutable("htm"), "") << "no web page";
    for (const char* const answer : {"exit 3", "echo", "echo '  '", "exit 0"}) {
        addProgram("xdg-mime", answer);
        EXPECT_EQ(shell.FindExecutable("a.htm"), "") << "xdg-mime: " << answer;
    }
    std::filesystem::remove(folder / "bin/xdg-mime");
    EXPECT_EQ(shell.FindExecutable("a.htm"), "") << "no xdg-mime";
    addProgram("xdg-mime", "echo my-browser.desktop");
    EXPECT_NE(shell.FindExecutable("a.htm"), "");
    std::filesystem::remove(folder / "bin/xdg-open");
    EXPECT_EQ(shell.FindExecutable("a.htm"), "") << "no xdg-open";
}

TEST_F(PosixShellTest, StartsAProgramGivenByPathEvenWithSpacesInIt) {
    std::filesystem::create_directory(folder / "my programs");
    std::filesystem::rename(folder / "bin/xdg-open", folder / "my programs/xdg-open");
    ASSERT_TRUE(shell.ShellExecute(folder / "my programs/xdg-open", "%u stays"));
    EXPECT_EQ(recorded(), "<%u stays>\n");
}

TEST_F(PosixShellTest, SaysWhenAProgramCannotBeStarted) {
    EXPECT_FALSE(shell.ShellExecute("nowhere-to-be-found", "page"));
    EXPECT_FALSE(shell.ShellExecute("", "page"));
    addProgram("broken", "");
    makeFile(folder / "bin/broken", "#!/nowhere/interpreter\n");
    EXPECT_FALSE(shell.ShellExecute("broken", "page"));
}

TEST_F(PosixShellTest, AStartedProgramIsNoChildOfOurs) {
    ASSERT_TRUE(shell.ShellExecute("browser", "page"));
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(recorded(), "<page>\n");
}

TEST_F(PosixShellTest, AStartedProgramHasASessionOfItsOwn) {
    addProgram("waiting", "echo $$ > '" + record() + "'; exec /bin/sleep 60");
    ASSERT_TRUE(shell.ShellExecute("waiting", "page"));
    while (recorded().find('\n') == std::string::npos)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    const pid_t child = std::stoi(recorded());
    EXPECT_EQ(getsid(child), child);
    EXPECT_EQ(kill(child, SIGKILL), 0);
}

TEST_F(PosixShellTest, AProgramThatHangsIsGivenUpWithItsChildren) {
    addProgram("hanging", "/bin/sleep 60 & echo $! > '" + record() + "'; wait");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(runProgram({"hanging"}, std::chrono::milliseconds(500)));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    const pid_t child = std::stoi(recorded());
    for (int i = 0; i < 500 && kill(child, 0) == 0; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(kill(child, 0), -1);
}

}  // namespace
}  // namespace zev
