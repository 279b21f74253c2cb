// SPDX-License-Identifier: MIT
#pragma once

class QMessageBox;
class QString;

namespace zev {

/// Gives the box its text, plain, in lines that are broken also inside a word longer than they are,
/// such as a file's name: the box's own label would cut it off. The text can be selected and
/// copied. To be called last, for the box makes its layout anew for an icon and for details.
void setMessageText(QMessageBox& box, const QString& text);

}  // namespace zev
