// SPDX-License-Identifier: MIT
#include "app/edit_history.h"

#include <QScopeGuard>
#include <utility>

namespace zev {

EditHistory::EditHistory(MenuDocument& document, std::function<void()> store)
    : m_history(document), m_store(std::move(store)) {}

void EditHistory::run(const std::string& name, const std::function<void()>& command) {
    storeTyping();
    if (m_history.isInStep()) {
        command();
        return;
    }
    m_name = name;
    m_history.begin();
    const auto atEnd = qScopeGuard([this] {
        m_history.end(std::move(m_name));
        emit stepEnded();
        emit changed();
    });
    command();
}

void EditHistory::cut(const std::string& name) {
    if (!m_history.isInStep())
        return;
    m_history.end(name);
    emit stepEnded();
    m_history.begin();
}

void EditHistory::beginTyping(const std::string& name) {
    if (m_typingName == name)
        return;
    storeTyping();
    if (m_history.isInStep())
        return;
    m_typingName = name;
    m_history.begin();
    emit changed();
}

void EditHistory::endTyping() {
    if (m_typingName.empty())
        return;
    m_history.end(std::exchange(m_typingName, {}));
    emit stepEnded();
    emit changed();
}

void EditHistory::endTypingOf(const std::string& name) {
    if (m_typingName == name)
        storeTyping();
}

void EditHistory::storeTyping() {
    if (m_typingName.empty())
        return;
    m_store();
    endTyping();
}

std::string EditHistory::undoName() const {
    if (!m_typingName.empty())
        return m_typingName;
    const std::string* name = m_history.undoName();
    return name ? *name : "";
}

std::string EditHistory::redoName() const {
    const std::string* name = m_history.redoName();
    return name && m_typingName.empty() ? *name : "";
}

void EditHistory::undo() {
    storeTyping();
    if (m_history.undoName())
        move(&DocumentHistory::undo);
}

void EditHistory::redo() {
    storeTyping();
    if (m_history.redoName())
        move(&DocumentHistory::redo);
}

void EditHistory::clear() {
    m_history.clear();
    emit changed();
}

void EditHistory::move(void (DocumentHistory::*there)()) {
    (m_history.*there)();
    emit stepEnded();
    emit changed();
}

}  // namespace zev
