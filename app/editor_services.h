// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/browser_view.h"
#include "platform/common_dialogs.h"
#include "platform/file_system.h"
#include "platform/help_viewer.h"
#include "platform/message_box.h"
#include "platform/shell.h"
#include "text/vendor_addresses.h"

namespace zev {

/// The system's services as the editor uses them, not owned, all of which outlive the main window;
/// and what is known of the desktop and of who built the program.
struct EditorServices {
    FileSystem& files;
    MessageBox& messages;
    CommonDialogs& dialogs;
    Shell& shell;
    HelpViewer& help;
    BrowserView& browser;
    /// Folder of the user's for what the program remembers; empty: it remembers nothing.
    std::string userFolder = {};
    /// The desktop's list of recent documents, a file of its own kind; empty: none is kept.
    std::string recentDocuments{};
    VendorAddresses vendor = vendorAddresses();
};

}  // namespace zev
