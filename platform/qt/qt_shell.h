// SPDX-License-Identifier: MIT
#pragma once

#include "platform/shell.h"

namespace zev {

/// File associations of a freedesktop.org desktop, through its own programs.
class QtShell : public Shell {
  public:
    /// Web pages (.htm, .html) only, which is all the program asks for: the program that opens
    /// addresses in the desktop's web browser, when the desktop names one.
    std::string FindExecutable(const std::string& file) override;
    /// The program has a session of its own and neither input nor output of ours.
    bool ShellExecute(const std::string& program, const std::string& argument) override;
};

}  // namespace zev
