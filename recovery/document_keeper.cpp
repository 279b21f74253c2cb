// SPDX-License-Identifier: MIT
#include "recovery/document_keeper.h"

#include <algorithm>
#include <utility>

namespace zev {

namespace {

/// Later records may take this much more than the first one before the journal is made anew.
constexpr std::size_t kMaxLaterBytes = std::size_t{4} << 20;

std::string placeOf(const MenuDocument& document) {
    RecordWriter record;
    ChangeLog::writePlace(record, document);
    return record.bytes();
}

}  // namespace

DocumentKeeper::DocumentKeeper(MenuDocument& document, const DocumentHistory& history,
                               RecoveryStore& store, Clock clock)
    : m_document(document),
      m_history(history),
      m_store(store),
      m_clock(std::move(clock)),
      m_log(document),
      m_state(history.state()) {}

FileOutcome DocumentKeeper::keep() {
    const std::uint64_t before = m_unsavedChanges;
    if (m_log.isReplaced()) {
        if (m_unsavedChanges > 0)
            giveUpJournal();
        else
            dropJournal();
    }
    m_state = m_history.state();
    countChanges();
    const bool isNew = m_document.tree().isEmpty() && m_unsavedChanges == 0;
    FileOutcome error;
    if (m_journal.file && m_isWhole && m_laterBytes < kMaxLaterBytes + m_firstBytes) {
        if (!m_log.entries().empty() || placeOf(m_document) != m_place ||
            m_unsavedChanges != before)
            error = addRecord();
    } else if (m_journal.file || !isNew) {
        error = startJournal();
    }
    m_isWhole = !error;
    if (m_isWhole)
        forgetJournalOfThisDocument();
    return error;
}

void DocumentKeeper::countChanges() {
    const auto returned = std::find_if(m_replaced.begin(), m_replaced.end(),
                                       [this](const auto& one) { return one.state == m_state; });
    if (m_history.isSaved())
        m_unsavedChanges = 0;
    else if (m_log.isReplaced())
        m_unsavedChanges = returned != m_replaced.end() ? returned->unsavedChanges : 1;
    else if (m_log.hasContent())
        ++m_unsavedChanges;
}

void DocumentKeeper::writeState(RecordWriter& record) const {
    record.number(static_cast<unsigned>(JournalEntry::State));
    record.number(static_cast<std::uint64_t>(m_clock()));
    record.number(m_unsavedChanges);
}

/// Puts the whole document into a journal of its own, or anew into the one there is.
FileOutcome DocumentKeeper::startJournal() {
    RecordWriter entries;
    writeState(entries);
    ChangeLog::writeContent(entries, m_document);
    m_place = placeOf(m_document);
    const std::string bytes = std::string(kJournalHead) + journalRecord(entries.bytes() + m_place);
    if (m_journal.file) {
        if (FileOutcome error = m_journal.file->rewrite(bytes))
            return error;
    } else {
        FileResult<RecoveryStore::NewJournal> journal = m_store.make(bytes);
        if (!journal.isOk())
            return journal.error();
        m_journal = journal.take();
    }
    m_firstBytes = bytes.size();
    m_laterBytes = 0;
    m_log.clear();
    return {};
}

FileOutcome DocumentKeeper::addRecord() {
    RecordWriter head;
    writeState(head);
    m_place = placeOf(m_document);
    const std::string bytes = journalRecord(head.bytes() + m_log.entries() + m_place);
    // Also after a failure: the next journal has all.
    m_log.clear();
    m_laterBytes += bytes.size();
    return m_journal.file->append(bytes);
}

FileOutcome DocumentKeeper::sync() {
    return m_journal.file ? m_journal.file->sync() : FileOutcome{};
}

/// The person has put something else in the place of the document, or wants it no more.
void DocumentKeeper::giveUpJournal() {
    if (!m_journal.file)
        return;
    RecordWriter entries;
    entries.number(static_cast<unsigned>(JournalEntry::GivenUp));
    m_journal.file->append(journalRecord(entries.bytes()));
    m_journal.file->sync();
    m_journal.file.reset();
    m_replaced.push_back({m_state, std::move(m_journal.path), m_unsavedChanges});
}

void DocumentKeeper::dropJournal() {
    if (!m_journal.file)
        return;
    m_journal.file.reset();
    m_store.discard(m_journal.path);
}

/// A document that was replaced has come back by undo or redo, and its own journal has it again.
void DocumentKeeper::forgetJournalOfThisDocument() {
    const auto same = [this](const Replaced& one) { return one.state == m_state; };
    for (const Replaced& one : m_replaced)
        if (same(one))
            m_store.discard(one.journal);
    std::erase_if(m_replaced, same);
}

void DocumentKeeper::leave(bool isGivenUp) {
    if (m_unsavedChanges == 0)
        dropJournal();
    else if (isGivenUp)
        giveUpJournal();
    else
        sync();
}

}  // namespace zev
