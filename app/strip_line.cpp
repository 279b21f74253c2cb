// SPDX-License-Identifier: MIT
#include "app/strip_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <utility>

namespace zev {

/// One line, cut where the room ends.
class StripLabel : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft,
                         fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

StripLine::StripLine(const QString& name, const QString& group, QWidget* parent)
    : QWidget(parent), m_layout(new QHBoxLayout(this)), m_label(new StripLabel(this)) {
    setObjectName(name);
    setAccessibleName(group);
    m_label->setTextFormat(Qt::PlainText);
    // A long caption is no reason for a wide window.
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_layout->setContentsMargins(4, 0, 0, 0);
    m_layout->addWidget(m_label, 1);
    hide();
}

void StripLine::say(const QString& text, std::vector<Action> actions) {
    for (QPushButton* button : std::exchange(m_buttons, {})) {
        button->hide();
        button->deleteLater();  // it may be the one that was pressed
    }
    m_label->setText(text);
    m_label->setToolTip(text.toHtmlEscaped());
    for (Action& action : actions) {
        auto* button = new QPushButton(action.text, this);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QPushButton::clicked, this, std::move(action.run));
        m_layout->addWidget(button);
        m_buttons.push_back(button);
    }
    setVisible(!text.isEmpty());
}

QString StripLine::text() const {
    return m_label->text();
}

}  // namespace zev
