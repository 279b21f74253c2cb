#include "model/menu_content.h"

namespace zev {

MenuContent::MenuContent() : RootMenuProp(*NewItemMenuProp()) {
    DefaultProp.SetDefault();
    RootMenuProp.Columns = "10";
    RootMenuProp.Position = 2;
}

const SharedMenuProp& NewItemMenuProp() {
    static const SharedMenuProp shared = [] {
        MenuProp prop;
        prop.Divider = "&nbsp;";
        prop.HTMLAfter = "&nbsp;&nbsp;";
        prop.HTMLBefore = "&nbsp;&nbsp;";
        return prop;
    }();
    return shared;
}

}  // namespace zev
