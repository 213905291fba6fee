// SPDX-License-Identifier: MIT
// Asserting a run-time error, its number and what its detail says; and the matchers of texts.
#pragma once

#include "base/runtimeerror.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
using ::testing::AllOf, ::testing::ElementsAre, ::testing::HasSubstr;
} // namespace vantrel::test

// EXPECT_RUNTIME_ERROR(statement, ErrorCode::fileNotFound, HasSubstr("SKSDB1.TXT")): the
// statement throws RuntimeError with this code, and its detail matches.
#define EXPECT_RUNTIME_ERROR(statement, expectedCode, detailMatcher)                               \
    do {                                                                                           \
        try {                                                                                      \
            statement;                                                                             \
            ADD_FAILURE() << "no run-time error from " #statement;                                 \
        } catch (const ::vantrel::RuntimeError& caught) {                                          \
            EXPECT_EQ(caught.code(), expectedCode) << caught.what();                               \
            EXPECT_THAT(caught.detail(), detailMatcher);                                           \
        }                                                                                          \
    } while (false)
