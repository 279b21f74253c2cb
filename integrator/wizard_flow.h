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
#include "platform/common_dialogs.h"
#include "script/submenu_list.h"

namespace zev {

/// What the person has entered in the wizard's steps.
struct WizardAnswers {
    bool hasBackups = true;
    bool keepsOtherScripts = false;
    std::string library;     ///< path or URL of the run-time files, as typed
    std::string definition;  ///< the same of the definition file
    bool isPopup = false;
    std::string submenuId;  ///< of a popup menu; empty: none is chosen
    PopupPlacement placement;

    bool needsPosition() const { return isPopup && !placement.isAtMouse; }
};

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
    static constexpr std::int16_t kLastStep = 5;

    /// `files` is not owned and must outlive this object.
    explicit WizardFlow(FileSystem& files) : m_files(files) {}

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
    std::vector<PathHint> libraryHints(const WizardAnswers& answers) const;
    std::vector<PathHint> definitionHints(const WizardAnswers& answers) const;
    /// Why the menu cannot be of the kind that is answered.
    std::optional<WizardNotice> checkKind(const WizardAnswers& answers) const;
    /// Of the last run; empty after a further press of Next.
    const std::string& report() const { return m_report; }
    /// Whether the last run's last page has the menu now.
    bool hasSucceeded() const { return m_status.bSuccess; }
    /// What the last run leaves to be pasted.
    const std::string& code() const { return m_code; }
    /// The same for hyperlinks; empty for a menu in place.
    const std::string& linkCode() const { return m_linkCode; }

    /// A definition whose file is known.
    void setDefinition(const std::string& path);
    void setSubmenus(std::vector<Submenu> submenus) { m_submenus = std::move(submenus); }
    /// No names: the person cancelled, and everything stays. True when there are other pages now.
    bool choosePages(const ChosenFiles& files);
    /// Counts in the chosen pages. One that cannot be read has none; the report will say so.
    void countScripts(const ShouldGoOn& shouldGoOn);
    NextOutcome NextStep(const WizardAnswers& answers);
    void goBack();
    /// Tells how many pages are done of how many, before each one. `cancel` and `mayClose` may be
    /// called from there.
    using Progress = std::function<void(std::size_t doneCount, std::size_t totalCount)>;
    /// The work: builds the code to paste, integrates the pages, writes the report.
    void IntegratePages(const WizardAnswers& answers, const Progress& progress);
    /// Stops a run before its next page.
    void cancel() { m_isCancelled = true; }
    /// False, and the run is stopped, while pages are integrated.
    bool mayClose();
    FileOutcome saveReport(const std::string& path) const;

  private:
    std::optional<WizardNotice> checkStep(const WizardAnswers& answers) const;
    IntegrationURLs urlsOf(const WizardAnswers& answers) const;

    FileSystem& m_files;
    std::int16_t CurStep = 0;
    bool m_canGoBack = false;
    ChosenFiles InputFiles;
    std::string m_definitionFolder;
    ScriptCount m_scriptCount;
    std::vector<Submenu> m_submenus;
    bool m_isRunning = false;
    bool m_isCancelled = false;
    IntegrationStatus m_status;  // of the page last processed
    std::string m_report;
    std::string m_code;
    std::string m_linkCode;
};

}  // namespace zev
