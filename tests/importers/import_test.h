// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "importers/import_menu.h"
#include "messages/import_messages.h"
#include "model/menu_document.h"
#include "tests/script/document_text.h"

namespace zev {

inline void PrintTo(const LineWarning& warning, std::ostream* out) {
    *out << "line " << warning.line << ": " << reasonText(warning.reason);
}

namespace test {

using Reason = LineWarning::Reason;
using Warnings = std::vector<LineWarning>;

/// Imports into a document that is new at each call.
class ImportTest : public testing::Test {
  protected:
    Warnings importMenu(std::string_view format, std::string_view bytes) {
        document = MenuContent();
        const Warnings warnings =
            zev::importMenu(*findImportFormat(format), std::string(bytes), document).warnings;
        ExpectSoundTree(document.tree);
        return warnings;
    }
    const ItemProp& itemAt(const std::string& key) {
        const MenuNode* const node = document.tree.find(key);
        EXPECT_NE(node, nullptr) << key;
        static const ItemProp noItem;
        return node ? node->item : noItem;
    }
    std::string tree() const { return TreeText(document.tree); }
    std::string keys() const { return TreeTextWithKeys(document.tree); }

    MenuContent document;
    const MenuContent newDocument;
    const Warnings none;
};

}  // namespace test
}  // namespace zev
