// SPDX-License-Identifier: MIT
#include "integrator/wizard/extra_row.h"

#include <QHBoxLayout>
#include <QList>
#include <QPushButton>
#include <utility>

#include "dialogs/dialog_button.h"

namespace zev {

ExtraRow::ExtraRow(QWidget* parent) : QWidget(parent), m_layout(new QHBoxLayout(this)) {
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addStretch();
}

QPushButton* ExtraRow::add(const QString& name, const QString& caption,
                           const QString& accessibleName, std::function<void()> click) {
    QPushButton* button = makeDialogButton(name, caption, this);
    button->setAccessibleName(accessibleName);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(tr("F6 leads here from the keyboard"));
    connect(button, &QPushButton::clicked, this, std::move(click));
    m_layout->insertWidget(m_layout->count() - 1, button);
    return button;
}

bool ExtraRow::focusNext(QWidget& window) {
    QList<QPushButton*> buttons;
    for (const ExtraRow* row : window.findChildren<ExtraRow*>())
        for (auto* button : row->findChildren<QPushButton*>())
            if (button->isVisible() && button->isEnabled())
                buttons.append(button);
    const qsizetype next = buttons.indexOf(qobject_cast<QPushButton*>(window.focusWidget())) + 1;
    if (next == buttons.size())
        return false;
    buttons[next]->setFocus(Qt::ShortcutFocusReason);
    return true;
}

}  // namespace zev
