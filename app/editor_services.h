// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
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
    /// Tells the desktop of a document (a full path) that was opened or saved; may be empty.
    std::function<void(const std::string& document)> noteRecentDocument = {};
    VendorAddresses vendor = vendorAddresses();
};

}  // namespace zev
