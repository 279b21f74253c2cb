// SPDX-License-Identifier: MIT
#include <malloc.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMetaObject>
#include <QStandardPaths>

#include <csignal>

#include "app/frm_main.h"
#include "app/icons.h"
#include "app/preview_picture.h"
#include "app/recent_documents.h"
#include "library/program_folder.h"
#include "platform/posix/posix_file_system.h"
#include "platform/qt/fit_screen.h"
#include "platform/qt/plain_button_style.h"
#include "platform/qt/qt_browser_view.h"
#include "platform/qt/qt_common_dialogs.h"
#include "platform/qt/qt_help_viewer.h"
#include "platform/qt/qt_message_box.h"
#include "platform/qt/qt_shell.h"
#include "text/path.h"

using namespace zev;

namespace {

QStringList arguments(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

void describeArguments(QCommandLineParser& parser) {
    parser.setApplicationDescription("Authoring tool for cascading menus on web sites.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(
        {"screenshot",
         QString("Show the preview, save a picture of the window as PNG, and end: with "
                 "status 0, with 1 when the preview cannot be shown or the picture "
                 "not written, with 3 when the preview hangs or no picture is there "
                 "after %1 seconds.")
             .arg(kPictureLimitSeconds),
         "picture"});
    parser.addPositionalArgument("file", "Menu definition file to open.", "[file]");
}

/// The folder that holds the run-time files. Without them the editor still runs, and each save says
/// which file is missing.
std::string programFolder(FileSystem& files, MessageBox& messages, const std::string& userFolder) {
    const std::string executable = QCoreApplication::applicationFilePath().toStdString();
    const FileResult<std::string> folder = findProgramFolder(files, executable, userFolder);
    if (folder.isOk())
        return folder.value();
    messages.notice("The program's own files could not be prepared. " + folder.error().path + ": " +
                    folder.error().reason);
    return QCoreApplication::applicationDirPath().toStdString();
}

/// A file of the desktop's own, which all its programs share.
std::string dataFile(const char* name) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + '/' + name).toStdString();
}

int runEditor(QApplication& application, const QCommandLineParser& arguments) {
    PosixFileSystem fileSystem;
    QtShell shell;
    QtMessageBox messages;
    QtCommonDialogs dialogs;
    QtHelpViewer help;
    auto* browser = new QtBrowserView;
    const std::string userFolder =
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
    const QString picture = arguments.value("screenshot");
    EditorServices services{fileSystem, messages, dialogs, shell, help, *browser, userFolder};
    frmMain* editor = nullptr;
    // Whoever asks for a picture works with a script, not on the document.
    if (picture.isEmpty())
        services.noteRecentDocument = [&](const std::string& document) {
            editor->whenPainted([&fileSystem, document] {
                noteRecentDocument(fileSystem, dataFile("recently-used.xbel"), document);
            });
        };

    frmMain window(services, programFolder(fileSystem, messages, userFolder), browser);
    editor = &window;
    // Ends the program also while the manual's window is open.
    QObject::connect(
        &window, &frmMain::ended, &application, [] { QCoreApplication::exit(0); },
        Qt::QueuedConnection);
    fitScreen(window);
    window.show();
    const QStringList files = arguments.positionalArguments();
    // Before the window is painted for the first time: so it is painted once.
    if (!files.isEmpty())
        window.openDefinition(QFileInfo(files.first()).absoluteFilePath().toStdString());
    const auto begin = [&] { takePreviewPicture(window, *browser, picture); };
    if (picture.isEmpty())
        window.keepUnsavedMenusSoon(Path::onThisSystem(userFolder).child("recovery"));
    else
        QMetaObject::invokeMethod(&window, begin, Qt::QueuedConnection);
    window.whenPainted([] {
        QApplication::setWindowIcon(programIcon());
        // What the start needed for a while goes back to the system.
        malloc_trim(0);
    });
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    // A file that would grow beyond the user's limit for files is an error of the write, not the
    // end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    QCoreApplication::setApplicationName("zevmenu-creator");
    QCoreApplication::setApplicationVersion(ZEV_VERSION);
    QCommandLineParser parser;
    describeArguments(parser);
    if (!parser.parse(arguments(argc, argv)) || parser.isSet("help") || parser.isSet("version")) {
        // Answered without a display.
        QCoreApplication application(argc, argv);
        parser.process(application);
    }
    // By this the desktop knows whose windows these are.
    QGuiApplication::setDesktopFileName("example.zevmenu.Creator");
    QApplication application(argc, argv);
    // An installation keeps the program's modules there, a build beside the program.
    QCoreApplication::addLibraryPath(QCoreApplication::applicationDirPath() +
                                     "/../lib/zevmenu-creator/modules");
    QApplication::setStyle(new PlainButtonStyle);
    return runEditor(application, parser);
}
