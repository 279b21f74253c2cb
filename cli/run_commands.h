// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "cli/command_files.h"
#include "integrator/run_record.h"
#include "platform/file_system.h"

namespace zev {

// Runs over pages are written down, and undone.

/// The record of the run that this process is, and what there is to say of it.
class CommandRun {
  public:
    /// `files` is not owned and must outlive this object. A dry run makes no record.
    CommandRun(FileSystem& files, bool isDryRun);

    /// Null for none.
    RunRecord* record() { return m_record ? &*m_record : nullptr; }
    /// Prints the run's name, and why it cannot be undone, on standard error.
    void printOutcome() const;

  private:
    std::optional<RunRecord> m_record;
    bool m_isDryRun;
};

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
