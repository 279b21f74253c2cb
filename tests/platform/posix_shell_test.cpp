#include "platform/posix/posix_shell.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <thread>

#include "platform/posix/posix_file_system.h"
#include "platform/posix/posix_process.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

using test::contentOf;
using test::makeFile;
using test::TempFolder;

/// A desktop of its own: programs in bin/, the user's entries in home/, the system's in share/.
class PosixShellTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* const name : {"bin", "home/applications/sub", "share/applications"})
            std::filesystem::create_directories(folder / name);
        // xdg-mime and the scripts need the usual programs too, but not the usual xdg-mime.
        setVariable("PATH", folder / "bin");
        setVariable("XDG_DATA_HOME", folder / "home");
        setVariable("XDG_DATA_DIRS", folder / "share");
        addProgram("xdg-mime",
                   "[ \"$*\" = 'query default text/html' ] || exit 1\necho my-browser.desktop");
        addProgram("browser", "for a in \"$@\"; do echo \"<$a>\"; done > '" + (folder / "part") +
                                  "'\n/bin/mv '" + (folder / "part") + "' '" + record() + "'");
    }
    void TearDown() override {
        for (const auto& [name, value] : m_oldVariables) {
            if (value)
                setenv(name.c_str(), value->c_str(), 1);
            else
                unsetenv(name.c_str());
        }
    }

    void setVariable(const std::string& name, const std::string& value) {
        const char* const old = std::getenv(name.c_str());
        m_oldVariables.try_emplace(name, old ? std::optional<std::string>(old) : std::nullopt);
        setenv(name.c_str(), value.c_str(), 1);
    }
    void addProgram(const std::string& name, const std::string& body) {
        makeFile(folder / "bin/" + name, "#!/bin/sh\n" + body + "\n");
        ASSERT_EQ(chmod((folder / "bin/" + name).c_str(), 0755), 0);
    }
    void addEntry(const std::string& path, const std::string& lines) {
        makeFile(folder / path, "[Desktop Entry]\nType=Application\n" + lines);
    }
    std::string record() const { return folder / "record"; }
    /// What the browser was started with, one argument a line.
    std::string recorded() const {
        for (int i = 0; i < 500 && !std::filesystem::exists(record()); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return contentOf(record());
    }

    TempFolder folder;
    PosixFileSystem files;
    PosixShell shell{files};

  private:
    std::map<std::string, std::optional<std::string>> m_oldVariables;
};

TEST_F(PosixShellTest, FindsAndStartsTheProgramOfTheDefaultEntry) {
    addEntry("share/applications/my-browser.desktop", "Exec=browser %u\n");
    const std::string program = shell.FindExecutable("/x/~temp.htm");
    EXPECT_EQ(program, "browser %u");
    ASSERT_TRUE(shell.ShellExecute(program, "http://a.b/c d?e=f&g='h'"));
    EXPECT_EQ(recorded(), "<http://a.b/c d?e=f&g='h'>\n");
}

TEST_F(PosixShellTest, KeepsTheOtherArgumentsOfTheEntry) {
    addProgram("wrapper", "exec browser \"$@\"");
    addEntry("share/applications/my-browser.desktop",
             "Exec=wrapper --run \"two words\" @@u %u @@\n");
    const std::string program = shell.FindExecutable("a.html");
    ASSERT_TRUE(shell.ShellExecute(program, "page"));
    EXPECT_EQ(recorded(), "<--run>\n<two words>\n<@@u>\n<page>\n<@@>\n");
}

TEST_F(PosixShellTest, FindsEntriesInTheUsersFolderFirstAndInSubFolders) {
    addEntry("share/applications/my-browser.desktop", "Exec=browser --system %u\n");
    EXPECT_EQ(shell.FindExecutable("a.htm"), "browser --system %u");
    std::filesystem::create_directory(folder / "home/applications/my");
    addEntry("home/applications/my/browser.desktop", "Exec=browser --own %u\n");
    EXPECT_EQ(shell.FindExecutable("a.HTM"), "browser --own %u");
}

TEST_F(PosixShellTest, FindsNothingWhenAnyLinkIsMissing) {
    EXPECT_EQ(shell.FindExecutable("a.htm"), "") << "no entry file";
    const char* const useless[] = {
        "Exec=nowhere-to-be-found %u\n",    "Exec=browser \"open %u\n",
        "Name=without a command\n",         "Exec=browser %u\nHidden=true\n",
        "Exec=browser %u\nTerminal=true\n", "Exec=browser %u\nTryExec=nowhere-to-be-found\n"};
    for (const char* const lines : useless) {
        addEntry("share/applications/my-browser.desktop", lines);
        EXPECT_EQ(shell.FindExecutable("a.htm"), "") << lines;
    }
    addEntry("share/applications/my-browser.desktop", "Exec=browser %u\n");
    EXPECT_EQ(shell.FindExecutable("a.htm"), "browser %u");
    EXPECT_EQ(shell.FindExecutable("a.txt"), "") << "no web page";
    EXPECT_EQ(shell.FindExecutable("htm"), "") << "no web page";
    addProgram("xdg-mime", "exit 3");
    EXPECT_EQ(shell.FindExecutable("a.htm"), "") << "xdg-mime failed";
    std::filesystem::remove(folder / "bin/xdg-mime");
    EXPECT_EQ(shell.FindExecutable("a.htm"), "") << "no xdg-mime";
}

TEST_F(PosixShellTest, StartsAProgramGivenByPathEvenWithSpacesInIt) {
    std::filesystem::create_directory(folder / "my programs");
    std::filesystem::rename(folder / "bin/browser", folder / "my programs/browser");
    ASSERT_TRUE(shell.ShellExecute(folder / "my programs/browser", "%u stays"));
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
