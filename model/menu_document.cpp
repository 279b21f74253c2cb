// SPDX-License-Identifier: MIT
#include "model/menu_document.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace zev {

namespace {

/// Puts `value` where `kept` stands, and what stood there into `value`. False when they are equal.
template <typename Value>
bool hasExchanged(Value& kept, Value& value) {
    if (kept == value)
        return false;
    std::swap(kept, value);
    return true;
}

/// One function object out of one for each kind of change.
template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

bool isEmpty(const MenuContent& content) {
    static const MenuContent kEmpty;
    return content.tree.firstNode() == nullptr && content.DefaultProp == kEmpty.DefaultProp &&
           content.RootMenuProp == kEmpty.RootMenuProp && content.ItemCounter == kEmpty.ItemCounter;
}

}  // namespace

MenuDocument::MenuDocument(std::string programFolder)
    : m_programFolder(std::move(programFolder)), m_savePath(m_programFolder) {}

const MenuProp& MenuDocument::menuProp(const MenuPropOwner& owner) const {
    switch (owner.kind) {
        case MenuPropOwner::Kind::Defaults:
            return m_content.DefaultProp;
        case MenuPropOwner::Kind::TopMenu:
            return m_content.RootMenuProp;
        case MenuPropOwner::Kind::Submenu:
            break;
    }
    return *owner.node->item.MenuProperty;
}

/// True when the change would leave the document as it is.
bool MenuDocument::isAlready(const Change& change) const {
    return std::visit(
        Overloaded{
            [](const auto&) { return false; },
            [](const SetItem& one) { return one.node->item == one.item; },
            [](const SetLabel& one) { return one.node->text == one.text; },
            [](const SetExpanded& one) { return one.node->isExpanded == one.isExpanded; },
            [this](const SetMenu& one) { return menuProp(one.owner) == *one.properties; },
            [this](const SetFile& one) {
                return one.SaveFile == m_saveFile && one.SavePath == m_savePath;
            },
            [this](const SetSelection& one) { return one.selection == m_selection; },
            [this](const ReplaceContent& one) {
                return isEmpty(*one.content) && isEmpty(m_content);
            },
        },
        change);
}

// Every change of the document passes here, together with the one that takes it back.
Change MenuDocument::apply(Change change) {
    return std::visit([this](auto& one) { return perform(std::move(one)); }, change);
}

Changes MenuDocument::apply(Changes changes) {
    for (Change& change : changes)
        change = apply(std::move(change));
    std::reverse(changes.begin(), changes.end());
    return changes;
}

void MenuDocument::change(Change change) {
    const bool isNew = !isAlready(change);
    Change inverse = apply(std::move(change));
    if (isNew && m_recorder)
        m_recorder->changed(std::move(inverse));
}

void MenuDocument::record(Changes inverses) {
    if (m_recorder)
        for (auto inverse = inverses.rbegin(); inverse != inverses.rend(); ++inverse)
            m_recorder->changed(std::move(*inverse));
}

template <typename... Parameters>
void MenuDocument::tell(void (DocumentObserver::*what)(Parameters...),
                        std::type_identity_t<Parameters>... parameters) {
    assert(!m_isTelling);
    m_isTelling = true;
    for (DocumentObserver* observer : m_observers)
        (observer->*what)(parameters...);
    m_isTelling = false;
}

Change MenuDocument::perform(InsertBranch&& change) {
    RemoveBranch inverse{change.branch.top(), m_selection};
    tell(&DocumentObserver::aboutToInsert, change.parent, change.row);
    m_content.tree.insert(std::move(change.branch), change.parent, change.row);
    tell(&DocumentObserver::inserted);
    if (change.selection)
        perform(SetSelection{*change.selection});
    return inverse;
}

Change MenuDocument::perform(RemoveBranch&& change) {
    const MenuNode& doomed = *change.node;
    NodeSelection selection = change.selection.value_or(NodeSelection{&doomed, &doomed});
    for (const MenuNode** node : {&selection.selected, &selection.current})
        if (isInBranch(*node, doomed))
            *node = heirOf(doomed);
    // Before the removal, so that nobody who is told of it meets a dead node.
    const NodeSelection before = std::exchange(m_selection, selection);
    const MenuNode* const parent = doomed.parent();
    const std::size_t row = doomed.row();
    tell(&DocumentObserver::aboutToRemove, parent, row);
    InsertBranch inverse{m_content.tree.take(doomed), parent, row, before};
    tell(&DocumentObserver::removed);
    tellSelection(before);
    return inverse;
}

Change MenuDocument::perform(MoveBranch&& change) {
    const MenuNode& node = *change.node;
    const MenuNode* const oldParent = node.parent();
    const std::size_t oldRow = node.row();
    if (change.parent == oldParent && (change.row == oldRow || change.row == oldRow + 1))
        return change;
    tell(&DocumentObserver::aboutToMove, node, change.parent, change.row);
    m_content.tree.move(node, change.parent, change.row);
    tell(&DocumentObserver::moved);
    // The row is counted with the node still at the place that it will leave.
    const bool standsBefore = node.parent() == oldParent && node.row() < oldRow;
    return MoveBranch{&node, oldParent, standsBefore ? oldRow + 1 : oldRow};
}

