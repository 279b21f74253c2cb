// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "integrator/link_code.h"
#include "integrator/page_integration.h"
#include "integrator/run_undo.h"
#include "integrator/site_run.h"
#include "integrator/survey.h"
#include "integrator/wizard_answers.h"
#include "platform/common_dialogs.h"
#include "script/submenu_list.h"

namespace zev {

/// Why the wizard does not do what the person wants.
enum class WizardNotice {
    PagesMissing,
    DefinitionMissing,
    NoSubmenus,
    SubmenuMissing,
    PositionMissing
};

/// What a press of Next asks of the window.
struct NextOutcome {
    enum class Action {
        ShowStep,
        Integrate,  ///< show the step, then call `IntegratePages`
        Close
    };
    Action action = Action::ShowStep;
    std::optional<WizardNotice> notice;  ///< to be shown; the step is the same then
};

/// What to know about a path or URL that was entered.
struct PathHint {
    enum class Kind {
        OnADrive,     ///< a page on the web cannot reach it
        NoLastSlash,  ///< of a folder
        Quote,        ///< would end the text that it stands in; `url` is spelled without
        NotGiven      ///< of a folder: the pages look in their own
    };
    Kind kind;
    std::string url;  ///< as the pages would have it
    bool operator==(const PathHint&) const = default;
};

/// The wizard that puts the menu into pages that exist already, without its window: the steps, what
/// is checked before the next one, and the work. Steps are counted from 0, the welcome: pages,
/// paths, kind of menu, report, code to paste.
class WizardFlow {
  public:
    static constexpr std::int16_t kPagesStep = 1;
    static constexpr std::int16_t kLastStep = 5;

    /// `files` is not owned and must outlive this object. `recordFolder` is for what it takes to
    /// undo runs; empty: nothing is recorded.
    explicit WizardFlow(FileSystem& files, std::string recordFolder = {})
        : m_files(files), m_recordFolder(std::move(recordFolder)) {}

    std::int16_t step() const { return CurStep; }
    bool canGoBack() const { return m_canGoBack; }
    const ChosenFiles& pages() const { return InputFiles; }
    /// Where to look for pages: beside those that are chosen, before that beside the menu. Empty
    /// when neither is known.
    const std::string& pagesFolder() const;
    /// Scripts that integration drops, counted in the first of the chosen pages; in less than all
    /// when counting was stopped.
    struct ScriptCount {
        std::size_t scriptCount = 0;
        std::size_t pageCount = 0;
    };
    ScriptCount scriptCount(bool keepsOtherScripts) const;
    /// What is known of the first of the chosen pages; of less than all when looking was stopped.
    const std::vector<SurveyedPage>& survey() const { return m_survey; }
    /// Whether the person has to see what the chosen pages would lose before they do.
    bool needsReview(const WizardAnswers& answers) const;
    /// What the person enters for paths that lead nowhere, in the order of the step; a URL is taken
    /// on trust.
    struct MissingPaths {
        bool isLibraryMissing = false;
        bool isDefinitionMissing = false;
    };
    MissingPaths missingPaths(const WizardAnswers& answers) const;
    std::vector<PathHint> libraryHints(const WizardAnswers& answers) const;
    std::vector<PathHint> definitionHints(const WizardAnswers& answers) const;
    /// Why the menu cannot be of the kind that is answered.
    std::optional<WizardNotice> checkKind(const WizardAnswers& answers) const;
    /// Of the last run; empty after a further press of Next.
    const std::string& report() const { return m_report; }
    /// What became of the pages of the last run.
    const RunSummary& summary() const { return m_result.summary; }
    /// Whether every page of the last run has the menu now.
    bool hasSucceeded() const;
    /// References to the definition at another place than the last run was told.
    const std::vector<EarlierReference>& movedReferences() const {
        return m_result.movedReferences;
    }
    const std::vector<EarlierReference>& foreignReferences() const {
        return m_result.foreignReferences;
    }
    /// Why the last run cannot be undone; nothing when it can.
    const FileOutcome& recordError() const { return m_result.recordError; }
    /// Whether runs of this wizard can be undone.
    bool canUndo() const { return !m_runs.empty(); }
    /// Whether the last run was undone, with what followed it.
    bool isUndone() const { return m_isUndone; }
    /// What the last run leaves to be pasted.
    const std::string& code() const { return m_code; }
    /// The same for hyperlinks; empty for a menu in place.
    const std::string& linkCode() const { return m_linkCode; }

