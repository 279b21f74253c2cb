// SPDX-License-Identifier: MIT
#include "integrator/page_edit.h"

#include <cassert>

namespace zev {

std::string withEdits(std::string_view page, const std::vector<PageEdit>& edits) {
    std::size_t size = page.size();
    for (const PageEdit& edit : edits)
        size += edit.text.size() - edit.length;
    std::string bytes;
    bytes.reserve(size);
    std::size_t done = 0;
    for (const PageEdit& edit : edits) {
        assert(edit.offset >= done && edit.offset + edit.length <= page.size());
        bytes += page.substr(done, edit.offset - done);
        bytes += edit.text;
        done = edit.offset + edit.length;
    }
    bytes += page.substr(done);
    return bytes;
}

}  // namespace zev
