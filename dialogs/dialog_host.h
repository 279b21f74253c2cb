// SPDX-License-Identifier: MIT
#pragma once

#include "model/menu_document.h"
#include "platform/common_dialogs.h"
#include "platform/message_box.h"

namespace zev {

/// What the property dialogs need of the window that owns them. Nothing is owned; all outlives
/// them.
struct DialogHost {
    MenuDocument& document;
    MessageBox& messages;
    CommonDialogs& dialogs;
};

}  // namespace zev
