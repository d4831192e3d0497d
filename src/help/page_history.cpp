// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/page_history.h"

namespace quorvin {

void PageHistory::keepPosition(int position) {
  if (!isEmpty()) pages_[current_].position = position;
}

void PageHistory::visit(const QUrl& address) {
  if (!isEmpty()) pages_.resize(current_ + 1);
  pages_.push_back({address, 0});
  current_ = pages_.size() - 1;
}

void PageHistory::moveBack(const QUrl& address) {
  --current_;
  stay(address);
}

void PageHistory::moveForward(const QUrl& address) {
  ++current_;
  stay(address);
}

void PageHistory::stay(const QUrl& address) {
  pages_[current_].address = address;
}

void PageHistory::clear() {
  pages_.clear();
  current_ = 0;
}

void AddressList::visit(const QString& address) {
  addresses_.removeOne(address);
  addresses_.prepend(address);
}

}  // namespace quorvin
