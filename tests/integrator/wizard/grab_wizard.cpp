// SPDX-License-Identifier: MIT
// Takes a picture of each step of the Menu Integrator and of each window that it opens, to be
// looked at by a person and for the manual:
//
//     grab_wizard FOLDER [--dark] [--size WIDTHxHEIGHT]
//
// QT_SCALE_FACTOR=2 gives the pictures of a 200 % display; QT_QPA_PLATFORM=offscreen does. The
// pages are those of a small site, which is made for this.

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>

#include "integrator/wizard/add_folder_window.h"
#include "integrator/wizard/changes_window.h"
#include "integrator/wizard/frm_integrator.h"
#include "integrator/wizard/page_list_window.h"
#include "integrator/wizard/place_window.h"
#include "integrator/wizard/undo_window.h"
#include "platform/fake/fake_services.h"
#include "platform/posix/posix_file_system.h"
#include "tests/app/theme_palettes.h"
#include "tests/app/when_shown.h"

using namespace zev;

namespace {

constexpr const char* kPageStart =
    "<html>\n<head>\n<title>Harbour Tours</title>\n<script src=\"js/analytics.js\"></script>\n"
    "</head>\n<body>\n<header>Harbour Tours</header>\n<div id=\"content\">\n<p>";
constexpr const char* kPageEnd = "</p>\n</div>\n</body>\n</html>\n";

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The site could not be made.");
}

void makeSite(const QString& site) {
    QDir(site).mkpath("menu");
    QDir(site).mkpath("tours");
    for (const char* name : {"index.html", "about.html", "tours/boats.html", "tours/walks.html"})
        write(site + '/' + name, QByteArray(kPageStart) + name + kPageEnd);
    write(site + "/tours/map.html",
          "<html><head><title>Map</title></head><frameset cols=\"1,2\">"
          "<frame src=\"a.html\"></frameset></html>\n");
    for (const char* name : {"menu.js", "zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
        write(site + "/menu/" + name, "\n");
}

struct Camera {
    QString folder;
    bool isDark;
    QSize size;

    void take(QWidget& window, const QString& name) const {
        if (size.isValid())
            window.resize(size);
        QTest::qWait(100);
        const QString file = QString("%1_%2_%3.png")
                                 .arg(name, isDark ? "dark" : "light")
                                 .arg(qRound(window.devicePixelRatio() * 100));
        if (!window.grab().save(QDir(folder).filePath(file)))
            qFatal("The picture could not be written.");
    }
    /// Of the next window of this type, which is closed afterwards.
    template <typename Window>
    void takeNext(const std::function<void(Window&)>& prepare = {}) const {
        whenShown<Window>([camera = *this, prepare](Window& window) {
            if (prepare)
                prepare(window);
            camera.take(window, window.objectName());
            window.reject();
        });
    }
};

void walk(frmIntegrator& wizard, const Camera& camera, const QString& site,
          FakeCommonDialogs& dialogs) {
    const auto press = [&](const char* name) { wizard.findChild<QPushButton*>(name)->click(); };
    const auto waitForWindow = [] {
        while (QApplication::activeModalWidget() != nullptr)
            QTest::qWait(20);
    };
    camera.take(wizard, "step0");
    press("btnNext");
    dialogs.expectOpenFiles({site.toStdString(), {"index.html", "about.html"}});
    press("BtnInputFile");
    whenShown<AddFolderWindow>([&](AddFolderWindow& window) {
        window.findChild<QLineEdit*>("txtFolder")->setText(site);
        camera.take(window, "AddFolderWindow");
        window.accept();
    });
    press("btnAddFolder");
    camera.take(wizard, "step1");
    camera.takeNext<PageListWindow>();
    press("btnPageList");
    whenShown<ChangesWindow>([&](ChangesWindow& window) {
        camera.take(window, "ChangesWindow");
        window.accept();
    });
    press("btnNext");
    waitForWindow();
    camera.take(wizard, "step2");
    press("btnNext");
    camera.take(wizard, "step3");
    press("btnNext");
    camera.take(wizard, "step4");
    press("btnNext");
    camera.take(wizard, "step5");
    whenShown<PlaceWindow>([&](PlaceWindow& window) {
        auto* place = window.findChild<QComboBox*>("cboPlace");
        place->setCurrentIndex(place->findData("after:"));
        camera.take(window, "PlaceWindow");
        window.findChild<QPushButton*>("btnPlace")->click();
    });
    press("btnPlace");
    camera.take(wizard, "step5_placed");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3)
        qFatal("grab_wizard FOLDER SITE [--dark] [--size WIDTHxHEIGHT]");
    Camera camera{arguments.at(1), arguments.contains("--dark"), {}};
    const qsizetype size = arguments.indexOf("--size");
    if (size > 0) {
        const QStringList sides = arguments.at(size + 1).split('x');
        camera.size = QSize(sides.at(0).toInt(), sides.at(1).toInt());
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(camera.isDark ? darkPalette() : lightPalette());

    const QTemporaryDir home;
    const QString site = QDir(arguments.at(2)).absolutePath();
    if (QDir(site).exists())
        qFatal("The site's folder is there already.");
    makeSite(site);
    PosixFileSystem files;
    FakeMessageBox messages;
    FakeCommonDialogs dialogs;
    const std::string runs = home.filePath("runs").toStdString();
    frmIntegrator wizard({files, messages, dialogs, "", runs}, {"/"}, nullptr);
    wizard.setDefinition((site + "/menu/menu.js").toStdString());
    wizard.show();
    wizard.activateWindow();
    if (!QTest::qWaitForWindowActive(&wizard))
        return 1;
    walk(wizard, camera, site, dialogs);
    UndoWindow undo(files, messages, runs, nullptr);
    undo.show();
    camera.take(undo, "UndoWindow");
    return 0;
}
