// SPDX-License-Identifier: MIT
// The limits of counters and of tables with a fixed capacity.
#include "base/boundedtable.h"
#include "base/integer16.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(Integer16, HoldsItsWholeRangeAndNothingBeyond) {
    Integer16 high = 32766;
    ++high;
    EXPECT_RUNTIME_ERROR(++high, ErrorCode::overflow, HasSubstr("32768"));
    EXPECT_EQ(high.text(), "32767") << "a failed step changes nothing";
    Integer16 low = -32767;
    low -= 1;
    EXPECT_RUNTIME_ERROR(low -= 1, ErrorCode::overflow, HasSubstr("-32769"));
    // As 16-bit arithmetic this product would be 0.
    EXPECT_RUNTIME_ERROR(Integer16(256) * 256, ErrorCode::overflow, HasSubstr("65536"));
    EXPECT_RUNTIME_ERROR(Integer16(1LL << 32), ErrorCode::overflow, HasSubstr("4294967296"));
}

TEST(BoundedTable, CountsFromOneTakesItsCapacityAndRefusesTheNextByName) {
    BoundedTable<int> table("the list of Centurions", 3);
    for (int entry : {10, 20, 30})
        table.append(entry);
    EXPECT_RUNTIME_ERROR(table.append(40), ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr("the list of Centurions"), HasSubstr("3")));
    EXPECT_TRUE(table.full());
    EXPECT_THAT(table.entries(), ElementsAre(10, table.at(2), 30));
    for (int index : {-1, 0, 4})
        EXPECT_RUNTIME_ERROR(
            table.at(index), ErrorCode::subscriptOutOfRange,
            AllOf(HasSubstr("the list of Centurions"), HasSubstr(std::to_string(index))));
}

} // namespace
} // namespace vantrel::test
