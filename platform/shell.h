// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/macro_names.h"

namespace zev {

/// The desktop's file associations.
class Shell {
  public:
    virtual ~Shell() = default;
    /// Path or name of the program associated with the kind of `file`; empty when there is none.
    virtual std::string FindExecutable(const std::string& file) = 0;
    /// Starts `program` with one argument and does not wait for it. False when it cannot be
    /// started.
    virtual bool ShellExecute(const std::string& program, const std::string& argument) = 0;
};

}  // namespace zev
