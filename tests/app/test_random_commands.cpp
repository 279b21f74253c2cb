// SPDX-License-Identifier: MIT
// Many commands in a row, always the same ones, against the same commands on a plain list. Between
// them the person types, edits labels, looks at the other tabs, and saves and opens the menu.

#include <QAbstractItemModelTester>
#include <QTest>
#include <random>

#include "window_desk.h"

using namespace zev;

namespace {

struct ExpectedItem {
    int level;
    QString caption;
    QString url;
};

/// Captions and links in tree order, read from the document after the panel was stored.
QString storedItems(const MenuTree& tree) {
    QString text;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        for (const MenuNode* up = node->parent(); up; up = up->parent())
            text += "  ";
        text += QString::fromStdString(node->item.Caption + "|" + node->item.URL) + "\n";
    }
    return text;
}

// A list of (level, caption) in tree order plays the document: a branch is an item and all that
// follow it on deeper levels.
class ExpectedMenu {
  public:
    void addSibling(const QString& caption) {
        if (m_items.empty()) {
            m_items.push_back({0, caption, {}});
            m_current = 0;
            return;
        }
        const int level = m_items[m_current].level;
        std::size_t at = m_current;
        while (at < m_items.size() && m_items[at].level >= level)
            ++at;
        insert(at, {level, caption, {}});
        m_current = at;
    }
    void addChild(const QString& caption) {
        if (!m_items.empty())
            insert(branchEnd(m_current), {m_items[m_current].level + 1, caption, {}});
    }
    void remove() {
        if (m_items.empty())
            return;
        const std::size_t parent = parentOf(m_current);
        const std::size_t previous = previousOf(m_current);
        const int level = m_items[m_current].level;
        erase(m_current, branchEnd(m_current));
        if (m_current < m_items.size() && m_items[m_current].level == level)
            return;
        m_current = previous != kNone ? previous : parent != kNone ? parent : 0;
    }
    void moveLeft() {
        const std::size_t parent = m_items.empty() ? kNone : parentOf(m_current);
        if (parent != kNone)
            transfer(branchEnd(parent), -1);
    }
    void moveRight() {
        const std::size_t previous = m_items.empty() ? kNone : previousOf(m_current);
        if (previous != kNone)
            transfer(branchEnd(previous), 1);
    }
    void moveUp() {
        const std::size_t previous = m_items.empty() ? kNone : previousOf(m_current);
        if (previous != kNone)
            transfer(previous, 0);
    }
    void moveDown() {
        if (m_items.empty())
            return;
        const std::size_t next = branchEnd(m_current);
        if (next < m_items.size() && m_items[next].level == m_items[m_current].level)
            transfer(branchEnd(next), 0);
    }
    void select(std::size_t row) { m_current = row; }
    void selectParent() { m_current = parentOf(m_current); }
    void setCaption(const QString& caption) { m_items[m_current].caption = caption; }
    void setUrl(const QString& url) { m_items[m_current].url = url; }
    QString caption() const { return m_items[m_current].caption; }
    QString url() const { return m_items[m_current].url; }
    std::size_t size() const { return m_items.size(); }
    std::size_t current() const { return m_current; }
    /// As the tree shows it: the captions.
    QString labels() const {
        QString text;
        for (const ExpectedItem& item : m_items)
            text += QString(2 * item.level, ' ') + item.caption + "\n";
        return text;
    }
    /// As `storedItems` tells it.
    QString items() const {
        QString text;
        for (const ExpectedItem& item : m_items)
            text += QString(2 * item.level, ' ') + item.caption + "|" + item.url + "\n";
        return text;
    }

  private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    using Items = std::vector<ExpectedItem>;

    Items::iterator at(std::size_t row) {
        return m_items.begin() + static_cast<std::ptrdiff_t>(row);
    }
    void insert(std::size_t row, ExpectedItem item) { m_items.insert(at(row), std::move(item)); }
    void erase(std::size_t from, std::size_t to) { m_items.erase(at(from), at(to)); }
    std::size_t branchEnd(std::size_t row) const {
        const int level = m_items[row].level;
        ++row;
        while (row < m_items.size() && m_items[row].level > level)
            ++row;
        return row;
    }
    std::size_t parentOf(std::size_t row) const {
        for (std::size_t up = row; up-- > 0;)
            if (m_items[up].level < m_items[row].level)
                return up;
        return kNone;
    }
    std::size_t previousOf(std::size_t row) const {
        for (std::size_t up = row; up-- > 0;) {
            if (m_items[up].level == m_items[row].level)
                return up;
            if (m_items[up].level < m_items[row].level)
                return kNone;
        }
        return kNone;
    }
    void transfer(std::size_t to, int levels) {
        const std::size_t end = branchEnd(m_current);
        Items branch(at(m_current), at(end));
        for (ExpectedItem& item : branch)
            item.level += levels;
        erase(m_current, end);
        if (to >= end)
            to -= branch.size();
        m_items.insert(at(to), branch.begin(), branch.end());
        m_current = to;
    }

    Items m_items;
    std::size_t m_current = 0;
};

}  // namespace

class test_random_commands : public QObject {
    Q_OBJECT

