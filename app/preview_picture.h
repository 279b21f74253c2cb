// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace zev {

class frmMain;
class QtBrowserView;

/// How long a picture may take, with the start of the browser engine.
inline constexpr int kPictureLimitSeconds = 30;

/// Shows the window's Preview tab and, once the menu is painted, saves a picture of the window as
/// PNG and ends the program: with status 0, or with a line on standard error and 1 when the page
/// cannot be shown or the picture not written, 3 when the page had to be stopped or there is no
/// picture after `kPictureLimitSeconds`. `window` and `browser` outlive the event loop.
void takePreviewPicture(frmMain& window, QtBrowserView& browser, const QString& pictureFile);

}  // namespace zev
