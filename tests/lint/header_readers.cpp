// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/header_readers.h"

#include <map>
#include <set>

namespace quorvin::lint {
namespace {

constexpr std::string_view kSource = "src/";

std::string withoutEnding(const std::string& path) {
  return path.substr(0, path.rfind('.'));
}

std::string nameOf(const std::string& path) {
  return withoutEnding(path.substr(path.rfind('/') + 1));
}

}  // namespace

std::vector<std::string> lonelyHeaders(const std::vector<SourceFile>& program,
                                       const std::vector<SourceFile>& tests) {
  std::set<std::string> testNames;
  for (const SourceFile& test : tests) testNames.insert(nameOf(test.path));

  std::map<std::string, std::set<std::string>> readers;
  for (const SourceFile& file : program) {
    for (const Include& include : includesOf(file.text)) {
      const std::string header = std::string(kSource) + include.header;
      if (include.quoted && withoutEnding(header) != withoutEnding(file.path))
        readers[header].insert(file.path);
    }
  }

  std::vector<std::string> lonely;
  for (const SourceFile& file : program) {
    if (!file.path.ends_with(".h") || readers[file.path].size() >= 2) continue;
    if (testNames.contains(nameOf(file.path) + "_test")) continue;
    const std::string reader = readers[file.path].empty() ? "nobody" : *readers[file.path].begin() + " alone";
    lonely.push_back(file.path + " serves " + reader + "; make it part of what it serves, or write " +
                     nameOf(file.path) + "_test.cpp");
  }
  return lonely;
}

}  // namespace quorvin::lint
