// SPDX-License-Identifier: MIT
#include "cli/run_commands.h"

#include <algorithm>
#include <set>
#include <vector>

#include "cli/command_arguments.h"
#include "integrator/run_record.h"
#include "integrator/run_undo.h"
#include "platform/posix/user_data_folder.h"

namespace zev {

namespace {

std::string pageCountText(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " page" : " pages");
}

ExitStatus listRunsCommand(const FileSystem& files) {
    std::string lines;
    ExitStatus status = ExitStatus::Done;
    const std::string folder = runsFolder();
    for (const std::string& name : listRuns(files, folder)) {
        const FileResult<std::vector<RecordedPage>> pages = readRun(files, folder, name);
        if (!pages.isOk()) {
            printProblem(pages.error());
            status = ExitStatus::FileProblem;
            continue;
        }
        std::set<std::string> paths;
        for (const RecordedPage& page : pages.value())
            paths.insert(page.path);
        lines += name + ": " + pageCountText(paths.size());
        lines += paths.empty() ? "\n" : ", " + pages.value().front().path + "\n";
    }
    return writeStandardOutput(lines) ? status : ExitStatus::FileProblem;
}

ExitStatus undoCommand(FileSystem& files, const std::string& run) {
    const std::string folder = runsFolder();
    const std::vector<std::string> runs = listRuns(files, folder);
    const auto found = run == "last" ? runs.begin() : std::find(runs.begin(), runs.end(), run);
    if (found == runs.end()) {
        printProblem(run == "last" ? "nothing to undo" : run + ": there is no such run");
        return ExitStatus::Counted;
    }
    const FileResult<UndoneRun> undone = undoRun(files, folder, *found);
    if (!undone.isOk()) {
        printProblem(undone.error());
        return ExitStatus::FileProblem;
    }
    const UndoneRun& result = undone.value();
    if (result.isGoingOn) {
        printProblem(*found + ": this run is still going on, or being undone; nothing was changed");
        return ExitStatus::Counted;
    }
    for (const std::string& page : result.changedPages)
        printProblem(page + ": changed since the run, so it stays as it is");
    for (const FileError& error : result.errors)
        printProblem(error);
    std::string lines = "Run " + *found + "\n";
    for (const std::string& page : result.restoredPages)
        lines += "Restored: " + page + "\n";
    const std::size_t keptCount = result.changedPages.size() + result.errors.size();
    lines += std::to_string(result.restoredPages.size()) + " restored, " +
             std::to_string(keptCount) + " not restored\n";
    if (!writeStandardOutput(lines))
        return ExitStatus::FileProblem;
    return result.isWhole() ? ExitStatus::Done : ExitStatus::Counted;
}

}  // namespace

std::string runsFolder() {
    const std::string folder = userDataFolder();
    return folder.empty() ? folder : folder + "/runs";
}

void printRun(const SiteRunOptions& options, const SiteRunResult& result) {
    if (options.recordFolder.empty()) {
        if (!options.isDryRun)
            printProblem("neither XDG_DATA_HOME nor HOME is set; this run cannot be undone");
        return;
    }
    if (!result.name.empty())
        printProblem("run " + result.name);
    if (const FileOutcome& error = result.recordError)
        printProblem(error->path + ": " + error->reason +
                     (result.name.empty() ? "; this run cannot be undone"
                                          : "; not all of this run can be undone"));
}

void addRunOptions(CLI::App& command, RunArguments& runs) {
    CLI::Option* const list =
        command.add_flag("--list-runs", runs.isList, "List the runs that can be undone, and end");
    command.add_option("--undo", runs.undone, "Undo this run, or the last one, and end")
        ->type_name("RUN")
        ->check(refuseEmpty)
        ->excludes(list);
}

ExitStatus runsCommand(FileSystem& files, const RunArguments& runs) {
    return runs.isList ? listRunsCommand(files) : undoCommand(files, runs.undone);
}

}  // namespace zev
