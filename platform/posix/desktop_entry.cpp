#include "platform/posix/desktop_entry.h"

#include <utility>

namespace zev {

namespace {

std::string_view trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The escapes of every text value of a desktop entry. They come before the quoting rules of a
/// command line, so that a literal backslash in a quoted argument is written with four.
std::string unescapeValue(std::string_view value) {
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        ++i;
        switch (value[i]) {
            case 's':
                text += ' ';
                break;
            case 'n':
                text += '\n';
                break;
            case 't':
                text += '\t';
                break;
            case 'r':
                text += '\r';
                break;
            case '\\':
                text += '\\';
                break;
            default:
                text += '\\';
                text += value[i];
        }
    }
    return text;
}

void assignKey(DesktopEntry& entry, std::string_view key, std::string_view value) {
    if (key == "Exec")
        entry.Exec = unescapeValue(value);
    else if (key == "TryExec")
        entry.TryExec = unescapeValue(value);
    else if (key == "Name")
        entry.Name = unescapeValue(value);
    else if (key == "Icon")
        entry.Icon = unescapeValue(value);
    else if (key == "Hidden")
        entry.isHidden = value == "true";
    else if (key == "Terminal")
        entry.isTerminal = value == "true";
}

/// Text from elsewhere must not be taken for codes later on.
std::string doublePercent(std::string_view text) {
    std::string doubled;
    for (const char c : text)
        doubled.append(c == '%' ? 2 : 1, c);
    return doubled;
}

bool isArgumentCode(char code) {
    return code == 'u' || code == 'U' || code == 'f' || code == 'F';
}

/// Appends one argument of an entry's command line with the entry's own codes filled in.
void appendFilledIn(std::string_view argument, const DesktopEntry& entry,
                    const std::string& entryPath, std::vector<std::string>& command) {
    if (argument == "%i") {
        if (!entry.Icon.empty()) {
            command.push_back("--icon");
            command.push_back(doublePercent(entry.Icon));
        }
        return;
    }
    std::string text;
    bool isCodeAlone = false;
    for (std::size_t i = 0; i < argument.size(); ++i) {
        if (argument[i] != '%' || i + 1 == argument.size()) {
            text += argument[i];
            continue;
        }
        const char code = argument[++i];
        if (code == 'c')
            text += doublePercent(entry.Name);
        else if (code == 'k')
            text += doublePercent(entryPath);
        else if (code == '%' || isArgumentCode(code))
            text.append({'%', code});
        else
            isCodeAlone = argument.size() == 2;
    }
    if (!isCodeAlone)
        command.push_back(text);
}

}  // namespace

DesktopEntry parseDesktopEntry(std::string_view text) {
    DesktopEntry entry;
    bool isInGroup = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = trim(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (line.starts_with('['))
            isInGroup = line == "[Desktop Entry]";
        const std::size_t separator = line.find('=');
        if (isInGroup && separator != std::string_view::npos && !line.starts_with('#'))
            assignKey(entry, trim(line.substr(0, separator)), trim(line.substr(separator + 1)));
    }
    return entry;
}

std::optional<std::vector<std::string>> splitCommandLine(std::string_view commandLine) {
    std::vector<std::string> arguments;
    bool isInArgument = false;
    bool isQuoted = false;
    for (std::size_t i = 0; i < commandLine.size(); ++i) {
        const char c = commandLine[i];
        if (!isQuoted && (c == ' ' || c == '\t' || c == '\n')) {
            isInArgument = false;
            continue;
        }
        if (!isInArgument)
            arguments.emplace_back();
        isInArgument = true;
        if (c == '"') {
            isQuoted = !isQuoted;
        } else if (isQuoted && c == '\\') {
            if (++i == commandLine.size())
                return {};
            arguments.back() += commandLine[i];
        } else {
            arguments.back() += c;
        }
    }
    if (isQuoted || arguments.empty())
        return {};
    return arguments;
}

std::string joinCommandLine(const std::vector<std::string>& arguments) {
    constexpr std::string_view kReserved = " \t\n\"'\\><~|&;$*?#()`";
    constexpr std::string_view kEscaped = "\"`$\\";
    std::string commandLine;
    for (const std::string& argument : arguments) {
        if (!commandLine.empty())
            commandLine += ' ';
        if (!argument.empty() && argument.find_first_of(kReserved) == std::string::npos) {
            commandLine += argument;
            continue;
        }
        commandLine += '"';
        for (const char c : argument) {
            if (kEscaped.find(c) != std::string_view::npos)
                commandLine += '\\';
            commandLine += c;
        }
        commandLine += '"';
    }
    return commandLine;
}

std::string commandLineOf(const DesktopEntry& entry, const std::string& entryPath) {
    const auto arguments = splitCommandLine(entry.Exec);
    if (!arguments)
        return {};
    std::vector<std::string> command;
    for (const std::string& argument : *arguments)
        appendFilledIn(argument, entry, entryPath, command);
    return joinCommandLine(command);
}

std::vector<std::string> fillInArgument(const std::vector<std::string>& command,
                                        const std::string& argument) {
    std::vector<std::string> filledIn;
    bool isFilledIn = false;
    for (const std::string& part : command) {
        std::string text;
        for (std::size_t i = 0; i < part.size(); ++i) {
            if (part[i] != '%' || i + 1 == part.size()) {
                text += part[i];
            } else if (isArgumentCode(part[++i])) {
                text += argument;
                isFilledIn = true;
            } else if (part[i] == '%') {
                text += '%';
            }
        }
        filledIn.push_back(text);
    }
    if (!isFilledIn)
        filledIn.push_back(argument);
    return filledIn;
}

}  // namespace zev
