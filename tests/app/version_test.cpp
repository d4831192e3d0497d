// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/version.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

TEST(Version, TheTitleOfAListingsWindowNamesTheListing) {
  EXPECT_EQ(windowTitle(QStringLiteral("/lists/cds.txt")), QStringLiteral("cds.txt - Quorvin Utility"));
}

TEST(Version, Is2Point5Revision64) {
  const ProgramVersion version = programVersion();
  EXPECT_EQ(version.majorNumber, 2);
  EXPECT_EQ(version.minorNumber, 5);
  EXPECT_EQ(version.revision, 64);
}

TEST(Version, CaptionHasTheRevisionInParentheses) {
  EXPECT_EQ(versionCaption(), QStringLiteral("Ver:2.5(64)"));
}

TEST(Version, TextHasThreeNumbers) {
  EXPECT_EQ(versionText(), QStringLiteral("Version 2.5.64"));
}

TEST(Version, ProgramHasATitleAndADescription) {
  EXPECT_EQ(applicationTitle(), QStringLiteral("Quorvin Utility"));
  EXPECT_EQ(applicationDescription(), QStringLiteral("Text file / folder list searching utility"));
}

}  // namespace
}  // namespace quorvin
