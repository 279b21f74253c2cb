// SPDX-License-Identifier: MIT
#include <QPushButton>
#include <random>
#include <vector>

#include "app/strip_line.h"
#include "property_dialogs_hands.h"

using namespace zev;

namespace {

/// All that a person sees of the menu, and what a save would write. The name of its file is no part
/// of it: a save stays.
struct Sight {
    explicit Sight(WindowDesk& desk)
        : tree(desk.shownTree()),
          panel(desk.document().CurNode() ? desk.shownPanel() : QString()),
          script(QString::fromStdString(GenerateScript(desk.document().content()))),
          counter(desk.document().ItemCounter()) {
        const MenuTree& nodes = desk.document().tree();
        for (const MenuNode* node = nodes.firstNode(); node; node = nodes.nextInTreeOrder(*node)) {
            const QModelIndex index =
                static_cast<TreeViewModel*>(desk.tree().model())->indexOf(node);
            keys += QString::fromStdString(node->key()) + (node->isExpanded ? "+" : "-");
            if (node->hasChildren())
                keys += desk.tree().isExpanded(index) ? "+" : "-";
        }
    }
    bool operator==(const Sight&) const = default;

    QString tree;
    QString panel;
    QString script;
    QString keys;
    int counter;
};

/// A person at random, with what every undo and redo must show.
class Person {
  public:
    explicit Person(unsigned seed) : m_random(seed) {}

    void act() {
        const auto choice = below(20);
        if (choice < 4) {
            takeBack();
            return;
        }
        if (choice == 4) {
            redo();
            return;
        }
        const Sight before(m_desk);
        const std::uint64_t state = m_desk.window.history().state();
        command(choice);
        if (m_desk.window.history().state() == state)
            return;
        if (m_saved > int(m_position))
            m_saved = -1;
        m_steps.erase(m_steps.begin() + std::ptrdiff_t(m_position), m_steps.end());
        m_steps.push_back({before, Sight(m_desk)});
        m_position = m_steps.size();
    }

    void takeBackAll() {
        while (m_position > 0 && !QTest::currentTestFailed())
            takeBack();
    }

  private:
    struct Step {
        Sight before;
        Sight after;
    };

    unsigned below(unsigned count) { return unsigned(m_random()) % count; }

    void takeBack() {
        QCOMPARE(m_desk.action("mnuEditUndo").isEnabled(), m_position > 0);
        if (m_position == 0)
            return;
        m_desk.choose("mnuEditUndo");
        --m_position;
        expect(m_steps[m_position].before);
    }
    void redo() {
        QCOMPARE(m_desk.action("mnuEditRedo").isEnabled(), m_position < m_steps.size());
        if (m_position == m_steps.size())
            return;
        m_desk.choose("mnuEditRedo");
        ++m_position;
        expect(m_steps[m_position - 1].after);
    }
    void expect(const Sight& expected) {
        const Sight seen(m_desk);
        QCOMPARE(seen.tree, expected.tree);
        QCOMPARE(seen.panel, expected.panel);
        QCOMPARE(seen.keys, expected.keys);
        QCOMPARE(seen.script, expected.script);
        QVERIFY(seen == expected);
        QCOMPARE(m_desk.document().bModified(), int(m_position) != m_saved);
    }

    const MenuNode* anyNode() {
        const MenuTree& tree = m_desk.document().tree();
        const MenuNode* node = tree.firstNode();
        for (unsigned steps = below(unsigned(tree.size())); steps > 0; --steps)
            node = tree.nextInTreeOrder(*node);
        return node;
    }
    void command(unsigned choice) {
        static constexpr const char* kEntries[] = {
            "mnuEditAddMenuItem", "mnuEditAddMenuItem", "mnuEditAddSubmenuItem", "mnuEditDelete",
            "mnuEditMoveLeft",    "mnuEditMoveRight",   "mnuEditMoveUp",         "mnuEditMoveDown"};
        if (choice < 12) {
            m_desk.choose(kEntries[below(std::size(kEntries))]);
            return;
        }
        if (choice == 12) {
            inDefaults(m_desk, [this](frmDefaultProp& form) {
                typeInto(form, "txtCloseDelay", QString::number(below(900)));
                press(form, "cmdOK");
            });
            return;
        }
        const MenuNode* const node = m_desk.document().CurNode();
        if (node == nullptr)
            return;
        const QString text = QString("t%1").arg(below(1000));
        switch (choice) {
            case 13:
                m_desk.type("txtURL", text);
                return m_desk.click(node);
            case 14:
                if (m_desk.field("txtCaption").isEnabled())
                    m_desk.type("txtCaption", text);
                return m_desk.click(node);
            case 15:
                m_desk.saveAs("/site/menu.js");
                m_saved = int(m_position);
                return;
            case 16:
                m_desk.click(m_desk.button(below(2) ? "optRollover" : "optNormal"));
                return m_desk.click(node);
            case 17:
                m_desk.document().makeVisible(*node);
                return m_desk.editLabel(node, text, Qt::Key_Return);
            case 18:
                return m_desk.click(anyVisible());
            default:
                if (node->parent())
                    m_desk.clickBranchMark(node->parent());
        }
    }
    const MenuNode* anyVisible() {
        const MenuNode* node = anyNode();
        while (!m_desk.document().tree().isVisible(*node))
            node = node->parent();
        return node;
    }

