// SPDX-License-Identifier: GPL-2.0-or-later

// What the console companion reports on standard error.
#pragma once

#include "platform/message_box.h"

#include <QString>

namespace quorvin {

/// Writes "quorvin-cli: " and `text` as one line to standard error.
void printError(const QString& text);

/// Writes each line of an error log, whose lines end with CR LF. Control characters, which a hostile file
/// name may hold, are shown as "?": a terminal would obey them.
void printErrorLog(const QString& log);

/// The message boxes without a window: their texts become lines on standard error, and nobody is there to
/// ask. Questions are answered with No, faults in a long piece of work with Ignore.
class ErrorLines : public MessageBoxes {
 public:
  void inform(const QString& text) override { printError(text); }
  bool askYesNo(const QString&) override { return false; }
  FaultAnswer askAbortRetryIgnore(const QString& text) override {
    printError(text);
    return FaultAnswer::Ignore;
  }
};

}  // namespace quorvin