  private slots:
    void windowAndDocumentStayTogether_data() {
        QTest::addColumn<unsigned>("seed");
        // More seeds, for a long run: ZEV_RANDOM_SEEDS=100
        const unsigned more = qEnvironmentVariable("ZEV_RANDOM_SEEDS").toUInt();
        for (const unsigned seed : {1121U, 7U, 2026U})
            QTest::addRow("seed %u", seed) << seed;
        for (unsigned seed = 1; seed <= more; ++seed)
            QTest::addRow("more, seed %u", seed) << seed;
    }
    void windowAndDocumentStayTogether();

  private:
    /// A step of the person that is no command of the Edit menu.
    static void handle(WindowDesk& desk, ExpectedMenu& expected, unsigned kind,
                       const QString& typed);
    static void compare(WindowDesk& desk, const ExpectedMenu& expected);
    static void saveAndOpen(WindowDesk& desk);
};

void test_random_commands::saveAndOpen(WindowDesk& desk) {
    desk.saveAs("/site/menu.js");
    QVERIFY(!desk.document().bModified());
    desk.dialogs.expectOpenFile("/site/menu.js");
    desk.choose("mnuFileOpen");
}

void test_random_commands::handle(WindowDesk& desk, ExpectedMenu& expected, unsigned kind,
                                  const QString& typed) {
    const MenuTree& tree = desk.document().tree();
    switch (kind) {
        case 0:
            expected.setCaption(typed);
            desk.type("txtCaption", typed);
            break;
        case 1:
            expected.setUrl(typed + ".html");
            desk.type("txtURL", typed + ".html");
            break;
        case 2: {
            // The editor stays open; what comes next takes the label.
            expected.setCaption(typed);
            desk.document().makeVisible(*desk.document().CurNode());
            desk.startLabel(desk.document().CurNode(), typed);
            break;
        }
        case 3:
            desk.clickTab("JavaScript");
            QCOMPARE(storedItems(tree), expected.items());
            QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
            desk.clickTab("Menu");
            break;
        case 4:
            desk.clickTab("Preview");
            QCOMPARE(storedItems(tree), expected.items());
            desk.clickTab("Menu");
            break;
        case 5:
            saveAndOpen(desk);
            expected.select(0);
            QCOMPARE(storedItems(tree), expected.items());
            break;
        default:
            if (const MenuNode* parent = desk.document().CurNode()->parent()) {
                expected.selectParent();
                desk.clickBranchMark(parent);
            }
    }
}

void test_random_commands::compare(WindowDesk& desk, const ExpectedMenu& expected) {
    const MenuDocument& document = desk.document();
    QCOMPARE(document.selectedNode(), document.CurNode());
    QCOMPARE(document.CurNode() == nullptr, expected.size() == 0);
    if (document.CurNode() == nullptr || desk.labelEditor() != nullptr)
        return;
    QCOMPARE(desk.shownTree().remove('*'), expected.labels());
    QCOMPARE(desk.field("txtCaption").text(), expected.caption());
    QCOMPARE(desk.field("txtURL").text(), expected.url());
    QCOMPARE(desk.shownTree().count('*'), 1);
    QVERIFY(desk.shownTree().contains("*" + expected.caption()));
}

void test_random_commands::windowAndDocumentStayTogether() {
    QFETCH(unsigned, seed);
    WindowDesk desk;
    const QAbstractItemModelTester tester(desk.tree().model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    ExpectedMenu expected;
    MenuDocument& document = desk.document();
    std::minstd_rand random(seed);
    int added = 0;
    for (int step = 0; step < 400; ++step) {
        const auto choice = random() % 17;
        const QString newCaption = QString("Item %1").arg(document.ItemCounter());
        if (choice < 3) {
            expected.addSibling(newCaption);
            desk.choose("mnuEditAddMenuItem");
            ++added;
        } else if (choice == 3) {
            expected.addChild(newCaption);
            desk.choose("mnuEditAddSubmenuItem");
        } else if (choice == 4 && expected.size() > 8) {
            expected.remove();
            desk.choose("mnuEditDelete");
        } else if (choice == 5) {
            expected.moveLeft();
            desk.choose("mnuEditMoveLeft");
        } else if (choice == 6) {
            expected.moveRight();
            desk.choose("mnuEditMoveRight");
        } else if (choice == 7) {
            expected.moveUp();
            desk.choose("mnuEditMoveUp");
        } else if (choice == 8) {
            expected.moveDown();
            desk.choose("mnuEditMoveDown");
        } else if (expected.size() > 0 && choice < 16) {
            handle(desk, expected, static_cast<unsigned>(choice - 9),
                   QString("typed %1").arg(step));
        } else if (expected.size() > 0) {
            const std::size_t row = random() % expected.size();
            const MenuNode* node = document.tree().firstNode();
            for (std::size_t i = 0; i < row; ++i)
                node = document.tree().nextInTreeOrder(*node);
            document.makeVisible(*node);
            expected.select(row);
            desk.click(node);
            QCOMPARE(document.CurNode(), node);
        }
        compare(desk, expected);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString("after step %1, of kind %2").arg(step).arg(choice)));
    }
    QVERIFY(added > 40);
    desk.clickTab("JavaScript");
    QCOMPARE(storedItems(document.tree()), expected.items());
    QCOMPARE(desk.script().toPlainText(), desk.expectedScript());
}

QTEST_MAIN(test_random_commands)
#include "test_random_commands.moc"
