#include "app/preview_picture.h"

#include <QApplication>
#include <QPixmap>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>

#include "app/frm_main.h"
#include "platform/qt/qt_browser_view.h"

namespace zev {

namespace {

/// The engine tells when a page is loaded, but not when it is painted.
constexpr int kPaintTimeMs = 1000;

void endWithProblem(const QString& problem) {
    std::fprintf(stderr, "%s\n", qPrintable(problem));
    QApplication::exit(1);
}

}  // namespace

void takePreviewPicture(frmMain& window, QtBrowserView& browser, const QString& pictureFile) {
    QObject::connect(&browser, &QtBrowserView::loaded, &window, [&window, pictureFile](bool isOk) {
        if (!isOk) {
            endWithProblem("The preview could not be shown");
            return;
        }
        QTimer::singleShot(kPaintTimeMs, &window, [&window, pictureFile] {
            if (window.grab().save(pictureFile, "PNG"))
                QApplication::exit(0);
            else
                endWithProblem("Could not save " + pictureFile);
        });
    });
    auto* tabs = window.findChild<QTabWidget*>("MenuTab");
    tabs->setCurrentWidget(window.findChild<QWidget*>("WebBrowser"));
}

}  // namespace zev
