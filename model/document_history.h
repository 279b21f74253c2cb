// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "model/menu_document.h"

namespace zev {

/// Undo and redo of a document: the steps that took it where it is, each with what takes it back.
///
/// A step is what one command did. What is no content (selecting, folding, a label without its
/// item) makes no step, but is taken back with the steps around it: undo gives the document back
/// as it was just before the step, redo as it was just after it.
class DocumentHistory : private ChangeRecorder {
  public:
    /// Older steps are forgotten.
    static constexpr std::size_t kMaxSteps = 2000;

    /// Records `document`, which is not owned and outlives the history.
    explicit DocumentHistory(MenuDocument& document);
    ~DocumentHistory() override;
    DocumentHistory(const DocumentHistory&) = delete;
    DocumentHistory& operator=(const DocumentHistory&) = delete;

    /// A step begins here: undo will lead back to this moment.
    void begin();
    /// The step ends. Without a change of the content it never was one; else what had been undone
    /// is forgotten, and the result is true.
    bool end(std::string name);
    bool isInStep() const { return m_isInStep; }
    /// Forgets all steps; the document stays.
    void clear();

    /// Name of the step that `undo` takes back, or `redo` repeats; null when there is none.
    const std::string* undoName() const;
    const std::string* redoName() const;
    /// Takes the last step back, or repeats the one taken back last. `bModified` is false
    /// afterwards exactly when the document is the one last opened or written. Only outside of a
    /// step, and with a name to it.
    void undo();
    void redo();
    /// Changes with every step, undo and redo; two equal values mean one and the same content.
    std::uint64_t state() const { return m_state; }
    /// True when the document is the one last opened or written, as far as steps can tell.
    bool isSaved() const { return m_state == m_savedState; }

  private:
    // Lists of changes are applied from their last to their first, as they take back what was done.
    struct Step {
        std::string name;
        Changes prelude;                               ///< of what was no content, before the step
        Changes changes;                               ///< of the step itself
        std::uint64_t otherState;                      ///< before the step; once undone, after it
        std::optional<std::uint64_t> otherSaved = {};  ///< likewise, where another document came
    };

    void changed(Change inverse) override;
    void saved() override;
    Changes revert(Changes inverses);
    Changes takeTail();
    void exchange(Step& step);

    MenuDocument& m_document;
    std::deque<Step> m_done;
    std::vector<Step> m_undone;
    /// Takes back what was no content since the last step; its first `m_preludeSize` changes that
    /// of before the step to be redone, when `m_hasPrelude`.
    Changes m_gap;
    std::size_t m_preludeSize = 0;
    bool m_hasPrelude = false;
    bool m_isInStep = false;
    Changes m_step;  ///< takes back what was done since `begin`
    bool m_isSavedInStep = false;
    std::uint64_t m_state = 0;
    std::uint64_t m_lastState = 0;
    std::uint64_t m_savedState = 0;
};

}  // namespace zev
