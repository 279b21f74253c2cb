// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <QWidget>

namespace zev {

/// Runs `script` in the page shown somewhere inside `widget`, with the real browser engine, and
/// gives its value. Invalid when no page is shown there or nothing comes back within 5 seconds:
/// a page that is being replaced may never answer.
///
/// It lives in a library of its own, loaded at the first call: a test linked with the engine would
/// not see what happens when the engine is loaded late, as the editor does.
QVariant evaluateInPage(QWidget& widget, const QString& script);

}  // namespace zev
