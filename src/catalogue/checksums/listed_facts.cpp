// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/checksums/listed_facts.h"

#include "catalogue/common_folder.h"
#include "catalogue/entry_sizes.h"
#include "catalogue/every_entry.h"
#include "index/listed_name.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"
#include "search/listing_scan.h"

#include <QFile>

#include <algorithm>
#include <xxhash.h>

namespace quorvin {

namespace {

std::string_view withoutEndBlanks(std::string_view name) {
  return name.substr(0, name.find_last_not_of(' ') + 1);
}

/// Of a file in a folder, both as listed; the folder has a backslash at its end.
std::uint64_t keyOf(std::string_view folder, std::string_view name) {
  const std::string_view shown = withoutEndBlanks(name);
  return XXH3_64bits_withSeed(shown.data(), shown.size(), XXH3_64bits(folder.data(), folder.size()));
}

/// Folders with slashes between as a listing has them.
std::string listedFolders(std::string_view path) {
  std::string listed;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('/'), path.size());
    listed += listedText(path.substr(0, end));
    if (end < path.size()) listed += '\\';
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return listed;
}

}  // namespace

class ListedFacts::Reading : public EveryEntry {
 public:
  explicit Reading(ListedFacts& facts) : facts_(facts) {}

 protected:
  void takeBlock(const Segment& segment, std::uint32_t block, std::uint32_t first,
                 std::uint32_t end) override {
    place_ += end - first;
    const std::string folder = segment.folderOfBlock(block);
    if (facts_.top_) {
      cutToCommonFolder(*facts_.top_, folder);
    } else {
      facts_.top_ = folder;
    }
    names_.start(segment.arrays().entries);
    const EntrySizes sizes(segment, first, end);
    for (std::uint32_t entry = first; entry < end; ++entry) {
      const std::int64_t size = sizes.of(entry);
      if (size < 0) continue;
      const std::string_view name = fileNameIn(names_.at(entry).listed, size);
      facts_.entries_.push_back({keyOf(folder, name), size, sizes.dateOf(entry)});
    }
  }

 private:
  ListedFacts& facts_;
  ListedWalk names_;
};

bool ListedFacts::read(const ListingOpener& open, const QLocale& locale, const StopAsked& stop) {
  const SearchQuery everything(QString::fromUtf16(ListedFiles::kEveryEntry), 1);
  Reading reading(*this);
  RunCounts counts;
  ScanOutcome outcome;
  scanListing(open, {everything, locale, &reading, [&](std::int64_t) { return stop(); }}, counts, outcome);
  std::ranges::sort(entries_, {}, &Entry::key);
  return !outcome.stopped && !stop();
}

bool ListedFacts::lookBelow(const QString& folder, std::string_view top) {
  const std::string named = listedFolders(QFile::encodeName(folder).toStdString());
  const std::string below = named.ends_with('\\') ? named : named + '\\';
  const std::string listedTop = listedFolders(top);
  const bool isListed = top_ && !folder.isEmpty() && top_->starts_with(below);
  isKnown_ = isListed || (top_ && top_->ends_with(listedTop));
  if (!isKnown_) return false;
  below_ = isListed ? below : top_->substr(0, top_->size() - listedTop.size());
  return true;
}

QString ListedFacts::folder() const {
  QString path = textOfUtf8(below_);
  return path.replace(u'\\', u'/');
}

std::optional<ListedFacts::Facts> ListedFacts::find(std::string_view path) const {
  if (!isKnown_) return std::nullopt;
  const std::size_t slash = path.rfind('/');
  const std::size_t nameStart = slash == std::string_view::npos ? 0 : slash + 1;
  const std::string name = listedText(path.substr(nameStart));
  const std::uint64_t key =
      keyOf(below_ + listedFolders(path.substr(0, nameStart)), cutToColumns(name, kNameColumns));
  const auto found = std::ranges::equal_range(entries_, key, {}, &Entry::key);
  if (found.size() != 1) return std::nullopt;
  const Entry& entry = found.front();
  return Facts{entry.size, entry.modified == 0 ? std::nullopt : std::optional(entry.modified)};
}

bool ListedFacts::Facts::mayBeOf(const FileBelow& file) const {
  if (size != file.size) return false;
  if (!modified) return true;
  const DayAndSecond listed = splitDateValue(*modified);
  const DayAndSecond found = splitDateValue(file.modified);
  return listed.day == found.day && listed.second == found.second;
}

std::string commonFolderOf(const std::vector<std::string_view>& paths) {
  if (paths.empty()) return {};
  std::string_view common = paths.front().substr(0, paths.front().rfind('/') + 1);
  for (const std::string_view path : paths) {
    const auto end = std::ranges::mismatch(common, path).in1;
    common = common.substr(0, static_cast<std::size_t>(end - common.begin()));
    common = common.substr(0, common.rfind('/') + 1);
  }
  return std::string(common);
}

}  // namespace quorvin
