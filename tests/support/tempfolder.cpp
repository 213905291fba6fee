// SPDX-License-Identifier: MIT
#include "support/tempfolder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>

namespace vantrel::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    std::string pattern = (fs::temp_directory_path() / "vantrel-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    m_path = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

void TempFolder::write(const std::string& name, std::string_view bytes) const {
    std::ofstream file(m_path / name, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file)
        throw std::runtime_error("cannot write " + name);
}

std::string TempFolder::read(const std::string& name) const {
    std::ifstream file(m_path / name, std::ios::binary);
    if (!file) {
        ADD_FAILURE() << "no file " << name;
        return {};
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool TempFolder::has(const std::string& name) const {
    return fs::exists(m_path / name);
}

std::vector<std::string> TempFolder::names() const {
    std::vector<std::string> result;
    for (const auto& entry : fs::directory_iterator(m_path))
        result.push_back(entry.path().filename().string());
    std::sort(result.begin(), result.end());
    return result;
}

} // namespace vantrel::test
