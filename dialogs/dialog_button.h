// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QHBoxLayout;
class QPushButton;
class QWidget;

namespace zev {

/// A push button named `name`. `caption` carries the access key; assistive technology reads it
/// without the key. A click does not move the focus: the message that leaving a box may bring would
/// come between the button's press and its release, and swallow the click.
QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent);

/// The row at the end of a dialog: what it does, and what leaves it, side by side at the right.
QHBoxLayout* makeClosingRow(QPushButton* accepting, QPushButton* leaving);

}  // namespace zev
