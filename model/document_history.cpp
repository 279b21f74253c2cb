// SPDX-License-Identifier: MIT
#include "model/document_history.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <utility>

namespace zev {

namespace {

template <typename Kind>
bool is(const Change& change) {
    return std::holds_alternative<Kind>(change);
}

bool isContent(const Change& change) {
    return !is<SetLabel>(change) && !is<SetExpanded>(change) && !is<SetSelection>(change);
}

bool isOpening(const Change& change) {
    return is<ReplaceContent>(change) || is<SetFile>(change);
}

Changes takeFrom(Changes& changes, std::size_t first) {
    const auto begin = changes.begin() + static_cast<std::ptrdiff_t>(first);
    Changes taken(std::make_move_iterator(begin), std::make_move_iterator(changes.end()));
    changes.erase(begin, changes.end());
    return taken;
}

}  // namespace

DocumentHistory::DocumentHistory(MenuDocument& document) : m_document(document) {
    m_document.setRecorder(this);
}

DocumentHistory::~DocumentHistory() {
    m_document.setRecorder(nullptr);
}

void DocumentHistory::begin() {
    assert(!m_isInStep);
    m_isInStep = true;
    m_isSavedInStep = false;
}

bool DocumentHistory::end(std::string name) {
    assert(m_isInStep);
    m_isInStep = false;
    const bool isStep = std::any_of(m_step.begin(), m_step.end(), isContent);
    if (isStep) {
        const bool isOther =
            m_isSavedInStep && std::any_of(m_step.begin(), m_step.end(), isOpening);
        m_undone.clear();
        m_done.push_back({std::move(name), std::exchange(m_gap, {}), std::exchange(m_step, {}),
                          std::exchange(m_state, ++m_lastState)});
        if (isOther)
            m_done.back().otherSaved = m_savedState;
        if (m_done.size() > kMaxSteps)
            m_done.pop_front();
        m_hasPrelude = false;
        m_preludeSize = 0;
    } else {
        for (Change& inverse : std::exchange(m_step, {}))
            changed(std::move(inverse));
    }
    if (m_isSavedInStep)
        saved();
    return isStep;
}

void DocumentHistory::clear() {
    assert(!m_isInStep);
    m_done.clear();
    m_undone.clear();
    m_gap.clear();
    m_hasPrelude = false;
    m_preludeSize = 0;
}

const std::string* DocumentHistory::undoName() const {
    return m_done.empty() ? nullptr : &m_done.back().name;
}

const std::string* DocumentHistory::redoName() const {
    return m_undone.empty() ? nullptr : &m_undone.back().name;
}

void DocumentHistory::undo() {
    assert(!m_isInStep && !m_done.empty());
    revert(takeTail());
    if (m_hasPrelude)
        m_undone.back().prelude = revert(std::exchange(m_gap, {}));
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
    Step& step = m_undone.back();
    exchange(step);
    m_gap = std::exchange(step.prelude, {});
    m_preludeSize = m_gap.size();
    m_hasPrelude = true;
}

void DocumentHistory::redo() {
    assert(!m_isInStep && !m_undone.empty());
    revert(takeTail());
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
    Step& step = m_done.back();
    step.prelude = m_hasPrelude ? std::exchange(m_gap, {}) : revert(std::move(step.prelude));
    exchange(step);
    m_preludeSize = 0;
    m_hasPrelude = false;
}

/// Takes a step back, or does it again; it holds the opposite afterwards.
void DocumentHistory::exchange(Step& step) {
    step.changes = revert(std::move(step.changes));
    std::swap(m_state, step.otherState);
    if (step.otherSaved)
        std::swap(m_savedState, *step.otherSaved);
    m_document.apply(SetModified{m_state != m_savedState});
}

Changes DocumentHistory::revert(Changes inverses) {
    std::reverse(inverses.begin(), inverses.end());
    Changes opposite = m_document.apply(std::move(inverses));
    std::reverse(opposite.begin(), opposite.end());
    return opposite;
}

/// What was no content since the last step, undo or redo.
Changes DocumentHistory::takeTail() {
    return takeFrom(m_gap, m_preludeSize);
}

void DocumentHistory::changed(Change inverse) {
    if (m_isInStep) {
        m_step.push_back(std::move(inverse));
        return;
    }
    // Of a run of selections only the first node is ever gone back to.
    const bool isRun =
        m_gap.size() > m_preludeSize && is<SetSelection>(inverse) && is<SetSelection>(m_gap.back());
    if (!isRun)
        m_gap.push_back(std::move(inverse));
}

void DocumentHistory::saved() {
    if (m_isInStep)
        m_isSavedInStep = true;
    else
        m_savedState = m_state;
}

}  // namespace zev
