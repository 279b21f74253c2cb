// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPushButton;
class QWidget;

namespace zev {

/// A push button named `name`. `caption` carries the access key; assistive technology reads it
/// without the key. A click does not move the focus: the message that leaving a box may bring would
/// come between the button's press and its release, and swallow the click.
QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent);

}  // namespace zev