    WindowDesk m_desk;
    std::minstd_rand m_random;
    std::vector<Step> m_steps;
    std::size_t m_position = 0;
    int m_saved = 0;
};

QString undoText(WindowDesk& desk) {
    return desk.action("mnuEditUndo").text().remove('&');
}

}  // namespace

class test_undo : public QObject {
    Q_OBJECT

  private slots:
    void everyUndoAndRedoShowsWhatWasThere_data() {
        QTest::addColumn<unsigned>("seed");
        // More seeds, for a long run: ZEV_RANDOM_SEEDS=1000
        const unsigned seeds = std::max(6U, qEnvironmentVariable("ZEV_RANDOM_SEEDS").toUInt());
        for (unsigned seed = 1; seed <= seeds; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void everyUndoAndRedoShowsWhatWasThere() {
        QFETCH(unsigned, seed);
        Person person(seed);
        for (int step = 0; step < 60 && !QTest::currentTestFailed(); ++step)
            person.act();
        person.takeBackAll();
    }

    void theEntriesSayWhatTheyWillDo() {
        WindowDesk desk;
        QCOMPARE(undoText(desk), "Undo");
        desk.add("About <b>us</b>");
        desk.choose("mnuEditAddSubmenuItem");
        desk.choose("mnuEditAddSubmenuItem");
        desk.choose("mnuEditDelete");
        QCOMPARE(undoText(desk), "Undo Delete About us and 2 items");
        QCOMPARE(desk.shownTree(), "");
        QTest::keyClick(&desk.tree(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "*About <b>us</b>\n  Item 1\n  Item 2\n");
        QCOMPARE(desk.action("mnuEditRedo").text().remove('&'), "Redo Delete About us and 2 items");
        QCOMPARE(undoText(desk), "Undo Add Submenu Item");
        for (int count = 0; count < 2; ++count)
            desk.choose("mnuEditUndo");
        QCOMPARE(undoText(desk), "Undo Type in Menu Description");
        desk.choose("mnuEditUndo");
        QCOMPARE(desk.shownTree(), "*Item 0\n");
        QCOMPARE(undoText(desk), "Undo Add Menu Item");
        for (int count = 0; count < 5; ++count)
            QTest::keyClick(&desk.tree(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "");
        QVERIFY(!desk.action("mnuEditRedo").isEnabled());
    }

    void aLineAboveTheTreeGivesADeletedBranchBack() {
        WindowDesk desk;
        desk.add("About us");
        desk.choose("mnuEditAddSubmenuItem");
        auto* line = desk.window.findChild<StripLine*>("LastCommand");
        QVERIFY(!line->isVisible());
        desk.choose("mnuEditDelete");
        QVERIFY(line->isVisible());
        QCOMPARE(line->text(), "Deleted About us and 1 item.");
        QCOMPARE(line->accessibleName(), "Last command");
        QTest::mouseClick(desk.tree().viewport(), Qt::LeftButton);
        QVERIFY2(line->isVisible(), "a click is no step");
        auto* undo = line->findChild<QPushButton*>();
        QCOMPARE(undo->text(), "Undo");
        undo->setFocus(Qt::TabFocusReason);
        QTest::keyClick(undo, Qt::Key_Space);
        QCOMPARE(desk.shownTree(), "*About us\n  Item 1\n");
        QVERIFY(!line->isVisible());
        QVERIFY(desk.tree().hasFocus());
        desk.choose("mnuEditDelete");
        desk.choose("mnuEditAddMenuItem");
        QVERIFY(!line->isVisible());
        desk.choose("mnuEditDelete");
        QCOMPARE(line->text(), "Deleted Item 2.");
    }

    void aFieldsOwnTypingIsTakenBackFirstAndSaidSo() {
        WindowDesk desk;
        desk.choose("mnuEditAddMenuItem");
        QLineEdit& url = desk.field("txtURL");
        desk.type("txtURL", "a.html");
        QCOMPARE(undoText(desk), "Undo Typing");
        while (url.isUndoAvailable())
            QTest::keyClick(&url, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(url.text(), "");
        QCOMPARE(undoText(desk), "Undo Type in URL");
        QTest::keyClick(&url, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.shownTree(), "");
    }

    void whatAFieldsRuleRewroteCanBeHadBackInTheField_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("cleaned");
        QTest::newRow("caption") << "txtCaption"
                                 << "It's"
                                 << "It\\'s";
        QTest::newRow("URL") << "txtURL"
                             << "say(\"hi\")"
                             << "say(hi)";
        QTest::newRow("all of it") << "txtTarget"
                                   << "'\"'"
                                   << "";
    }
    void whatAFieldsRuleRewroteCanBeHadBackInTheField() {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(QString, cleaned);
        WindowDesk desk;
        const MenuNode* item = desk.add("Tea");
        desk.click(item);
        QLineEdit& field = desk.field(name);
        const QString before = field.text();
        desk.type(name, typed);
        desk.click(item);
        QCOMPARE(field.text(), cleaned);
        const QString step = undoText(desk);

        QTest::mouseClick(&field, Qt::LeftButton);
        QCOMPARE(undoText(desk), "Undo Typing");
        QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.text(), typed);
        // Nothing else of the field's is left: what follows is the document's.
        QVERIFY(!field.isUndoAvailable());
        desk.click(item);
        QCOMPARE(field.text(), cleaned);
        QCOMPARE(undoText(desk), step);
        desk.choose("mnuEditUndo");
        QCOMPARE(field.text(), before);
        if (cleaned != before)
            QVERIFY2(!field.isUndoAvailable(), "what undo filled in was never typed");
    }

    void aDialogsOkIsOneStep() {
        WindowDesk desk;
        desk.choose("mnuEditAddMenuItem");
        const QString before = desk.expectedScript();
        inAdvanced(desk, "cmdOK", [](frmAdvProp& form) {
            typeInto(form, "txtItemBorder", "1px solid red");
            press(form, "cmdOK");
        });
        QCOMPARE(undoText(desk), "Undo Advanced Menu Properties");
        desk.choose("mnuEditUndo");
        QCOMPARE(desk.expectedScript(), before);
        QCOMPARE(undoText(desk), "Undo Add Menu Item");
    }

    void newAndOpenAreTakenBackWithTheWholeMenuAndItsFile() {
        WindowDesk desk;
        desk.add("a");
        desk.saveAs("/site/menu.js");
        desk.disk.addFile("/site/other.js", "zevmenu = new ZEVMenu('0');\r\n");
        desk.dialogs.expectOpenFile("/site/other.js");
        desk.choose("mnuFileOpen");
        QCOMPARE(undoText(desk), "Undo Open");
        desk.choose("mnuFileNew");
        QCOMPARE(undoText(desk), "Undo New");
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator");
        desk.choose("mnuEditUndo");
        const int forgotten = desk.browser.forgottenCount();
        desk.choose("mnuEditUndo");
        QCOMPARE(desk.browser.forgottenCount(), forgotten + 1);
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator (/site/menu.js)");
        QCOMPARE(desk.shownTree(), "*a\n");
        QVERIFY(!desk.document().bModified());
    }

    void aCancelledOpenMovesNoMark() {
        WindowDesk desk;
        desk.add("a");
        desk.dialogs.expectOpenFile("");
        desk.choose("mnuFileOpen");
        QVERIFY(!desk.document().bModified());
        desk.choose("mnuEditUndo");
        QVERIFY(desk.document().bModified());
        QVERIFY(desk.action("mnuFileSave").isEnabled());
    }

    void recalculatedAddressesComeBackAndTheFileStays() {
        WindowDesk desk;
        desk.add("a");
        desk.type("txtURL", "page.html");
        desk.saveAs("/site/menu.js");
        desk.disk.addFolder("/site/js");
        desk.dialogs.expectSaveFile("/site/js/menu.js");
        desk.messages.expect(WindowDesk::recalculate, MessageBox::Answer::Yes);
        desk.choose("mnuFileSaveAs");
        QCOMPARE(desk.field("txtURL").text(), "../page.html");
        QCOMPARE(undoText(desk), "Undo Recalculate URLs");
        desk.choose("mnuEditUndo");
        QCOMPARE(desk.field("txtURL").text(), "page.html");
        QCOMPARE(desk.window.windowTitle(), "ZEVMenu Creator (/site/js/menu.js)");
        QVERIFY(desk.document().bModified());
    }
};

QTEST_MAIN(test_undo)
#include "test_undo.moc"
