// SPDX-License-Identifier: MIT
#include "cli/command_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <iostream>
#include <system_error>
#include <utility>

#include "messages/definition_messages.h"
#include "messages/import_messages.h"
#include "platform/posix/posix_descriptor.h"
#include "script/script_reader.h"
#include "script/script_writer.h"

namespace zev {

namespace {

constexpr const char* kStandardInput = "standard input";
constexpr const char* kStandardOutput = "standard output";

/// What the shell handed over: standard input, and "/dev/fd/63", which it writes for "<(command)".
/// -1 for any other path.
int handedDescriptor(std::string_view path) {
    constexpr std::string_view kDescriptors = "/dev/fd/";
    if (path == "-" || path == "/dev/stdin")
        return STDIN_FILENO;
    if (!path.starts_with(kDescriptors))
        return -1;
    path.remove_prefix(kDescriptors.size());
    int descriptor = -1;
    const auto [end, problem] = std::from_chars(path.data(), path.data() + path.size(), descriptor);
    return problem == std::errc() && end == path.data() + path.size() ? descriptor : -1;
}

std::string nameOf(const std::string& path) {
    return path == "-" ? kStandardInput : path;
}

std::string pathOfOutput(const std::string& output) {
    return output.empty() || output == "-" ? "/dev/stdout" : output;
}

FileResult<std::string> readHanded(int descriptor, const std::string& path) {
    std::string bytes;
    if (const int error = readAll(descriptor, kMaxDefinitionFileBytes, bytes))
        return fileErrorOf(error, nameOf(path));
    return bytes;
}

}  // namespace

MenuContent& commandContent() {
    static MenuContent* const content = new MenuContent;
    return *content;
}

void printProblem(const std::string& problem) {
    std::cerr << "zevmenu: " << problem << '\n';
}

void printProblem(const FileError& error) {
    printProblem(error.path + ": " + error.reason);
}

bool writeStandardOutput(std::string_view bytes) {
    // A duplicate is closed, for only closing tells of a late failure, as on a network drive.
    PosixDescriptor output(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0));
    int error = output.isOpen() ? writeAll(output.get(), bytes) : errno;
    if (error == 0)
        error = output.close();
    if (error != 0)
        printProblem(fileErrorOf(error, kStandardOutput));
    return error == 0;
}

FileResult<std::string> readInputFile(const FileSystem& files, const std::string& path) {
    const int handed = handedDescriptor(path);
    return handed >= 0 ? readHanded(handed, path) : files.readFile(path, kMaxDefinitionFileBytes);
}

FileResult<std::string> readMenuFile(const FileSystem& files, const std::string& path) {
    FileResult<std::string> bytes = readInputFile(files, path);
    if (bytes.isOk()) {
        if (!isBinary(bytes.value()))
            return bytes;
        return FileError{FileError::Code::Other, nameOf(path), "is not a text file"};
    }
    FileError error = bytes.error();
    if (error.code == FileError::Code::TooLarge)
        error.reason = "larger than 256 MiB, which no menu definition is";
    return error;
}

std::optional<std::string> readDefinitionBytes(const FileSystem& files, const std::string& path) {
    FileResult<std::string> bytes = readMenuFile(files, path);
    if (bytes.isOk())
        return bytes.take();
    printProblem(bytes.error());
    return {};
}

DefinitionInput parseDefinition(std::string bytes, const std::string& path, MenuContent& content) {
    const ReadResult result = ReadScript(std::move(bytes), content);
    if (result.errorCount == 0)
        return {path, ExitStatus::Done, result};
    std::cerr << result.errorCount << " errors encountered during parsing\n";
    if (result.itemsLeftOut > 0)
        printProblem(itemsLeftOutText(path == "-" ? kStandardInput : path, result.itemsLeftOut));
    return {path, ExitStatus::Counted, result};
}

std::optional<DefinitionInput> readDefinition(const FileSystem& files, const std::string& path,
                                              MenuContent& content) {
    std::optional<std::string> bytes = readDefinitionBytes(files, path);
    if (!bytes)
        return {};
    return parseDefinition(std::move(*bytes), path, content);
}

void printLostLines(const DefinitionInput& input) {
    const ReadResult& result = input.result;
    for (const LineWarning& warning : result.warnings)
        std::cerr << nameOf(input.path) << ':' << warning.line << ": " << reasonText(warning.reason)
                  << '\n';
    const std::size_t count = result.errorCount + result.lostLineCount;
    if (count > result.warnings.size())
        std::cerr << nameOf(input.path) << ": " << count - result.warnings.size()
                  << " more like these\n";
    if (result.hasNoMenu)
        printProblem(nameOf(input.path) + ": nothing of a menu was found in it");
}

bool isOwnInput(const FileSystem& files, const std::string& output, const DefinitionInput& input) {
    return files.isSameFile(input.path == "-" ? "/dev/stdin" : input.path, pathOfOutput(output));
}

bool mayReplace(const FileSystem& files, const std::string& output, const DefinitionInput& input) {
    const std::size_t leftOut = input.result.itemsLeftOut;
    if (leftOut == 0 || !isOwnInput(files, output, input))
        return true;
    printProblem(pathOfOutput(output) + ": " + losesItemsText(leftOut));
    return false;
}

bool writeDefinition(FileSystem& files, const std::string& path, const MenuContent& content) {
    const std::string bytes = definitionFileBytes(GenerateScript(content));
    if (path.empty() || path == "-")
        return writeStandardOutput(bytes);
    if (const FileOutcome error = files.writeFile(path, bytes, Links::Followed)) {
        printProblem(*error);
        return false;
    }
    return true;
}

}  // namespace zev
