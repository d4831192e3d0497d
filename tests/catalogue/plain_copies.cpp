// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/plain_copies.h"

#include "platform/text_encoding.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace quorvin::test {

namespace {

/// Listing, volume, path.
using Folder = std::tuple<int, QString, QString>;
using SameFiles = std::map<std::pair<QString, std::int64_t>, std::vector<PlainFile>>;

/// The same for the same files among those of one size.
QString sameName(const PlainFile& file) {
  return simpleLowerCase(file.name) + u'\n' + QString::number(file.kind);
}

SameFiles sameFiles(const std::vector<PlainFile>& files) {
  SameFiles same;
  for (const PlainFile& file : files) {
    if (file.size) same[{sameName(file), *file.size}].push_back(file);
  }
  return same;
}

Folder folderOf(const PlainFile& file) {
  return {file.listing, file.volume, file.folder};
}

Folder parentOf(const Folder& folder) {
  const auto& [listing, volume, path] = folder;
  return {listing, volume, path.left(path.lastIndexOf(u'\\', -2) + 1)};
}

QString lastName(const QString& path) {
  return path.section(u'\\', -2, -2);
}

std::string textOf(const Folder& folder) {
  const auto& [listing, volume, path] = folder;
  return " [" + std::to_string(listing) + ' ' + volume.toStdString() + ' ' + path.toStdString() + ']';
}

/// All that is in a folder, as one text; equal for equal folders.
struct Content {
  QString text;
  bool isKnown = true;
  int files = 0;
  std::int64_t bytes = 0;
};

class PlainFolders {
 public:
  explicit PlainFolders(const std::vector<PlainFile>& files) {
    for (const PlainFile& file : files) {
      files_[folderOf(file)].push_back(file);
      for (Folder folder = folderOf(file); std::get<2>(folder) != u"\\"_qs; folder = parentOf(folder)) {
        inside_[parentOf(folder)].insert(folder);
        order_.try_emplace(folder, order_.size());
      }
      order_.try_emplace({file.listing, file.volume, u"\\"_qs}, order_.size());
      contentOf_[{file.listing, file.volume, u"\\"_qs}] = {};
    }
    const auto topmost = contentOf_;
    for (const auto& [folder, content] : topmost) read(folder);
    for (const auto& [folder, content] : contentOf_) {
      if (content.isKnown) equal_[content.text].push_back(folder);
    }
    for (auto& [text, folders] : equal_) {
      std::ranges::sort(folders, {}, [this](const Folder& folder) { return order_.at(folder); });
    }
  }

  const std::map<QString, std::vector<Folder>>& equal() const { return equal_; }
  const Content& contentOf(const Folder& folder) const { return contentOf_.at(folder); }

  /// Whether a line says that the folders of that content are equal: one of their own or one around them.
  bool isTold(const QString& text) const {
    const auto folders = equal_.find(text);
    if (folders == equal_.end() || folders->second.size() < 2) return false;
    return contentOf(folders->second.front()).files >= 2 || isToldAround(text);
  }

  bool isToldAround(const QString& text) const {
    const std::vector<Folder>& folders = equal_.at(text);
    std::set<QString> around;
    for (const Folder& folder : folders) {
      if (std::get<2>(folder) == u"\\"_qs || !contentOf(parentOf(folder)).isKnown) return false;
      around.insert(contentOf(parentOf(folder)).text);
    }
    return around.size() == 1 && equal_.at(*around.begin()).size() == folders.size() &&
           isTold(*around.begin());
  }

 private:
  const Content& read(const Folder& folder) {
    Content content;
    std::vector<QString> parts;
    for (const PlainFile& file : files_[folder]) {
      content.isKnown = content.isKnown && file.size;
      ++content.files;
      content.bytes += file.size.value_or(0);
      parts.push_back(u"file "_qs + sameName(file) + u'|' + QString::number(file.size.value_or(-1)));
    }
    for (const Folder& inside : inside_[folder]) {
      const Content& its = read(inside);
      content.isKnown = content.isKnown && its.isKnown;
      content.files += its.files;
      content.bytes += its.bytes;
      parts.push_back(u"folder "_qs + simpleLowerCase(lastName(std::get<2>(inside))) + u'{' + its.text +
                      u'}');
    }
    std::ranges::sort(parts);
    for (const QString& part : parts) content.text += part + u'\n';
    return contentOf_[folder] = content;
  }

  std::map<Folder, std::vector<PlainFile>> files_;
  std::map<Folder, std::set<Folder>> inside_;
  std::map<Folder, Content> contentOf_;
  /// When a file in it came first.
  std::map<Folder, std::size_t> order_;
  std::map<QString, std::vector<Folder>> equal_;
};

bool isExplained(const std::vector<PlainFile>& places, const PlainFolders& folders) {
  std::set<QString> around;
  for (const PlainFile& place : places) {
    const Content& content = folders.contentOf(folderOf(place));
    if (!content.isKnown) return false;
    around.insert(content.text);
  }
  const QString& text = *around.begin();
  return around.size() == 1 && folders.equal().at(text).size() == places.size() && folders.isTold(text);
}

}  // namespace

std::vector<std::string> plainLines(const std::vector<PlainFile>& files) {
  const PlainFolders folders(files);
  std::vector<std::string> lines;
  for (const auto& [text, same] : folders.equal()) {
    if (same.size() < 2 || folders.contentOf(same.front()).files < 2 || folders.isToldAround(text)) continue;
    if (folders.contentOf(same.front()).bytes == 0) continue;
    std::string line = std::to_string(same.size()) + " x " +
                       std::to_string(folders.contentOf(same.front()).files) + " files, " +
                       std::to_string(folders.contentOf(same.front()).bytes) + ':';
    for (const Folder& folder : same) line += textOf(folder);
    lines.push_back(line);
  }
  for (const auto& [key, places] : sameFiles(files)) {
    if (places.size() < 2 || key.second == 0 || isExplained(places, folders)) continue;
    std::string line = std::to_string(places.size()) + " x " + std::to_string(key.second) + ' ' +
                       places.front().name.toStdString() + ':';
    for (const PlainFile& place : places) line += textOf(folderOf(place));
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> plainSingles(const std::vector<PlainFile>& files) {
  const SameFiles same = sameFiles(files);
  std::vector<std::string> singles;
  for (const PlainFile& file : files) {
    if (file.size.value_or(0) == 0) continue;
    std::set<std::pair<int, QString>> volumes;
    for (const PlainFile& other : same.at({sameName(file), *file.size})) {
      volumes.insert({other.listing, other.volume});
    }
    if (volumes.size() > 1) continue;
    singles.push_back(std::to_string(*file.size) + ' ' + file.name.toStdString() + textOf(folderOf(file)));
  }
  return singles;
}

}  // namespace quorvin::test
