// SPDX-License-Identifier: MIT
// Feeds every file in and below folders to a fuzz target, for builds without libFuzzer.
// usage: replay FOLDER...

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

/// How many files there were, or -1 after a message.
int replayFolder(const char* folder) {
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_directory())
            continue;
        std::fprintf(stderr, "%s\n", entry.path().c_str());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string input((std::istreambuf_iterator<char>(file)), {});
        if (file.fail() && !file.eof()) {
            std::fprintf(stderr, "cannot be read\n");
            return -1;
        }
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
        ++count;
    }
    return count;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount < 2) {
        std::fprintf(stderr, "usage: %s FOLDER...\n", arguments[0]);
        return 2;
    }
    for (int i = 1; i < argumentCount; ++i) {
        const int count = replayFolder(arguments[i]);
        std::printf("%s: %d inputs\n", arguments[i], count);
        if (count <= 0)
            return 1;
    }
    return 0;
}
