// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/property_dialog.h"

namespace zev {

/// The dialog "Default Menu Properties": the values that every menu uses unless it sets its own.
class frmDefaultProp : public PropertyDialog {
    Q_OBJECT
  public:
    /// What `host` refers to is not owned and outlives the dialog.
    explicit frmDefaultProp(const DialogHost& host, QWidget* parent = nullptr);

    /// Fills the dialog from `DefaultProp`.
    void LoadDefaultDialog();

  private:
    QGroupBox* makeMenuFrame();
    QGroupBox* makeAdditionalFrame();
    void cmdFont_Click() override;
    void cmdOK_Click() override;

    bool m_hasChosenFont = false;  ///< perhaps one without a name, of which only the size was set
};

}  // namespace zev
