// SPDX-License-Identifier: MIT
#include "model/menu_prop.h"

#include "model/menu_properties.h"

namespace zev {

void MenuProp::SetDefault() {
    for (const MenuPropertyRow& row : kMenuProperties) {
        if (const auto* const text = std::get_if<TextMember>(&row.member)) {
            if (text->factory)
                this->*text->member = text->factory;
        } else if (const auto* const flag = std::get_if<FlagMember>(&row.member)) {
            this->*flag->member = false;
        } else if (const auto* const position = std::get_if<PositionMember>(&row.member)) {
            this->*position->member = position->factory;
        }
    }
}

}  // namespace zev
