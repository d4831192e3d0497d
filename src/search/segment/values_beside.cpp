// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/segment/values_beside.h"

#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

namespace quorvin {

/// Hands over what was added; false where there is nobody to take it.
bool ValuesBeside::start() {
  if (std::thread::hardware_concurrency() == 1) return false;
  std::swap(filled_, read_);
  try {
    reading_ = std::async(std::launch::async, [this] { read_.read(beside_); });
  } catch (const std::system_error&) {
    std::swap(filled_, read_);
    return false;
  }
  firstRead_ = std::exchange(first_, first_ + read_.count());
  return true;
}

bool ValuesBeside::isReading() const {
  return reading_.valid() && reading_.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void ValuesBeside::take(EntryValueArrays& values) {
  if (!reading_.valid()) return;
  reading_.get();
  values.replace(firstRead_, read_.values());
  read_.clear();
}

void ValuesBeside::readHere(EntryValueArrays& values) {
  filled_.read(here_);
  values.replace(first_, filled_.values());
  first_ += filled_.count();
  filled_.clear();
}

void ValuesBeside::goOn(EntryValueArrays& values) {
  if (filled_.count() < batch_) return;
  if (isReading()) return readHere(values);
  take(values);
  if (!start()) readHere(values);
}

void ValuesBeside::finish(EntryValueArrays& values) {
  readHere(values);
  take(values);
  first_ = 0;
}

}  // namespace quorvin
