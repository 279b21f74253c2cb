// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "integrator/page_edit.h"
#include "integrator/page_note.h"

namespace zev {

/// A script reference to a menu definition in a page.
struct DefinitionReference {
    std::size_t offset = 0;  ///< of its start tag in the page, in bytes from 0
    std::size_t length = 0;  ///< of that tag
    std::string url;         ///< as it is spelled there
    /// As this program writes it, and so it may be replaced. Everything else is somebody's own.
    bool isWritten = false;
};

/// The references that were pasted or placed, wherever they stand, in the order of the page. A
/// script counts when the call that draws the menu follows it, or when it has the name of the
/// definition's file. Those in a placed menu are not among them.
std::vector<DefinitionReference> findReferences(std::string_view page,
                                                const std::string& definitionURL);

/// Adds to `edits`, in their order, those that give the references that this program wrote the
/// definition's URL. Where `edits` replace something, nothing is added.
void addReferenceEdits(std::string_view page, const std::string& definitionURL,
                       std::vector<PageEdit>& edits);

}  // namespace zev
