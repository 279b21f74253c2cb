// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace zev {

/// The window a new dialog belongs to: the active one, else the first that is shown. Null when the
/// program shows none.
QWidget* parentWindow();

}  // namespace zev
