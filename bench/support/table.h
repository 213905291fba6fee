// SPDX-License-Identifier: MIT
// The rows that all benches print, and medians.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel::bench {

void printHead();
// What we take beside what the bound takes, in `unit` ("ms", "MB"), and their ratio.
void printRatio(std::string_view subject, double ours, double bound, std::string_view unit,
                double atMost);
// What we take alone; atMost in the same unit.
void printValue(std::string_view subject, double ours, std::string_view unit, double atMost);

// The middle value; 0 of none.
double median(std::vector<double> values);

} // namespace vantrel::bench
