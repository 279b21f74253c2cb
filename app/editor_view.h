// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zev {

/// What the editor's procedures (file commands, preview) ask of the window that shows the document;
/// what happens to the document the window is told by the document itself. Implemented by the main
/// window; tests have one without widgets.
class EditorView {
  public:
    virtual ~EditorView() = default;
    /// Runs the validate rules of the caption, URL and target fields, in this order.
    virtual void validateFields() = 0;
    /// Stores the item panel into `CurNode`'s item; nothing without a `CurNode`.
    virtual void StoreItem() = 0;
    /// Fills the JavaScript tab (UTF-8, CR LF).
    virtual void showScript(const std::string& script) = 0;
    /// Derives the enabled commands from `bModified` and `CurNode`. Asked for where `bModified` was
    /// cleared, which alone does not do it: Save stays usable after a save.
    virtual void Button_Update() = 0;
};

}  // namespace zev
