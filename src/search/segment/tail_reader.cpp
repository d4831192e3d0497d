// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/tail_reader.h"

#include "search/format/listing_line.h"

namespace quorvin {

void TailReader::read(std::string_view tail, bool isOwn, std::int64_t line, std::uint32_t entry,
                      EntryValueArrays& values) {
  if (tail.data() != last_ || last_ == nullptr) {
    last_ = tail.data();
    isWritten_ = reader_.readWritten(tail, written_);
    if (!isWritten_) state_ = reader_.read(tail, isAscii(tail), values_);
  }
  if (isWritten_ && isOwn) return values.set(entry, written_);
  if (isWritten_) return values.set(entry, ValueState::Carried, expand(written_), line);
  const bool isCarried = state_ == ValueState::Own && !isOwn;
  values.set(entry, isCarried ? ValueState::Carried : state_, values_, line);
}

}  // namespace quorvin
