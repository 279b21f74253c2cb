// SPDX-License-Identifier: MIT
// Writes the header by which a program knows the run-time files it was built with:
//
//     zev_describe_built_files HEADER FILE...
//
// Exit status: 0 done, 1 a file could not be read or written.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "text/hash.h"

int main(int argc, char** argv) {
    std::ofstream header(argc > 1 ? argv[1] : "");
    header << "// Written by the build.\n#pragma once\n\n#include \"library/built_file.h\"\n\n"
              "namespace zev {\n\ninline constexpr BuiltFile kBuiltFiles[] = {\n";
    for (int i = 2; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        if (!file.is_open() || bytes.empty()) {
            std::cerr << argv[i] << ": cannot be read, or is empty\n";
            return 1;
        }
        header << "    {" << std::filesystem::path(argv[i]).filename() << ", " << bytes.size()
               << "U, " << zev::hashOf(bytes) << "U},\n";
    }
    header << "};\n\n}  // namespace zev\n";
    header.close();
    return header ? 0 : 1;
}
