// SPDX-License-Identifier: MIT
#include "dialogs/dialog_button.h"

#include <QPushButton>

namespace zev {

QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAccessibleName(QString(caption).remove(u'&'));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace zev
