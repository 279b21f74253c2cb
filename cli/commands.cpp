#include "cli/commands.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "cli/command_paths.h"
#include "library/library_files.h"
#include "library/program_folder.h"
#include "messages/import_messages.h"
#include "messages/library_messages.h"
#include "script/relative_url.h"
#include "script/submenu_list.h"

namespace zev {

namespace {

/// For files of this system, where a backslash may be part of a name.
std::string joinPath(const std::string& folder, std::string_view name) {
    return (std::filesystem::path(folder) / name).string();
}

ExitStatus publishLibrary(FileSystem& files, const std::string& executable,
                          const std::string& folder) {
    const FileResult<std::string> installed = findInstalledFolder(files, executable);
    if (!installed.isOk()) {
        const std::string& missing = installed.error().path;
        printProblem(CopyProblemText(CopyResult::SourceMissing, missing, {}));
        return ExitStatus::FileProblem;
    }
    ExitStatus status = ExitStatus::Done;
    for (const std::string_view name : kLibraryFiles) {
        const std::string source = joinPath(installed.value(), name);
        const std::string destination = joinPath(folder, name);
        const CopyResult result = CopyLibraryFile(files, source, destination);
        const std::string problem = CopyProblemText(result, source, destination);
        if (problem.empty())
            continue;
        printProblem(problem);
        status = ExitStatus::FileProblem;
    }
    return status;
}

}  // namespace

ExitStatus formatCommand(FileSystem& files, const std::string& input, const std::string& output) {
    MenuDocument& document = commandDocument();
    const std::optional<ExitStatus> status = readDefinition(files, input, document);
    if (!status || !writeDefinition(files, output, document))
        return ExitStatus::FileProblem;
    return *status;
}

ExitStatus importCommand(FileSystem& files, const ImportOptions& options) {
    const FileResult<std::string> bytes = readMenuFile(files, options.input);
    if (!bytes.isOk()) {
        printProblem(bytes.error());
        return ExitStatus::FileProblem;
    }
    MenuDocument& document = commandDocument();
    const ImportResult result = ImportMenu(options.format, bytes.value(), document);
    if (!writeDefinition(files, options.output, document))
        return ExitStatus::FileProblem;
    if (options.isVerbose) {
        for (const ImportWarning& warning : result.warnings)
            std::cerr << "line " << warning.line << ": " << ReasonText(warning.reason) << '\n';
    }
    const std::size_t warningCount = result.warnings.size();
    std::cerr << "Finished importing " << options.input << ". " << warningCount
              << " warnings encountered.\n";
    return warningCount == 0 ? ExitStatus::Done : ExitStatus::Counted;
}

ExitStatus rebaseCommand(FileSystem& files, const RebaseOptions& options) {
    if (isDrivePath(options.from) != isDrivePath(options.to)) {
        printProblem("--from and --to must both have a drive letter, or neither");
        return ExitStatus::WrongUse;
    }
    const std::optional<std::string> from = fullFolder(options.from);
    const std::optional<std::string> to = fullFolder(options.to);
    if (!from || !to)
        return ExitStatus::FileProblem;
    MenuDocument& document = commandDocument();
    const std::optional<ExitStatus> status = readDefinition(files, options.input, document);
    if (!status)
        return ExitStatus::FileProblem;
    RebaseAllURLs(document, *from, *to);
    return writeDefinition(files, options.output, document) ? *status : ExitStatus::FileProblem;
}

ExitStatus submenusCommand(const FileSystem& files, const std::string& input) {
    MenuDocument& document = commandDocument();
    const std::optional<ExitStatus> status = readDefinition(files, input, document);
    if (!status)
        return ExitStatus::FileProblem;
    std::string lines;
    for (const Submenu& submenu : ListSubmenus(document))
        lines += submenuEntry(submenu) + "\n";
    return writeStandardOutput(lines) ? *status : ExitStatus::FileProblem;
}

ExitStatus publishCommand(FileSystem& files, const std::string& executable,
                          const std::string& input, const std::string& folder) {
    if (input == "-") {
        printProblem("publish needs a definition with a file name");
        return ExitStatus::WrongUse;
    }
    const std::string name = std::filesystem::path(input).filename().string();
    if (std::find(kLibraryFiles.begin(), kLibraryFiles.end(), name) != kLibraryFiles.end()) {
        printProblem(input + ": has the name of a run-time file that goes beside it");
        return ExitStatus::WrongUse;
    }
    MenuDocument& document = commandDocument();
    const std::optional<ExitStatus> status = readDefinition(files, input, document);
    if (!status)
        return ExitStatus::FileProblem;
    if (!files.isFolder(folder)) {
        printProblem(folder + ": is not a folder");
        return ExitStatus::FileProblem;
    }
    const ExitStatus libraryStatus = publishLibrary(files, executable, folder);
    // As when the editor saves, the definition is written whatever became of the scripts.
    if (!writeDefinition(files, joinPath(folder, name), document))
        return ExitStatus::FileProblem;
    return libraryStatus == ExitStatus::Done ? *status : libraryStatus;
}

}  // namespace zev
