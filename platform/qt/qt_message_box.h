// SPDX-License-Identifier: MIT
#pragma once

#include "platform/message_box.h"

namespace zev {

/// Message boxes over the active window.
class QtMessageBox : public MessageBox {
  public:
    Answer show(const MessageRequest& request) override;
};

}  // namespace zev
