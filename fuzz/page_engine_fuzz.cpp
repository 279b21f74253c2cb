// SPDX-License-Identifier: MIT
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/support/page_properties.h"
#include "tests/support/placement_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string page(reinterpret_cast<const char*>(bytes), size);
    if (const std::string problem = zev::problemOfPlacements(page); !problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
        std::abort();
    }
    for (const bool keepsOtherScripts : {true, false}) {
        const std::string problem = zev::problemOfIntegration(page, keepsOtherScripts);
        if (!problem.empty()) {
            std::fprintf(stderr, "%s, other scripts %s\n", problem.c_str(),
                         keepsOtherScripts ? "kept" : "dropped");
            std::abort();
        }
    }
    return 0;
}
