// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressDialog>
#include <cstddef>

namespace zev {

/// Tells how far work is that its window waits for, and stops it. It shows itself only when the
/// work takes more than a moment; then the window answers between any two steps, but starts nothing
/// else.
class WorkProgress : public QProgressDialog {
    Q_OBJECT
  public:
    WorkProgress(const QString& what, const QString& stop, QWidget* parent);

    /// To be called before each step; a total of 0 is not known. False when the person stopped it.
    bool goesOn(std::size_t doneCount, std::size_t totalCount);
};

}  // namespace zev
