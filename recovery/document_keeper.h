// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/document_history.h"
#include "recovery/change_log.h"
#include "recovery/recovery_store.h"

namespace zev {

/// Keeps a document in a journal as long as the program runs: what a finished command changed is
/// written at once, so that only what was typed since then goes with the program. A document that
/// is replaced, or left, with unsaved changes stays in its journal.
class DocumentKeeper {
  public:
    /// Seconds since 1970.
    using Clock = std::function<std::int64_t()>;

    /// Nothing of these is owned; all outlive the keeper.
    DocumentKeeper(MenuDocument& document, const DocumentHistory& history, RecoveryStore& store,
                   Clock clock);

    /// A command is finished: between two steps of the history. After an error nothing is kept
    /// until a later call succeeds, which then keeps all.
    FileOutcome keep();
    /// What is kept so far outlasts the machine.
    FileOutcome sync();
    /// The program ends. Unsaved changes stay; `isGivenUp`: the person said that they are not
    /// wanted.
    void leave(bool isGivenUp);

  private:
    /// A journal of a document that was replaced, and the history's state when it was.
    struct Replaced {
        std::uint64_t state;
        std::string journal;
        std::uint64_t unsavedChanges;
    };

    FileOutcome startJournal();
    FileOutcome addRecord();
    void countChanges();
    void writeState(RecordWriter& record) const;
    void giveUpJournal();
    void dropJournal();
    void forgetJournalOfThisDocument();

    MenuDocument& m_document;
    const DocumentHistory& m_history;
    RecoveryStore& m_store;
    Clock m_clock;
    ChangeLog m_log;
    RecoveryStore::NewJournal m_journal;  ///< without a file there is none
    bool m_isWhole = true;                ///< nothing is missing in the journal
    std::size_t m_firstBytes = 0;         ///< of the record that holds the whole document
    std::size_t m_laterBytes = 0;
    std::string m_place;  ///< entry of the counter and selection as the journal has them
    std::uint64_t m_unsavedChanges = 0;
    std::uint64_t m_state = 0;  ///< of the history, when the document was kept last
    std::vector<Replaced> m_replaced;
};

}  // namespace zev
