// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/include_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace quorvin::lint {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const IncludeRules& smallTable() {
  static const IncludeRules rules = IncludeRules::parse(
      "# a remark\n"
      "room base:\n"
      "room core: base\n"
      "room tool: base core/format.h\n"
      "room view: base core\n"
      "\n"
      "widgets: view/main_window\n");
  return rules;
}

bool isWidget(const std::string& header) {
  return header == "QWidget";
}

TEST(IncludesOf, TakesQuotesAndAngleBracketsWithTheirLines) {
  EXPECT_THAT(includesOf("#pragma once\n#include \"core/a.h\"\n  #  include <QString> // why\n"),
              ElementsAre(Include{2, "core/a.h", true}, Include{3, "QString", false}));
}

TEST(IncludesOf, LeavesOutRemarksAndMacros) {
  EXPECT_THAT(includesOf("// #include \"core/a.h\"\n#include HEADER\n#define include\n"), IsEmpty());
}

TEST(IncludeRules, OwnRoomAndPermittedRoomPass) {
  EXPECT_THAT(
      smallTable().brokenIncludes({"src/core/a.cpp", "#include \"core/a.h\"\n#include \"base/b.h\"\n"}),
      IsEmpty());
}

TEST(IncludeRules, ARoomThatIsNotAllowedIsToldWithItsLineAndTheWayOut) {
  EXPECT_THAT(
      smallTable().brokenIncludes({"src/core/a.cpp", "\n#include \"view/main_window.h\"\n"}),
      ElementsAre("src/core/a.cpp:2 includes \"view/main_window.h\", but core may include only: base; move "
                  "what is needed into one of these, or hand it in through an interface (the table is "
                  "tests/lint/include_rules.txt)"));
}

TEST(IncludeRules, TheLowestRoomMayIncludeNothingOfOurs) {
  EXPECT_THAT(smallTable().brokenIncludes({"src/base/b.h", "#include \"core/a.h\"\n"}),
              ElementsAre(HasSubstr("base may include only: nothing of ours")));
}

TEST(IncludeRules, ASingleHeaderIsPermittedWithoutItsRoom) {
  EXPECT_THAT(smallTable().brokenIncludes({"src/tool/t.cpp", "#include \"core/format.h\"\n"}), IsEmpty());
  EXPECT_THAT(smallTable().brokenIncludes({"src/tool/t.cpp", "#include \"core/a.h\"\n"}),
              ElementsAre(HasSubstr("tool may include only: base, core/format.h")));
}

TEST(IncludeRules, AHeaderWithoutItsRoomIsTold) {
  EXPECT_THAT(smallTable().brokenIncludes({"src/core/a.cpp", "#include \"a.h\"\n"}),
              ElementsAre("src/core/a.cpp:1 includes \"a.h\", which is not written from src/ on; write "
                          "\"ROOM/a.h\", or angle brackets if it is not ours"));
}

TEST(IncludeRules, ARoomThatTheTableDoesNotKnowIsTold) {
  EXPECT_THAT(
      smallTable().brokenIncludes({"src/other/a.cpp", ""}),
      ElementsAre("src/other/a.cpp is in a room that tests/lint/include_rules.txt does not know; add a "
                  "line for it"));
}

TEST(IncludeRules, ARoomInAFolderOfAnotherIsARoomOfItsOwn) {
  const IncludeRules rules =
      IncludeRules::parse("room base:\nroom base/inner: base\nroom tool: base/inner\n");
  EXPECT_THAT(rules.brokenIncludes({"src/tool/t.cpp", "#include \"base/inner/a.h\"\n"}), IsEmpty());
  EXPECT_THAT(rules.brokenIncludes({"src/tool/t.cpp", "#include \"base/b.h\"\n"}),
              ElementsAre(HasSubstr("tool may include only: base/inner;")));
  EXPECT_THAT(rules.brokenIncludes({"src/base/b.cpp", "#include \"base/inner/a.h\"\n"}),
              ElementsAre(HasSubstr("base may include only: nothing of ours")));
}

TEST(IncludeRules, APermitThatNothingUsesIsTold) {
  const std::vector<SourceFile> files{{"src/core/a.cpp", "#include \"base/b.h\"\n"},
                                      {"src/tool/t.cpp", "#include \"base/b.h\"\n#include \"core/a.h\"\n"},
                                      {"src/view/v.cpp", "#include \"base/b.h\"\n#include \"core/a.h\"\n"}};
  EXPECT_THAT(smallTable().unusedPermits(files),
              ElementsAre("tool may include core/format.h and does not; take the permit out of "
                          "tests/lint/include_rules.txt"));
}

TEST(IncludeRules, ARoomOfALaterLineCannotBePermitted) {
  EXPECT_THROW(IncludeRules::parse("room core: base\nroom base:\n"), std::invalid_argument);
  EXPECT_THROW(IncludeRules::parse("room core: base/b.h\nroom base:\n"), std::invalid_argument);
  EXPECT_THROW(IncludeRules::parse("room core: core\n"), std::invalid_argument);
}

TEST(IncludeRules, WidgetsPassInAWindowAndInThePartsOfItAlone) {
  const std::string text = "#include <QWidget>\n";
  EXPECT_THAT(smallTable().brokenWidgets({"src/view/main_window.cpp", text}, isWidget), IsEmpty());
  EXPECT_THAT(smallTable().brokenWidgets({"src/view/main_window_menus.cpp", text}, isWidget), IsEmpty());
  EXPECT_THAT(
      smallTable().brokenWidgets({"src/view/main_windows.cpp", text}, isWidget),
      ElementsAre(HasSubstr("src/view/main_windows.cpp:1 includes <QWidget>, but QtWidgets belong to")));
}

TEST(IncludeRules, OtherQtHeadersPassAnywhere) {
  EXPECT_THAT(smallTable().brokenWidgets({"src/core/a.cpp", "#include <QString>\n"}, isWidget), IsEmpty());
}

TEST(IncludeRules, ALineThatIsNoRuleIsRefused) {
  EXPECT_THROW(IncludeRules::parse("room base\n"), std::invalid_argument);
  EXPECT_THROW(IncludeRules::parse("base: core\n"), std::invalid_argument);
  EXPECT_THROW(IncludeRules::parse("room base:\nroom base: core\n"), std::invalid_argument);
}

}  // namespace
}  // namespace quorvin::lint
