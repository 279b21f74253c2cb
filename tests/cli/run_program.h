// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace zev::test {

struct ProgramResult {
    int status = -1;  ///< exit status; -1 when it did not end by itself
    std::string output;
    std::string problems;  ///< standard error
};

/// What standard output is connected to.
enum class OutputTo { Collected, FullDisk, ClosedPipe, Nothing };

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
