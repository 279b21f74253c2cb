// SPDX-License-Identifier: MIT
#include "model/menu_content.h"

#include "model/menu_properties.h"

namespace zev {

MenuContent::MenuContent() : RootMenuProp(*newItemMenuProp()) {
    DefaultProp.SetDefault();
    RootMenuProp.Columns = "10";
    RootMenuProp.Position = 2;
}

const SharedMenuProp& newItemMenuProp() {
    static const SharedMenuProp shared = [] {
        MenuProp prop;
        for (const MenuPropertyRow& row : kMenuProperties)
            if (const auto* const text = std::get_if<TextMember>(&row.member))
                prop.*text->member = text->starting;
        return prop;
    }();
    return shared;
}

}  // namespace zev
