// SPDX-License-Identifier: MIT
// Feeds the chosen target the files of a folder: what fuzzing found once is tried in every test
// run, by any compiler.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argc == 2 ? argv[1] : "")) {
        // Told beforehand: when a property does not hold, this is the last line but its own.
        std::fprintf(stderr, "%s\n", entry.path().string().c_str());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    return count > 0 ? 0 : 1;
}
