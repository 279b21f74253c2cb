#include "model/menu_document.h"

#include <cassert>
#include <utility>

#include "model/menu_properties.h"

namespace zev {

MenuDocument::MenuDocument(std::string programFolder) : m_programFolder(std::move(programFolder)) {
    NewDocument();
}

void MenuDocument::NewDocument() {
    SaveFile.clear();
    SavePath = m_programFolder;
    ItemCounter = 0;
    CurNode = nullptr;
    selectedNode = nullptr;
    DefaultProp = MenuProp();
    DefaultProp.SetDefault();
    // A horizontal bar of up to ten items whose submenus drop down.
    RootMenuProp = *NewItemMenuProp();
    RootMenuProp.Columns = "10";
    RootMenuProp.Position = 2;
    bModified = false;
    tree.clear();
}

void MenuDocument::takeFrom(MenuDocument& other) {
    assert(&other != this);
    SaveFile = std::move(other.SaveFile);
    SavePath = std::move(other.SavePath);
    bModified = other.bModified;
    CurNode = other.CurNode;
    selectedNode = other.selectedNode;
    RootMenuProp = std::move(other.RootMenuProp);
    DefaultProp = std::move(other.DefaultProp);
    ItemCounter = other.ItemCounter;
    tree.takeFrom(other.tree);
    other.NewDocument();
}

const SharedMenuProp& NewItemMenuProp() {
    static const SharedMenuProp shared = [] {
        MenuProp prop;
        for (const MenuPropertyRow& row : kMenuProperties) {
            if (const auto* const text = std::get_if<TextMember>(&row.member))
                prop.*text->member = text->starting;
        }
        return prop;
    }();
    return shared;
}

}  // namespace zev
