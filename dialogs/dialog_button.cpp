// SPDX-License-Identifier: MIT
#include "dialogs/dialog_button.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace zev {

QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAccessibleName(QString(caption).remove(u'&'));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QHBoxLayout* makeClosingRow(QPushButton* accepting, QPushButton* leaving) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(accepting);
    row->addWidget(leaving);
    return row;
}

}  // namespace zev
