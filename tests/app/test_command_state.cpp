// Which commands can be used, derived without a window.

#include <QTest>

#include "app/command_state.h"
#include "model/tree_editing.h"
#include "tests/support/document_steps.h"

using namespace zev;

namespace {

/// The commands that cannot be used, by name; buttons by "#" and their index.
QString disabledOnes(const CommandState& state) {
    QStringList names;
    const auto note = [&names](bool isEnabled, const QString& name) {
        if (!isEnabled)
            names.append(name);
    };
    note(state.mnuFileSave, "Save");
    note(state.mnuEditMenuProperties, "MenuProperties");
    note(state.mnuEditAddSubmenuItem, "AddSubmenuItem");
    note(state.mnuEditMoveLeft, "MoveLeft");
    note(state.mnuEditMoveRight, "MoveRight");
    note(state.mnuEditMoveUp, "MoveUp");
    note(state.mnuEditMoveDown, "MoveDown");
    note(state.mnuEditDelete, "Delete");
    for (std::size_t index = 1; index <= kToolBarItems; ++index)
        note(state.tbToolBar[index], QString("#%1").arg(index));
    return names.join(' ');
}

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

class test_command_state : public QObject {
    Q_OBJECT

  private slots:
    void everythingIsEnabledBeforeTheFirstUpdate() { QCOMPARE(disabledOnes(CommandState()), ""); }

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
        document.setFile(saveFile.toStdString(), document.SavePath());
        document.apply(SetModified{isModified});
        CommandState state;
        state.Button_Update(document);
        QCOMPARE(state.mnuFileSave, isModified);
        QCOMPARE(state.tbToolBar[3], isModified);
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
        CommandState state;
        state.Button_Update(document);
        QCOMPARE(disabledOnes(state), disabled);
    }

    void aSingleItemCannotMove() {
        MenuDocument document("/program");
        AddMenuItem(document);
        CommandState state;
        state.Button_Update(document);
        QCOMPARE(disabledOnes(state), "MoveLeft MoveRight MoveUp MoveDown #11 #12 #13 #14");
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
        CommandState state;
        if (!before.isEmpty()) {
            fill(document, before.toStdString());
            state.Button_Update(document);
        }
        document.apply(SetSelection{{document.selectedNode(), nullptr}});
        state.Button_Update(document);
        QCOMPARE(disabledOnes(state), disabled);
    }

    void theAddMenuItemButtonIsSwitchedOnByACurrentNodeOnly() {
        MenuDocument document("/program");
        CommandState state;
        state.tbToolBar[8] = false;
        state.Button_Update(document);
        QVERIFY(!state.tbToolBar[8]);
        AddMenuItem(document);
        state.Button_Update(document);
        QVERIFY(state.tbToolBar[8]);
        document.apply(SetSelection{{document.selectedNode(), nullptr}});
        state.Button_Update(document);
        QVERIFY(state.tbToolBar[8]);
    }

    void buttonsThatAreNeverSwitchedStayEnabled() {
        MenuDocument document("/program");
        CommandState state;
        state.Button_Update(document);
        fill(document, "a");
        state.Button_Update(document);
        for (const std::size_t index : {1U, 2U, 5U})
            QVERIFY(state.tbToolBar[index]);
    }

    void theStateIsTheSameWhenUpdatedTwice() {
        MenuDocument document("/program");
        fill(document, "b1");
        CommandState once;
        once.Button_Update(document);
        CommandState twice = once;
        twice.Button_Update(document);
        QVERIFY(once == twice);
    }
};

QTEST_APPLESS_MAIN(test_command_state)
#include "test_command_state.moc"
