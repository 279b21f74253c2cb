// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace zev::test {

struct ProgramResult {
    int status = -1;  ///< exit status; -1 when it did not end by itself
    std::string output;
    std::string problems;  ///< standard error
};

/// What standard output is connected to.
enum class OutputTo { Collected, FullDisk, ClosedPipe, Nothing };

/// While it lives, the programs keep their data of the user here; without one, each in a folder of
/// its own, that is gone when the program has ended.
class UserData {
  public:
    UserData();
    UserData(const UserData&) = delete;
    UserData& operator=(const UserData&) = delete;
    ~UserData();
    std::string operator/(const std::string& name) const { return m_folder / name; }

  private:
    TempFolder m_folder;
};

/// Such problems without the line that names a run over pages.
std::string withoutRun(const std::string& problems);

/// Runs `zevmenu` with these arguments in `folder` and waits for it.
ProgramResult runZevmenu(const std::vector<std::string>& arguments, const std::string& folder,
                         const std::string& input = {}, OutputTo outputTo = OutputTo::Collected);

/// The same for another copy of the program.
ProgramResult runProgramAt(const std::string& program, const std::vector<std::string>& arguments,
                           const std::string& folder, const std::string& input = {},
                           OutputTo outputTo = OutputTo::Collected);

/// A definition file with three items, one of them with a submenu, as the program writes it.
extern const std::string kSmallDefinition;

}  // namespace zev::test
