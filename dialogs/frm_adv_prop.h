// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "dialogs/property_form.h"

namespace zev {

/// Edits the less common properties of the menu that `CurNode` stands in.
///
/// Its OK writes at once, and neither marks the document as changed nor brings the window's
/// commands up to date: the dialog it is opened from does that with its own OK. What was copied is
/// kept for all menus as long as the dialog lives.
class frmAdvProp : public PropertyForm {
    Q_OBJECT
  public:
    frmAdvProp(const DialogHost& host, QWidget* parent);

    /// Shows what is stored for the menu. False, and nothing changed, without a current node.
    bool fill();

  private:
    QGroupBox* makeAdvancedFrame();
    QGroupBox* makeFilterFrame();
    QBoxLayout* makeButtonRow();

    void cmdCopy_Click();
    void cmdPaste_Click();
    void cmdOK_Click() override;

    std::optional<MenuProp> m_copied;  ///< nothing before the first copy
};

}  // namespace zev
