// SPDX-License-Identifier: MIT
#include "integrator/wizard_flow.h"

#include <algorithm>
#include <ctime>
#include <limits>
#include <unordered_set>
#include <utility>

#include "integrator/page_groups.h"
#include "script/relative_url.h"
#include "text/ascii.h"
#include "text/path.h"
#include "text/pattern.h"

namespace zev {

namespace {

constexpr std::int16_t kPathsStep = 2;
constexpr std::int16_t kMenuStep = 3;
constexpr std::int16_t kReportStep = 4;

/// The URL without the quotes that would end the text it stands in.
PathHint quoteHint(const std::string& url) {
    return {PathHint::Kind::Quote, replaceAll(replaceAll(url, "'", "%27"), "\"", "%22")};
}

}  // namespace

const std::string& WizardFlow::pagesFolder() const {
    return InputFiles.names.empty() ? m_definitionFolder : InputFiles.folder;
}

WizardFlow::ScriptCount WizardFlow::scriptCount(bool keepsOtherScripts) const {
    if (keepsOtherScripts)
        return {0, InputFiles.names.size()};
    ScriptCount count{0, m_survey.size()};
    for (const SurveyedPage& page : m_survey)
        count.scriptCount += page.findings.removedScripts.size();
    return count;
}

bool WizardFlow::needsReview(const WizardAnswers& answers) const {
    if (m_isReviewed || answers.keepsOtherScripts)
        return false;
    return m_survey.size() < InputFiles.names.size() ||
           std::any_of(m_survey.begin(), m_survey.end(), [](const SurveyedPage& page) {
               return !page.findings.removedScripts.empty();
           });
}

WizardFlow::MissingPaths WizardFlow::missingPaths(const WizardAnswers& answers) const {
    const std::string library(trimSpaces(answers.library));
    const std::string definition(trimSpaces(answers.definition));
    return {Path(library).kind() == Path::Kind::System &&
                !m_files.FileExists(pagePath(library, "zevmenu_loader.js")),
            Path(definition).kind() == Path::Kind::System && !m_files.FileExists(definition)};
}

IntegrationURLs WizardFlow::urlsOf(const WizardAnswers& answers) const {
    return CalculateURL(InputFiles.folder, answers.definition, answers.library);
}

std::vector<PathHint> WizardFlow::libraryHints(const WizardAnswers& answers) const {
    const auto [definition, library] = urlsOf(answers);
    // Where the menu lies elsewhere, its library does too.
    if (answers.library.empty() && definition.find('/') != std::string::npos)
        return {{PathHint::Kind::NotGiven, library}};
    if (Path(library).hasDriveLetter())
        return {{PathHint::Kind::OnADrive, library}};
    std::vector<PathHint> hints;
    if (!library.empty() && !library.ends_with('/'))
        hints.push_back({PathHint::Kind::NoLastSlash, library});
    // It stands between quotes of either kind.
    if (library.find_first_of("'\"") != std::string::npos)
        hints.push_back(quoteHint(library));
    return hints;
}

std::vector<PathHint> WizardFlow::definitionHints(const WizardAnswers& answers) const {
    const std::string definition = urlsOf(answers).definition;
    if (Path(definition).hasDriveLetter())
        return {{PathHint::Kind::OnADrive, definition}};
    if (definition.find('"') != std::string::npos)
        return {quoteHint(definition)};
    return {};
}

std::optional<WizardNotice> WizardFlow::checkKind(const WizardAnswers& answers) const {
    if (answers.isPopup && m_submenus.empty())
        return WizardNotice::NoSubmenus;
    return {};
}

void WizardFlow::setDefinition(const std::string& path) {
    m_definitionFolder = SplitPath(path).folder;
}

bool WizardFlow::choosePages(const ChosenFiles& files) {
    if (files.names.empty())
        return false;
    InputFiles = files;
    m_survey.clear();
    m_isReviewed = false;
    return true;
}

bool WizardFlow::addPages(const std::vector<std::string>& paths) {
    std::vector<std::string> all = pagePaths(InputFiles);
    all.insert(all.end(), paths.begin(), paths.end());
    return setPages(all);
}

bool WizardFlow::setPages(const std::vector<std::string>& paths) {
    ChosenFiles pages = chosenPages(paths);
    if (pages == InputFiles)
        return false;
    InputFiles = std::move(pages);
    m_survey.clear();
    m_isReviewed = false;
    return true;
}

std::string WizardFlow::libraryBeside(const std::string& definition) const {
    const std::string folder = SplitPath(definition).folder;
    return m_files.FileExists(pagePath(folder, "zevmenu_loader.js")) ? folder : std::string();
}

void WizardFlow::countScripts(const ShouldGoOn& shouldGoOn) {
    const std::size_t count = InputFiles.names.size();
    while (m_survey.size() < count && shouldGoOn(m_survey.size(), count))
        m_survey.push_back(
            surveyPage(m_files, pagePath(InputFiles.folder, InputFiles.names[m_survey.size()])));
}

NextOutcome WizardFlow::NextStep(const WizardAnswers& answers) {
    m_report.clear();
    if (CurStep == kLastStep)
        return {NextOutcome::Action::Close, {}};
    if (const std::optional<WizardNotice> notice = checkStep(answers))
        return {NextOutcome::Action::ShowStep, notice};
    m_canGoBack = true;
    ++CurStep;
    return {CurStep == kReportStep ? NextOutcome::Action::Integrate : NextOutcome::Action::ShowStep,
            {}};
}

/// What is missing to go on. What would give code that cannot work is asked for too.
std::optional<WizardNotice> WizardFlow::checkStep(const WizardAnswers& answers) const {
    if (CurStep == kPagesStep && InputFiles.names.empty())
        return WizardNotice::PagesMissing;
    if (CurStep == kPathsStep && answers.definition.empty())
        return WizardNotice::DefinitionMissing;
    if (CurStep != kMenuStep)
        return {};
    if (answers.isPopup && answers.submenuId.empty())
        return WizardNotice::SubmenuMissing;
    if (answers.needsPosition() && (answers.placement.x.empty() || answers.placement.y.empty()))
        return WizardNotice::PositionMissing;
    return {};
}

// Going back ends before the step and not after it: back at the welcome it is still possible, and
// one more press ends it.
void WizardFlow::goBack() {
    if (CurStep == 0)
        m_canGoBack = false;
    else
        --CurStep;
}

bool WizardFlow::hasSucceeded() const {
    return m_result.summary.doneCount > 0 && m_result.summary.failedPages.empty();
}

void WizardFlow::IntegratePages(const WizardAnswers& answers, const Progress& progress) {
    m_code = codeFor(answers);
    m_linkCode = answers.isPopup ? popupLinkCode(answers.submenuId, answers.placement) : "";
    m_runs.clear();
    m_isUndone = false;
    run(InputFiles, {answers}, progress);
    m_integratedPages = {InputFiles.folder, {}};
    const std::unordered_set<std::string> done(m_result.donePages.begin(),
                                               m_result.donePages.end());
    for (const std::string& name : InputFiles.names)
        if (done.contains(pagePath(InputFiles.folder, name)))
            m_integratedPages.names.push_back(name);
    m_report = m_result.report;
}

void WizardFlow::placeMenu(const WizardAnswers& answers, const MenuPlacing& placing,
                           const Progress& progress) {
    runFurther({answers, placing}, progress);
}

void WizardFlow::replaceReferences(const WizardAnswers& answers, const Progress& progress) {
    SiteRunOptions options{answers};
    options.replacesReferences = true;
    runFurther(std::move(options), progress);
}

void WizardFlow::runFurther(SiteRunOptions options, const Progress& progress) {
    options.answers.hasBackups = false;
    run(m_integratedPages, options, progress);
}

void WizardFlow::run(const ChosenFiles& pages, const SiteRunOptions& wanted,
                     const Progress& progress) {
    SiteRunOptions options = wanted;
    options.recordFolder = m_recordFolder;
    options.startedAt = std::time(nullptr);
    options.looksForReferences = true;
    m_isCancelled = false;
    m_isRunning = true;
    m_result = runOverSite(m_files, pagesByFolder(pages), options,
                           [&](std::size_t doneCount, std::size_t totalCount) {
                               progress(doneCount, totalCount);
                               return !m_isCancelled;
                           });
    m_isRunning = false;
    if (!m_result.name.empty())
        m_runs.push_back(m_result.name);
}

std::vector<UndoneRun> WizardFlow::undoRuns(const Progress& progress) {
    m_isCancelled = false;
    std::vector<UndoneRun> undone;
    while (!m_runs.empty()) {
        const FileResult<UndoneRun> run =
            undoRun(m_files, m_recordFolder, m_runs.back(),
                    [&](std::size_t doneCount, std::size_t totalCount) {
                        progress(doneCount, totalCount);
                        return !m_isCancelled;
                    });
        undone.push_back(run.isOk() ? run.value() : UndoneRun{{}, {}, {run.error()}});
        if (!undone.back().isWhole())
            break;
        m_runs.pop_back();
    }
    m_isUndone = m_runs.empty();
    if (m_isUndone)
        m_result = {};
    return undone;
}

FileResult<Placement> WizardFlow::placementIn(const std::string& name, const WizardAnswers& answers,
                                              const MenuPlacing& placing) const {
    const std::string path = pagePath(InputFiles.folder, name);
    const FileResult<std::string> page =
        m_files.readFile(path, std::numeric_limits<std::uint64_t>::max());
    if (!page.isOk())
        return page.error();
    const IntegrationURLs urls =
        CalculateURL(SplitPath(path).folder, answers.definition, answers.library);
    return zev::placementIn(page.value(), rewriteOptions({answers, placing}, urls));
}

/// Pages of several folders may see the definition at several addresses; the code for each is named
/// then.
std::string WizardFlow::codeFor(const WizardAnswers& answers) const {
    const auto foldersOfURLs = definitionURLs(pagesByFolder(InputFiles), answers);
    std::string text;
    for (const auto& [url, folders] : foldersOfURLs) {
        if (!text.empty())
            text += "\r\n\r\n";
        if (foldersOfURLs.size() > 1)
            for (const std::string& folder : folders)
                text += "Code for the pages in " + folder + "\r\n";
        text += answers.isPopup ? definitionReference(url) : menuCode(url);
    }
    return text;
}

bool WizardFlow::mayClose() {
    if (m_isRunning)
        cancel();
    return !m_isRunning;
}

FileOutcome WizardFlow::saveReport(const std::string& path) const {
    return m_files.writeFile(path, m_report + "\r\n", Links::Followed);
}

}  // namespace zev
