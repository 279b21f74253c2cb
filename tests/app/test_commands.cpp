// SPDX-License-Identifier: MIT
// The table of commands: which can be used, and what the manual says of their keys.

#include <QAction>
#include <QFile>
#include <QMainWindow>
#include <QRegularExpression>
#include <QTest>
#include <QToolBar>

#include "app/commands.h"
#include "model/tree_editing.h"
#include "tests/support/document_steps.h"

using namespace zev;

namespace {

/// The menus and the toolbar of a window that holds nothing else.
struct CommandDesk {
    QAction& button(int index) {
        return *window.findChild<QAction*>(QString("tbToolBar_%1").arg(index));
    }
    /// The commands that cannot be used, by name; buttons by "#" and their index.
    QString disabledOnes() {
        QStringList names;
        for (const Command& command : CommandActions::rows())
            if (command.click && !window.findChild<QAction*>(command.entry.name)->isEnabled())
                names.append(QString(command.entry.name).sliced(QString("mnuFile").size()));
        const auto buttons = window.findChild<QToolBar*>("tbToolBar")->actions();
        for (int index = 1; index <= buttons.size(); ++index)
            if (!button(index).isEnabled())
                names.append(QString("#%1").arg(index));
        return names.join(' ');
    }

    QMainWindow window;
    CommandActions commands{window};
};

/// a, b (with children b1, b2, b3), c; current is the node named.
void fill(MenuDocument& document, const std::string& current) {
    test::appendNode(document, nullptr, "a", "a");
    const MenuNode* b = test::appendNode(document, nullptr, "b", "b");
    test::appendNode(document, nullptr, "c", "c");
    for (const char* key : {"b1", "b2", "b3"})
        test::appendNode(document, b, key, key);
    document.select(document.tree().find(current));
}

}  // namespace

class test_commands : public QObject {
    Q_OBJECT

  private slots:
    void everythingIsEnabledBeforeTheFirstUpdate() { QCOMPARE(CommandDesk().disabledOnes(), ""); }

    void saveDependsOnChangesAlone_data() {
        QTest::addColumn<bool>("isModified");
        QTest::addColumn<QString>("saveFile");
        QTest::newRow("never saved, no changes") << false << "";
        QTest::newRow("never saved, changes") << true << "";
        QTest::newRow("saved, no changes") << false << "/site/menu.js";
        QTest::newRow("saved, changes") << true << "/site/menu.js";
    }
    void saveDependsOnChangesAlone() {
        QFETCH(bool, isModified);
        QFETCH(QString, saveFile);
        MenuDocument document("/program");
        document.setFile(saveFile.toStdString(), "/site");
        document.apply(SetModified{isModified});
        CommandDesk desk;
        desk.commands.Button_Update(document);
        QCOMPARE(desk.window.findChild<QAction*>("mnuFileSave")->isEnabled(), isModified);
        QCOMPARE(desk.button(3).isEnabled(), isModified);
    }

    void nodeCommandsFollowThePlaceOfTheCurrentNode_data() {
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("disabled");
        QTest::newRow("first of the top level") << "a"
                                                << "MoveLeft MoveRight MoveUp #11 #12 #13";
        QTest::newRow("in the middle of the top level") << "b"
                                                        << "MoveLeft #11";
        QTest::newRow("last of the top level") << "c"
                                               << "MoveLeft MoveDown #11 #14";
        QTest::newRow("first of a submenu") << "b1"
                                            << "MoveRight MoveUp #12 #13";
        QTest::newRow("in the middle of a submenu") << "b2"
                                                    << "";
        QTest::newRow("last of a submenu") << "b3"
                                           << "MoveDown #14";
    }
    void nodeCommandsFollowThePlaceOfTheCurrentNode() {
        QFETCH(QString, current);
        QFETCH(QString, disabled);
        MenuDocument document("/program");
        fill(document, current.toStdString());
        document.markModified();
        CommandDesk desk;
        desk.commands.Button_Update(document);
        QCOMPARE(desk.disabledOnes(), disabled);
    }

    void aSingleItemCannotMove() {
        MenuDocument document("/program");
        addMenuItem(document);
        CommandDesk desk;
        desk.commands.Button_Update(document);
        QCOMPARE(desk.disabledOnes(), "MoveLeft MoveRight MoveUp MoveDown #11 #12 #13 #14");
    }

