// SPDX-License-Identifier: MIT
#include "model/document_history.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "model/tree_editing.h"
#include "tests/model/random_changes.h"
#include "tests/model/tree_text.h"

namespace zev {
namespace {

using test::ChangeMaker;
using test::DocumentState;

bool isSilent(const Change& change) {
    return std::holds_alternative<SetSelection>(change) ||
           std::holds_alternative<SetExpanded>(change) || std::holds_alternative<SetLabel>(change);
}

/// A history with what it must give back: the document before and after each step.
class CheckedHistory {
  public:
    explicit CheckedHistory(unsigned seed) : m_maker(m_document, seed) {}

    void run(int count) {
        for (int i = 0; i < count && !testing::Test::HasFatalFailure(); ++i)
            act();
    }

  private:
    struct Step {
        DocumentState before;
        DocumentState after;
    };

    void act() {
        switch (m_maker.below(8)) {
            case 0:
            case 1:
                return undo();
            case 2:
                return redo();
            case 3:
                m_document.markSaved();
                m_saved = m_position;
                m_isSaved = true;
                return;
            case 4:
                return look();
            default:
                return command();
        }
    }

    /// Something that is no content, outside of any step.
    void look() {
        Change change = m_maker.next();
        if (isSilent(change))
            m_document.change(std::move(change));
    }

    void command() {
        DocumentState before(m_document);
        m_history.begin();
        for (std::size_t changes = 1 + m_maker.below(3); changes > 0; --changes) {
            Change change = m_maker.next();
            if (!std::holds_alternative<SetModified>(change))
                m_document.change(std::move(change));
        }
        if (!m_history.end("step " + std::to_string(m_steps.size())))
            return;
        if (m_saved > m_position)
            m_isSaved = false;
        m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(m_position), m_steps.end());
        m_steps.push_back({std::move(before), DocumentState(m_document)});
        m_position = m_steps.size();
    }

    void undo() {
        ASSERT_EQ(m_history.undoName() == nullptr, m_position == 0);
        if (m_position == 0)
            return;
        m_history.undo();
        --m_position;
        expect(m_steps[m_position].before);
    }

    void redo() {
        ASSERT_EQ(m_history.redoName() == nullptr, m_position == m_steps.size());
        if (m_position == m_steps.size())
            return;
        m_history.redo();
        ++m_position;
        expect(m_steps[m_position - 1].after);
    }

    void expect(DocumentState expected) {
        expected.bModified = !m_isSaved || m_saved != m_position;
        ASSERT_EQ(m_document.bModified(), expected.bModified);
        ASSERT_TRUE(DocumentState(m_document) == expected)
            << test::TreeTextWithKeys(m_document.tree());
        test::ExpectSoundTree(m_document.tree());
    }

    MenuDocument m_document{"/program"};
    DocumentHistory m_history{m_document};
    ChangeMaker m_maker;
    std::vector<Step> m_steps;
    std::size_t m_position = 0;
    std::size_t m_saved = 0;
    bool m_isSaved = true;
};

TEST(DocumentHistoryTest, EveryUndoAndRedoGivesTheExactDocumentBack) {
    for (unsigned seed = 0; seed < 1000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        CheckedHistory(seed).run(60);
        if (HasFatalFailure())
            return;
    }
}

TEST(DocumentHistoryTest, AThousandStepsAreTakenBackAndMadeAgain) {
    CheckedHistory checked(1);
    checked.run(9000);
    MenuDocument document("/program");
    DocumentHistory history(document);
    for (int step = 0; step < 1000; ++step) {
        history.begin();
        addMenuItem(document);
        ASSERT_TRUE(history.end("Add"));
    }
    const DocumentState full(document);
    while (history.undoName())
        history.undo();
    EXPECT_TRUE(document.tree().isEmpty());
    EXPECT_EQ(document.ItemCounter(), 0);
    EXPECT_FALSE(document.bModified());
    while (history.redoName())
        history.redo();
    EXPECT_TRUE(DocumentState(document) == full);
}

class EditedHistoryTest : public testing::Test {
  protected:
    bool step(const std::string& name, const std::function<void()>& work) {
        history.begin();
        work();
        return history.end(name);
    }
    bool addItem() {
        return step(
            "Add Menu Item", [this] { addMenuItem(document); });
    }
    std::string tree() { return test::TreeText(document.tree()); }

