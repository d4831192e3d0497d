// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/segment_builder.h"

#include "platform/text_encoding.h"
#include "search/format/line_scan.h"
#include "search/format/listing_line.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace quorvin {

namespace {

QByteArrayView bytesOf(std::string_view text) {
  return {text.data(), static_cast<qsizetype>(text.size())};
}

static_assert(kFoldWidth <= kLinePadding);
static_assert(kEntryColumns <= kFoldWidth);

}  // namespace

SegmentBuilder::SegmentBuilder(const QLocale& locale, OrderFinder findOrder)
    : findOrderOfListing_(std::move(findOrder)),
      tailReader_(EntryValuesReader(locale, [this] { return this->findOrder(); })) {}

void SegmentBuilder::beginSegment(std::shared_ptr<GrowingSegment> spare) {
  const bool isSpareFree = spare && spare.use_count() == 1;
  if (segment_.use_count() > 1) {
    segment_ = isSpareFree ? std::move(spare) : std::make_shared<GrowingSegment>();
  }
  segment_->clear();
  blockPending_ = true;
  unread_.clear();
  firstUnread_ = 0;
  nextToRead_ = 0;
}

std::size_t SegmentBuilder::addLines(const char* text, std::size_t size) {
  const std::size_t blocks = (size + 63) / 64;
  if (lineEnds_.size() < blocks) {
    lineEnds_.resize(blocks);
    care_.resize(blocks);
  }
  markLines(text, size, lineEnds_.data(), care_.data());
  std::size_t start = 0;
  bool careful = false;
  for (std::size_t block = 0; block < blocks; ++block) {
    std::uint64_t care = care_[block];
    for (std::uint64_t ends = lineEnds_[block]; ends != 0; ends &= ends - 1) {
      const std::uint64_t upToEnd = ends ^ (ends - 1);
      const std::size_t end = block * 64 + static_cast<std::size_t>(std::countr_zero(ends));
      careful |= (care & upToEnd) != 0;
      care &= ~upToEnd;
      const std::size_t length = end - start - (end > start && text[end - 1] == '\r' ? 1 : 0);
      if (careful) {
        addLine({text + start, length});
      } else {
        addPlainLine(text + start, length);
      }
      careful = false;
      start = end + 1;
    }
    careful |= care != 0;
  }
  return start;
}

void SegmentBuilder::addPlainLine(const char* line, std::size_t length) {
  ++lineCount_;
  if (length == 0) return;
  beginBlockIfNeeded();
  const bool hasTail = length > kEntryColumns;
  if (hasTail) {
    tail_ = line + (kEntryColumns - 1);
    tailLength_ = static_cast<std::uint32_t>(length - (kEntryColumns - 1));
  }
  segment_->addEntryColumns(line, hasTail ? kEntryColumns : length, hasTail);
  noteEntry();
}

void SegmentBuilder::addLine(std::string_view line) {
  ++lineCount_;
  const bool ascii = isAscii(line);
  if (!ascii && !isUtf8AsItStands(bytesOf(line))) {
    decoded_.push_back(decodeSystemText(bytesOf(line)).toStdString());
    const std::size_t length = decoded_.back().size();
    line = std::string_view(decoded_.back().append(kLinePadding, '\n')).substr(0, length);
  }
  switch (classifyLine(line)) {
    case LineKind::Volume:
      volume_ = withoutMark(line, kVolumeMark);
      blockPending_ = true;
      break;
    case LineKind::Directory:
      folder_ = withoutMark(line, kDirectoryMark);
      blockPending_ = true;
      break;
    case LineKind::Entry:
      addEntry(line, ascii);
      break;
    case LineKind::Empty:
    case LineKind::SubFolder:
    case LineKind::Separator:
      break;
  }
}

