// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/notes/note.h"
#include "checks/menu_problems.h"
#include "model/menu_document.h"

namespace zev {

NotePlace placeOf(const MenuProblem& problem);
NotePlace placeOf(const MenuNode& node, std::string field);

/// The value of the field a note is about, in the form of the script; empty when the item is gone.
std::string fieldValue(const MenuDocument& document, const NotePlace& place);
/// Sets it, and `bModified`. Nothing when the item is gone.
void setFieldValue(MenuDocument& document, const NotePlace& place, const std::string& value);

}  // namespace zev
