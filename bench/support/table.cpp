// SPDX-License-Identifier: MIT
#include "support/table.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace vantrel::bench {

namespace {

// Three digits that matter, whether it is microseconds or megabytes.
std::string amount(double value, std::string_view unit) {
    std::array<char, 32> text{};
    const int decimals = value < 1 ? 3 : value < 100 ? 2 : 0;
    std::snprintf(text.data(), text.size(), "%.*f ", decimals, value);
    return text.data() + std::string(unit);
}

void printRow(std::string_view subject, const std::string& ours, const std::string& bound,
              const std::string& ratio, const std::string& atMost) {
    std::printf("%-52s%14s%14s%8s%10s\n", std::string(subject).c_str(), ours.c_str(), bound.c_str(),
                ratio.c_str(), atMost.c_str());
}

std::string number(double value, int decimals) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return text.data();
}

} // namespace

void printHead() {
    printRow("subject", "ours", "bound", "ratio", "at most");
}

void printRatio(std::string_view subject, double ours, double bound, std::string_view unit,
                double atMost) {
    printRow(subject, amount(ours, unit), amount(bound, unit), number(ours / bound, 2),
             number(atMost, 2));
}

void printValue(std::string_view subject, double ours, std::string_view unit, double atMost) {
    printRow(subject, amount(ours, unit), "", "", number(atMost, 0) + " " + std::string(unit));
}

double median(std::vector<double> values) {
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<long>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace vantrel::bench
