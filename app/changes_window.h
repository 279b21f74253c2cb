// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "model/menu_content.h"

namespace zev {

/// Tells what one menu has that another has not, a line each.
class ChangesWindow : public QDialog {
    Q_OBJECT
  public:
    /// `what` is changed: "menu.js, 12 changes".
    ChangesWindow(const MenuContent& before, const MenuContent& after, const QString& what,
                  QWidget* parent);
};

}  // namespace zev
