// SPDX-License-Identifier: MIT
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/support/import_properties.h"

// The first byte chooses the format: '0' bar, '1' menu, '2' button.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    if (size == 0)
        return 0;
    constexpr const char* kFormats[] = {"orletbar", "orletmenu", "orletbutton"};
    const std::string problem = zev::test::problemOfImport(
        kFormats[bytes[0] % 3], std::string(reinterpret_cast<const char*>(bytes) + 1, size - 1));
    if (!problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
        std::abort();
    }
    return 0;
}
