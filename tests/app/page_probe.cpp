// SPDX-License-Identifier: MIT
#include "page_probe.h"

#include <QLibrary>

namespace zev {

QVariant evaluateInPage(QWidget& widget, const QString& script) {
    using Function = void (*)(QWidget*, const QString*, QVariant*);
    static const auto function =
        reinterpret_cast<Function>(QLibrary::resolve(ZEV_PAGE_PROBE, "zevEvaluateInPage"));
    QVariant value;
    if (function != nullptr)
        function(&widget, &script, &value);
    return value;
}

}  // namespace zev
