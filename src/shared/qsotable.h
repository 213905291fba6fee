// SPDX-License-Identifier: MIT
// The shared QSO table: the log's contacts in memory, index 1 to 12,000.
#pragma once

#include "shared/integer16.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class QsoTable {
public:
    static constexpr int capacity = 12000;

    QsoTable() = default;
    QsoTable(const QsoTable&) = delete; // its lines point into its own bytes
    QsoTable& operator=(const QsoTable&) = delete;

    // Refills the table from a log's bytes: every comma-delimited item that begins "QSO", in
    // file order. Throws RuntimeError 9 at the 12,001st; the first 12,000 then stay.
    void refill(std::string logBytes);
    // The same from the bytes that spare() was filled with: memory is used in turns, since
    // the log is read again after each contact.
    void refillFromSpare();
    std::string& spare() { return m_spare; }

    void clear() { m_lines.clear(); }

    Integer16 count() const { return static_cast<long long>(m_lines.size()); }
    // Index 1 to count(). Throws RuntimeError 9 outside of it.
    std::string_view line(int index) const;
    // All contacts in file order; valid until the next refill.
    const std::vector<std::string_view>& lines() const { return m_lines; }

private:
    std::string m_bytes;
    std::string m_spare;
    std::vector<std::string_view> m_lines;
};

} // namespace vantrel
