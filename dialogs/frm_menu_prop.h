// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "dialogs/property_dialog.h"

namespace zev {

class frmAdvProp;
class frmDefaultProp;

/// The dialog "Menu Properties": what one menu has of its own, the menu that `CurNode` stands in.
/// What is empty here comes from the defaults, and the previews show that.
class frmMenuProp : public PropertyDialog {
    Q_OBJECT
  public:
    /// What `host` refers to, and both other dialogs, are not owned and outlive this dialog.
    frmMenuProp(const DialogHost& host, const frmDefaultProp& defaults, frmAdvProp& advanced,
                QWidget* parent = nullptr);

    /// Fills the dialog from the menu's property set. False, and nothing happens, when there is no
    /// current node.
    bool fill();

    /// The next time it is shown, the dialog goes on to the advanced properties at once.
    void openAdvancedAtStart();

    bool bFontSet = false;  ///< the menu has a font of its own

  private:
    QGroupBox* makeMenuFrame();
    void cmdFont_Click() override;
    void cmdFontClear_Click();
    void cmdCopy_Click();
    void cmdPaste_Click();
    void cmdAdvanced_Click();
    void cmdOK_Click() override;

    frmAdvProp& m_advanced;
    /// What was copied, of any menu, since the program started; only what this dialog edits.
    std::optional<MenuProp> m_copied;
};

}  // namespace zev
