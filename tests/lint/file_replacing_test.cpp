// SPDX-License-Identifier: GPL-2.0-or-later

// There is one way to replace a file.
#include "lint/source_tree.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace quorvin::lint {
namespace {

/// What makes or replaces a file past FileAside; empty when nothing does.
std::string otherWayIn(const std::string& text) {
  static const std::regex ways(
      "\\b(O_CREAT|O_TRUNC|QSaveFile|QTemporaryFile|QTemporaryDir|ofstream|fopen|mkstemp|creat|"
      "rename|renameat|renameat2|linkat)\\b|QIODevice::(WriteOnly|Append|Truncate)");
  for (std::sregex_iterator match(text.begin(), text.end(), ways), end; match != end; ++match) {
    // A stream into memory is no file.
    const std::size_t start = static_cast<std::size_t>(match->position());
    const std::size_t line = text.rfind('\n', start) + 1;
    const std::string before = text.substr(line, start - line);
    if (before.find("QDataStream") != std::string::npos || before.find("//") != std::string::npos) continue;
    return match->str();
  }
  return {};
}

TEST(FileReplacing, IsLeftToTheRoomOfFiles) {
  int inFiles = 0;
  for (const SourceFile& file : filesBelow("src", {".h", ".cpp"})) {
    const std::string way = otherWayIn(file.text);
    if (file.path.starts_with("src/files/")) {
      inFiles += way.empty() ? 0 : 1;
      continue;
    }
    EXPECT_EQ(way, "") << file.path
                       << " makes or replaces a file by itself; let FileAside of files/file_aside.h do it.";
  }
  EXPECT_GT(inFiles, 0) << "FileAside was not found, so the search finds nothing.";
}

TEST(FileReplacing, IsFoundInCodeAndNotInRemarks) {
  EXPECT_EQ(otherWayIn("  if (::rename(from, to) != 0) return;\n"), "rename");
  EXPECT_EQ(otherWayIn("  QFile::rename(from, to);\n"), "rename");
  EXPECT_EQ(otherWayIn("  ::open(path, O_WRONLY | O_CREAT, 0666);\n"), "O_CREAT");
  EXPECT_EQ(otherWayIn("  file.open(QIODevice::WriteOnly);\n"), "QIODevice::WriteOnly");
  EXPECT_EQ(otherWayIn("  QDataStream stream(&bytes, QIODevice::WriteOnly);\n"), "");
  EXPECT_EQ(otherWayIn("  // Then rename it.\n  renamed();\n"), "");
}

}  // namespace
}  // namespace quorvin::lint
