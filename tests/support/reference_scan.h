// SPDX-License-Identifier: GPL-2.0-or-later

// The judge of every scan: the rules of the listing format, line by line, as plainly as they can be written.
#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <cstdint>
#include <vector>

namespace quorvin::test {

struct ReferenceHit {
  int match = 0;
  QString volume;
  QString folder;
  QString name;
  std::int64_t size = 0;
  double date = 0;

  bool operator==(const ReferenceHit&) const = default;
};

struct ReferenceResult {
  std::vector<ReferenceHit> hits;
  std::int64_t searched = 0;
  std::int64_t unreadable = 0;
  std::int64_t firstUnreadableLine = 0;
};

/// Scans the whole `listing` for `lowerSearchText`.
ReferenceResult referenceScan(const QByteArray& listing, const QString& lowerSearchText, int desiredMatch,
                              const QLocale& locale);

}  // namespace quorvin::test
