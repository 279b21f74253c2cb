#pragma once

#include <QLineEdit>
#include <string>

class QLabel;

namespace zev {

class MessageBox;

/// The text box of one property. It is not the property: a value reaches it by `showValue` and is
/// fetched back by `value`.
class PropertyEdit : public QLineEdit {
    Q_OBJECT
  public:
    PropertyEdit(const QString& name, QWidget* parent);

    /// Shows a stored value (UTF-8); `edited` is not emitted.
    void showValue(const std::string& value);
    /// The text (UTF-8). While the box still shows what `showValue` put there, this is that very
    /// value, so that no text a box cannot hold (a line break) is damaged by being looked at.
    std::string value() const;
    /// Replaces the text by what `rule` makes of it; the caret stays between the same characters.
    void applyRule(std::string (*rule)(const std::string&));

  signals:
    /// The text was changed by anything but `showValue`.
    void edited();
    /// The focus went to another control of the window. A menu or another window that opens does
    /// not count: the person comes back to the box.
    void left();

  protected:
    void focusOutEvent(QFocusEvent* event) override;

  private:
    QString m_shownText;       ///< what the box made of `m_shownValue`
    std::string m_shownValue;  ///< as `showValue` was told
    bool m_isShowing = false;
};

/// A text box and its label.
struct PropertyField {
    QLabel* label = nullptr;       ///< "lbl" + name, buddy of `edit`
    PropertyEdit* edit = nullptr;  ///< "txt" + name

    /// Creates the two widgets as children of `parent`. `caption` carries the access key;
    /// `accessibleName` tells this field from others with the same caption in the window.
    static PropertyField make(const QString& name, const QString& caption,
                              const QString& accessibleName, const QString& tooltip,
                              QWidget* parent);
};

/// Shows the message of `CheckRange` when there is one, and then clears the box.
void CheckRange(PropertyEdit& edit, double lower, double upper, MessageBox& messages);

/// The same with `CheckInteger`.
void CheckInteger(PropertyEdit& edit, MessageBox& messages);

/// Emits `left` for the box of `window` that has the focus, if one has. For the handlers of
/// buttons: Enter, an access key and a click leave the focus where it was, but the person is done
/// with the box.
void leaveFocusedEdit(QWidget& window);

}  // namespace zev
