// SPDX-License-Identifier: MIT
#include "integrator/wizard_memory.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_file_system.h"

namespace zev::test {
namespace {

WizardEntries someEntries() {
    WizardEntries entries;
    entries.pages = {"/site", {"a.htm", "x/new\nline.htm", "\xC3\x84 'b' \"c\".htm"}};
    entries.answers = {false, true,  "/site/js",           "/site/menu.js",
                       true,  "1i2", {false, "10", "-20"}, {"a.js", "count();"},
                       true};
    return entries;
}

std::string definition(std::size_t number) {
    return "/site/menu" + std::to_string(number) + ".js";
}

TEST(WizardMemory, WhatWasEnteredComesBack) {
    FakeFileSystem files;
    EXPECT_FALSE(WizardMemory(files, "/me/wizard").remember("/site/menu.js", someEntries()));
    EXPECT_EQ(WizardMemory(files, "/me/wizard").recall("/site/menu.js"), someEntries());
}

TEST(WizardMemory, EachFieldIsKept) {
    const std::vector<void (*)(WizardEntries&)> changes = {
        [](WizardEntries& entries) { entries.pages.folder = "/other"; },
        [](WizardEntries& entries) { entries.pages.names.clear(); },
        [](WizardEntries& entries) { entries.answers.hasBackups = true; },
        [](WizardEntries& entries) { entries.answers.keepsOtherScripts = false; },
        [](WizardEntries& entries) { entries.answers.library = ""; },
        [](WizardEntries& entries) { entries.answers.definition = "../m.js"; },
        [](WizardEntries& entries) { entries.answers.isPopup = false; },
        [](WizardEntries& entries) { entries.answers.submenuId = ""; },
        [](WizardEntries& entries) { entries.answers.placement.isAtMouse = true; },
        [](WizardEntries& entries) { entries.answers.placement.x = ""; },
        [](WizardEntries& entries) { entries.answers.placement.y = "7"; },
        [](WizardEntries& entries) { entries.answers.keptScripts.clear(); },
        [](WizardEntries& entries) { entries.answers.skipsFailing = false; },
    };
    FakeFileSystem files;
    WizardMemory memory(files, "/me");
    for (std::size_t i = 0; i < changes.size(); ++i) {
        WizardEntries entries = someEntries();
        changes[i](entries);
        ASSERT_NE(entries, someEntries()) << i;
        memory.remember("/m.js", entries);
        EXPECT_EQ(memory.recall("/m.js"), entries) << i;
    }
}

TEST(WizardMemory, EachDefinitionHasItsOwn) {
    FakeFileSystem files;
    WizardMemory memory(files, "/me");
    memory.remember("/a.js", someEntries());
    memory.remember("/b.js", {});
    EXPECT_EQ(memory.recall("/a.js"), someEntries());
    EXPECT_EQ(memory.recall("/b.js"), WizardEntries());
    EXPECT_FALSE(memory.recall("/c.js"));
}

TEST(WizardMemory, OfTooManyDefinitionsTheOldestIsForgotten) {
    FakeFileSystem files;
    WizardMemory memory(files, "/me");
    const std::size_t count = WizardMemory::kMaxDefinitions;
    for (std::size_t i = 0; i < count; ++i)
        memory.remember(definition(i), someEntries());
    memory.remember(definition(0), {});  // now the newest
    const std::size_t fileCount = files.allFiles().size();
    memory.remember(definition(count), someEntries());
    EXPECT_EQ(files.allFiles().size(), fileCount);
    EXPECT_FALSE(memory.recall(definition(1)));
    EXPECT_EQ(memory.recall(definition(0)), WizardEntries());
    for (std::size_t i = 2; i <= count; ++i)
        EXPECT_EQ(memory.recall(definition(i)), someEntries()) << i;
}

TEST(WizardMemory, WithoutAFolderNothingIsKept) {
    FakeFileSystem files;
    WizardMemory memory(files, "");
    EXPECT_FALSE(memory.remember("/m.js", someEntries()));
    EXPECT_FALSE(memory.recall("/m.js"));
    EXPECT_TRUE(files.allFiles().empty());
}

TEST(WizardMemory, AFileThatIsNotItsOwnIsNotTaken) {
    FakeFileSystem files;
    WizardMemory memory(files, "/me");
    memory.remember("/m.js", someEntries());
    for (const auto& [path, bytes] : files.allFiles()) {
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            FakeFileSystem damaged;
            for (const auto& [other, otherBytes] : files.allFiles())
                damaged.addFile(other, other == path ? otherBytes.substr(0, size) : otherBytes);
            const auto recalled = WizardMemory(damaged, "/me").recall("/m.js");
            if (!recalled)
                continue;
            // Cut among the names of the pages, it has fewer of them.
            EXPECT_EQ(recalled->answers, someEntries().answers) << path << ' ' << size;
        }
    }
    files.addFile("/me/entries1", std::string("something else\0/m.js\0", 21));
    EXPECT_FALSE(memory.recall("/m.js"));
}

TEST(WizardMemory, AFailureKeepsTheOthers) {
    FakeFileSystem files;
    WizardMemory(files, "/me").remember("/a.js", someEntries());
    for (std::size_t number = 1; number <= 4; ++number) {
        FailingFileSystem failing(files);
        failing.failOperation(number, {FileError::Code::NoSpace, "", "No space left on device"});
        WizardMemory(failing, "/me").remember("/b.js", {});
        EXPECT_EQ(WizardMemory(files, "/me").recall("/a.js"), someEntries()) << number;
    }
}

}  // namespace
}  // namespace zev::test
