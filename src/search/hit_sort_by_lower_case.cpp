// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/instruction_set.h"
#include "platform/text_encoding.h"
#include "search/hit_sort_ways.h"

#include <bit>
#include <cstring>
#include <unordered_map>
#include <utility>

namespace quorvin {

namespace {

/// The eight bytes at `place` of folded texts, up to the end of the text.
std::uint64_t textKey(const CheckedSpan<char>& texts, std::size_t place) {
  if (place >= texts.size()) return 0;
  char bytes[sizeof(std::uint64_t)] = {kTextEnd};
  const auto some = texts.part(place, std::min(sizeof bytes, texts.size() - place));
  std::memcpy(bytes, some.data(), some.size());
  std::uint64_t key = 0;
  std::memcpy(&key, bytes, sizeof key);
  key = lowestByteFirst(key);
  // The lowest byte that is kTextEnd, of which the complement is the lowest zero.
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  const std::uint64_t ends = (~key - kOnes) & key & (kOnes << 7);
  const int length = std::countr_zero(ends) / 8;
  if (length < 8) key &= (std::uint64_t{1} << (8 * length)) - 1;
  return __builtin_bswap64(key);
}

/// By the texts in lower case, as UTF-8: by characters.
class ByLowerCase : public HitSort::Way {
 public:
  ByLowerCase(const HitTable& table, const HitOrder& order)
      : order_(order), walk_(table), runs_(*order.column), sort_({}) {
    if (!isByName()) return;
    places_.reserve(static_cast<std::size_t>(walk_.end()));
    keyed_.reserve(static_cast<std::size_t>(walk_.end()));
  }

  bool goOn(const SliceEnd& isOver) override {
    if (!isRead_) {
      if (!walk_.goOn(isOver, kRowsPerLook, [this](const HitStretch& stretch) { read(stretch); }))
        return false;
      isRead_ = true;
      const auto nextKeys = [this](std::span<KeyedRow> rows, std::size_t before) { setKeys(rows, before); };
      sort_ = RowSort(std::move(keyed_), nextKeys, order_.isDescending);
    }
    if (!sort_.goOn(isOver)) return false;
    return isByName() ? writeRows(isOver) : writeRuns(isOver);
  }

 private:
  /// Texts of rows, or of runs, from one on.
  struct Texts {
    std::uint32_t first;
    /// Keeps the texts; null for those of volumes.
    std::shared_ptr<const Segment> segment;
    CheckedSpan<char> folded;
  };
  static constexpr std::uint32_t kNoPlace = UINT32_MAX;
  static constexpr std::uint32_t kNumbersPerMark = 1024;

  bool isByName() const { return order_.column == HitColumn::Name; }

  void read(const HitStretch& stretch) {
    if (isByName()) {
      readNames(stretch);
    } else {
      readRuns(stretch);
    }
  }

  void add(const std::shared_ptr<const Segment>& segment, const TextTable& table, std::uint32_t place) {
    const auto number = static_cast<std::uint32_t>(places_.size());
    if (texts_.empty() || texts_.back().segment != segment) texts_.push_back({number, segment, table.folded});
    if (number % kNumbersPerMark == 0) textsAt_.push_back(static_cast<std::uint32_t>(texts_.size() - 1));
    places_.push_back(place);
    const std::uint64_t key = keyAt(texts_.back(), place);
    keyed_.emplace_back(order_.isDescending ? ~key : key, number);
  }

  void readNames(const HitStretch& stretch) {
    const TextTable& table = stretch.segment->arrays().entries;
    TextWalk walk(table);
    for (const FoundEntry& hit : stretch.hits) add(stretch.segment, table, placeIn(walk, hit.entry));
  }

  static std::uint32_t placeIn(TextWalk& walk, std::uint32_t text) {
    try {
      return walk.placeOf(text);
    } catch (const DamagedSegment&) {
      return kNoPlace;
    }
  }

