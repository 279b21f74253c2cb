// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "text/vendor_addresses.h"

namespace zev {

class CommonDialogs;
class FileSystem;
class MessageBox;

/// What the wizard needs. Nothing is owned; all outlives it.
struct IntegratorServices {
    FileSystem& files;
    MessageBox& messages;
    CommonDialogs& dialogs;
    /// Folder of the user's where what was entered is kept; empty: it is not.
    std::string memoryFolder = {};
    /// The same for what it takes to undo runs.
    std::string recordFolder = {};
    VendorAddresses vendor = vendorAddresses();
};

}  // namespace zev
