#pragma once

#include <QMessageBox>

namespace zev {

/// The text of a message box, without the places where long words may be broken.
inline QString textOf(const QMessageBox& box) {
    return box.text().remove(QChar(0x200B));
}

}  // namespace zev
