// SPDX-License-Identifier: GPL-2.0-or-later

// The table of who may include whom, and how a source file is held against it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin::lint {

struct SourceFile {
  /// From the top of the project on: "src/state/settings.h".
  std::string path;
  std::string text;
};

/// One include line of a file.
struct Include {
  /// Counted from 1.
  int line;
  std::string header;
  /// Written in quotes, as the project's own headers are, rather than in angle brackets.
  bool quoted;

  bool operator==(const Include&) const = default;
};

std::vector<Include> includesOf(std::string_view text);

/// The rules of tests/lint/include_rules.txt.
class IncludeRules {
 public:
  /// Throws std::invalid_argument, naming the line, when `text` is no such table.
  /// A room may be permitted to include only rooms of lines above its own, so that there are no circles.
  static IncludeRules parse(std::string_view text);

  std::vector<std::string> rooms() const;

  /// What is wrong with the project's own headers that `file` includes, one sentence each, with how to mend
  /// it.
  std::vector<std::string> brokenIncludes(const SourceFile& file) const;

  /// The permits of the table that none of `files` (all of the program's) makes use of, one sentence each.
  std::vector<std::string> unusedPermits(const std::vector<SourceFile>& files) const;

  /// The same as brokenIncludes() for its use of QtWidgets; `isWidgetsHeader` tells whether <header> belongs
  /// to it.
  std::vector<std::string> brokenWidgets(
      const SourceFile& file, const std::function<bool(const std::string&)>& isWidgetsHeader) const;

 private:
  void addRoom(int line, const std::string& room, const std::vector<std::string>& permits);
  bool mayInclude(const std::string& room, const std::string& header) const;
  bool mayUseWidgets(std::string_view path) const;

  std::map<std::string, std::vector<std::string>> allowed_;
  std::vector<std::string> widgetFiles_;
};

}  // namespace quorvin::lint
