// SPDX-License-Identifier: MIT
#include "cli/commands.h"

#include <algorithm>
#include <iostream>
#include <utility>
#include <vector>

#include "checks/line_changes.h"
#include "cli/command_paths.h"
#include "library/changed_files.h"
#include "library/library_files.h"
#include "library/own_files.h"
#include "library/program_folder.h"
#include "messages/import_messages.h"
#include "messages/library_messages.h"
#include "script/relative_url.h"
#include "script/script_writer.h"
#include "script/submenu_list.h"
#include "text/path.h"

namespace zev {

namespace {

ExitStatus publishLibrary(FileSystem& files, const std::string& executable, const Path& folder) {
    const FileResult<std::string> installed = findInstalledFolder(files, executable);
    if (!installed.isOk()) {
        printProblem(copyProblemText({CopyResult::SourceMissing, installed.error().path, {}}));
        return ExitStatus::FileProblem;
    }
    const Path source = Path::onThisSystem(installed.value());
    const std::string changed = changedFilesText(
        installed.value(), changedRunTimeFiles(files, source, CopiedFiles::Scripts));
    if (!changed.empty())
        printProblem(changed);
    const std::vector<CopyOutcome> problems =
        copyLibrary(files, source, folder, CopiedFiles::Scripts);
    for (const CopyOutcome& problem : problems)
        printProblem(problem.reason.empty()
                         ? copyProblemText(problem)
                         : copyProblemText(problem) + " (" + problem.reason + ")");
    return problems.empty() ? ExitStatus::Done : ExitStatus::FileProblem;
}

/// Makes `folder` when only that is missing; a mistyped path is not made from its top. False, with
/// the problem printed, when there is none then.
bool hasFolder(FileSystem& files, const std::string& folder) {
    if (files.isFolder(folder))
        return true;
    const Path path = Path::onThisSystem(Path::onThisSystem(folder).withoutTrailingSeparators());
    const std::string above = path.folder().empty() ? "." : std::string(path.folder());
    if (files.FileExists(folder) || !files.isFolder(above)) {
        printProblem((files.FileExists(folder) ? folder : above) + ": is not a folder");
        return false;
    }
    const FileOutcome error = files.makeFolder(std::string(path.text()));
    if (error)
        printProblem(*error);
    return !error;
}

/// Prints the lines that writing the menu again would change of its file.
ExitStatus printChanges(const std::string& bytes, const DefinitionInput& read,
                        const MenuContent& content) {
    std::string newBytes = definitionFileBytes(GenerateScript(content));
    if (newBytes == bytes)
        return ExitStatus::Done;
    const std::vector<LineChange> changes = changedLines(bytes, std::move(newBytes));
    std::string text;
    for (const LineChange& change : changes) {
        const std::string place = read.path + ':' + std::to_string(change.line) + ": ";
        if (change.oldText)
            text += place + '-' + *change.oldText + '\n';
        if (change.newText)
            text += place + '+' + *change.newText + '\n';
    }
    if (changes.empty())
        text = read.path + ": only spaces, line ends or the encoding would change\n";
    return writeStandardOutput(text) ? ExitStatus::Counted : ExitStatus::FileProblem;
}

}  // namespace

ExitStatus formatCommand(FileSystem& files, const FormatOptions& options) {
    std::optional<std::string> bytes = readDefinitionBytes(files, options.input);
    if (!bytes)
        return ExitStatus::FileProblem;
    MenuContent& content = commandContent();
    const DefinitionInput read =
        parseDefinition(options.isCheck ? *bytes : std::move(*bytes), options.input, content);
    if (options.isCheck)
        return printChanges(*bytes, read, content);
    if (!mayReplace(files, options.output, read))
        return ExitStatus::FileProblem;
    const bool isWhole = read.status == ExitStatus::Done && !read.hasLostLines();
    const bool isRefused = !isWhole && !options.isForced && isOwnInput(files, options.output, read);
    if (read.hasLostLines() || isRefused)
        printLostLines(read);
    if (isRefused) {
        printProblem(options.output + ": not written, as it would lose these lines; --force does");
        return ExitStatus::Counted;
    }
    if (!writeDefinition(files, options.output, content))
        return ExitStatus::FileProblem;
    return isWhole ? ExitStatus::Done : ExitStatus::Counted;
}

ExitStatus importCommand(FileSystem& files, const ImportOptions& options) {
    FileResult<std::string> bytes = readMenuFile(files, options.input);
    if (!bytes.isOk()) {
        printProblem(bytes.error());
        return ExitStatus::FileProblem;
    }
    MenuContent& content = commandContent();
    const ImportResult result = importMenu(*options.format, bytes.take(), content);
    if (!writeDefinition(files, options.output, content))
        return ExitStatus::FileProblem;
    if (options.isVerbose)
        for (const LineWarning& warning : result.warnings)
            std::cerr << "line " << warning.line << ": " << reasonText(warning.reason) << '\n';
    const std::size_t warningCount = result.warnings.size();
    std::cerr << "Finished importing " << options.input << ". " << warningCount
              << " warnings encountered.\n";
    return warningCount == 0 ? ExitStatus::Done : ExitStatus::Counted;
}

ExitStatus rebaseCommand(FileSystem& files, const RebaseOptions& options) {
    if (isDriveFolder(options.from) != isDriveFolder(options.to)) {
        printProblem("--from and --to must both have a drive letter, or neither");
        return ExitStatus::WrongUse;
    }
    const std::optional<std::string> from = fullFolder(options.from);
    const std::optional<std::string> to = fullFolder(options.to);
    if (!from || !to)
        return ExitStatus::FileProblem;
    MenuContent& content = commandContent();
    const std::optional<DefinitionInput> read = readDefinition(files, options.input, content);
    if (!read || !mayReplace(files, options.output, *read))
        return ExitStatus::FileProblem;
    RebaseAllURLs(content, *from, *to);
    return writeDefinition(files, options.output, content) ? read->status : ExitStatus::FileProblem;
}

ExitStatus submenusCommand(const FileSystem& files, const std::string& input) {
    MenuContent& content = commandContent();
    const std::optional<DefinitionInput> read = readDefinition(files, input, content);
    if (!read)
        return ExitStatus::FileProblem;
    std::string lines;
    for (const Submenu& submenu : ListSubmenus(content))
        lines += submenuEntry(submenu) + "\n";
    return writeStandardOutput(lines) ? read->status : ExitStatus::FileProblem;
}

ExitStatus publishCommand(FileSystem& files, const std::string& executable,
                          const std::string& input, const std::string& folder) {
    if (input == "-") {
        printProblem("publish needs a definition with a file name");
        return ExitStatus::WrongUse;
    }
    const std::string_view name = Path::onThisSystem(input).name();
    const Path target = Path::onThisSystem(folder);
    const std::string definition = target.child(name);
    if (hasReservedName(files, Path::onThisSystem(definition))) {
        printProblem(input + ": has the name of a run-time file that goes beside it");
        return ExitStatus::WrongUse;
    }
    MenuContent& content = commandContent();
    const std::optional<DefinitionInput> read = readDefinition(files, input, content);
    if (!read)
        return ExitStatus::FileProblem;
    if (!hasFolder(files, folder))
        return ExitStatus::FileProblem;
    if (!mayReplace(files, definition, *read))
        return ExitStatus::FileProblem;
    const ExitStatus libraryStatus = publishLibrary(files, executable, target);
    // As when the editor saves, the definition is written whatever became of the scripts.
    if (!writeDefinition(files, definition, content))
        return ExitStatus::FileProblem;
    return libraryStatus == ExitStatus::Done ? read->status : libraryStatus;
}

}  // namespace zev
