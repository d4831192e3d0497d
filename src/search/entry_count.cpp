// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/entry_count.h"

#include "files/file_reader.h"
#include "search/format/listing_line.h"
#include "search/format/listing_text.h"
#include "search/segment/segment_store.h"

#include <exception>
#include <memory>
#include <string_view>

namespace quorvin {

namespace {

constexpr std::size_t kChunkSize = std::size_t{1} << 16;

bool isEntry(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return classifyLine(line) == LineKind::Entry;
}

std::int64_t entriesIn(ListingText& text) {
  std::int64_t entries = 0;
  while (text.readChunk()) {
    const std::string_view all(text.begin(), text.size());
    std::size_t start = 0;
    for (std::size_t end = all.find('\n'); end != all.npos; end = all.find('\n', start)) {
      entries += isEntry(all.substr(start, end - start)) ? 1 : 0;
      start = end + 1;
    }
    text.consume(start);
  }
  return entries + (isEntry(text.lastLine()) ? 1 : 0);
}

}  // namespace

std::optional<std::int64_t> quickEntryCount(const QString& path, const QString& cacheFolder,
                                            const QLocale& locale) {
  try {
    const std::optional<SegmentKey> key = segmentKeyOf(path, locale);
    if (!key) return std::nullopt;
    if (!cacheFolder.isEmpty()) {
      const auto kept = entriesInSegmentFile(segmentFilePath(cacheFolder, key->listing), *key);
      if (kept) return kept;
    }
    const auto file = std::make_shared<SequentialFile>(path);
    if (file->sizeWhenOpened() > kMostBytesCounted) return std::nullopt;
    ListingText text([file](std::span<char> buffer) { return file->read(buffer); }, kChunkSize);
    return entriesIn(text);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace quorvin
