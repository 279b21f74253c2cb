// SPDX-License-Identifier: MIT
#include "integrator/wizard_flow.h"

#include <utility>

#include "script/relative_url.h"
#include "text/path.h"
#include "text/pattern.h"

namespace zev {

namespace {

constexpr std::int16_t kPagesStep = 1;
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
    return keepsOtherScripts ? ScriptCount{0, InputFiles.names.size()} : m_scriptCount;
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
    return true;
}

void WizardFlow::countScripts(const ShouldGoOn& shouldGoOn) {
    m_scriptCount = {};
    for (const std::string& name : InputFiles.names) {
        if (!shouldGoOn(m_scriptCount.pageCount, InputFiles.names.size()))
            return;
        const auto count = countDroppedScripts(m_files, pagePath(InputFiles.folder, name));
        if (count.isOk())
            m_scriptCount.scriptCount += count.value();
        ++m_scriptCount.pageCount;
    }
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

void WizardFlow::IntegratePages(const WizardAnswers& answers, const Progress& progress) {
    const IntegrationURLs urls = urlsOf(answers);
    m_code = answers.isPopup ? definitionReference(urls.definition) : menuCode(urls.definition);
    m_linkCode = answers.isPopup ? popupLinkCode(answers.submenuId, answers.placement) : "";
    PageIntegrator integrator(
        m_files, {{urls.library, answers.keepsOtherScripts}, answers.hasBackups, false});
    m_isCancelled = false;
    m_isRunning = true;
    integrator.IntegratePages(InputFiles, [&](std::size_t doneCount, std::size_t totalCount) {
        progress(doneCount, totalCount);
        return !m_isCancelled;
    });
    m_isRunning = false;
    m_status = integrator.status();
    m_report = integrator.report();
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
