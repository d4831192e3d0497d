// SPDX-License-Identifier: GPL-2.0-or-later

// What users read is marked for translation. A literal that reads like a sentence and is not marked is found;
// a single word is not, since most of those are names.
#include "lint/source_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace quorvin::lint {
namespace {

/// The code without its remarks, its includes, and the texts that are marked.
std::string withoutMarked(const std::string& text) {
  static const std::regex remark("^\\s*(//|#include|static_assert)");
  static const std::regex marked("(Texts::tr|QT_TRANSLATE_NOOP)\\(\\s*(\"([^\"\\\\]|\\\\.)*\"\\s*,?\\s*)+");
  std::string code;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!std::regex_search(line, remark)) code += line + '\n';
  }
  return std::regex_replace(code, marked, "");
}

bool readsLikeASentence(const std::string& literal) {
  static const std::regex words("[A-Za-z]{2},? [a-z]{2}|^[A-Z][a-z]+ [A-Z][a-z]+$");
  return std::regex_search(literal, words);
}

/// The contents of the literals that should be marked; parts of a literal on several lines are one.
std::vector<std::string> unmarkedIn(const std::string& text) {
  static const std::regex literal("(\"([^\"\\\\\\n]|\\\\.)*\"\\s*)+");
  static const std::regex seam("\"\\s*\"");
  const std::string code = withoutMarked(text);
  std::vector<std::string> found;
  for (std::sregex_iterator match(code.begin(), code.end(), literal), end; match != end; ++match) {
    const std::string joined = std::regex_replace(match->str(), seam, "");
    const std::size_t start = joined.find('"') + 1;
    const std::string content = joined.substr(start, joined.rfind('"') - start);
    if (readsLikeASentence(content)) found.push_back(content);
  }
  return found;
}

struct Exception {
  std::string file;
  std::string start;
  bool isUsed = false;

  bool covers(const std::string& path, const std::string& literal) const {
    return path == file && (start == "*" || literal.starts_with(start));
  }
};

std::vector<Exception> exceptions() {
  std::vector<Exception> all;
  std::istringstream lines(projectText("tests/lint/unmarked_texts.txt"));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t colon = line.find(": ");
    if (line.starts_with('#') || colon == std::string::npos) continue;
    all.push_back({line.substr(0, colon), line.substr(colon + 2)});
  }
  return all;
}

TEST(UnmarkedTexts, AreInNoFile) {
  std::vector<Exception> known = exceptions();
  for (const SourceFile& file : filesBelow("src", {".h", ".cpp"})) {
    for (const std::string& literal : unmarkedIn(file.text)) {
      const auto exception =
          std::ranges::find_if(known, [&](const Exception& one) { return one.covers(file.path, literal); });
      EXPECT_NE(exception, known.end())
          << file.path << ": \"" << literal
          << "\" is not marked for translation: Texts::tr() of texts/texts.h does that. If nobody is to read "
             "it in another language, tests/lint/unmarked_texts.txt says so.";
      if (exception != known.end()) exception->isUsed = true;
    }
  }
  for (const Exception& one : known) {
    EXPECT_TRUE(one.isUsed) << "tests/lint/unmarked_texts.txt has \"" << one.file << ": " << one.start
                            << "\", which is not there any more.";
  }
}

TEST(UnmarkedTexts, AreFoundWhereverTheyAre) {
  using Found = std::vector<std::string>;
  EXPECT_EQ(unmarkedIn("  label->setText(QStringLiteral(\"No file found\"));\n"), Found{"No file found"});
  EXPECT_EQ(unmarkedIn("  show(\"It is \"\n       \"gone\");\n"), Found{"It is gone"});
  EXPECT_EQ(unmarkedIn("  show(Texts::tr(\"It is \"\n       \"gone\"));\n"), Found{});
  EXPECT_EQ(unmarkedIn("  show(Texts::tr(\"%1 of us\", \"people\").arg(\"some of us\"));\n"),
            Found{"some of us"});
  EXPECT_EQ(unmarkedIn("constexpr char kGone[] = QT_TRANSLATE_NOOP(\"Texts\", \"It is gone\");\n"), Found{});
  EXPECT_EQ(unmarkedIn("  // Says \"It is gone\".\n  setObjectName(\"SearchForm\");\n"), Found{});
}

}  // namespace
}  // namespace quorvin::lint