Change MenuDocument::perform(SetItem&& change) {
    const ItemProp& item = change.node->item;
    if (!hasExchanged(m_content.tree.edit(*change.node).item, change.item))
        return change;
    tell(&DocumentObserver::itemChanged, *change.node);
    if (item.MenuProperty != change.item.MenuProperty)
        tell(&DocumentObserver::menuChanged,
             MenuPropOwner{MenuPropOwner::Kind::Submenu, change.node});
    return change;
}

Change MenuDocument::perform(SetLabel&& change) {
    if (hasExchanged(m_content.tree.edit(*change.node).text, change.text))
        tell(&DocumentObserver::labelChanged, *change.node);
    return change;
}

Change MenuDocument::perform(SetExpanded&& change) {
    if (hasExchanged(m_content.tree.edit(*change.node).isExpanded, change.isExpanded))
        tell(&DocumentObserver::expansionChanged, *change.node);
    return change;
}

Change MenuDocument::perform(SetMenu&& change) {
    if (menuProp(change.owner) == *change.properties)
        return change;
    if (change.owner.kind == MenuPropOwner::Kind::Defaults)
        std::swap(m_content.DefaultProp, change.properties.edit());
    else if (change.owner.kind == MenuPropOwner::Kind::TopMenu)
        std::swap(m_content.RootMenuProp, change.properties.edit());
    else
        std::swap(m_content.tree.edit(*change.owner.node).item.MenuProperty, change.properties);
    tell(&DocumentObserver::menuChanged, change.owner);
    return change;
}

Change MenuDocument::perform(SetItemCounter&& change) {
    std::swap(m_content.ItemCounter, change.ItemCounter);
    return change;
}

Change MenuDocument::perform(SetFile&& change) {
    const bool hasNewFile = hasExchanged(m_saveFile, change.SaveFile);
    if (hasExchanged(m_savePath, change.SavePath) || hasNewFile)
        tell(&DocumentObserver::fileChanged);
    return change;
}

Change MenuDocument::perform(SetSelection&& change) {
    const NodeSelection before = std::exchange(m_selection, change.selection);
    tellSelection(before);
    return SetSelection{before};
}

Change MenuDocument::perform(SetModified&& change) {
    if (hasExchanged(m_isModified, change.bModified))
        tell(&DocumentObserver::modifiedChanged);
    return change;
}

Change MenuDocument::perform(ReplaceContent&& change) {
    tell(&DocumentObserver::aboutToReplaceContent);
    std::swap(m_content, *change.content);
    std::swap(m_selection, change.selection);
    tell(&DocumentObserver::contentReplaced);
    return change;
}

const MenuNode* MenuDocument::heirOf(const MenuNode& node) const {
    if (const MenuNode* next = tree().nextSibling(node))
        return next;
    if (const MenuNode* previous = tree().previousSibling(node))
        return previous;
    return node.parent();
}

void MenuDocument::tellSelection(const NodeSelection& before) {
    if (m_selection.selected != before.selected)
        tell(&DocumentObserver::selectedNodeChanged);
    if (m_selection.current != before.current)
        tell(&DocumentObserver::currentNodeChanged);
}

void MenuDocument::NewDocument() {
    open(MenuContent());
}

void MenuDocument::open(MenuContent content, std::string SaveFile, std::string SavePath) {
    change(SetFile{std::move(SaveFile), std::move(SavePath)});
    markSaved();
    // Last, so that whoever is told of it finds all else as it stays.
    changeContent(std::move(content));
}

void MenuDocument::changeContent(MenuContent content) {
    auto shown = std::make_unique<MenuContent>(std::move(content));
    const MenuNode* const first = shown->tree.firstNode();
    change(ReplaceContent{std::move(shown), {first, first}});
}

void MenuDocument::replaceContent(MenuContent content) {
    markModified();
    changeContent(std::move(content));
}

void MenuDocument::open(MenuContent content) {
    open(std::move(content), "", m_programFolder);
}

void MenuDocument::restore(MenuContent content, std::string SaveFile, std::string SavePath,
                           NodeSelection selection) {
    change(SetFile{std::move(SaveFile), std::move(SavePath)});
    change(ReplaceContent{std::make_unique<MenuContent>(std::move(content)), selection});
    markModified();
}

void MenuDocument::setFile(std::string SaveFile, std::string SavePath) {
    apply(SetFile{std::move(SaveFile), std::move(SavePath)});
}

void MenuDocument::select(const MenuNode* node) {
    change(SetSelection{{node, node}});
}

void MenuDocument::setItem(const MenuNode& node, ItemProp item) {
    change(SetItem{&node, std::move(item)});
}

void MenuDocument::setLabel(const MenuNode& node, std::string text) {
    change(SetLabel{&node, std::move(text)});
}

void MenuDocument::setExpanded(const MenuNode& node, bool isExpanded) {
    change(SetExpanded{&node, isExpanded});
}

void MenuDocument::makeVisible(const MenuNode& node) {
    for (const MenuNode* above = node.parent(); above; above = above->parent())
        setExpanded(*above, true);
}

void MenuDocument::setMenu(const MenuPropOwner& owner, MenuProp properties) {
    setMenuUnmarked(owner, std::move(properties));
    markModified();
}

void MenuDocument::setMenuUnmarked(const MenuPropOwner& owner, MenuProp properties) {
    change(SetMenu{owner, std::move(properties)});
}

void MenuDocument::markModified() {
    apply(SetModified{true});
}

void MenuDocument::markSaved() {
    clearModified();
    if (m_recorder)
        m_recorder->saved();
}

void MenuDocument::clearModified() {
    apply(SetModified{false});
}

}  // namespace zev
