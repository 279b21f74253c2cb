// SPDX-License-Identifier: MIT
#include "recovery/document_keeper.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_file_system.h"
#include "tests/recovery/kept_document.h"

namespace zev {
namespace {

using test::drawn;
using test::EditedDocument;

/// A document that is kept on a disk in memory.
struct Desk : EditedDocument {
    explicit Desk(unsigned seed = 1) : EditedDocument(seed) { disk.addFolder("/site"); }

    /// A finished command.
    template <typename Command>
    void run(Command command) {
        step(command);
        EXPECT_FALSE(keeper.keep());
    }
    void add() {
        run([this] { addMenuItem(document); });
    }
    const std::string& journal(const std::string& name) {
        return disk.allFiles().at("/data/recovery/1/" + name);
    }
    std::vector<std::string> journals() {
        std::vector<std::string> names;
        for (const auto& [path, bytes] : disk.allFiles())
            if (path.starts_with("/data/recovery/"))
                names.push_back(path.substr(15));
        return names;
    }

    FakeFileSystem disk;
    FailingFileSystem files{disk};
    std::int64_t now = 1000;
    RecoveryStore store{files, "/data/recovery"};
    DocumentKeeper keeper{document, history, store, [this] { return now; }};
};

using Names = std::vector<std::string>;

TEST(DocumentKeeperTest, EachCommandIsInTheJournalWhenItIsFinished) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        Desk desk(seed);
        for (int i = 0; i < 60; ++i) {
            desk.act();
            ASSERT_FALSE(desk.keeper.keep());
            const Names names = desk.journals();
            if (names.empty()) {
                ASSERT_TRUE(desk.document.tree().isEmpty()) << "seed " << seed << ", step " << i;
                continue;
            }
            std::optional<JournalledMenu> menu;
            for (const std::string& name : names) {
                menu = readJournal(desk.disk.allFiles().at("/data/recovery/" + name));
                ASSERT_TRUE(menu);
                if (!menu->isGivenUp)
                    break;
            }
            if (menu->isGivenUp)
                continue;  // a new menu took the place
            ASSERT_EQ(drawn(*menu), drawn(desk.document)) << "seed " << seed << ", step " << i;
            ASSERT_EQ(menu->unsavedChanges > 0, !desk.history.isSaved()) << "seed " << seed;
        }
    }
}

TEST(DocumentKeeperTest, AnUntouchedNewMenuIsNotWritten) {
    Desk desk;
    EXPECT_FALSE(desk.keeper.keep());
    EXPECT_EQ(desk.journals(), Names{});
    EXPECT_EQ(desk.files.operationCount(), 0U);
}

TEST(DocumentKeeperTest, CountsTheChangesSinceTheLastSave) {
    Desk desk;
    desk.add();
    desk.add();
    EXPECT_EQ(readJournal(desk.journal("1.journal"))->unsavedChanges, 2U);
    desk.now = 2000;
    desk.run([&] { desk.document.markSaved(); });
    EXPECT_EQ(readJournal(desk.journal("1.journal"))->unsavedChanges, 0U);
    EXPECT_EQ(readJournal(desk.journal("1.journal"))->time, 2000);
    desk.add();
    EXPECT_EQ(readJournal(desk.journal("1.journal"))->unsavedChanges, 1U);
    desk.history.undo();
    EXPECT_FALSE(desk.keeper.keep());
    EXPECT_EQ(readJournal(desk.journal("1.journal"))->unsavedChanges, 0U);
}

TEST(DocumentKeeperTest, AReplacedMenuStaysUntilItComesBack) {
    Desk desk;
    desk.add();
    desk.add();
    const std::string old = drawn(desk.document);
    desk.run([&] { desk.document.open(MenuContent(), "/site/other.js", "/site"); });
    ASSERT_EQ(desk.journals(), Names{"1/1.journal"});
    const auto left = readJournal(desk.journal("1.journal"));
    EXPECT_TRUE(left->isGivenUp);
    EXPECT_EQ(left->unsavedChanges, 2U);
    EXPECT_EQ(drawn(*left), old);
    desk.history.undo();
    EXPECT_FALSE(desk.keeper.keep());
    ASSERT_EQ(desk.journals(), Names{"1/2.journal"});
    EXPECT_EQ(drawn(*readJournal(desk.journal("2.journal"))), old);
    EXPECT_EQ(readJournal(desk.journal("2.journal"))->unsavedChanges, 2U);
}

TEST(DocumentKeeperTest, ASavedMenuThatIsReplacedLeavesNothing) {
    Desk desk;
    desk.add();
    desk.run([&] { desk.document.markSaved(); });
    desk.run([&] { desk.document.NewDocument(); });
    EXPECT_EQ(desk.journals(), Names{});
}

TEST(DocumentKeeperTest, LeavingKeepsUnsavedChangesOnly) {
    for (const bool isGivenUp : {false, true}) {
        Desk desk;
        desk.add();
        desk.keeper.leave(isGivenUp);
        EXPECT_EQ(readJournal(desk.journal("1.journal"))->isGivenUp, isGivenUp);
    }
    Desk desk;
    desk.add();
    desk.run([&] { desk.document.markSaved(); });
    desk.keeper.leave(false);
    EXPECT_EQ(desk.journals(), Names{});
    EXPECT_FALSE(desk.disk.isFolder("/data/recovery/1"));
}

TEST(DocumentKeeperTest, AfterAFailureTheNextJournalHasAll) {
    Desk desk;
    desk.disk.addFolder("/data/recovery");
    desk.disk.setWritable("/data/recovery", false);
    desk.step([&] { addMenuItem(desk.document); });
    const FileOutcome error = desk.keeper.keep();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason, "Permission denied");
    desk.disk.setWritable("/data/recovery", true);
    desk.add();
    EXPECT_EQ(drawn(*readJournal(desk.journal("1.journal"))), drawn(desk.document));
    desk.disk.setWritable("/data/recovery/1", false);
    desk.step([&] { addMenuItem(desk.document); });
    ASSERT_TRUE(desk.keeper.keep());
    desk.disk.setWritable("/data/recovery/1", true);
    desk.add();
    EXPECT_EQ(drawn(*readJournal(desk.journal("1.journal"))), drawn(desk.document));
}

TEST(DocumentKeeperTest, ALongJournalIsMadeAnew) {
    Desk desk;
    desk.add();
    std::size_t longest = 0;
    bool hasShrunk = false;
    const std::string text(100'000, 'x');
    for (int i = 0; i < 100; ++i) {
        desk.run([&] {
            test::editItem(desk.document, *desk.document.CurNode())->URL = text + std::to_string(i);
        });
        const std::size_t size = desk.journal("1.journal").size();
        hasShrunk = hasShrunk || size < longest;
        longest = std::max(longest, size);
        ASSERT_EQ(drawn(*readJournal(desk.journal("1.journal"))), drawn(desk.document));
    }
    EXPECT_TRUE(hasShrunk);
    EXPECT_LT(longest, 5'000'000U);
    EXPECT_EQ(readJournal(desk.journal("1.journal"))->unsavedChanges, 101U);
}

}  // namespace
}  // namespace zev
