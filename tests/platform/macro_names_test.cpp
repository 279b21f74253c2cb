// SPDX-License-Identifier: MIT
// As after another system's headers.
#define CopyFile CopyFileW
#define DeleteFile DeleteFileW
#define FindExecutable FindExecutableW
#define MessageBox MessageBoxW
#define ShellExecute ShellExecuteW

#include "platform/fake/fake_file_system.h"
#include "platform/message_box.h"
#include "platform/shell.h"

#define TEXT_OF(name) #name
#define EXPANDED(name) TEXT_OF(name)

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(MacroNamesTest, OperationsKeepTheirNamesAfterAnotherSystemsHeaders) {
    EXPECT_STREQ(EXPANDED(CopyFile), "CopyFile");
    EXPECT_STREQ(EXPANDED(DeleteFile), "DeleteFile");
    EXPECT_STREQ(EXPANDED(FindExecutable), "FindExecutable");
    EXPECT_STREQ(EXPANDED(MessageBox), "MessageBox");
    EXPECT_STREQ(EXPANDED(ShellExecute), "ShellExecute");
    FakeFileSystem files;
    files.addFile("/a", "text");
    EXPECT_FALSE(files.CopyFile("/a", "/b", Links::Followed));
    EXPECT_EQ(files.allFiles().at("/b"), "text");
}

}  // namespace
}  // namespace zev
