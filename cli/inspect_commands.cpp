#include "cli/inspect_commands.h"

#include <optional>

#include "checks/menu_outline.h"

namespace zev {

ExitStatus treeCommand(const FileSystem& files, const std::string& input, bool isJson) {
    MenuContent& content = commandContent();
    const std::optional<DefinitionInput> read = readDefinition(files, input, content);
    if (!read)
        return ExitStatus::FileProblem;
    const std::string text = isJson ? menuOutlineJson(content) : menuOutline(content);
    return writeStandardOutput(text) ? read->status : ExitStatus::FileProblem;
}

}  // namespace zev
