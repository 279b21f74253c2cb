// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "integrator/page_edit.h"
#include "integrator/page_note.h"

namespace zev {

/// What takes an integration out of a page, and what to tell of it.
struct PageRemoval {
    std::vector<PageEdit> edits;  ///< none when the page holds nothing that this program put in
    std::vector<PageNote> notes;  ///< in the order of the page
};

/// Takes out what carries this program's marks, the three scripts of integration as it writes them,
/// and its calls at the events of the body. The page is then as it was before, but for what
/// integration dropped, an element that the menu stood instead of, quotes around the values of
/// "onload" and "onresize", an empty one of these and a blank at the end of the body's tag. Code
/// for a menu that somebody else wrote or pasted stays and is told of.
PageRemoval removeIntegration(std::string_view page);

}  // namespace zev
