// SPDX-License-Identifier: MIT
#include "app/icons.h"

/// The icons lie in a static library, which the linker cuts down to what is named. Outside any
/// namespace, as the macro demands.
static void initIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace zev {

QIcon buttonIcon(const QString& name) {
    initIcons();
    QIcon icon(":/icons/" + name + ".svg");
    // The grey that Qt makes by itself is brighter than the colours on a dark theme.
    icon.addFile(":/icons/grey/" + name + ".svg", QSize(), QIcon::Disabled);
    return icon;
}

QIcon programIcon() {
    initIcons();
    return QIcon(":/icons/zevmenu_creator.svg");
}

}  // namespace zev
