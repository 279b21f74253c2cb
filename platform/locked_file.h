// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/file_system.h"

namespace zev {

/// An open file that nobody else can lock until it is closed, however the program ends.
class LockedFile {
  public:
    LockedFile() = default;
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;
    /// Closes the file, which gives up the lock.
    virtual ~LockedFile() = default;

    /// Adds `bytes` at the end. They outlast the program at once, and the machine after `sync`. A
    /// failure may have added some of them.
    virtual FileOutcome append(std::string_view bytes) = 0;
    /// Puts `bytes` in the place of all that the file holds, whole or not at all. They outlast the
    /// machine.
    virtual FileOutcome rewrite(std::string_view bytes) = 0;
    virtual FileOutcome sync() = 0;
};

}  // namespace zev