    /// A definition whose file is known.
    void setDefinition(const std::string& path);
    void setSubmenus(std::vector<Submenu> submenus) { m_submenus = std::move(submenus); }
    /// No names: the person cancelled, and everything stays. True when there are other pages now.
    bool choosePages(const ChosenFiles& files);
    /// Pages of any folders, full paths, behind those that are chosen. False when nothing changed.
    bool addPages(const std::vector<std::string>& paths);
    /// Pages of any folders, full paths, in place of those that are chosen; there may be none.
    /// False when nothing changed.
    bool setPages(const std::vector<std::string>& paths);
    /// Where the definition's folder holds the library too: that folder. Empty elsewhere.
    std::string libraryBeside(const std::string& definition) const;
    /// Looks at the chosen pages, from where it was stopped on: what scripts they would lose, and
    /// what else there is to know. One that cannot be read has none; the report will say so.
    void countScripts(const ShouldGoOn& shouldGoOn);
    /// The person has seen what the chosen pages would lose.
    void markReviewed() { m_isReviewed = true; }
    bool isReviewed() const { return m_isReviewed; }
    NextOutcome NextStep(const WizardAnswers& answers);
    void goBack();
    /// Tells how many pages are done of how many, before each one. `cancel` and `mayClose` may be
    /// called from there.
    using Progress = std::function<void(std::size_t doneCount, std::size_t totalCount)>;
    /// The work: builds the code to paste, integrates the pages, writes the report.
    void IntegratePages(const WizardAnswers& answers, const Progress& progress);
    /// The chosen pages that this has put the menu's code into: neither failed, nor skipped, nor
    /// left out when it was stopped.
    const ChosenFiles& integratedPages() const { return m_integratedPages; }
    /// A further run over these pages that puts the menu into them, without backups: those of the
    /// first run hold the pages as they were.
    void placeMenu(const WizardAnswers& answers, const MenuPlacing& placing,
                   const Progress& progress);
    /// The same to correct references to the definition's earlier place.
    void replaceReferences(const WizardAnswers& answers, const Progress& progress);
    /// Gives the pages back as they were before the last run over them and what followed it. When a
    /// page is left alone, earlier runs are not undone.
    std::vector<UndoneRun> undoRuns(const Progress& progress);
    /// Where the edits would be made in one of these pages.
    FileResult<Placement> placementIn(const std::string& name, const WizardAnswers& answers,
                                      const MenuPlacing& placing) const;
    /// Stops a run before its next page.
    void cancel() { m_isCancelled = true; }
    /// False, and the run is stopped, while pages are integrated.
    bool mayClose();
    FileOutcome saveReport(const std::string& path) const;

  private:
    std::optional<WizardNotice> checkStep(const WizardAnswers& answers) const;
    void run(const ChosenFiles& pages, const SiteRunOptions& options, const Progress& progress);
    void runFurther(SiteRunOptions options, const Progress& progress);
    std::string codeFor(const WizardAnswers& answers) const;
    IntegrationURLs urlsOf(const WizardAnswers& answers) const;

    FileSystem& m_files;
    std::string m_recordFolder;
    std::int16_t CurStep = 0;
    bool m_canGoBack = false;
    ChosenFiles InputFiles;
    std::string m_definitionFolder;
    std::vector<SurveyedPage> m_survey;
    bool m_isReviewed = false;
    std::vector<Submenu> m_submenus;
    bool m_isRunning = false;
    bool m_isCancelled = false;
    SiteRunResult m_result;  // of the last run
    ChosenFiles m_integratedPages;
    std::vector<std::string> m_runs;  // that can be undone, the oldest first
    bool m_isUndone = false;
    std::string m_report;
    std::string m_code;
    std::string m_linkCode;
};

}  // namespace zev
