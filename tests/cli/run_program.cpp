// SPDX-License-Identifier: MIT
#include "tests/cli/run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev::test {

const std::string kSmallDefinition =
    "zev_state.columns = 1;\r\n"
    "zev_state.hbgcolor = '#888888';\r\n"
    "zev_state.hftcolor = '#000000';\r\n"
    "zev_state.nbgcolor = '#000000';\r\n"
    "zev_state.nftcolor = '#FFFFFF';\r\n"
    "zev_state.menuoffset = 1;\r\n"
    "zev_state.closedelay = 500;\r\n"
    "zev_state.position = 'right';\r\n"
    "zev_state.fontFamily = 'Arial';\r\n"
    "zev_state.fontSize = '10pt';\r\n"
    "\r\n"
    "zevmenu = new ZEVMenu('0');\r\n"
    "zevmenu.columns = 10;\r\n"
    "zevmenu.position = 'bottom';\r\n"
    "\r\n"
    "zevmenu.AddItem('Home', 'index.html', '');\r\n"
    "zevmenu.AddItem('Products', 'products/index.html', 'main');\r\n"
    "zevmenu.AddRollover('shop.html', 'img/out.png', 'img/over.png', '');\r\n"
    "\r\n"
    "zevmenu = new ZEVMenu('2');\r\n"
    "\r\n"
    "zevmenu.AddItem('News', 'http://example.org/news', '');\r\n"
    "\r\n"
    "\r\n";

namespace {

const TempFolder* s_userData = nullptr;

[[noreturn]] void runChild(const std::string& program, std::vector<char*>& arguments,
                           const std::string& folder, const std::string& files, OutputTo outputTo) {
    const std::string userData = s_userData != nullptr ? s_userData->path() : files + "/data";
    if (::setenv("XDG_DATA_HOME", userData.c_str(), 1) != 0)
        ::_exit(99);
    const auto connect = [](const std::string& path, int flags, int descriptor) {
        const int file = ::open(path.c_str(), flags | O_CLOEXEC, 0600);
        if (file < 0 || ::dup2(file, descriptor) < 0)
            ::_exit(99);
    };
    connect(files + "/input", O_RDONLY, STDIN_FILENO);
    connect(files + "/problems", O_WRONLY | O_CREAT, STDERR_FILENO);
    if (outputTo == OutputTo::Nothing) {
        ::close(STDOUT_FILENO);
    } else if (outputTo == OutputTo::ClosedPipe) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0 || ::dup2(ends[1], STDOUT_FILENO) < 0)
            ::_exit(99);
    } else {
        connect(outputTo == OutputTo::FullDisk ? "/dev/full" : files + "/output",
                O_WRONLY | O_CREAT, STDOUT_FILENO);
    }
    if (::chdir(folder.c_str()) != 0)
        ::_exit(99);
    ::execv(program.c_str(), arguments.data());
    ::_exit(99);
}

std::string contentIfAny(const std::string& path) {
    return std::filesystem::exists(path) ? contentOf(path) : "";
}

}  // namespace

UserData::UserData() {
    s_userData = &m_folder;
}

UserData::~UserData() {
    s_userData = nullptr;
}

std::string withoutRun(const std::string& problems) {
    return std::regex_replace(problems, std::regex("zevmenu: run [-0-9T:]+\n"), "");
}

ProgramResult runZevmenu(const std::vector<std::string>& arguments, const std::string& folder,
                         const std::string& input, OutputTo outputTo) {
    return runProgramAt(ZEVMENU_PROGRAM, arguments, folder, input, outputTo);
}

ProgramResult runProgramAt(const std::string& program, const std::vector<std::string>& arguments,
                           const std::string& folder, const std::string& input, OutputTo outputTo) {
    const TempFolder files;
    makeFile(files / "input", input);
    std::vector<std::string> all{program};
    all.insert(all.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& argument : all)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0)
        runChild(program, pointers, folder, files.path(), outputTo);
    int status = 0;
    ProgramResult result;
    if (::waitpid(child, &status, 0) == child && WIFEXITED(status))
        result.status = WEXITSTATUS(status);
    result.output = contentIfAny(files / "output");
    result.problems = contentIfAny(files / "problems");
    return result;
}

}  // namespace zev::test
