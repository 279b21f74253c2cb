// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

#include "app/notes/note.h"
#include "checks/caption_index.h"
#include "checks/menu_problems.h"
#include "checks/unkept_values.h"
#include "model/menu_document.h"

namespace zev {

/// Follows the document and knows what is wrong with its values at any time: an edit costs a look
/// at what it changed, however large the menu is. What a look at the disk has found is handed in,
/// and goes with the value it is about.
class MenuProblemNotes : private DocumentObserver {
  public:
    /// `mend` gives a field another value. `document` is not owned and outlives the object.
    using Mend = std::function<void(const NotePlace& place, const std::string& value)>;
    MenuProblemNotes(MenuDocument& document, Mend mend);
    ~MenuProblemNotes() override;

    /// Takes what a look at links and images has found, in place of what an earlier one had.
    void setLinkProblems(std::vector<MenuProblem> problems);

    /// How many notes there are about values, and about links; the first `most` of them or a few
    /// more, in tree order.
    NoteList valueNotes(std::size_t most) const;
    NoteList linkNotes(std::size_t most) const;
    const std::vector<UnkeptValue>& unkeptValues() const { return m_unkept; }

    /// Called when there may be other notes than before.
    std::function<void()> changed = [] {};

  private:
    /// By the item they belong to; null stands for the defaults and the top-level menu.
    using ByNode = std::unordered_map<const MenuNode*, std::vector<MenuProblem>>;

    void contentReplaced() override;
    void aboutToInsert(const MenuNode* parent, std::size_t row) override;
    void inserted() override;
    void aboutToRemove(const MenuNode* parent, std::size_t row) override;
    void aboutToMove(const MenuNode& node, const MenuNode* parent, std::size_t row) override;
    void moved() override;
    void itemChanged(const MenuNode& node) override;
    void menuChanged(const MenuPropOwner& owner) override;

    void takeBranch(const MenuNode& top);
    void look(const MenuNode* node);
    void forget(const MenuNode* node);
    void dropOldLinkProblems(const MenuNode* node);
    void setProblems(ByNode& where, const MenuNode* node, std::vector<MenuProblem> problems);
    void lookForUnkept();
    NoteList notesOf(NoteKind kind, std::size_t most) const;
    Note noteOf(const MenuProblem& problem, NoteKind kind) const;

    MenuDocument& m_document;
    Mend m_mend;
    CaptionIndex m_captions;
    ByNode m_values;
    ByNode m_links;
    std::vector<UnkeptValue> m_unkept;

    // What is being announced.
    const MenuNode* m_parent = nullptr;
    std::size_t m_row = 0;
    const MenuNode* m_moved = nullptr;
};

}  // namespace zev
