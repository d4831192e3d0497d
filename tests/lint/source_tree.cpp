// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quorvin::lint {
namespace {

namespace fs = std::filesystem;

const fs::path& top() {
  static const fs::path folder = QUORVIN_PROJECT_FOLDER;
  return folder;
}

}  // namespace

std::string projectText(const std::string& path) {
  std::ifstream file(top() / path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool projectHas(const std::string& path) {
  return fs::exists(top() / path);
}

std::vector<std::string> foldersIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(top() / folder)) {
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

std::vector<SourceFile> filesBelow(const std::string& folder, const std::vector<std::string_view>& endings) {
  std::vector<SourceFile> files;
  if (!projectHas(folder)) return files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(top() / folder)) {
    const std::string path = entry.path().lexically_relative(top()).generic_string();
    const bool fits = std::ranges::any_of(endings, [&](std::string_view end) { return path.ends_with(end); });
    if (fits && entry.is_regular_file()) files.push_back({path, projectText(path)});
  }
  std::ranges::sort(files, {}, &SourceFile::path);
  return files;
}

std::vector<SourceFile> codeFiles() {
  std::vector<SourceFile> files;
  for (const char* folder : {"src", "tests", "benchmarks", "fuzz"}) {
    std::ranges::move(filesBelow(folder, {".h", ".cpp"}), std::back_inserter(files));
  }
  return files;
}

}  // namespace quorvin::lint
