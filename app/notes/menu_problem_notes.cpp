// SPDX-License-Identifier: MIT
#include "app/notes/menu_problem_notes.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "app/notes/menu_fields.h"
#include "checks/item_names.h"
#include "messages/problem_messages.h"

namespace zev {

namespace {

/// Up to here putting them in order is quicker than going through the menu.
constexpr std::size_t kFewItems = 64;

std::size_t levelOf(const MenuNode& node) {
    std::size_t level = 0;
    for (const MenuNode* above = node.parent(); above; above = above->parent())
        ++level;
    return level;
}

/// True when `left` comes first in tree order. Neither is null.
bool isBefore(const MenuNode* left, const MenuNode* right) {
    std::size_t leftLevel = levelOf(*left);
    std::size_t rightLevel = levelOf(*right);
    const bool isLeftHigher = leftLevel < rightLevel;
    for (; leftLevel > rightLevel; --leftLevel)
        left = left->parent();
    for (; rightLevel > leftLevel; --rightLevel)
        right = right->parent();
    if (left == right)
        return isLeftHigher;
    while (left->parent() != right->parent()) {
        left = left->parent();
        right = right->parent();
    }
    return left->row() < right->row();
}

/// The first of these items in tree order: `most`, or all when they are few.
std::vector<const MenuNode*> inTreeOrder(const std::unordered_set<const MenuNode*>& items,
                                         const MenuTree& tree, std::size_t most) {
    std::vector<const MenuNode*> ordered;
    if (items.size() <= kFewItems) {
        ordered.assign(items.begin(), items.end());
        std::sort(ordered.begin(), ordered.end(), isBefore);
        return ordered;
    }
    const std::size_t count = std::min(items.size(), most);
    for (const MenuNode* node = tree.firstNode(); node && ordered.size() < count;
         node = tree.nextInTreeOrder(*node))
        if (items.contains(node))
            ordered.push_back(node);
    return ordered;
}

}  // namespace

MenuProblemNotes::MenuProblemNotes(MenuDocument& document, Mend mend)
    : m_document(document), m_mend(std::move(mend)) {
    m_document.addObserver(*this);
    contentReplaced();
}

MenuProblemNotes::~MenuProblemNotes() {
    m_document.removeObserver(*this);
}

void MenuProblemNotes::setLinkProblems(std::vector<MenuProblem> problems) {
    m_links.clear();
    for (MenuProblem& problem : problems)
        m_links[problem.item].push_back(std::move(problem));
    changed();
}

void MenuProblemNotes::contentReplaced() {
    m_captions.clear();
    m_values.clear();
    m_links.clear();
    look(nullptr);
    lookForUnkept();
    const MenuTree& tree = m_document.tree();
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        look(node);
        m_captions.add(*node);
    }
    changed();
}

void MenuProblemNotes::aboutToInsert(const MenuNode* parent, std::size_t row) {
    m_parent = parent;
    m_row = row;
}

void MenuProblemNotes::inserted() {
    takeBranch(*m_document.tree().childrenOf(m_parent)[m_row]);
}

// A list instead of recursion: a menu may be thousands of levels deep.
void MenuProblemNotes::takeBranch(const MenuNode& top) {
    std::vector<const MenuNode*> branch = {&top};
    for (std::size_t i = 0; i < branch.size(); ++i) {
        look(branch[i]);
        m_captions.add(*branch[i]);
        branch.insert(branch.end(), branch[i]->children().begin(), branch[i]->children().end());
    }
    changed();
}

void MenuProblemNotes::aboutToRemove(const MenuNode* parent, std::size_t row) {
    std::vector<const MenuNode*> branch = {m_document.tree().childrenOf(parent)[row]};
    for (std::size_t i = 0; i < branch.size(); ++i) {
        forget(branch[i]);
        branch.insert(branch.end(), branch[i]->children().begin(), branch[i]->children().end());
    }
    changed();
}

void MenuProblemNotes::aboutToMove(const MenuNode& node, const MenuNode* /*parent*/,
                                   std::size_t /*row*/) {
    m_moved = &node;
    m_captions.remove(node);
}

