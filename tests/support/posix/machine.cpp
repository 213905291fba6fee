// SPDX-License-Identifier: MIT
#include "support/machine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrel::test {

bool makePipeAndLinks(const std::filesystem::path& folder) {
    std::filesystem::create_symlink("LOOP", folder / "LOOP");
    std::filesystem::create_symlink("gone", folder / "DANGLING");
    return ::mkfifo((folder / "PIPE").c_str(), 0600) == 0;
}

bool mayGiveFilesAway() {
    return ::getuid() == 0;
}

void give(const std::filesystem::path& path, unsigned owner) {
    EXPECT_EQ(::chown(path.c_str(), owner, 0), 0);
}

AsNobody::AsNobody() {
    EXPECT_EQ(mayGiveFilesAway() ? ::setresuid(nobody, nobody, 0) : 0, 0);
}

AsNobody::~AsNobody() {
    EXPECT_EQ(::getuid() == nobody ? ::setresuid(0, 0, 0) : 0, 0);
}

} // namespace vantrel::test
