// SPDX-License-Identifier: MIT
// The adapter between the menu tree and Qt's views, and the view that shows it.

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <random>

#include "app/menu_tree_view.h"
#include "app/tree_view_model.h"
#include "model/tree_editing.h"
#include "tests/support/document_steps.h"

using namespace zev;
using test::appendNode;

namespace {

/// Labels in tree order, two spaces a level, "+" before an expanded node.
QString treeText(const MenuTree& tree) {
    QString text;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        for (const MenuNode* up = node->parent(); up; up = up->parent())
            text += "  ";
        text += (node->isExpanded ? "+" : "") + QString::fromStdString(node->text) + "\n";
    }
    return text;
}

/// The same read out of the view.
QString viewText(const QTreeView& view, const QModelIndex& parent = {}, int level = 0) {
    QString text;
    for (int row = 0; row < view.model()->rowCount(parent); ++row) {
        const QModelIndex index = view.model()->index(row, 0, parent);
        text += QString(2 * level, ' ') + (view.isExpanded(index) ? "+" : "") +
                index.data().toString() + "\n";
        text += viewText(view, index, level + 1);
    }
    return text;
}

bool isInside(const MenuNode* node, const MenuNode* branch) {
    while (node != nullptr && node != branch)
        node = node->parent();
    return node != nullptr;
}

/// Random editing of a tree, always the same for the same seed.
class Editor {
  public:
    Editor(MenuDocument& document, unsigned seed) : m_document(document), m_random(seed) {}

    void step() {
        const MenuNode* node = any();
        const MenuNode* other = any();
        const auto count = static_cast<unsigned>(tree().childrenOf(other).size());
        switch (below(6)) {
            case 0:
            case 1: {
                const std::string key = "k" + std::to_string(m_nextKey++);
                m_document.apply(InsertBranch{MenuBranch(key, key), other, below(count + 1)});
                break;
            }
            case 2:
                if (node != nullptr && tree().size() > 20)
                    m_document.apply(RemoveBranch{node});
                break;
            case 3:
                if (node != nullptr && !isInside(other, node))
                    m_document.apply(MoveBranch{node, other, below(count + 1)});
                break;
            case 4:
                if (node != nullptr)
                    m_document.setLabel(*node, "t" + std::to_string(m_nextKey++));
                break;
            default:
                if (node != nullptr)
                    m_document.setExpanded(*node, below(2) == 0);
        }
    }

  private:
    const MenuTree& tree() const { return m_document.tree(); }
    unsigned below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }
    /// Null, for the top level, now and then.
    const MenuNode* any() {
        const MenuNode* node = tree().firstNode();
        for (unsigned steps = below(static_cast<unsigned>(tree().size()) + 1); node && steps;
             --steps)
            node = tree().nextInTreeOrder(*node);
        return node;
    }

    MenuDocument& m_document;
    std::minstd_rand m_random;
    int m_nextKey = 0;
};

}  // namespace

class test_tree_view_model : public QObject {
    Q_OBJECT

