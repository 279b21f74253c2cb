// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <functional>
#include <string>
#include <string_view>

#include "model/input_rules.h"

class QLabel;

namespace zev {

class MessageBox;

/// What a box is to hold instead of a text, and what the person is told about it.
using TextCheck = std::function<CheckedText(std::string_view)>;

/// `CheckRange` with these bounds.
TextCheck range(double lower, double upper);

/// `checkWholeRange` with these bounds.
TextCheck wholeRange(double lower, double upper);

/// `EscapeApostrophes`.
CheckedText escaped(std::string_view text);

/// The text box of one property. It is not the property: a value reaches it by `showValue` and is
/// fetched back by `value`.
class PropertyEdit : public QLineEdit {
    Q_OBJECT
  public:
    /// When a box checks its text by itself.
    enum class CheckedWhen { Left, Changed };

    PropertyEdit(const QString& name, QWidget* parent);

    /// Gives the box its check; one without a check takes every text. `messages` is not owned and
    /// outlives the box.
    void setCheck(TextCheck check, CheckedWhen when, MessageBox& messages);

    /// Shows a stored value (UTF-8); `edited` is not emitted.
    void showValue(const std::string& value);
    /// The same for the value of what is shown already: the text that the check made it of can
    /// still be had back.
    void showAgain(const std::string& value);
    /// The text (UTF-8). While the box still shows what `showValue` put there, this is that very
    /// value, so that no text a box cannot hold (a line break) is damaged by being looked at.
    std::string value() const;
    /// The box's own undo has nothing left to take back but the check's work.
    void forgetTyping();
    /// Runs the check: shows its message, and replaces the text by what the check makes of it; the
    /// caret stays between the same characters. The box's own undo brings the text back, which is
    /// checked again when it has been changed or the box is left.
    void check();

  signals:
    /// The text was changed by anything but `showValue`.
    void edited();
    /// The focus went to another control of the window. A menu or another window that opens does
    /// not count: the person comes back to the box.
    void left();

  protected:
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void replaceText(const QString& replaced);

    TextCheck m_check;
    MessageBox* m_messages = nullptr;
    QString m_shownText;       ///< what the box made of `m_shownValue`
    std::string m_shownValue;  ///< as `showValue` was told
    bool m_isShowing = false;
    bool m_isChecking = false;
    bool m_isBroughtBack = false;  ///< by undo, after a check had refused it
    /// What the check has last replaced, and by what; both empty: nothing that is still shown.
    QString m_refusedText;
    QString m_checkedText;
};

/// A text box and its label.
struct PropertyField {
    QLabel* label = nullptr;       ///< "lbl" + name, buddy of `edit`
    PropertyEdit* edit = nullptr;  ///< "txt" + name

    /// Creates the two widgets as children of `parent`. `caption` carries the access key; without
    /// it and a colon it is what assistive technology reads.
    static PropertyField make(const QString& name, const QString& caption, const QString& tooltip,
                              QWidget* parent);
};

/// Emits `left` for the box of `window` that has the focus, if one has. For what a person does
/// without leaving the box: Enter, an access key, a shortcut and a click leave the focus where it
/// was, but the person is done with the box.
void leaveFocusedEdit(QWidget& window);

}  // namespace zev
