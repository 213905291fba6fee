// SPDX-License-Identifier: MIT
#include "rig/radiofamily.h"
#include "rig/rigs.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

TEST(Rigs, AreReadByTheNameTheSettingsHoldAndOnlyIcomsHaveAnAddress) {
    for (const Rig& rig : rigs) {
        const bool readable = rig.model != "FTdx-5000" && rig.model != "FTdx-3000";
        EXPECT_EQ(familyOf(rig.stored()), readable ? rig.family : nullptr) << rig.model;
        EXPECT_EQ(!rig.civAddress.empty(), rig.family == &icomCiv) << rig.model;
        EXPECT_EQ(rig.model.starts_with("IC-7"), rig.family == &icomCiv) << rig.model;
    }
    EXPECT_EQ(familyOf("IC-7850"), &icomCiv) << "taken for an Icom, though not listed";
    for (const char* rig : {"", "None", "IC-910", "TS-2000X", "ft-950"})
        EXPECT_EQ(familyOf(rig), nullptr) << rig;
}

} // namespace
} // namespace vantrel::test