void MenuProblemNotes::moved() {
    m_captions.add(*m_moved);
    changed();
}

void MenuProblemNotes::itemChanged(const MenuNode& node) {
    m_captions.remove(node);
    m_captions.add(node);
    look(&node);
    dropOldLinkProblems(&node);
    changed();
}

void MenuProblemNotes::menuChanged(const MenuPropOwner& owner) {
    look(owner.node);
    dropOldLinkProblems(owner.node);
    if (!owner.node)
        lookForUnkept();
    changed();
}

/// Finds out what is wrong with the values of an item and its menu; of null, of the rest.
void MenuProblemNotes::look(const MenuNode* node) {
    std::vector<MenuProblem> problems;
    if (node) {
        addBrokenValues(*node, problems);
        addBrokenValues(*node->item.MenuProperty, node, false, problems);
    } else {
        addBrokenValues(m_document.DefaultProp(), nullptr, true, problems);
        addBrokenValues(m_document.RootMenuProp(), nullptr, false, problems);
    }
    setProblems(m_values, node, std::move(problems));
}

void MenuProblemNotes::lookForUnkept() {
    m_unkept = findUnkeptValues(m_document.DefaultProp(), m_document.RootMenuProp());
}

void MenuProblemNotes::forget(const MenuNode* node) {
    m_captions.remove(*node);
    m_values.erase(node);
    m_links.erase(node);
}

void MenuProblemNotes::dropOldLinkProblems(const MenuNode* node) {
    const auto found = m_links.find(node);
    if (found == m_links.end())
        return;
    std::vector<MenuProblem> problems = found->second;
    std::erase_if(problems, [this](const MenuProblem& problem) {
        const std::string value = withoutEscapes(fieldValue(m_document, placeOf(problem)));
        // A picture's address is a part of its caption.
        return problem.kind == MenuProblem::Kind::Image
                   ? value.find(problem.value) == std::string::npos
                   : value != problem.value;
    });
    setProblems(m_links, node, std::move(problems));
}

void MenuProblemNotes::setProblems(ByNode& where, const MenuNode* node,
                                   std::vector<MenuProblem> problems) {
    if (problems.empty())
        where.erase(node);
    else
        where.insert_or_assign(node, std::move(problems));
}

NoteList MenuProblemNotes::valueNotes(std::size_t most) const {
    return notesOf(NoteKind::Value, most);
}

NoteList MenuProblemNotes::linkNotes(std::size_t most) const {
    return notesOf(NoteKind::Link, most);
}

NoteList MenuProblemNotes::notesOf(NoteKind kind, std::size_t most) const {
    const bool isOfValues = kind == NoteKind::Value;
    const ByNode& problems = isOfValues ? m_values : m_links;
    std::unordered_set<const MenuNode*> repeated;
    if (isOfValues)
        for (const MenuNode* node : m_captions.repeated())
            repeated.insert(node);
    std::unordered_set<const MenuNode*> items = repeated;
    for (const auto& [node, ofNode] : problems)
        if (node)
            items.insert(node);

    NoteList list;
    const auto add = [&](const MenuNode* node) {
        const auto found = problems.find(node);
        if (found != problems.end())
            for (const MenuProblem& problem : found->second)
                addNote(list, noteOf(problem, kind));
    };
    add(nullptr);
    for (const MenuNode* node : inTreeOrder(items, m_document.tree(), most)) {
        if (repeated.contains(node))
            addNote(list, noteOf(sameCaption(*node), kind));
        add(node);
    }
    list.count = repeated.size();
    for (const auto& [node, ofNode] : problems)
        list.count += ofNode.size();
    return list;
}

Note MenuProblemNotes::noteOf(const MenuProblem& problem, NoteKind kind) const {
    Note note{.kind = kind, .place = placeOf(problem), .text = problemText(problem)};
    if (const std::optional<std::string> mended = mendedValue(problem))
        note.actions = {
            {"Mend", [mend = m_mend, place = note.place, value = *mended] { mend(place, value); }}};
    return note;
}

}  // namespace zev
