// SPDX-License-Identifier: MIT
// Writes how a shell completes "zevmenu", from what its commands say of themselves:
//
//     zev_write_completion bash|fish|zsh FILE
//
// Exit status: 0 done, 1 FILE could not be written, 2 wrong use.

#include <CLI/CLI.hpp>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "importers/import_menu.h"
#include "platform/posix/posix_file_system.h"

namespace {

/// What may stand behind an option, or as an argument of a command.
enum class Value { None, Text, File, Folder, Words };

struct Option {
    std::string longName;   ///< "--output"
    std::string shortName;  ///< "-o", or empty
    std::string valueName;
    std::string description;
    Value value = Value::None;
    std::string words;  ///< of Value::Words, with a blank between them
};

struct Command {
    std::string name;
    std::string description;
    std::vector<Option> options;
    Option argument;  ///< what its positional arguments are; Text when it has none
};

std::string importFormatWords() {
    std::string words;
    for (const zev::ImportFormat& format : zev::importFormats())
        words.append(words.empty() ? "" : " ").append(format.name);
    return words;
}

/// By the name that a value has in the help.
Value kindOfValue(const std::string& name) {
    static const std::map<std::string, Value> kinds = {
        {"DIR", Value::Folder},   {"OLDDIR", Value::Folder}, {"NEWDIR", Value::Folder},
        {"FORMAT", Value::Words}, {"FILE", Value::File},     {"OUT", Value::File},
        {"IN", Value::File},      {"OLD", Value::File},      {"NEW", Value::File},
        {"PAGE", Value::File}};
    const auto kind = kinds.find(name);
    return kind == kinds.end() ? Value::Text : kind->second;
}

Option optionOf(const CLI::Option& described) {
    Option option;
    if (!described.get_lnames().empty())
        option.longName = "--" + described.get_lnames().front();
    if (!described.get_snames().empty())
        option.shortName = "-" + described.get_snames().front();
    option.description = described.get_description();
    if (described.get_items_expected_max() == 0)
        return option;
    option.valueName =
        described.get_positional() ? described.get_name() : described.get_type_name();
    option.value = kindOfValue(option.valueName);
    if (option.value == Value::Words)
        option.words = importFormatWords();
    return option;
}

/// The argument of a command is its last kind: "publish IN DIR" completes folders behind files,
/// which lie in folders too.
Command commandOf(const CLI::App& described) {
    Command command{described.get_name(), described.get_description(), {}, {}};
    command.argument.value = Value::Text;
    for (const CLI::Option* option : described.get_options())
        if (!option->get_positional())
            command.options.push_back(optionOf(*option));
        else if (command.argument.value != Value::File)
            command.argument = optionOf(*option);
    return command;
}

/// The program itself, nameless, and its commands.
std::vector<Command> describedCommands() {
    zev::PosixFileSystem files;
    zev::ExitStatus status = zev::ExitStatus::Done;
    CLI::App program;
    zev::addCommands(program, files, status, [](const std::string&) { return true; });
    std::vector<Command> commands{commandOf(program)};
    commands.front().name.clear();
    const CLI::App& described = program;
    for (const CLI::App* command : described.get_subcommands([](const CLI::App*) { return true; }))
        commands.push_back(commandOf(*command));
    std::string names;
    for (const Command& command : commands)
        names.append(names.empty() ? "" : " ").append(command.name);
    for (Command& command : commands)
        if (command.name.empty() || command.name == "help") {
            command.argument.value = Value::Words;
            command.argument.words = names;
        }
    return commands;
}

/// `text` with `escape` before each of the `special` characters, in single quotes.
std::string inQuotes(const std::string& text, const std::string& special = "") {
    std::string result = "'";
    for (const char c : text)
        if (c == '\'')
            result += "'\\''";
        else
            result.append(special.find(c) == std::string::npos ? "" : "\\").append(1, c);
    return result + "'";
}

std::string bashValue(const Option& option) {
    switch (option.value) {
        case Value::Folder:
            return "compopt -o dirnames";
        case Value::File:
            return "compopt -o default";
        case Value::Words:
            return "COMPREPLY=($(compgen -W " + inQuotes(option.words) + " -- \"$word\"))";
        default:
            return ":";
    }
}

void writeBash(std::ostream& out, const std::vector<Command>& commands) {
    out << "# bash completion of zevmenu. Written by the build.\n"
           "_zevmenu() {\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}\n"
           "    local command= options=\n"
           "    COMPREPLY=()\n"
           "    ((COMP_CWORD > 1)) && [[ ${COMP_WORDS[1]} != -* ]] && command=${COMP_WORDS[1]}\n"
           "    case $command:$previous in\n";
    for (const Command& command : commands)
        for (const Option& option : command.options)
            if (option.value != Value::None) {
                const std::string names =
                    command.name + ":" + option.longName +
                    (option.shortName.empty() ? "" : "|" + command.name + ":" + option.shortName);
                out << "        " << names << ") " << bashValue(option) << "; return ;;\n";
            }
    out << "    esac\n"
           "    case $command in\n";
    for (const Command& command : commands) {
        out << "        " << (command.name.empty() ? "''" : command.name)
            << ")\n            options='";
        for (const Option& option : command.options)
            out << (&option == &command.options.front() ? "" : " ") << option.longName;
        out << "'\n            [[ $word == -* ]] || " << bashValue(command.argument) << " ;;\n";
    }
    out << "    esac\n"
           "    [[ $word != -* ]] || COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
           "}\n"
           "complete -F _zevmenu zevmenu\n";
}

std::string fishValue(const Option& option) {
    switch (option.value) {
        case Value::None:
            return "";
        case Value::File:
            return " -r -F";
        case Value::Folder:
            return " -x -a '(__fish_complete_directories)'";
        case Value::Words:
            return " -x -a " + inQuotes(option.words);
        default:
            return " -x";
    }
}

void writeFish(std::ostream& out, const std::vector<Command>& commands) {
    out << "# fish completion of zevmenu. Written by the build.\n";
    for (const Command& command : commands) {
        const std::string condition = command.name.empty()
                                          ? "__fish_use_subcommand"
                                          : "'__fish_seen_subcommand_from " + command.name + "'";
        const std::string start = "complete -c zevmenu -n " + condition;
        if (!command.name.empty())
            out << "complete -c zevmenu -n __fish_use_subcommand -f -a " << command.name << " -d "
                << inQuotes(command.description) << '\n';
        if (command.name == "help")
            out << start << " -f -a " << inQuotes(command.argument.words) << '\n';
        else if (command.argument.value == Value::Text)
            out << start << " -f\n";
        for (const Option& option : command.options) {
            out << start;
            if (!option.shortName.empty())
                out << " -s " << option.shortName.substr(1);
            out << " -l " << option.longName.substr(2) << fishValue(option) << " -d "
                << inQuotes(option.description) << '\n';
        }
    }
}

std::string zshValue(const Option& option) {
    switch (option.value) {
        case Value::None:
            return "";
        case Value::File:
            return ":" + option.valueName + ":_files";
        case Value::Folder:
            return ":" + option.valueName + ":_files -/";
        case Value::Words:
            return ":" + option.valueName + ":(" + option.words + ")";
        default:
            return ":" + option.valueName + ": ";
    }
}

/// One line of what the function _arguments is told.
std::string zshOption(const Option& option) {
    const std::string& names = option.longName;
    std::string text = "[";
    for (const char c : option.description)
        text.append(c == '[' || c == ']' || c == ':' ? "\\" : "").append(1, c);
    text += "]" + zshValue(option);
    if (option.shortName.empty())
        return inQuotes(names + text);
    return "'(" + option.shortName + " " + names + ")'{" + option.shortName + "," + names + "}" +
           inQuotes(text);
}

void writeZsh(std::ostream& out, const std::vector<Command>& commands) {
    out << "#compdef zevmenu\n"
           "# zsh completion of zevmenu. Written by the build.\n"
           "_zevmenu() {\n"
           "    local -a commands=(\n";
    for (const Command& command : commands)
        if (!command.name.empty())
            out << "        " << inQuotes(command.name + ":" + command.description) << '\n';
    out << "    )\n"
           "    if (( CURRENT > 2 )) && [[ $words[2] != -* ]]; then\n"
           "        shift words\n"
           "        (( CURRENT-- ))\n"
           "    fi\n"
           "    case $words[1] in\n";
    for (const Command& command : commands) {
        out << "        " << (command.name.empty() ? "*zevmenu" : command.name)
            << ")\n            _arguments";
        for (const Option& option : command.options)
            out << " \\\n                " << zshOption(option);
        if (command.name.empty())
            out << " \\\n                '1:command:{_describe command commands}'";
        else if (command.argument.value != Value::Text)
            out << " \\\n                " << inQuotes("*" + zshValue(command.argument));
        out << " ;;\n";
    }
    out << "    esac\n"
           "}\n"
           "_zevmenu \"$@\"\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::map<std::string, std::function<void(std::ostream&, const std::vector<Command>&)>>
        writers = {{"bash", writeBash}, {"fish", writeFish}, {"zsh", writeZsh}};
    const auto writer = argumentCount == 3 ? writers.find(arguments[1]) : writers.end();
    if (writer == writers.end())
        return 2;
    std::ofstream file(arguments[2]);
    writer->second(file, describedCommands());
    file.close();
    return file ? 0 : 1;
}
