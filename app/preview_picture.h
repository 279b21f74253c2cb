#pragma once

#include <QString>

namespace zev {

class frmMain;
class QtBrowserView;

/// Shows the window's Preview tab and, once the menu is painted, saves a picture of the window as
/// PNG and ends the program: with status 0, or with 1 and a line on standard error when the page
/// cannot be shown or the picture not written. `window` and `browser` outlive the event loop.
void takePreviewPicture(frmMain& window, QtBrowserView& browser, const QString& pictureFile);

}  // namespace zev
