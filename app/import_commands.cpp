// SPDX-License-Identifier: MIT
#include "app/import_commands.h"

#include <algorithm>
#include <string>
#include <vector>

#include "messages/import_messages.h"

namespace zev {

namespace {

/// More are counted only: nobody reads on, and a text box is slow to show them.
constexpr std::size_t kMaxListedWarnings = 1000;

/// One line a warning, without a line end behind the last.
std::string detailsOf(const std::vector<LineWarning>& warnings) {
    const std::size_t listed = std::min(warnings.size(), kMaxListedWarnings);
    std::string details;
    for (std::size_t index = 0; index < listed; ++index) {
        const LineWarning& warning = warnings[index];
        details += details.empty() ? "line " : "\nline ";
        details += std::to_string(warning.line) + ": ";
        details += reasonText(warning.reason);
    }
    if (warnings.size() > listed)
        details += "\nand " + std::to_string(warnings.size() - listed) + " more";
    return details;
}

}  // namespace

ImportCommands::ImportCommands(MenuDocument& document, FileCommands& fileCommands,
                               MessageBox& messages)
    : m_document(document), m_fileCommands(fileCommands), m_messages(messages) {}

/// A cancelled dialog leaves the new document, as a file does that cannot be read.
void ImportCommands::run(const ImportFormat& format) {
    // Where the person works; the new document does not know it any more.
    const std::string folder = m_fileCommands.definitionFolder();
    if (!m_fileCommands.mnuFileNew_Click())
        return;
    const std::string path = m_fileCommands.chooseFile(format.fileFilter, folder);
    if (path.empty())
        return;
    FileResult<std::string> content = m_fileCommands.readTextFile(path);
    if (!content.isOk())
        return;
    MenuContent imported;
    const ImportResult result = importMenu(format, content.take(), imported);
    m_document.open(std::move(imported));
    m_fileCommands.listener().imported({format, path, result});

    MessageRequest notice;
    notice.text = "Finished importing " + path + ". " + std::to_string(result.warnings.size()) +
                  " warnings encountered.";
    notice.details = detailsOf(result.warnings);
    m_messages.show(notice);
}

}  // namespace zev
