// SPDX-License-Identifier: MIT
#include "app/open_url.h"

#include <string_view>

#include "text/ascii.h"

namespace zev {

namespace {

/// One quoted record. Only the file's type matters to whoever looks up the program.
constexpr std::string_view kScratchContent = "\"<HTML> <\\HTML>\"\r\n";

void showBrowserProblem(const EditorServices& services, const std::string& title,
                        const std::string& text) {
    MessageRequest notice;
    notice.title = title;
    notice.text = text;
    notice.icon = MessageRequest::Icon::Exclamation;
    services.messages.show(notice);
}

}  // namespace

void OpenURL(const std::string& address, const std::string& programFolder,
             const EditorServices& services) {
    // No separator in between: the file lies beside the program's folder, not among the files that
    // are copied from it.
    const std::string scratchFile = programFolder + "~temp.htm";
    // Where that place cannot be written the browser opens all the same: its program is found by
    // the file's name.
    const bool hasScratchFile = !services.files.writeTemporaryFile(scratchFile, kScratchContent);
    const std::string browser = services.shell.FindExecutable(scratchFile);
    if (trimSpaces(browser).empty())
        showBrowserProblem(services, "Browser Not Found", "Could not find associated browser");
    else if (!services.shell.ShellExecute(browser, address))
        showBrowserProblem(services, "URL Failed", "Web Page not Opened");
    if (hasScratchFile)
        services.files.DeleteFile(scratchFile);
}

}  // namespace zev
