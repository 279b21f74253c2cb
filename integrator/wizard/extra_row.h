// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

class QHBoxLayout;
class QPushButton;

namespace zev {

/// A row of buttons for what can be done beside a wizard's steps. The Tab key goes through the
/// steps alone, as people know them by heart; F6 goes to these buttons, and each has an access key.
class ExtraRow : public QWidget {
    Q_OBJECT
  public:
    explicit ExtraRow(QWidget* parent);

    /// The row owns the button. `caption` carries the access key; assistive technology reads
    /// `accessibleName`.
    QPushButton* add(const QString& name, const QString& caption, const QString& accessibleName,
                     std::function<void()> click);

    /// Gives the focus to the next such button that can be pressed in the window. False behind the
    /// last one, and where there is none.
    static bool focusNext(QWidget& window);

  private:
    QHBoxLayout* m_layout;
};

}  // namespace zev