void SegmentBuilder::addEntry(std::string_view line, bool ascii) {
  const EntryLine parts = splitEntryLine(line, ascii);
  if (!parts.tail.empty()) {
    tail_ = parts.tail.data();
    tailLength_ = static_cast<std::uint32_t>(parts.tail.size());
  }
  beginBlockIfNeeded();
  segment_->addEntry(parts.text, ascii);
  noteEntry();
}

void SegmentBuilder::beginBlockIfNeeded() {
  if (blockPending_) segment_->beginBlock(volume_, folder_, isAscii(folder_));
  blockPending_ = false;
}

void SegmentBuilder::noteEntry() {
  unread_.push_back({tail_, tailLength_, static_cast<std::uint32_t>(lineCount_ - textFirstLine_)});
}

std::optional<DayMonthOrder> SegmentBuilder::findOrder() const {
  // The first text nearly always decides, and then nothing needs to be read again.
  if (textFirstLine_ == 0) {
    if (const auto order = orderInText()) return order;
  }
  return findOrderOfListing_ ? findOrderOfListing_() : std::nullopt;
}

std::optional<DayMonthOrder> SegmentBuilder::orderInText() const {
  const char* before = nullptr;
  for (const Unread& unread : unread_) {
    if (unread.tail == before) continue;
    before = unread.tail;
    const std::string_view tail(unread.tail, unread.tailLength);
    if (const auto order = tailReader_.values().orderIn(tail, isAscii(tail))) return order;
  }
  return std::nullopt;
}

void SegmentBuilder::readValues(std::uint32_t entry) {
  if (entry < nextToRead_) return;
  nextToRead_ = entry + 1;
  const std::uint32_t place = entry - firstUnread_;
  const Unread& unread = unread_[place];
  tailReader_.read({unread.tail, unread.tailLength}, hasOwnTail(place), textFirstLine_ + unread.line, entry,
                   segment_->valueArrays());
}

/// Whether the line of entry `place` of the text has the tail that applies to it.
bool SegmentBuilder::hasOwnTail(std::uint32_t place) const {
  const char* before = place > 0 ? unread_[place - 1].tail : keptTail_.data();
  return unread_[place].tail != before;
}

void SegmentBuilder::readAllValues() {
  const auto end = firstUnread_ + static_cast<std::uint32_t>(unread_.size());
  for (std::uint32_t entry = nextToRead_; entry < end; ++entry) readValues(entry);
}

void SegmentBuilder::readAllValuesBeside() {
  if (!beside_) beside_.emplace(tailReader_.values().copyWith(findOrderOfListing_), firstUnread_);
  for (std::uint32_t place = 0; place < unread_.size(); ++place) {
    const Unread& unread = unread_[place];
    beside_->add({unread.tail, unread.tailLength}, hasOwnTail(place), textFirstLine_ + unread.line);
  }
}

void SegmentBuilder::finishValues() {
  if (!beside_) return;
  beside_->finish(segment_->valueArrays());
  segment_->publish();
}

/// Keeps the tail in force, whose text is about to go away.
void SegmentBuilder::keepTail() {
  // All beyond is part of a date that is too long to be read.
  constexpr std::uint32_t kLongestKept = 4096;
  if (tail_ == nullptr || tail_ == keptTail_.data()) return;
  const bool isRead = tail_ == tailReader_.lastTail();
  tailLength_ = std::min(tailLength_, kLongestKept);
  keptTail_.assign(tail_, tailLength_).append(kLinePadding, '\n');
  tail_ = keptTail_.data();
  tailReader_.moveTail(isRead ? tail_ : nullptr);
}

void SegmentBuilder::finishText() {
  keepTail();
  if (beside_) {
    // Only now: the values of hits in this text have been read by then, and are not put there a second time.
    beside_->goOn(segment_->valueArrays());
    segment_->publish();
  }
  firstUnread_ += static_cast<std::uint32_t>(unread_.size());
  nextToRead_ = firstUnread_;
  unread_.clear();
  decoded_.clear();
  textFirstLine_ = lineCount_;
}

}  // namespace quorvin
