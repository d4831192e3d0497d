// SPDX-License-Identifier: GPL-2.0-or-later

// Telling as what lists would be read, in a thread of its own.
#pragma once

#include "catalogue/import/list_import.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <vector>

namespace quorvin {

/// run() is for one thread, all else for the one that made the object. Whoever runs it keeps it until the
/// end.
class ListRecognition {
 public:
  /// `request` is what the import would be asked for.
  ListRecognition(QStringList lists, ImportRequest request);

  /// Once.
  void run();

  /// It is of no use any more. It may go on for a while where a drive has not answered.
  void stop() { isStopped_ = true; }
  bool hasEnded() const { return hasEnded_; }

  // Only once it has ended.

  const QStringList& lists() const { return lists_; }
  /// For each of lists(): null where no format was recognised, or the list could not be read.
  const std::vector<const ListFormat*>& formats() const { return formats_; }

 private:
  QStringList lists_;
  ImportRequest request_;
  std::vector<const ListFormat*> formats_;
  std::atomic<bool> isStopped_ = false;
  std::atomic<bool> hasEnded_ = false;
};

}  // namespace quorvin
