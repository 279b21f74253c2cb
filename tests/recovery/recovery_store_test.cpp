// SPDX-License-Identifier: MIT
#include "recovery/recovery_store.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/posix/posix_file_system.h"
#include "recovery/document_keeper.h"
#include "tests/recovery/kept_document.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_files.h"

namespace zev {
namespace {

using test::contentOf;
using test::drawn;
using test::EditedDocument;
using test::makeFile;
using test::TempFolder;

/// A program that runs, with a document of its own. It is as good as killed when it goes.
struct Program : EditedDocument {
    Program(FileSystem& files, const std::string& folder, std::int64_t time = 1000)
        : store(files, folder), keeper(document, history, store, [time] { return time; }) {}

    void add(const std::string& caption) {
        step([&] {
            addMenuItem(document);
            test::editItem(document, *document.CurNode())->Caption = caption;
        });
        EXPECT_FALSE(keeper.keep());
    }
    RecoveryStore store;
    DocumentKeeper keeper;
};

class RecoveryStoreTest : public testing::Test {
  protected:
    std::vector<UnsavedMenu> unsavedMenus() {
        return RecoveryStore(files, folder / "data/recovery").unsavedMenus();
    }
    /// Leaves an unsaved menu with one item of this caption.
    void crash(const std::string& caption, std::int64_t time) {
        Program one(files, folder / "data/recovery", time);
        one.add(caption);
    }
    void giveUp(const std::string& caption, std::int64_t time) {
        Program one(files, folder / "data/recovery", time);
        one.add(caption);
        one.keeper.leave(true);
    }
    unsigned modeOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    TempFolder folder;
    PosixFileSystem files;
};

TEST_F(RecoveryStoreTest, ThereIsNothingToRestoreAtFirst) {
    EXPECT_TRUE(unsavedMenus().empty());
    EXPECT_FALSE(files.isFolder(folder / "data"));
}

TEST_F(RecoveryStoreTest, WhatAProgramHasLeftIsFound) {
    std::string expected;
    {
        Program one(files, folder / "data/recovery", 1234);
        one.document.setFile("/site/menu.js", "/site");
        one.add("First");
        one.add("Second");
        expected = drawn(one.document);
        EXPECT_TRUE(unsavedMenus().empty()) << "while the program runs it is the program's";
    }
    const std::vector<UnsavedMenu> menus = unsavedMenus();
    ASSERT_EQ(menus.size(), 1U);
    EXPECT_EQ(menus[0].SaveFile, "/site/menu.js");
    EXPECT_EQ(menus[0].changeCount, 2U);
    EXPECT_EQ(menus[0].time, 1234);
    EXPECT_FALSE(menus[0].isGivenUp);
    RecoveryStore store(files, folder / "data/recovery");
    EXPECT_EQ(drawn(*store.read(menus[0].journal)), expected);
    store.discard(menus[0].journal);
    EXPECT_TRUE(unsavedMenus().empty());
    EXPECT_TRUE(std::filesystem::is_empty(folder / "data/recovery"));
}

TEST_F(RecoveryStoreTest, TheFoldersAreTheUsersAlone) {
    Program one(files, folder / "data/recovery");
    one.add("First");
    EXPECT_EQ(modeOf(folder / "data/recovery"), 0700U);
    EXPECT_EQ(modeOf(folder / "data/recovery/1"), 0700U);
    EXPECT_EQ(modeOf(folder / "data/recovery/1/1.journal"), 0600U);
}

TEST_F(RecoveryStoreTest, TwoRunningProgramsDoNotDisturbEachOther) {
    Program one(files, folder / "data/recovery");
    one.add("one");
    std::string left;
    {
        Program other(files, folder / "data/recovery");
        other.add("other");
        left = drawn(other.document);
        for (RecoveryStore* store : {&one.store, &other.store}) {
            EXPECT_TRUE(store->unsavedMenus().empty());
            for (const char* const journal : {"1/1.journal", "2/1.journal"}) {
                EXPECT_FALSE(store->read(folder / "data/recovery/" + journal));
                store->discard(folder / "data/recovery/" + journal);
            }
        }
        one.add("two");
        other.add("more");
        left = drawn(other.document);
    }
    const std::vector<UnsavedMenu> menus = one.store.unsavedMenus();
    ASSERT_EQ(menus.size(), 1U);
    EXPECT_EQ(drawn(*one.store.read(menus[0].journal)), left);
    one.store.discard(menus[0].journal);
    one.add("three");
    EXPECT_EQ(drawn(*readJournal(contentOf(folder / "data/recovery/1/1.journal"))),
              drawn(one.document));
}

TEST_F(RecoveryStoreTest, AFolderThatAnotherProgramRemovedIsMadeAgain) {
    Program one(files, folder / "data/recovery");
    one.add("one");
    one.step([&] { one.document.markSaved(); });
    ASSERT_FALSE(one.keeper.keep());
    one.step([&] { one.document.NewDocument(); });
    ASSERT_FALSE(one.keeper.keep());
    EXPECT_FALSE(files.isFolder(folder / "data/recovery/1"));
    one.add("two");
    EXPECT_TRUE(files.isFolder(folder / "data/recovery/1"));
}

TEST_F(RecoveryStoreTest, NothingIsOfferedThatTheFileHolds) {
    const std::string path = folder / "menu.js";
    {
        Program one(files, folder / "data/recovery");
        one.document.setFile(path, folder.path());
        one.add("First");
        makeFile(path, definitionFileBytes(GenerateScript(one.document.content())));
    }
    EXPECT_TRUE(unsavedMenus().empty());
    EXPECT_TRUE(std::filesystem::is_empty(folder / "data/recovery"));
    {
        Program one(files, folder / "data/recovery");
        one.add("First");
        one.step([&] { deleteItem(one.document); });
        EXPECT_FALSE(one.keeper.keep());
    }
    // One item number is used, but a new menu would be written the same.
    EXPECT_TRUE(unsavedMenus().empty());
}

TEST_F(RecoveryStoreTest, ASavedMenuIsNotOffered) {
    {
        Program one(files, folder / "data/recovery");
        one.document.setFile("/site/menu.js", "/site");
        one.add("First");
        one.step([&] { one.document.markSaved(); });
        EXPECT_FALSE(one.keeper.keep());
    }
    EXPECT_TRUE(unsavedMenus().empty());
}

TEST_F(RecoveryStoreTest, ASpoiledJournalIsNoObstacle) {
    crash("First", 1000);
    const std::string journal = folder / "data/recovery/1/1.journal";
    makeFile(journal, contentOf(journal).substr(0, 40));
    makeFile(folder / "data/recovery/stray", "stray");
    std::filesystem::create_directories(folder / "data/recovery/7/1.journal");
    EXPECT_TRUE(unsavedMenus().empty());
    EXPECT_FALSE(files.FileExists(journal));
    crash("Second", 2000);
    EXPECT_EQ(unsavedMenus().size(), 1U);
}

TEST_F(RecoveryStoreTest, TheLatestComesFirstAndTenAreKept) {
    for (int i = 0; i < 14; ++i)
        giveUp("Item " + std::to_string(i), 1000 + (i * 5) % 14);
    const std::vector<UnsavedMenu> menus = unsavedMenus();
    ASSERT_EQ(menus.size(), 10U);
    for (std::size_t i = 0; i < menus.size(); ++i)
        EXPECT_EQ(menus[i].time, 1013 - std::int64_t(i));
    std::size_t kept = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "data"))
        kept += entry.is_regular_file() ? 1U : 0U;
    EXPECT_EQ(kept, 10U);
}

TEST_F(RecoveryStoreTest, WhereNothingCanBeMadeThereIsAReason) {
    makeFile(folder / "data", "a file");
    RecoveryStore store(files, folder / "data/recovery");
    const auto journal = store.make("bytes");
    ASSERT_FALSE(journal.isOk());
    EXPECT_FALSE(journal.error().reason.empty());
    EXPECT_TRUE(store.unsavedMenus().empty());
}

}  // namespace
}  // namespace zev
