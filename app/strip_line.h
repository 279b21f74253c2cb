// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

class QHBoxLayout;
class QPushButton;

namespace zev {

class StripLabel;

/// One line of the strip above the tree: a text and what can be done about it. It takes no room
/// while it has nothing to say.
class StripLine : public QWidget {
    Q_OBJECT
  public:
    struct Action {
        QString text;
        std::function<void()> run;
    };

    /// `group` is what assistive technology calls the line.
    StripLine(const QString& name, const QString& group, QWidget* parent);

    /// A text that is too long for the line is cut there, and whole in the tooltip. An empty one
    /// hides the line.
    void say(const QString& text, std::vector<Action> actions = {});
    QString text() const;

  private:
    QHBoxLayout* m_layout;
    StripLabel* m_label;
    std::vector<QPushButton*> m_buttons;
};

}  // namespace zev
