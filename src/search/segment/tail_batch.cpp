// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/tail_batch.h"

#include "search/format/line_scan.h"

#include <algorithm>
#include <cstring>

namespace quorvin {

namespace {

/// Nearly all tails are shorter. So many bytes are copied at once, whatever the length: that takes less time
/// than looking at it.
constexpr std::size_t kAtOnce = 64;
static_assert(kAtOnce <= kLinePadding);

}  // namespace

void TailBatch::copy(std::string_view tail) {
  const std::size_t needed = size_ + std::max(tail.size(), kAtOnce) + kLinePadding;
  if (text_.size() < needed) text_.resize(std::max(needed, 2 * text_.size()));
  std::memcpy(text_.data() + size_, tail.data(), kAtOnce);
  if (tail.size() > kAtOnce) {
    std::memcpy(text_.data() + size_ + kAtOnce, tail.data() + kAtOnce, tail.size() - kAtOnce);
  }
  size_ += tail.size();
}

void TailBatch::add(std::string_view tail, bool isOwn, std::int64_t line) {
  // Not known by its place: where one text was, the next one is.
  if (!tails_.empty() && !isOwn) {
    Tail shared = tails_.back();
    shared.isOwn = false;
    shared.line = line;
    tails_.push_back(shared);
    return;
  }
  tails_.push_back({size_, static_cast<std::uint32_t>(tail.size()), tail.data() != nullptr, isOwn, line});
  if (tail.data() != nullptr) copy(tail);
}

void TailBatch::read(TailReader& reader) {
  // What was read last may have been at the same place.
  reader.moveTail(nullptr);
  for (std::uint32_t entry = 0; entry < count(); ++entry) {
    const Tail& tail = tails_[entry];
    const char* start = tail.exists ? text_.data() + tail.start : nullptr;
    values_.addEntry();
    reader.read({start, tail.length}, tail.isOwn, tail.line, entry, values_);
  }
}

void TailBatch::clear() {
  size_ = 0;
  tails_.clear();
  values_.clear();
}

}  // namespace quorvin
