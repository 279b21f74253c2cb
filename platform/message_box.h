// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/macro_names.h"

namespace zev {

/// A question or notice for the person at the screen.
struct MessageRequest {
    enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
    enum class Icon { None, Exclamation };
    std::string text;  ///< plain text, UTF-8
    Buttons buttons = Buttons::Ok;
    std::string title;  ///< empty: the program's name
    Icon icon = Icon::None;
    /// Plain text, UTF-8, in lines: what the person can have shown below the text. Empty: the box
    /// offers nothing more.
    std::string details;
};

/// Modal message boxes.
class MessageBox {
  public:
    enum class Answer { Ok, Cancel, Yes, No };
    virtual ~MessageBox() = default;
    /// Shows the box and waits. Closing the window counts as Cancel where there is one, as No in a
    /// Yes/No box, as Ok in a box with that button alone.
    virtual Answer show(const MessageRequest& request) = 0;

    /// Shows a text that only wants to be read.
    void notice(const std::string& text) {
        MessageRequest request;
        request.text = text;
        show(request);
    }
};

}  // namespace zev
