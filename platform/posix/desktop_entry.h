#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zev {

// Desktop entry files and their command lines, after version 1.5 of the format that
// freedesktop.org gives.

/// The keys of the "[Desktop Entry]" group that starting a program takes.
struct DesktopEntry {
    std::string Exec;     ///< command line, still quoted
    std::string TryExec;  ///< program that must be there; empty for none
    std::string Name;
    std::string Icon;
    bool isHidden = false;    ///< counts as deleted
    bool isTerminal = false;  ///< runs in a terminal window
};

/// Reads a desktop entry file's text. Keys it lacks stay empty.
DesktopEntry parseDesktopEntry(std::string_view text);

/// Takes a command line apart into its arguments, quotes removed. Nothing when a quote is open or
/// there is no argument.
std::optional<std::vector<std::string>> splitCommandLine(std::string_view commandLine);

/// Writes arguments as one command line that `splitCommandLine` takes apart again.
std::string joinCommandLine(const std::vector<std::string>& arguments);

/// The command line of an entry with the codes filled in that belong to the entry itself (%i, %c,
/// %k; `entryPath` is its file) and the obsolete ones dropped. The codes for files and addresses
/// stay. Empty when the entry holds no valid command line.
std::string commandLineOf(const DesktopEntry& entry, const std::string& entryPath);

/// Puts `argument` in the place of %u, %U, %f or %F, or appends it when the command has none of
/// them, and turns %% into %.
std::vector<std::string> fillInArgument(const std::vector<std::string>& command,
                                        const std::string& argument);

}  // namespace zev
