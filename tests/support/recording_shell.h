// SPDX-License-Identifier: GPL-2.0-or-later

// A shell for tests: it records what it is asked for and starts nothing.
#pragma once

#include "faults/runtime_fault.h"
#include "platform/shell.h"

#include <QString>

#include <optional>
#include <vector>

namespace quorvin {

class RecordingShell : public Shell {
 public:
  void open(const QString& file, const QString& workingFolder) override {
    record(QStringLiteral("open %1 in %2").arg(file, workingFolder));
  }
  void openFolder(const QString& folder, const QString& name) override {
    record(QStringLiteral("open folder %1 at %2").arg(folder, name));
  }
  EnqueueOutcome enqueue(const QString& file, const QString& workingFolder) override {
    record(QStringLiteral("enqueue %1 in %2").arg(file, workingFolder));
    return outcome;
  }

  void notify(const QString& title, const QString& text) override {
    record(QStringLiteral("notify %1: %2").arg(title, text));
  }

  /// One line for each call.
  std::vector<QString> calls;
  /// What enqueue() tells.
  EnqueueOutcome outcome = EnqueueOutcome::HandedOver;
  /// Every call throws it, after it has been recorded.
  std::optional<RuntimeFault> fault;

 private:
  void record(const QString& call) {
    calls.push_back(call);
    if (fault) throw RuntimeFault(*fault);
  }
};

}  // namespace quorvin
