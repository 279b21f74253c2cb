// SPDX-License-Identifier: MIT
// join_scripts OUT SOURCE...: makes the file that pages load of its sources, in one function, so
// that they share their names and the page sees none.

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "runtime/join/strip_script.h"

namespace {

/// The text of the sources one after the other, or "" and a message when one cannot be used.
std::string joined(int count, char** paths) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        std::ifstream file(paths[i], std::ios::binary);
        const std::string source{std::istreambuf_iterator<char>(file), {}};
        const auto stripped = zev::stripScript(source);
        if (!file || !stripped || stripped->empty()) {
            std::cerr << paths[i] << ": cannot be read, or holds something that does not end\n";
            return "";
        }
        // Where one ends without a semicolon, the next must not go on.
        text += (text.empty() ? "" : "\n") + *stripped;
    }
    return text;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string text = argc > 2 ? joined(argc - 2, argv + 2) : "";
    if (text.empty())
        return 1;
    std::ofstream out(argv[1], std::ios::binary);
    // By the comment the programs know the library when they meet it in a site's folder.
    out << "(function(){//ZEVMenu\n" << text << "})();";
    out.close();
    return out ? 0 : 1;
}
