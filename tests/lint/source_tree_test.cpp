// SPDX-License-Identifier: GPL-2.0-or-later

// The rules that hold for every file of the project.

#include "lint/source_tree.h"

#include "lint/header_readers.h"
#include "lint/include_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

namespace quorvin::lint {
namespace {

constexpr std::ptrdiff_t kLongestFile = 400;
constexpr std::size_t kLargestRoom = 60;

const IncludeRules& projectRules() {
  static const IncludeRules rules = IncludeRules::parse(projectText("tests/lint/include_rules.txt"));
  return rules;
}

std::vector<SourceFile> programFiles() {
  return filesBelow("src", {".h", ".cpp"});
}

std::string asLines(const std::vector<std::string>& sentences) {
  std::string text;
  for (const std::string& sentence : sentences) text += sentence + "\n";
  return text;
}

/// Whether <header> belongs to QtWidgets. Some of its headers only pass on to QtGui, where they live now.
bool isWidgetsHeader(const std::string& header) {
  namespace fs = std::filesystem;
  if (header.starts_with("QtWidgets")) return true;
  const fs::path widgets = QUORVIN_QT_WIDGETS_HEADERS;
  return fs::exists(widgets / header) && !fs::exists(widgets.parent_path() / "QtGui" / header);
}

std::string firstCodeLine(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    if (!line.empty() && !line.starts_with("//")) return std::string(line);
    text.remove_prefix(std::min(line.size() + 1, text.size()));
  }
  return {};
}

/// The folders below src/ that hold code.
std::vector<std::string> roomsOfTheProgram() {
  std::set<std::string> rooms;
  for (const SourceFile& file : programFiles()) {
    const std::string path = file.path.substr(std::string_view("src/").size());
    rooms.insert(path.substr(0, path.rfind('/')));
  }
  return {rooms.begin(), rooms.end()};
}

TEST(SourceTree, TheIncludeTableNamesEveryRoomAndNoOther) {
  EXPECT_EQ(projectRules().rooms(), roomsOfTheProgram())
      << "Each folder of src/ that holds code has one \"room NAME: ...\" line in "
         "tests/lint/include_rules.txt.";
}

TEST(SourceTree, EveryPermitOfTheIncludeTableIsUsed) {
  const std::vector<std::string> unused = projectRules().unusedPermits(programFiles());
  EXPECT_TRUE(unused.empty()) << asLines(unused);
}

TEST(SourceTree, IncludesKeepToTheTable) {
  const std::vector<SourceFile> files = programFiles();
  ASSERT_FALSE(files.empty());
  for (const SourceFile& file : files) {
    const std::vector<std::string> broken = projectRules().brokenIncludes(file);
    EXPECT_TRUE(broken.empty()) << asLines(broken);
  }
}

TEST(SourceTree, QtWidgetsStayInWindowsAndViews) {
  ASSERT_TRUE(isWidgetsHeader("QMainWindow")) << "The headers of QtWidgets were not found.";
  ASSERT_FALSE(isWidgetsHeader("QString"));
  ASSERT_FALSE(isWidgetsHeader("QAction"));
  for (const SourceFile& file : programFiles()) {
    const std::vector<std::string> broken = projectRules().brokenWidgets(file, isWidgetsHeader);
    EXPECT_TRUE(broken.empty()) << asLines(broken);
  }
}

TEST(SourceTree, NoFileIsLongerThan400Lines) {
  for (const SourceFile& file : codeFiles()) {
    const std::ptrdiff_t lines = std::ranges::count(file.text, '\n');
    EXPECT_LE(lines, kLongestFile) << file.path << " holds more than one idea; give each a file of its own.";
  }
}

/// All that is compiled or run: code, what builds it, and scripts, whatever their names end in.
std::vector<SourceFile> filesWithALicence() {
  std::vector<SourceFile> files = codeFiles();
  for (const char* folder :
       {"src", "tests", "benchmarks", "fuzz", "scripts", "cmake", "packaging", "debian"}) {
    for (SourceFile& file : filesBelow(folder, {""})) {
      const bool builds = file.path.ends_with("CMakeLists.txt") || file.path.ends_with(".cmake");
      const bool script =
          file.text.starts_with("#!") || file.path.ends_with(".py") || file.path.ends_with(".sh");
      if (builds || script) files.push_back(std::move(file));
    }
  }
  for (const char* path : {"run", "test", "CMakeLists.txt"}) files.push_back({path, projectText(path)});
  return files;
}

TEST(SourceTree, EveryFileOfCodeNamesItsLicenceInItsFirstLines) {
  const std::string_view licence = "SPDX-License-Identifier: GPL-2.0-or-later\n";
  const std::vector<SourceFile> files = filesWithALicence();
  EXPECT_GT(files.size(), 1000U);
  for (const SourceFile& file : files) {
    const std::size_t second = file.text.find('\n') + 1;
    const std::size_t third = file.text.find('\n', second) + 1;
    EXPECT_NE(file.text.substr(0, third).find(licence), std::string::npos)
        << file.path << " begins with \"" << licence << "\", after the line that says what runs it.";
  }
}

TEST(SourceTree, EveryHeaderHasTwoReadersOrATestOfItsOwn) {
  const std::vector<SourceFile> program = programFiles();
  const std::vector<SourceFile> tests = filesBelow("tests", {"_test.cpp"});
  ASSERT_FALSE(program.empty());
  ASSERT_FALSE(tests.empty());
  const std::vector<std::string> lonely = lonelyHeaders(program, tests);
  EXPECT_TRUE(lonely.empty()) << asLines(lonely)
                              << "A header that one file alone includes is one more place to look. Move what "
                                 "it declares into that file, "
                                 "or, where the file would grow too long or hold two ideas, test it in a "
                                 "file of its own name: foo_test.cpp "
                                 "for foo.h.";
}

TEST(SourceTree, NoRoomHoldsMoreThan60Files) {
  std::map<std::string, std::size_t> files;
  for (const SourceFile& file : programFiles()) ++files[file.path.substr(0, file.path.rfind('/'))];
  ASSERT_FALSE(files.empty());
  for (const auto& [room, count] : files) {
    EXPECT_LE(count, kLargestRoom) << room << " is more than one room; take it apart.";
  }
}

// Qt Test's checks report to its own runner: under GoogleTest they pass whatever they find.
TEST(SourceTree, TestsCheckWithGoogleTestAlone) {
  const std::regex blind(
      "\\bQ(VERIFY2?|COMPARE(_[A-Z]+)?|TRY_[A-Z0-9_]+|FAIL|SKIP|EXPECT_FAIL|FETCH)\\s*\\(|\\bqWaitFor\\(");
  const std::regex anyFault("\\bEXPECT_THROW\\([^\n]*RuntimeFault\\)");
  const std::regex switchedOff("\\bGTEST_SKIP\\b|\\bDISABLED_");
  std::size_t tests = 0;
  for (const SourceFile& file : filesBelow("tests", {".h", ".cpp"})) {
    if (file.path == "tests/lint/source_tree_test.cpp") continue;
    ++tests;
    EXPECT_FALSE(std::regex_search(file.text, blind))
        << file.path << ": write EXPECT_EQ, EXPECT_TRUE, or EXPECT_EVENTUALLY of tests/support/eventually.h.";
    EXPECT_FALSE(std::regex_search(file.text, anyFault))
        << file.path << ": a fault has a number; write EXPECT_FAULT of tests/support/fault_number.h.";
    EXPECT_FALSE(std::regex_search(file.text, switchedOff)) << file.path << ": every test runs.";
  }
  EXPECT_GT(tests, 100U);
}

/// The text without remarks.
std::string codeOf(const std::string& text) {
  static const std::regex remark("//[^\n]*");
  return std::regex_replace(text, remark, "");
}

TEST(SourceTree, TheFlagsOfLongJobsBelongToTheirOwners) {
  const std::regex flag("\\b(AbortRequested|RescanAbort|RescanRunning|QuitPending|ShuttingDown)\\b");
  const std::set<std::string> owners = {"src/state/program_state.h", "src/search/search_run.cpp",
                                        "src/app/shutdown.cpp"};
  int named = 0;
  for (const SourceFile& file : programFiles()) {
    if (!std::regex_search(codeOf(file.text), flag)) continue;
    ++named;
    EXPECT_TRUE(file.path.starts_with("src/work/") || owners.contains(file.path))
        << file.path
        << " reads or writes a flag of long jobs; ask the job or Work instead (src/work/work.h).";
  }
  EXPECT_GE(named, 5) << "the flags were not found";
}

TEST(SourceTree, EveryHeaderIsIncludedOnceOnly) {
  for (const SourceFile& file : codeFiles()) {
    if (!file.path.ends_with(".h")) continue;
    EXPECT_EQ(firstCodeLine(file.text), "#pragma once")
        << file.path << ": after the comment that says what the header is for comes \"#pragma once\".";
  }
}

TEST(SourceTree, FileNamesAreSnakeCase) {
  const std::regex snakeCase("[a-z][a-z0-9]*(_[a-z0-9]+)*\\.(h|cpp)");
  for (const SourceFile& file : codeFiles()) {
    const std::string name = file.path.substr(file.path.rfind('/') + 1);
    EXPECT_TRUE(std::regex_match(name, snakeCase))
        << file.path << ": write the name as in hit_list_model.cpp.";
  }
}

TEST(SourceTree, DocumentsThatTheCodeNamesExist) {
  const std::regex document("docs/[A-Za-z0-9_/-]+\\.md");
  int named = 0;
  for (const SourceFile& file : codeFiles()) {
    for (std::sregex_iterator match(file.text.begin(), file.text.end(), document), end; match != end;
         ++match) {
      ++named;
      EXPECT_TRUE(projectHas(match->str()))
          << file.path << " names " << match->str() << ", which is not there.";
    }
  }
  EXPECT_GT(named, 0);
}

TEST(SourceTree, LinksInDocumentsLeadSomewhere) {
  std::vector<SourceFile> documents = filesBelow("docs", {".md"});
  for (const char* name : {"README.md", "ARCHITECTURE.md", "CONTRIBUTING.md", "CHANGELOG.md"}) {
    documents.push_back({name, projectText(name)});
  }
  ASSERT_GT(documents.size(), 10U);
  const std::regex link("\\]\\(([^)#:]+)(#[^)]*)?\\)");
  int links = 0;
  for (const SourceFile& file : documents) {
    const std::size_t slash = file.path.rfind('/');
    const std::string folder = slash == std::string::npos ? "" : file.path.substr(0, slash + 1);
    for (std::sregex_iterator match(file.text.begin(), file.text.end(), link), end; match != end; ++match) {
      ++links;
      EXPECT_TRUE(projectHas(folder + (*match)[1].str()))
          << file.path << " links to " << (*match)[1].str() << ", which is not there.";
    }
  }
  EXPECT_GT(links, 20);
}

}  // namespace
}  // namespace quorvin::lint
