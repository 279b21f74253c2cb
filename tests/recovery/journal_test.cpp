// SPDX-License-Identifier: MIT
#include "recovery/journal.h"

#include <gtest/gtest.h>

#include <random>

#include "model/menu_properties.h"
#include "platform/fake/fake_file_system.h"
#include "recovery/change_log.h"
#include "recovery/document_keeper.h"
#include "tests/recovery/kept_document.h"

namespace zev {
namespace {

using test::drawn;
using test::EditedDocument;

/// A journal, and what it must give after each of its records.
struct Sample {
    explicit Sample(unsigned seed) {
        EditedDocument edited(seed);
        FakeFileSystem disk;
        RecoveryStore store(disk, "/recovery");
        DocumentKeeper keeper(
            edited.document, edited.history, store, [] { return 7; });
        edited.step([&] { addMenuItem(edited.document); });
        for (int i = 0; i < 25; ++i) {
            EXPECT_FALSE(keeper.keep());
            if (!disk.allFiles().contains("/recovery/1/1.journal"))
                break;
            const std::string& now = disk.allFiles().at("/recovery/1/1.journal");
            if (!now.starts_with(bytes))
                break;  // made anew
            if (readJournal(now)->isGivenUp)
                break;  // another menu came
            bytes = now;
            if (ends.empty() || ends.back() != bytes.size()) {
                ends.push_back(bytes.size());
                states.push_back(drawn(edited.document));
            }
            edited.act();
        }
    }
    /// What the first `size` bytes tell; empty: nothing.
    std::string stateAt(std::size_t size) const {
        std::string state;
        for (std::size_t i = 0; i < ends.size() && ends[i] <= size; ++i)
            state = states[i];
        return state;
    }

    std::string bytes;
    std::vector<std::size_t> ends;
    std::vector<std::string> states;
};

std::string drawnOf(std::string_view bytes) {
    const std::optional<JournalledMenu> menu = readJournal(bytes);
    return menu ? drawn(*menu) : std::string();
}

TEST(JournalTest, CutAnywhereItGivesTheLastFinishedCommand) {
    std::size_t records = 0;
    for (unsigned seed = 1; seed <= 4; ++seed) {
        const Sample sample(seed);
        records += sample.ends.size();
        for (std::size_t size = 0; size <= sample.bytes.size(); ++size)
            ASSERT_EQ(drawnOf(std::string_view(sample.bytes).substr(0, size)), sample.stateAt(size))
                << "seed " << seed << ", " << size << " bytes";
    }
    EXPECT_GT(records, 40U);
}

TEST(JournalTest, WhatIsBehindASpoiledByteCountsAsNeverWritten) {
    for (unsigned seed = 1; seed <= 2; ++seed) {
        const Sample sample(seed);
        for (std::size_t place = 0; place < sample.bytes.size(); ++place) {
            std::string spoiled = sample.bytes;
            spoiled[place] = static_cast<char>(spoiled[place] ^ (1 << (place % 8)));
            const std::string expected =
                place < kJournalHead.size() ? std::string() : sample.stateAt(place);
            ASSERT_EQ(drawnOf(spoiled), expected) << "seed " << seed << ", byte " << place;
        }
    }
}

TEST(JournalTest, NoBytesAtAllDoHarm) {
    const Sample sample(3);
    std::mt19937 random(1);
    for (int i = 0; i < 3000; ++i) {
        std::string entries;
        for (auto count = random() % 60; count > 0; --count)
            entries += static_cast<char>(random() % (count % 3 == 0 ? 256 : 14));
        // With a right hash, so that the entries themselves are looked at.
        readJournal(std::string(kJournalHead) + journalRecord(entries));
        const auto menu = readJournal(sample.bytes + journalRecord(entries));
        ASSERT_TRUE(menu);
    }
    EXPECT_FALSE(readJournal(""));
    EXPECT_FALSE(readJournal(kJournalHead));
    EXPECT_FALSE(readJournal(std::string(kJournalHead) + journalRecord("")));
}

TEST(JournalTest, AMenuOfThousandsOfLevelsComesBack) {
    MenuDocument document("/program");
    const MenuNode* parent = nullptr;
    for (int level = 0; level < 20'000; ++level)
        parent = test::appendNode(document, parent, "K" + std::to_string(level), "x");
    RecordWriter entries;
    ChangeLog::writeContent(entries, document);
    const auto menu = readJournal(std::string(kJournalHead) + journalRecord(entries.bytes()));
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->content.tree.size(), 20'000U);
    EXPECT_EQ(menu->content.tree.find("K19999")->parent()->key(), "K19998");
}

TEST(JournalTest, EveryPropertyComesBack) {
    MenuDocument document("/program");
    MenuProp all;
    int value = 0;
    for (const MenuPropertyRow& row : kMenuProperties)
        std::visit(
            [&](const auto& member) {
                using Member = std::decay_t<decltype(member)>;
                if constexpr (std::is_same_v<Member, TextMember>)
                    all.*member.member = "value " + std::to_string(++value);
                else if constexpr (std::is_same_v<Member, FlagMember>)
                    all.*member.member = true;
                else
                    all.*member.member = 3;
            },
            row.member);
    all.FontSet = true;
    document.setMenu(test::kTopMenu, all);
    document.setMenu(test::kDefaults, MenuProp());
    const MenuNode* const node = test::appendNode(document, nullptr, "K", "text");
    document.setMenu({MenuPropOwner::Kind::Submenu, node}, all);
    RecordWriter entries;
    ChangeLog::writeContent(entries, document);
    const auto menu = readJournal(std::string(kJournalHead) + journalRecord(entries.bytes()));
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->content.RootMenuProp, all);
    EXPECT_EQ(menu->content.DefaultProp, MenuProp());
    EXPECT_EQ(*menu->content.tree.firstNode()->item.MenuProperty, all);
}

}  // namespace
}  // namespace zev
