// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "cli/command_files.h"
#include "integrator/site_run.h"
#include "platform/file_system.h"

namespace zev {

// Runs over pages are written down, and undone.

/// Where the records of runs are; empty when the user has no place for them.
std::string runsFolder();

/// Prints a run's name, and why it cannot be undone, on standard error.
void printRun(const SiteRunOptions& options, const SiteRunResult& result);

/// What to do with runs instead of a run.
struct RunArguments {
    std::string undone;  ///< name of a run, or "last"; empty: none
    bool isList = false;

    bool areGiven() const { return isList || !undone.empty(); }
};

void addRunOptions(CLI::App& command, RunArguments& runs);

/// Lists the runs, the newest first, or undoes one; Counted when there is none, or when a page
/// stayed as it was.
ExitStatus runsCommand(FileSystem& files, const RunArguments& runs);

}  // namespace zev
