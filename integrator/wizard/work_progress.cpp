// SPDX-License-Identifier: MIT
#include "integrator/wizard/work_progress.h"

namespace zev {

namespace {

/// A window that stands still for less than this seems to answer at once.
constexpr int kMomentMs = 100;

}  // namespace

WorkProgress::WorkProgress(const QString& what, const QString& stop, QWidget* parent)
    : QProgressDialog(what, stop, 0, 1, parent) {
    setObjectName("frmProgress");
    setWindowTitle(parent->windowTitle());
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(kMomentMs);
    // Without a total, the first step would be the last.
    setAutoReset(false);
    setValue(0);  // the moment begins
}

bool WorkProgress::goesOn(std::size_t doneCount, std::size_t totalCount) {
    setMaximum(static_cast<int>(totalCount));
    setValue(static_cast<int>(doneCount));
    return !wasCanceled();
}

}  // namespace zev
