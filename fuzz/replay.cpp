// Feeds every file of a folder to a fuzz target, for builds without libFuzzer. usage: replay FOLDER

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", arguments[0]);
        return 2;
    }
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::fprintf(stderr, "%s\n", entry.path().c_str());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string input((std::istreambuf_iterator<char>(file)), {});
        if (file.fail() && !file.eof()) {
            std::fprintf(stderr, "cannot be read\n");
            return 1;
        }
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
        ++count;
    }
    std::printf("%d inputs\n", count);
    return count == 0 ? 1 : 0;
}
