// SPDX-License-Identifier: GPL-2.0-or-later

// Message boxes that nobody has to confirm.
#pragma once

#include "platform/message_box.h"

#include <stdexcept>
#include <string>

namespace quorvin {

/// Keeps what it is told. A benchmark's run has nothing to tell unless something is wrong.
class RecordedMessages : public MessageBoxes {
 public:
  void inform(const QString& text) override { texts_ += text.toStdString() + '\n'; }
  bool askYesNo(const QString& text) override {
    inform(text);
    return false;
  }
  FaultAnswer askAbortRetryIgnore(const QString& text) override {
    inform(text);
    return FaultAnswer::Abort;
  }

  /// Throws std::runtime_error with all that has been told so far.
  void throwIfAny() const {
    if (!texts_.empty()) throw std::runtime_error("the program told:\n" + texts_);
  }

 private:
  std::string texts_;
};

}  // namespace quorvin