  private slots:
    void indexesAndNodesStandForEachOther() {
        MenuDocument document("/program");
        const MenuNode* first = appendNode(document, nullptr, "1", "first");
        const MenuNode* second = appendNode(document, nullptr, "2", "second");
        const MenuNode* child = appendNode(document, second, "3", "child");
        TreeViewModel model(document);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.columnCount(), 1);
        QCOMPARE(model.indexOf(second), model.index(1, 0));
        QCOMPARE(model.parent(model.indexOf(child)), model.indexOf(second));
        QCOMPARE(model.nodeAt(model.index(0, 0, model.indexOf(second))), child);
        QCOMPARE(model.nodeAt(QModelIndex()), nullptr);
        QVERIFY(!model.indexOf(nullptr).isValid());
        QVERIFY(!model.hasChildren(model.indexOf(first)));
        QVERIFY(model.hasChildren(model.indexOf(second)));
        QVERIFY(!model.index(2, 0).isValid());
        QVERIFY(!model.index(0, 1).isValid());
    }

    void labelsAreTheNodesTextCharacterForCharacter_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "Home";
        QTest::newRow("empty") << "";
        QTest::newRow("markup is no markup") << "<b>Bold</b> &amp; <img src=\"a.gif\">";
        QTest::newRow("access key mark") << "Save && Exit &now";
        QTest::newRow("beyond ASCII") << QString::fromUtf8("Za\u017c\u00f3\u0142\u0107 \U0001F600");
    }
    void labelsAreTheNodesTextCharacterForCharacter() {
        QFETCH(QString, text);
        MenuDocument document("/program");
        appendNode(document, nullptr, "1", text.toStdString());
        TreeViewModel model(document);
        QCOMPARE(model.index(0, 0).data(Qt::DisplayRole).toString(), text);
        QCOMPARE(model.index(0, 0).data(Qt::EditRole).toString(), text);
    }

    void anOverlongLabelIsCutForTheEyeOnly() {
        const QString longText(TreeViewModel::kMaxShownLabel + 1, 'x');
        MenuDocument document("/program");
        appendNode(document, nullptr, "1", longText.toStdString());
        TreeViewModel model(document);
        const QString shown = model.index(0, 0).data(Qt::DisplayRole).toString();
        QCOMPARE(shown, longText.left(TreeViewModel::kMaxShownLabel) + QChar(0x2026));
        QCOMPARE(model.index(0, 0).data(Qt::EditRole).toString(), longText);
    }

    void anEditedLabelIsAskedForAndShownOnceItIsSet() {
        MenuDocument document("/program");
        const MenuNode* node = appendNode(document, nullptr, "1", "old");
        TreeViewModel model(document);
        QSignalSpy edited(&model, &TreeViewModel::labelEdited);
        QSignalSpy changed(&model, &TreeViewModel::dataChanged);
        QVERIFY(model.setData(model.index(0, 0), "new", Qt::EditRole));
        QCOMPARE(edited.size(), 1);
        QCOMPARE(edited[0][1].toString(), "new");
        QCOMPARE(node->text, "old");
        document.setLabel(*node, "new");
        QCOMPARE(changed.size(), 1);
        QVERIFY(!model.setData(model.index(0, 0), "other", Qt::DecorationRole));
        QCOMPARE(edited.size(), 1);
    }

    void theModelKeepsQtsRulesUnderRandomEditing() {
        MenuDocument document("/program");
        TreeViewModel model(document);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        Editor editor(document, 20261121);
        for (int i = 0; i < 1500; ++i)
            editor.step();
        QVERIFY(document.tree().size() > 20);
        MenuContent other;
        other.tree.append(nullptr, "x", "x");
        document.open(std::move(other));
        QCOMPARE(model.rowCount(), 1);
        document.NewDocument();
        QCOMPARE(model.rowCount(), 0);
    }

    void theViewShowsTreeAndExpansionUnderRandomEditing() {
        MenuDocument document("/program");
        MenuTreeView view(document);
        view.show();
        Editor editor(document, 42);
        for (int i = 0; i < 400; ++i) {
            editor.step();
            if (i % 20 == 0)
                QCoreApplication::processEvents();
            QCOMPARE(viewText(view), treeText(document.tree()));
        }
    }

    void aDocumentThatIsSwappedInShowsItsExpansion() {
        MenuDocument document("/program");
        MenuTreeView view(document);
        MenuContent other;
        MenuNode* a = other.tree.append(nullptr, "a", "a");
        MenuNode* b = other.tree.append(a, "b", "b");
        other.tree.append(b, "c", "c");
        a->isExpanded = true;
        document.open(std::move(other));
        QCOMPARE(viewText(view), "+a\n  b\n    c\n");
    }

    void expandingInTheViewReachesTheNode() {
        MenuDocument document("/program");
        const MenuNode* a = appendNode(document, nullptr, "a", "a");
        appendNode(document, a, "b", "b");
        MenuTreeView view(document);
        view.show();
        view.setCurrentIndex(view.model()->index(0, 0));
        QTest::keyClick(&view, Qt::Key_Right);
        QVERIFY(a->isExpanded);
        QTest::keyClick(&view, Qt::Key_Left);
        QVERIFY(!a->isExpanded);
    }

    void theSelectionFollowsTheDocument() {
        MenuDocument document("/program");
        const MenuNode* a = appendNode(document, nullptr, "a", "a");
        MenuTreeView view(document);
        QSignalSpy clicked(&view, &MenuTreeView::nodeClicked);
        document.select(a);
        view.showSelection();
        QCOMPARE(view.selectionModel()->selectedIndexes().size(), 1);
        document.select(nullptr);
        view.showSelection();
        QVERIFY(view.selectionModel()->selectedIndexes().isEmpty());
        QVERIFY(clicked.isEmpty());
    }

    void theSelectionCannotBeTakenAwayByHand() {
        MenuDocument document("/program");
        const MenuNode* a = appendNode(document, nullptr, "a", "a");
        MenuTreeView view(document);
        view.show();
        document.select(a);
        view.showSelection();
        const QModelIndex index = view.model()->index(0, 0);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          view.visualRect(index).topLeft() + QPoint(5, 5));
        QVERIFY(view.selectionModel()->isSelected(index));
        QTest::keyClick(&view, Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(view.selectionModel()->isSelected(index));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.viewport()->rect().bottomLeft() - QPoint(-5, 5));
        QVERIFY(view.selectionModel()->isSelected(index));
    }

    void aNodeAThousandLevelsDownScrollsIntoView() {
        MenuDocument document("/program");
        const MenuNode* node = nullptr;
        for (int level = 0; level < 1000; ++level)
            node = appendNode(document, node, std::to_string(level), "Level");
        MenuTreeView view(document);
        view.resize(300, 200);
        view.show();
        document.makeVisible(*node);
        document.select(node);
        view.showSelection();
        QCoreApplication::processEvents();
        const QRect place =
            view.visualRect(static_cast<TreeViewModel*>(view.model())->indexOf(node));
        QVERIFY(view.viewport()->rect().contains(place.topLeft() + QPoint(5, 5)));
        document.select(document.tree().firstNode());
        view.showSelection();
        QCOMPARE(view.horizontalScrollBar()->value(), 0);
    }
};

QTEST_MAIN(test_tree_view_model)
#include "test_tree_view_model.moc"
