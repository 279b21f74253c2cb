// SPDX-License-Identifier: MIT
#pragma once

class QComboBox;

namespace zev {

/// Lets the wheel change a list only while it has the focus: whoever rolls past it means what is
/// around it.
void keepWheelForFocus(QComboBox& list);

}  // namespace zev