    MenuDocument document{"/program"};
    DocumentHistory history{document};
};

TEST_F(EditedHistoryTest, ACommandWithoutAChangeIsNoStepAndKeepsWhatCanBeRedone) {
    addItem();
    history.undo();
    EXPECT_FALSE(step(
        "Move Up", [this] { moveUp(document); }));
    EXPECT_FALSE(step("New", [this] { document.NewDocument(); }));
    EXPECT_EQ(history.undoName(), nullptr);
    ASSERT_NE(history.redoName(), nullptr);
    EXPECT_EQ(*history.redoName(), "Add Menu Item");
}

TEST_F(EditedHistoryTest, SelectingAndFoldingAreNoStepsAndComeBackWithTheStepsAroundThem) {
    addItem();
    addItem();
    const MenuNode* const first = document.tree().firstNode();
    document.select(first);
    document.setExpanded(*first, true);
    step("Delete", [this] { deleteItem(document); });
    document.setExpanded(*document.tree().firstNode(), true);
    history.undo();
    EXPECT_EQ(document.selectedNode(), first);
    EXPECT_TRUE(first->isExpanded);
    history.undo();
    EXPECT_FALSE(first->isExpanded);
    EXPECT_EQ(document.selectedNode(), first);
    EXPECT_EQ(tree(), "Item 0\n");
}

TEST_F(EditedHistoryTest, OpenAndNewBringTheReplacedDocumentBackWithItsFileAndItsMark) {
    addItem();
    document.setFile("/site/menu.js", "/site");
    document.markSaved();
    step(
        "Open", [this] { document.open(MenuContent(), "/other/menu.js", "/other"); });
    step("New", [this] { document.NewDocument(); });
    EXPECT_EQ(document.SaveFile(), "");
    history.undo();
    EXPECT_EQ(document.SaveFile(), "/other/menu.js");
    EXPECT_FALSE(document.bModified());
    history.undo();
    EXPECT_EQ(document.SaveFile(), "/site/menu.js");
    EXPECT_EQ(document.SavePath(), "/site");
    EXPECT_EQ(tree(), "Item 0\n");
    EXPECT_FALSE(document.bModified());
    history.undo();
    EXPECT_TRUE(document.bModified()) << "the file has the item";
    EXPECT_EQ(document.SaveFile(), "/site/menu.js") << "a save is no step";
    history.redo();
    EXPECT_FALSE(document.bModified());
}

TEST_F(EditedHistoryTest, ASaveWithRecalculatedAddressesKeepsTheFileWhenTheAddressesComeBack) {
    addItem();
    step("Recalculate URLs", [this] {
        const MenuNode& node = *document.tree().firstNode();
        ItemProp item = node.item;
        item.URL = "../page.html";
        Changes back;
        back.push_back(document.apply(SetItem{&node, std::move(item)}));
        document.setFile("/site/js/menu.js", "/site/js");
        document.record(std::move(back));
        document.markSaved();
    });
    history.undo();
    EXPECT_EQ(document.tree().firstNode()->item.URL, "");
    EXPECT_EQ(document.SaveFile(), "/site/js/menu.js");
    EXPECT_TRUE(document.bModified());
    history.redo();
    EXPECT_FALSE(document.bModified());
}

TEST_F(EditedHistoryTest, AClearedMarkAloneDoesNotMakeTheDocumentTheOneThatIsSaved) {
    addItem();
    document.clearModified();
    addItem();
    history.undo();
    EXPECT_TRUE(document.bModified());
}

TEST_F(EditedHistoryTest, OnlyTheNewestStepsAreKept) {
    for (std::size_t count = 0; count < DocumentHistory::kMaxSteps + 5; ++count)
        addItem();
    std::size_t steps = 0;
    for (; history.undoName(); ++steps)
        history.undo();
    EXPECT_EQ(steps, DocumentHistory::kMaxSteps);
    EXPECT_EQ(document.tree().size(), 5U);
}

}  // namespace
}  // namespace zev
