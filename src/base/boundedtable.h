// SPDX-License-Identifier: MIT
// A table with a fixed capacity and indexes from 1, whose errors name it.
#pragma once

#include "base/runtimeerror.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace vantrel {

template <typename T>
class BoundedTable {
public:
    // name: in the operator's words, for the error ("the list of Centurions").
    BoundedTable(std::string name, int capacity) : m_name(std::move(name)), m_capacity(capacity) {}

    // Throws RuntimeError 9 naming the table and its limit when it is full.
    void append(T entry) {
        if (size() >= m_capacity)
            throw RuntimeError(ErrorCode::subscriptOutOfRange, m_name + " holds at most " +
                                                                   std::to_string(m_capacity) +
                                                                   " entries");
        m_entries.push_back(std::move(entry));
    }

    // Index 1 to size(); any other throws RuntimeError 9.
    const T& at(int index) const { return m_entries[checked(index)]; }
    T& at(int index) { return m_entries[checked(index)]; }

    int size() const { return static_cast<int>(m_entries.size()); }

    const std::vector<T>& entries() const { return m_entries; }
    auto begin() const { return m_entries.begin(); }
    auto end() const { return m_entries.end(); }

private:
    std::size_t checked(int index) const {
        if (index < 1 || index > size())
            throw RuntimeError(ErrorCode::subscriptOutOfRange,
                               m_name + " has no entry " + std::to_string(index));
        return static_cast<std::size_t>(index - 1);
    }

    std::string m_name;
    int m_capacity;
    std::vector<T> m_entries;
};

} // namespace vantrel
