// SPDX-License-Identifier: MIT
// Feeds a target the files of a folder: what fuzzing found once is tried in every test run, by
// any compiler.
#include "fuzz/fuzztarget.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        // Told beforehand: when a property does not hold, this is the last line.
        std::fprintf(stderr, "%s\n", entry.path().c_str());
        std::ifstream file(entry.path(), std::ios::binary);
        vantrel::test::Input input(
            {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
        vantrel::test::fuzz(input);
        ++count;
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
