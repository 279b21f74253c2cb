// SPDX-License-Identifier: MIT
#include "cli/inspect_commands.h"

#include <optional>
#include <vector>

#include "checks/difference_json.h"
#include "checks/menu_links.h"
#include "checks/menu_outline.h"
#include "messages/difference_messages.h"
#include "script/property_lines.h"

namespace zev {

namespace {

/// Reads the definition with all that is in it, also what the editor does not keep.
std::optional<DefinitionInput> readWhole(const FileSystem& files, const std::string& path,
                                         MenuContent& content) {
    const std::optional<std::string> bytes = readDefinitionBytes(files, path);
    if (!bytes)
        return {};
    const DefinitionInput read = parseDefinition(*bytes, path, content);
    loadUnkeptDefaults(*bytes, content.DefaultProp);
    return read;
}

}  // namespace

ExitStatus treeCommand(const FileSystem& files, const std::string& input, bool isJson) {
    MenuContent& content = commandContent();
    const std::optional<DefinitionInput> read = readDefinition(files, input, content);
    if (!read)
        return ExitStatus::FileProblem;
    const std::string text = isJson ? menuOutlineJson(content) : menuOutline(content);
    return writeStandardOutput(text) ? read->status : ExitStatus::FileProblem;
}

ExitStatus outlineCommand(FileSystem& files, const OutlineOptions& options) {
    MenuContent& content = commandContent();
    const std::optional<DefinitionInput> read = readDefinition(files, options.input, content);
    if (!read)
        return ExitStatus::FileProblem;
    const std::string text =
        options.isSiteMap ? siteMap(content, options.base) : menuLinkList(content, options.base);
    if (options.output.empty() || options.output == "-")
        return writeStandardOutput(text) ? read->status : ExitStatus::FileProblem;
    const FileOutcome error = files.writeFile(options.output, text, Links::Followed);
    if (!error)
        return read->status;
    printProblem(*error);
    return ExitStatus::FileProblem;
}

ExitStatus diffCommand(const FileSystem& files, const std::string& oldInput,
                       const std::string& newInput, bool isJson) {
    MenuContent oldMenu;
    MenuContent newMenu;
    const std::optional<DefinitionInput> oldRead = readWhole(files, oldInput, oldMenu);
    const std::optional<DefinitionInput> newRead = readWhole(files, newInput, newMenu);
    if (!oldRead || !newRead)
        return ExitStatus::FileProblem;
    const std::vector<MenuDifference> differences = compareMenus(oldMenu, newMenu);
    std::string text;
    if (isJson)
        text = differencesJson(differences);
    else
        for (const MenuDifference& difference : differences)
            text += differenceText(difference) + '\n';
    if (!writeStandardOutput(text))
        return ExitStatus::FileProblem;
    const bool isWhole = oldRead->status == ExitStatus::Done && newRead->status == ExitStatus::Done;
    return differences.empty() && isWhole ? ExitStatus::Done : ExitStatus::Counted;
}

}  // namespace zev