    void withoutCurrentNodeTheMoveEntriesKeepTheirState_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("disabled");
        const QString rest =
            "MenuProperties AddSubmenuItem %1MoveUp MoveDown Delete #3 #6 #9 #11 #12 #13 #14 #16";
        QTest::newRow("enabled before any update") << ""
                                                   << "Save " + rest.arg("");
        QTest::newRow("both disabled before") << "a"
                                              << "Save " + rest.arg("MoveLeft MoveRight ");
        QTest::newRow("left disabled before") << "c"
                                              << "Save " + rest.arg("MoveLeft ");
        QTest::newRow("right disabled before") << "b1"
                                               << "Save " + rest.arg("MoveRight ");
        QTest::newRow("both enabled before") << "b2"
                                             << "Save " + rest.arg("");
    }
    void withoutCurrentNodeTheMoveEntriesKeepTheirState() {
        QFETCH(QString, before);
        QFETCH(QString, disabled);
        MenuDocument document("/program");
        CommandDesk desk;
        if (!before.isEmpty()) {
            fill(document, before.toStdString());
            desk.commands.Button_Update(document);
        }
        document.select(nullptr);
        desk.commands.Button_Update(document);
        QCOMPARE(desk.disabledOnes(), disabled);
    }

    void theAddMenuItemButtonIsSwitchedOnByACurrentNodeOnly() {
        MenuDocument document("/program");
        CommandDesk desk;
        desk.button(8).setEnabled(false);
        desk.commands.Button_Update(document);
        QVERIFY(!desk.button(8).isEnabled());
        addMenuItem(document);
        desk.commands.Button_Update(document);
        QVERIFY(desk.button(8).isEnabled());
        document.select(nullptr);
        desk.commands.Button_Update(document);
        QVERIFY(desk.button(8).isEnabled());
    }

    void buttonsThatAreNeverSwitchedStayEnabled() {
        MenuDocument document("/program");
        CommandDesk desk;
        desk.commands.Button_Update(document);
        fill(document, "a");
        desk.commands.Button_Update(document);
        for (const int index : {1, 2, 5})
            QVERIFY(desk.button(index).isEnabled());
    }

    void theStateIsTheSameWhenUpdatedTwice() {
        MenuDocument document("/program");
        fill(document, "b1");
        CommandDesk desk;
        desk.commands.Button_Update(document);
        const QString once = desk.disabledOnes();
        QVERIFY(!once.isEmpty());
        desk.commands.Button_Update(document);
        QCOMPARE(desk.disabledOnes(), once);
    }

    // The texts of the table may be translated; its keys are what callers know a button by.
    void everyButtonIsFoundByItsKey() {
        int buttons = 0;
        for (const Command& command : CommandActions::rows()) {
            if (*command.button.key == '\0')
                continue;
            QCOMPARE(CommandActions::withButton(command.button.key), &command);
            ++buttons;
        }
        QCOMPARE(buttons, 14);
    }

    void theManualTellsTheKeyOfEveryCommand() {
        QStringList keys;
        for (const Command& command : CommandActions::rows())
            if (*command.entry.shortcut != '\0')
                keys.append(command.entry.shortcut + (": " + plain(command.entry.caption)));
        QFile manual(ZEV_HELP_FOLDER "/index.html");
        QVERIFY(manual.open(QIODevice::ReadOnly));
        QStringList told;
        // What a row says beyond the command's name follows a semicolon.
        static const QRegularExpression row("<tr><td><kbd>([^<]*)</kbd></td><td>([^<;]*)");
        const QString table = QString::fromUtf8(manual.readAll())
                                  .section("<tbody id=\"commands\">", 1)
                                  .section("</tbody>", 0, 0);
        for (auto rows = row.globalMatch(table); rows.hasNext();) {
            const QRegularExpressionMatch match = rows.next();
            told.append(match.captured(1) + ": " + match.captured(2));
        }
        QCOMPARE(table.count("<tr>"), told.size());
        QCOMPARE(told.join('\n'), keys.join('\n'));
    }

  private:
    /// A caption as it is read: without the mark of its access key.
    static QString plain(QString caption) { return caption.remove('&'); }
};

QTEST_MAIN(test_commands)
#include "test_commands.moc"
