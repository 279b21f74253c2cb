// SPDX-License-Identifier: MIT
#pragma once

#include "platform/browser_view.h"
#include "platform/common_dialogs.h"
#include "platform/file_system.h"
#include "platform/help_viewer.h"
#include "platform/message_box.h"
#include "platform/shell.h"

namespace zev {

/// The system's services as the editor uses them. Not owned; all outlive the main window.
struct EditorServices {
    FileSystem& files;
    MessageBox& messages;
    CommonDialogs& dialogs;
    Shell& shell;
    HelpViewer& help;
    BrowserView& browser;
};

}  // namespace zev
