// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/menu_content.h"
#include "platform/file_system.h"
#include "script/script_reader.h"

namespace zev {

/// Exit status of every command.
enum class ExitStatus {
    Done = 0,
    Counted = 1,  ///< done, with counted errors or warnings; the output is written all the same
    WrongUse = 2,
    FileProblem = 3  ///< a file could not be read or written
};

/// The one menu of this process, new when its command begins. It is never taken apart: node by
/// node that takes a large part of a command's time, and the system gets the memory back anyway.
MenuContent& commandContent();

/// Prints one line on standard error, after the program's name.
void printProblem(const std::string& problem);

/// Prints a file's name and what is wrong with it.
void printProblem(const FileError& error);

/// Writes to standard output. False, with the problem printed, when not all of it could be written.
bool writeStandardOutput(std::string_view bytes);

/// The bytes of the file `path` ("-": standard input), of at most the size of a definition. Pipes
/// are read only by the names that a shell gives what it hands over, as by `readMenuFile`.
FileResult<std::string> readInputFile(const FileSystem& files, const std::string& path);

/// The bytes of the text file `path` ("-": standard input). Pipes are read only by the names that a
/// shell gives what it hands over, "/dev/stdin" and "/dev/fd/63". The error may also be that no
/// menu is in it: it is not text, or too large.
FileResult<std::string> readMenuFile(const FileSystem& files, const std::string& path);

/// The definition that a command has read.
struct DefinitionInput {
    std::string path;                      ///< "-": standard input
    ExitStatus status = ExitStatus::Done;  ///< or Counted
    ReadResult result;

    /// True when lines of a menu were not understood, or nothing of a menu was found.
    bool hasLostLines() const { return result.lostLineCount > 0 || result.hasNoMenu; }
};

/// The same with the problem printed when there is none.
std::optional<std::string> readDefinitionBytes(const FileSystem& files, const std::string& path);

/// Reads `bytes`, those of the definition `path`, into a new menu and prints the number of errors
/// in it, and of items left out.
DefinitionInput parseDefinition(std::string bytes, const std::string& path, MenuContent& content);

/// Reads the definition `path` ("-": standard input) into a new menu and prints the number of
/// errors in it, and of items left out. Nothing, with the problem printed, when it cannot be read.
std::optional<DefinitionInput> readDefinition(const FileSystem& files, const std::string& path,
                                              MenuContent& content);

/// Prints, on standard error, each line that was not understood or was an error, with its reason.
void printLostLines(const DefinitionInput& input);

/// True when `output` ("-" or empty: standard output) is the file that was read.
bool isOwnInput(const FileSystem& files, const std::string& output, const DefinitionInput& input);

/// True when the menu may be written to `output` ("-" or empty: standard output). False, with the
/// problem printed, when that is the file that was read, which would lose the items left out.
bool mayReplace(const FileSystem& files, const std::string& output, const DefinitionInput& input);

/// Writes the menu as definition file `path`; "-" and an empty path are standard output. False,
/// with the problem printed, when it cannot be written.
bool writeDefinition(FileSystem& files, const std::string& path, const MenuContent& content);

}  // namespace zev
