// SPDX-License-Identifier: GPL-2.0-or-later

// The values of a segment's entries, read by another thread while more entries come.
#pragma once

#include "search/segment/tail_batch.h"

#include <cstdint>
#include <future>
#include <string_view>

namespace quorvin {

/// Takes the tails of entries and reads them, some at a time: in a thread beside the one that calls, or,
/// where that one is not done with those before, here. So nobody waits, and where there is one processor
/// alone, or no thread to be had, all is done here.
class ValuesBeside {
 public:
  /// Entries that are read at a time.
  static constexpr std::uint32_t kBatch = 16'384;

  /// `first` is the number of the entry whose tail is added first.
  ValuesBeside(const EntryValuesReader& reader, std::uint32_t first, std::uint32_t batch = kBatch)
      : batch_(batch), here_(reader), first_(first), beside_(reader) {}
  ValuesBeside(const ValuesBeside&) = delete;
  ValuesBeside& operator=(const ValuesBeside&) = delete;

  /// The next entry's tail; see TailBatch::add.
  void add(std::string_view tail, bool isOwn, std::int64_t line) { filled_.add(tail, isOwn, line); }

  /// Has read what was added, if that is enough, and puts what is read by now into `values`. What was put
  /// there for these entries before is replaced by the same; nothing else may put any there afterwards.
  void goOn(EntryValueArrays& values);

  /// Reads all that was added, and puts it into `values`. The tail that is added next is that of entry 0.
  void finish(EntryValueArrays& values);

 private:
  bool start();
  bool isReading() const;
  void take(EntryValueArrays& values);
  void readHere(EntryValueArrays& values);

  const std::uint32_t batch_;
  TailReader here_;
  TailBatch filled_;
  /// The entry that is the first one in `filled_`.
  std::uint32_t first_;

  TailReader beside_;
  TailBatch read_;
  std::uint32_t firstRead_ = 0;
  /// While it is valid, `beside_` and `read_` are the other thread's. The last member: its end waits.
  std::future<void> reading_;
};

}  // namespace quorvin
