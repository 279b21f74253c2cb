#include "platform/posix/desktop_entry.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

using Words = std::vector<std::string>;

TEST(DesktopEntryTest, ReadsTheMainGroupOnly) {
    const DesktopEntry entry = parseDesktopEntry(
        "# Exec=comment\n"
        "[Desktop Entry]\r\n"
        "Name=Web Browser\n"
        "Name[de]=Netzgucker\n"
        "Exec = browser %u\n"
        "TryExec=browser\n"
        "Icon=globe\n"
        "Terminal=true\n"
        "[Desktop Action new-window]\n"
        "Exec=browser --new-window\n");
    EXPECT_EQ(entry.Exec, "browser %u");
    EXPECT_EQ(entry.Name, "Web Browser");
    EXPECT_EQ(entry.TryExec, "browser");
    EXPECT_EQ(entry.Icon, "globe");
    EXPECT_TRUE(entry.isTerminal);
    EXPECT_FALSE(entry.isHidden);
}

TEST(DesktopEntryTest, UndoesTheEscapesOfAValue) {
    EXPECT_EQ(parseDesktopEntry("[Desktop Entry]\nName=a\\sb\\tc\\nd\\\\e\\xf").Name,
              "a b\tc\nd\\e\\xf");
}

TEST(CommandLineTest, IsTakenApartByTheQuotingRules) {
    struct Case {
        const char* commandLine;
        Words words;
    };
    const Case cases[] = {
        {"firefox %u", {"firefox", "%u"}},
        {"  a   b  ", {"a", "b"}},
        {R"("/opt/My Browser/run" %U)", {"/opt/My Browser/run", "%U"}},
        {R"(sh -c "echo \"hi\" \$HOME \\ \`x\`")", {"sh", "-c", R"(echo "hi" $HOME \ `x`)"}},
        {R"(a "" b)", {"a", "", "b"}},
        {R"(env A="b c" d)", {"env", "A=b c", "d"}},
    };
    for (const Case& c : cases) {
        const auto words = splitCommandLine(c.commandLine);
        ASSERT_TRUE(words) << c.commandLine;
        EXPECT_EQ(*words, c.words) << c.commandLine;
    }
}

TEST(CommandLineTest, WithAnOpenQuoteOrNothingInItIsInvalid) {
    for (const char* const text : {"", "   ", "\"open", "a \"b\\"})
        EXPECT_FALSE(splitCommandLine(text)) << text;
}

TEST(CommandLineTest, JoinedAndTakenApartAgainIsTheSame) {
    const Words words{"a b", "", "\"", "\\", "$HOME", "`x`", "plain", "%u", "tab\there", "'"};
    EXPECT_EQ(splitCommandLine(joinCommandLine(words)), words);
}

TEST(CommandLineTest, OfAnEntryHasTheEntrysOwnCodesFilledIn) {
    DesktopEntry entry;
    entry.Name = "100% Browser";
    entry.Icon = "globe";
    struct Case {
        const char* exec;
        Words words;
    };
    const Case cases[] = {
        {"b %i %u", {"b", "--icon", "globe", "%u"}},
        {"b --title %c %k", {"b", "--title", "100%% Browser", "/apps/b.desktop"}},
        {"b %d %D %n %N %v %m %U", {"b", "%U"}},
        {"b 100%% %f", {"b", "100%%", "%f"}},
        {"env MODE=web b --url=%u", {"env", "MODE=web", "b", "--url=%u"}},
    };
    for (const Case& c : cases) {
        entry.Exec = c.exec;
        EXPECT_EQ(splitCommandLine(commandLineOf(entry, "/apps/b.desktop")), c.words) << c.exec;
    }
    entry.Icon.clear();
    entry.Exec = "b %i %u";
    EXPECT_EQ(commandLineOf(entry, ""), "b %u");
    entry.Exec = "b \"open";
    EXPECT_EQ(commandLineOf(entry, ""), "");
}

TEST(CommandLineTest, TakesTheArgumentInPlaceOfItsCodeOrAtTheEnd) {
    struct Case {
        Words command;
        Words filledIn;
    };
    const std::string address = "http://a.b/?q=%20%u&x=\"y z\"";
    const Case cases[] = {
        {{"b", "%u"}, {"b", address}},
        {{"b", "%U", "--end"}, {"b", address, "--end"}},
        {{"b", "%f"}, {"b", address}},
        {{"b", "%F"}, {"b", address}},
        {{"flatpak", "run", "@@u", "%u", "@@"}, {"flatpak", "run", "@@u", address, "@@"}},
        {{"b", "--url=%u"}, {"b", "--url=" + address}},
        {{"b", "100%%"}, {"b", "100%", address}},
        {{"b"}, {"b", address}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(fillInArgument(c.command, address), c.filledIn) << c.command.back();
}

}  // namespace
}  // namespace zev
