// SPDX-License-Identifier: MIT
// Files that are no menu, or more than a menu, opened and saved over by mistake: on the real disk,
// in the real window. Whatever they were, they are found whole beside the menu.

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "app/frm_main.h"
#include "file_commands_desk.h"
#include "platform/fake/fake_services.h"
#include "platform/posix/posix_file_system.h"

using namespace zev;

namespace {

QByteArray plugIn() {
    return "/*! menu plug-in, MIT */\n"
           "(function ($) {\n"
           "    'use strict';\n"
           "    $.fn.zevLike = function (options) {\n"
           "        return this.each(function () { $(this).addClass(options.name || 'x'); });\n"
           "    };\n"
           "}(window.jQuery));\n";
}

QByteArray page() {
    return "<!DOCTYPE html>\r\n<html>\r\n<head><title>Caf\xE9</title></head>\r\n"
           "<body>\r\nzevmenu.html\r\n</body>\r\n</html>";
}

QByteArray menuWithComments() {
    return "// The menu of our site. Ask Anna before you change it.\n"
           "zev_state.closedelay = 1200;\n"
           "zevmenu = new ZEVMenu('0');\n"
           "zevmenu.AddItem('Tea', 'tea.html', '');  // the best\n"
           "/* zevmenu.AddItem('Coffee', 'coffee.html', ''); */\n"
           "zevmenu.AddItem('Milk', 'milk.html', '');\n";
}

QByteArray longText() {
    QByteArray text;
    for (int line = 0; text.size() < 5'000'000; ++line)
        text += "Line " + QByteArray::number(line) + " of a text that is no menu at all.\n";
    return text;
}

}  // namespace

class test_kept_files : public QObject {
    Q_OBJECT

  private slots:
    void aFileThatWouldLoseLinesIsFoundWhole_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("items");
        QTest::newRow("plug-in") << plugIn() << "";
        QTest::newRow("page") << page() << "";
        QTest::newRow("menu with comments") << menuWithComments() << "Milk ";
        QTest::newRow("5 MB of text") << longText() << "";
    }
    void aFileThatWouldLoseLinesIsFoundWhole() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, items);
        QTemporaryDir folder;
        for (const QString name :
             {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"})
            write(folder.filePath(name), name.toUtf8());
        const QString path = folder.filePath("file.js");
        write(path, bytes);

        PosixFileSystem files;
        FakeMessageBox messages{failQtTest};
        FakeCommonDialogs dialogs{failQtTest};
        FakeShell shell{failQtTest};
        FakeHelpViewer help;
        FakeBrowserView browser;
        frmMain window({files, messages, dialogs, shell, help, browser},
                       folder.path().toStdString(), new QWidget);
        dialogs.expectOpenFile(path.toStdString());
        window.findChild<QAction*>("mnuFileOpen")->trigger();
        QString opened;
        for (const MenuNode* node : window.document().tree().topLevel())
            opened += QString::fromStdString(node->item.Caption) + " ";
        QCOMPARE(opened, items);
        window.findChild<QAction*>("mnuEditAddMenuItem")->trigger();
        window.findChild<QAction*>("mnuFileSave")->trigger();

        QVERIFY(read(path).contains("AddItem('Item "));
        QVERIFY2(read(path + ".bak") == bytes, "the file is not kept as it was");
        window.findChild<QAction*>("mnuEditAddMenuItem")->trigger();
        window.findChild<QAction*>("mnuFileSave")->trigger();
        QVERIFY2(!QFile::exists(path + ".bak.2"), "a menu of ours needs no copy");
    }

  private:
    static void write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    }
    static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }
};

QTEST_MAIN(test_kept_files)
#include "test_kept_files.moc"
