// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace zev {

/// The icon of a toolbar or panel button by its file name without extension: in colour, and in pale
/// grey while the button is disabled.
QIcon buttonIcon(const QString& name);

/// The program's own icon.
QIcon programIcon();

}  // namespace zev
