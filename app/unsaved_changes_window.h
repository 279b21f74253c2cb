// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "model/menu_content.h"

namespace zev {

/// Tells what one menu has that another has not, a line each.
class UnsavedChangesWindow : public QDialog {
    Q_OBJECT
  public:
    /// `what` is changed: "menu.js, 12 changes".
    UnsavedChangesWindow(const MenuContent& before, const MenuContent& after, const QString& what,
                         QWidget* parent);
};

}  // namespace zev
