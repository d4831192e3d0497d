// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/listing_changes.h"

#include "history/version_file.h"
#include "search/format/listing_line.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>
#include <xxhash.h>

namespace quorvin {

namespace {

/// So many that each is sorted in a moment, however large the listing is.
constexpr int kBucketBits = 10;
constexpr std::size_t kBuckets = std::size_t{1} << kBucketBits;
constexpr std::size_t kPiece = std::size_t{1} << 20;

/// The entries of a listing as checksums, in buckets by their first bits.
class EntryMarks {
 public:
  /// False where `goOn` was.
  bool read(const QString& path, const std::function<bool()>& goOn) {
    const std::unique_ptr<ListingBytes> text = openListing(path);
    std::vector<char> buffer(kPiece);
    while (const std::size_t count = text->read(buffer)) {
      addLines({buffer.data(), count});
      if (!goOn()) return false;
    }
    if (!begun_.empty()) addLine(begun_);
    return true;
  }

  std::vector<std::uint64_t>& bucket(std::size_t index) { return buckets_[index]; }

 private:
  void addLines(std::string_view bytes) {
    for (std::size_t end = bytes.find('\n'); end != std::string_view::npos; end = bytes.find('\n')) {
      if (begun_.empty()) {
        addLine(bytes.substr(0, end));
      } else {
        addLine(begun_ += bytes.substr(0, end));
        begun_.clear();
      }
      bytes.remove_prefix(end + 1);
    }
    begun_ += bytes;
  }

  void addLine(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    const LineKind kind = classifyLine(line);
    if (kind == LineKind::Directory) {
      const std::string folder = withoutMark(line, kDirectoryMark);
      folder_ = XXH3_64bits(folder.data(), folder.size());
    }
    if (kind != LineKind::Entry) return;
    const std::string_view name = splitEntryLine(line, isAscii(line)).text;
    const std::uint64_t mark = XXH3_64bits_withSeed(name.data(), name.size(), folder_);
    buckets_[mark >> (64 - kBucketBits)].push_back(mark);
  }

  std::array<std::vector<std::uint64_t>, kBuckets> buckets_;
  /// The line whose end has not come yet.
  std::string begun_;
  std::uint64_t folder_ = 0;
};

void addChanges(std::vector<std::uint64_t>& earlier, std::vector<std::uint64_t>& later,
                ListingChanges& changes) {
  std::ranges::sort(earlier);
  std::ranges::sort(later);
  auto before = earlier.begin();
  auto now = later.begin();
  while (before != earlier.end() && now != later.end()) {
    if (*before == *now) {
      ++before;
      ++now;
    } else if (*before < *now) {
      ++changes.gone;
      ++before;
    } else {
      ++changes.added;
      ++now;
    }
  }
  changes.gone += earlier.end() - before;
  changes.added += later.end() - now;
}

}  // namespace

std::optional<ListingChanges> changesBetween(const QString& earlier, const QString& later,
                                             const std::function<bool()>& goOn) {
  // On the heap: the buckets alone are large for a stack.
  const auto before = std::make_unique<EntryMarks>();
  const auto now = std::make_unique<EntryMarks>();
  if (!before->read(earlier, goOn) || !now->read(later, goOn)) return std::nullopt;
  ListingChanges changes;
  for (std::size_t index = 0; index < kBuckets; ++index) {
    addChanges(before->bucket(index), now->bucket(index), changes);
    if (!goOn()) return std::nullopt;
  }
  return changes;
}

}  // namespace quorvin
