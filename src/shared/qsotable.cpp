// SPDX-License-Identifier: MIT
#include "shared/qsotable.h"

#include "shared/itemreader.h"
#include "shared/qsoline.h"
#include "shared/runtimeerror.h"

#include <utility>

namespace vantrel {

void QsoTable::refill(std::string logBytes) {
    m_spare = std::move(logBytes);
    refillFromSpare();
}

void QsoTable::refillFromSpare() {
    m_lines.clear();
    m_bytes.swap(m_spare);
    ItemReader reader(m_bytes);
    while (!reader.atEnd()) {
        const std::string_view item = reader.next();
        if (!isContact(item))
            continue;
        if (m_lines.size() == capacity)
            throw RuntimeError(ErrorCode::subscriptOutOfRange, "the QSO table holds at most " +
                                                                   std::to_string(capacity) +
                                                                   " contacts");
        m_lines.push_back(item);
    }
}

std::string_view QsoTable::line(int index) const {
    if (index < 1 || index > count().value())
        throw RuntimeError(ErrorCode::subscriptOutOfRange,
                           "the QSO table has no contact " + std::to_string(index));
    return m_lines[static_cast<std::size_t>(index - 1)];
}

} // namespace vantrel
