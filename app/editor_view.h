#pragma once

#include <string>

namespace zev {

/// What the editor's procedures (file commands, preview) ask of the window that shows the document.
/// Implemented by the main window; tests have one without widgets.
class EditorView {
  public:
    virtual ~EditorView() = default;
    /// Runs the validate rules of the caption, URL and target fields, in this order.
    virtual void validateFields() = 0;
    /// Stores the item panel into `CurNode`'s item; nothing without a `CurNode`.
    virtual void StoreItem() = 0;
    /// Shows `CurNode`'s item in the panel, or empties and disables the panel without one. Never
    /// changes `bModified`.
    virtual void ShowItem() = 0;
    /// Fills the JavaScript tab (UTF-8, CR LF).
    virtual void showScript(const std::string& script) = 0;
    /// Window caption: the program's name, and the definition file once there is one.
    virtual void showCaption() = 0;
    /// Fills the Default Menu Properties dialog from `DefaultProp`.
    virtual void LoadDefaultDialog() = 0;
    /// Derives the enabled commands from `bModified` and `CurNode`.
    virtual void Button_Update() = 0;
};

}  // namespace zev
