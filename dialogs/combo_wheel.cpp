// SPDX-License-Identifier: MIT
#include "dialogs/combo_wheel.h"

#include <QComboBox>
#include <QEvent>

namespace zev {

namespace {

class WheelFilter : public QObject {
  public:
    explicit WheelFilter(QComboBox& list) : QObject(&list), m_list(list) {
        // By default the wheel gives a list the focus first.
        list.setFocusPolicy(Qt::StrongFocus);
        list.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        const bool isStray = event->type() == QEvent::Wheel && !m_list.hasFocus();
        if (isStray)
            event->ignore();
        return isStray;
    }

  private:
    QComboBox& m_list;
};

}  // namespace

void keepWheelForFocus(QComboBox& list) {
    new WheelFilter(list);
}

}  // namespace zev
