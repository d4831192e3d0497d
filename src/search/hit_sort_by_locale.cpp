// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_encoding.h"
#include "search/hit_sort_ways.h"

#include <QCollator>

#include <utility>

namespace quorvin {

namespace {

/// As the locale sorts texts.
class ByLocale : public HitSort::Way {
 public:
  ByLocale(const HitTable& table, const HitOrder& order, const QLocale& locale)
      : order_(order), walk_(table), runs_(*order.column), collator_(locale) {
    collator_.setNumericMode(true);
  }

  bool goOn(const SliceEnd& isOver) override {
    constexpr std::int64_t kTextsPerLook = 64;
    if (!walk_.goOn(isOver, kTextsPerLook, [this](const HitStretch& stretch) { read(stretch); }))
      return false;
    if (sorted_.empty()) {
      for (std::uint32_t number = 0; number < keys_.size(); ++number) sorted_.push_back(number);
    }
    if (!sortPieces(isOver)) return false;
    while (width_ < sorted_.size()) {
      if (!mergePieces(isOver)) return false;
    }
    write();
    return true;
  }

 private:
  static constexpr std::size_t kPiece = 1024;

  void read(const HitStretch& stretch) {
    const Segment& segment = *stretch.segment;
    if (order_.column == HitColumn::Name) {
      for (const FoundEntry& hit : stretch.hits) add([&] { return segment.name(hit.entry); });
      return;
    }
    runs_.add(stretch, [&](std::uint32_t block) {
      add([&] {
        return textOfUtf8(order_.column == HitColumn::Folder ? segment.folderOfBlock(block)
                                                             : std::string(segment.volumeOfBlock(block)));
      });
    });
  }

  template <typename Text>
  void add(const Text& text) {
    QString known;
    try {
      known = text();
    } catch (const DamagedSegment&) {
      // It comes first, like an empty one.
    }
    keys_.push_back(collator_.sortKey(known));
  }

  bool isBefore(std::uint32_t one, std::uint32_t other) const {
    return order_.isDescending ? keys_[other] < keys_[one] : keys_[one] < keys_[other];
  }

  bool sortPieces(const SliceEnd& isOver) {
    for (; at_ < sorted_.size() && width_ == kPiece; at_ += kPiece) {
      if (isOver()) return false;
      const auto begin = sorted_.begin() + static_cast<std::ptrdiff_t>(at_);
      const auto end = begin + static_cast<std::ptrdiff_t>(std::min(kPiece, sorted_.size() - at_));
      std::stable_sort(begin, end,
                       [this](std::uint32_t one, std::uint32_t other) { return isBefore(one, other); });
    }
    return true;
  }

  /// Merges each piece with the next, a few rows at a time.
  bool mergePieces(const SliceEnd& isOver) {
    if (merged_.empty()) takeNextPieces(0);
    while (merged_.size() < sorted_.size()) {
      if (merged_.size() % kPiece == 0 && isOver()) return false;
      if (left_ == leftEnd_ && right_ == rightEnd_) takeNextPieces(rightEnd_);
      const bool takesRight =
          left_ == leftEnd_ || (right_ < rightEnd_ && isBefore(sorted_[right_], sorted_[left_]));
      merged_.push_back(sorted_[takesRight ? right_++ : left_++]);
    }
    sorted_.swap(merged_);
    merged_.clear();
    width_ *= 2;
    return true;
  }

  void takeNextPieces(std::size_t begin) {
    left_ = begin;
    leftEnd_ = right_ = std::min(begin + width_, sorted_.size());
    rightEnd_ = std::min(begin + 2 * width_, sorted_.size());
  }

  void write() {
    if (order_.column == HitColumn::Name) {
      rowsInOrder = std::move(sorted_);
      return;
    }
    for (const std::uint32_t run : sorted_) runs_.write(run, walk_.end(), rowsInOrder);
  }

  HitOrder order_;
  RowWalk walk_;
  TextRuns runs_;
  QCollator collator_;
  /// Of the rows, or of the runs.
  std::vector<QCollatorSortKey> keys_;
  std::vector<std::uint32_t> sorted_;
  std::vector<std::uint32_t> merged_;
  /// Pieces of so many are sorted.
  std::size_t width_ = kPiece;
  std::size_t at_ = 0;
  std::size_t left_ = 0;
  std::size_t leftEnd_ = 0;
  std::size_t right_ = 0;
  std::size_t rightEnd_ = 0;
};

}  // namespace

std::unique_ptr<HitSort::Way> sortByLocale(const HitTable& table, const HitOrder& order,
                                           const QLocale& locale) {
  return std::make_unique<ByLocale>(table, order, locale);
}

}  // namespace quorvin
