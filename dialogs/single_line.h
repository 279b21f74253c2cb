#pragma once

#include <QLineEdit>

namespace zev {

/// Turns every line break that is typed, pasted or set into `field` into a space. Values stand in
/// one line of the script, which a line break would cut in two.
void keepSingleLine(QLineEdit& field);

}  // namespace zev
