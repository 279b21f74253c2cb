// SPDX-License-Identifier: MIT
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

void endWithProblem(const QString& problem, int status) {
    std::fprintf(stderr, "%s\n", qPrintable(problem));
    QApplication::exit(status);
}

}  // namespace

void takePreviewPicture(frmMain& window, QtBrowserView& browser, const QString& pictureFile) {
    QObject::connect(
        &browser, &QtBrowserView::loaded, &window,
        [&window, pictureFile](bool isOk) {
            if (!isOk) {
                endWithProblem("The preview could not be shown", 1);
                return;
            }
            QTimer::singleShot(
                kPaintTimeMs, &window,
                [&window, pictureFile] {
                    if (window.grab().save(pictureFile, "PNG"))
                        QApplication::exit(0);
                    else
                        endWithProblem("Could not save " + pictureFile, 1);
                });
        });
    QObject::connect(
        &browser, &QtBrowserView::stopped, &window,
        [] { endWithProblem("The preview hung and was stopped", 3); });
    QTimer::singleShot(kPictureLimitSeconds * 1000, &window, [] {
        endWithProblem(QString("No picture within %1 seconds").arg(kPictureLimitSeconds), 3);
    });
    auto* tabs = window.findChild<QTabWidget*>("MenuTab");
    tabs->setCurrentWidget(window.findChild<QWidget*>("WebBrowser"));
}

}  // namespace zev
