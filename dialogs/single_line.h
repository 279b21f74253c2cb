// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace zev {

/// Turns every line break, and every NUL character, that is typed, pasted or set into `field` into
/// a space. Values stand in one line of the script, which a line break would cut in two; a file
/// with a NUL is taken for no text. Longer values than the 32,767 characters that Qt allows by
/// itself fit.
void keepSingleLine(QLineEdit& field);

}  // namespace zev
