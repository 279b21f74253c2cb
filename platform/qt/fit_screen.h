// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace zev {

/// Makes a window that is not shown yet small enough for its screen, with room for the frame that a
/// desktop puts around it. On small screens of high resolution little is left of their pixels.
void fitScreen(QWidget& window);

}  // namespace zev
