// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>
#include <string>

#include "model/document_history.h"

namespace zev {

/// Undo and redo of what a person does in the main window, step by step: a command, a dialog's OK,
/// a run of typing in one field.
class EditHistory : public QObject {
    Q_OBJECT
  public:
    /// `document` is not owned and outlives the object. `store` takes what was typed in a field
    /// into the document.
    EditHistory(MenuDocument& document, std::function<void()> store);

    /// Runs a command as a step of this name; what was being typed is a step before it. Inside a
    /// command it is a part of that.
    void run(const std::string& name, const std::function<void()>& command);
    /// A command is at work.
    bool isInCommand() const { return m_history.isInStep() && !isTyping(); }
    /// The running command's step gets this name instead of its own.
    void rename(std::string name) { m_name = std::move(name); }
    /// What the running command has done so far is a step of its own.
    void cut(const std::string& name);

    /// Something is being typed or chosen that the document takes later. Typing in one field is one
    /// step, however long; another name begins another step.
    void beginTyping(const std::string& name);
    bool isTyping() const { return !m_typingName.empty(); }
    /// What was typed is stored.
    void endTyping();
    /// The person is done with the field of this name: what was typed there is stored.
    void endTypingOf(const std::string& name);
    /// Stores what was typed, if anything was.
    void storeTyping();

    /// Names of the steps that Undo and Redo would take; empty: there is none.
    std::string undoName() const;
    std::string redoName() const;
    void undo();
    void redo();
    void clear();
    const DocumentHistory& steps() const { return m_history; }

  signals:
    void changed();
    /// Something that a person does is done, be it a step or not.
    void stepEnded();

  private:
    void move(void (DocumentHistory::*there)());

    DocumentHistory m_history;
    std::function<void()> m_store;
    std::string m_name;        ///< of the running command's step
    std::string m_typingName;  ///< empty: nothing is being typed
};

}  // namespace zev
