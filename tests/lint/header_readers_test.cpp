// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/header_readers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin::lint {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const SourceFile kHeader{"src/core/a.h", "#pragma once\n"};
const SourceFile kOwn{"src/core/a.cpp", "#include \"core/a.h\"\n"};
const SourceFile kReader{"src/core/b.cpp", "#include \"core/a.h\"\n"};
const SourceFile kOther{"src/tool/c.cpp", "#include \"core/a.h\"\n"};

TEST(LonelyHeaders, TwoReadersAreEnough) {
  EXPECT_THAT(lonelyHeaders({kHeader, kReader, kOther}, {}), IsEmpty());
}

TEST(LonelyHeaders, AHeadersOwnSourceFileIsNoReader) {
  EXPECT_THAT(lonelyHeaders({kHeader, kOwn, kReader}, {}),
              ElementsAre("src/core/a.h serves src/core/b.cpp alone; make it part of what it serves, or "
                          "write a_test.cpp"));
}

TEST(LonelyHeaders, AHeaderThatNobodyReadsIsLonely) {
  EXPECT_THAT(lonelyHeaders({kHeader, kOwn}, {}),
              ElementsAre("src/core/a.h serves nobody; make it part of what it serves, or write a_test.cpp"));
}

TEST(LonelyHeaders, ATestOfItsOwnIsEnough) {
  EXPECT_THAT(lonelyHeaders({kHeader, kOwn, kReader}, {{"tests/core/a_test.cpp", ""}}), IsEmpty());
  EXPECT_THAT(lonelyHeaders({kHeader, kOwn, kReader}, {{"tests/core/ab_test.cpp", ""}}), testing::SizeIs(1));
}

}  // namespace
}  // namespace quorvin::lint