  void readRuns(const HitStretch& stretch) {
    const TextTable& table = stretch.segment->arrays().folders;
    TextWalk walk(table);
    runs_.add(stretch, [&](std::uint32_t block) {
      if (order_.column == HitColumn::Folder) {
        add(stretch.segment, table, placeIn(walk, block));
      } else {
        add(nullptr, {}, placeOfVolume(stretch.segment->volumeOfBlock(block)));
      }
    });
  }

  std::uint32_t placeOfVolume(std::string_view listed) {
    const auto [known, isNew] = volumePlaces_.try_emplace(std::string(listed), volumes_.size());
    if (isNew) {
      volumes_ += simpleLowerCase(textOfUtf8(listed)).toStdString();
      volumes_ += kTextEnd;
    }
    return static_cast<std::uint32_t>(known->second);
  }

  /// A damaged text comes first, like an empty one.
  std::uint64_t keyAt(const Texts& texts, std::size_t place) const {
    if (place == kNoPlace) return 0;
    if (texts.segment == nullptr) return textKey(volumes_, place);
    try {
      return textKey(texts.folded, place);
    } catch (const DamagedSegment&) {
      return 0;
    }
  }

  const Texts& textsOf(std::uint32_t number) const {
    std::uint32_t at = textsAt_[number / kNumbersPerMark];
    while (at + 1 < texts_.size() && texts_[at + 1].first <= number) ++at;
    return texts_[at];
  }

  void setKeys(std::span<KeyedRow> rows, std::size_t bytesBefore) const {
    // The texts are all over memory: places and then texts are fetched while others are worked on.
    constexpr std::size_t kTextsAhead = 12;
    constexpr std::size_t kPlacesAhead = 24;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (i + kPlacesAhead < rows.size()) __builtin_prefetch(&places_[rows[i + kPlacesAhead].row]);
      if (i + kTextsAhead < rows.size()) fetch(rows[i + kTextsAhead].row, bytesBefore);
      const std::uint64_t key = keyAt(textsOf(rows[i].row), places_[rows[i].row] + bytesBefore);
      rows[i].setKey(order_.isDescending ? ~key : key);
    }
  }

  void fetch(std::uint32_t number, std::size_t bytesBefore) const {
    const char* base = textsOf(number).folded.part(0, 0).data();
    if (base != nullptr) __builtin_prefetch(base + places_[number] + bytesBefore);
  }

  /// The places are not needed any more; their memory takes the rows.
  bool writeRows(const SliceEnd& isOver) {
    const std::vector<KeyedRow>& sorted = sort_.rows();
    for (; written_ < sorted.size(); ++written_) {
      if (written_ % kRowsPerLook == 0 && isOver()) return false;
      places_[written_] = sorted[written_].row;
    }
    rowsInOrder = std::move(places_);
    return true;
  }

  bool writeRuns(const SliceEnd& isOver) {
    const std::vector<KeyedRow>& sorted = sort_.rows();
    rowsInOrder.reserve(static_cast<std::size_t>(walk_.end()));
    for (; written_ < sorted.size(); ++written_) {
      if (written_ % 512 == 0 && isOver()) return false;
      runs_.write(sorted[written_].row, walk_.end(), rowsInOrder);
    }
    return true;
  }

  HitOrder order_;
  RowWalk walk_;
  TextRuns runs_;
  /// Of the rows, or of the runs: where their texts start.
  std::vector<std::uint32_t> places_;
  std::vector<Texts> texts_;
  /// The texts of every 1024th row or run, by their place in texts_.
  std::vector<std::uint32_t> textsAt_;
  std::string volumes_;
  std::unordered_map<std::string, std::size_t> volumePlaces_;
  std::vector<KeyedRow> keyed_;
  bool isRead_ = false;
  RowSort sort_;
  std::size_t written_ = 0;
};

}  // namespace

std::unique_ptr<HitSort::Way> sortByLowerCase(const HitTable& table, const HitOrder& order) {
  return std::make_unique<ByLowerCase>(table, order);
}

}  // namespace quorvin
