// SPDX-License-Identifier: MIT
#include "cli/check_command.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

#include "checks/item_names.h"
#include "checks/link_problems.h"
#include "checks/menu_problems.h"
#include "messages/import_messages.h"
#include "messages/problem_messages.h"
#include "script/script_reader.h"
#include "text/json_text.h"
#include "text/path.h"

namespace zev {

namespace {

/// As it is printed.
struct Finding {
    std::size_t line = 0;
    std::string_view kind;
    std::vector<std::string> item = {};
    std::string field = {};
    std::string message = {};
};

/// Which line of a definition set what.
class LineIndex {
  public:
    void note(const LineEffect& effect) {
        m_lines[{effect.isDefault, effect.item, std::string(effect.property)}] = effect.line;
    }
    std::size_t lineOf(const MenuProblem& problem) const {
        const auto found = m_lines.find(
            {problem.isDefault, problem.item, problem.isProperty ? problem.field : ""});
        return found == m_lines.end() ? 1 : found->second;
    }

  private:
    std::map<std::tuple<bool, const MenuNode*, std::string>, std::size_t> m_lines;
};

std::string_view kindOf(LineWarning::Reason reason) {
    if (reason == LineWarning::Reason::TooManyItems)
        return "limit";
    return reason == LineWarning::Reason::NotUnderstood ? "syntax" : "id";
}

std::string_view kindOf(const MenuProblem& problem) {
    constexpr std::string_view kKinds[] = {"value", "colour", "link", "anchor", "image", "caption"};
    return kKinds[static_cast<std::size_t>(problem.kind)];
}

Finding asFinding(std::size_t line, const MenuProblem& problem) {
    return {line, kindOf(problem), itemPath(problem.item), problem.field, problemText(problem)};
}

void addReadProblems(std::vector<Finding>& findings, const ReadResult& result) {
    for (const LineWarning& warning : result.warnings)
        findings.push_back({.line = warning.line,
                            .kind = kindOf(warning.reason),
                            .message = std::string(reasonText(warning.reason))});
    const std::size_t count = result.errorCount + result.lostLineCount;
    if (count > result.warnings.size())
        findings.push_back({.line = result.warnings.back().line,
                            .kind = "syntax",
                            .message = std::to_string(count - result.warnings.size()) +
                                       " more such lines follow"});
    if (result.hasNoMenu)
        findings.push_back(
            {.line = 1, .kind = "syntax", .message = "nothing of a menu was found in the file"});
}

/// In the order of the lines.
std::vector<Finding> findingsIn(std::string bytes, const FileSystem& files,
                                const SiteFolders& folders) {
    MenuContent content;
    LineIndex index;
    std::vector<Finding> findings;
    std::vector<std::pair<std::size_t, MenuProblem>> lineProblems;
    const ReadResult result = ReadScript(std::move(bytes), content, [&](const LineEffect& effect) {
        index.note(effect);
        if (const std::optional<MenuProblem> problem = lineProblem(effect))
            lineProblems.emplace_back(effect.line, *problem);
    });
    addReadProblems(findings, result);
    for (const auto& [line, problem] : lineProblems)
        findings.push_back(asFinding(line, problem));
    std::set<std::size_t> badLines;
    for (const Finding& finding : findings)
        badLines.insert(finding.line);
    std::vector<MenuProblem> problems = findBrokenValues(content);
    for (MenuProblem& problem : findBrokenLinks(content, files, folders))
        problems.push_back(std::move(problem));
    // What a line that is not understood has set is no problem of its own.
    for (const MenuProblem& problem : problems)
        if (!badLines.contains(index.lineOf(problem)))
            findings.push_back(asFinding(index.lineOf(problem), problem));
    std::stable_sort(
        findings.begin(), findings.end(),
        [](const Finding& left, const Finding& right) { return left.line < right.line; });
    return findings;
}

std::string asText(const std::string& file, const Finding& finding) {
    return file + ':' + std::to_string(finding.line) + ": " + finding.message + '\n';
}

std::string asJson(const std::string& file, const Finding& finding) {
    return "{\"file\": " + jsonString(file) + ", \"line\": " + std::to_string(finding.line) +
           ", \"item\": " + jsonStrings(finding.item) +
           ", \"field\": " + jsonString(finding.field) + ", \"kind\": " + jsonString(finding.kind) +
           ", \"message\": " + jsonString(finding.message) + "}";
}

}  // namespace

ExitStatus checkCommand(const FileSystem& files, const CheckOptions& options) {
    ExitStatus status = ExitStatus::Done;
    std::string output;
    for (const std::string& input : options.inputs) {
        std::optional<std::string> bytes = readDefinitionBytes(files, input);
        if (!bytes) {
            status = ExitStatus::FileProblem;
            continue;
        }
        const SiteFolders folders{std::string(Path::onThisSystem(input).folder()), options.root};
        for (const Finding& finding : findingsIn(std::move(*bytes), files, folders)) {
            if (status == ExitStatus::Done)
                status = ExitStatus::Counted;
            if (options.isJson)
                output += (output.empty() ? "\n" : ",\n") + asJson(input, finding);
            else
                output += asText(input, finding);
        }
    }
    if (options.isJson)
        output = '[' + output + (output.empty() ? "]\n" : "\n]\n");
    return writeStandardOutput(output) ? status : ExitStatus::FileProblem;
}

}  // namespace zev
