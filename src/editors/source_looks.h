// SPDX-License-Identifier: GPL-2.0-or-later

// What is at the places of the sources that are edited: whether folder or file is there, and its listing.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QThreadPool>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// Where to look for a source.
struct SourcePlaces {
  /// The folder, or the listing file itself.
  QString path;
  /// The listing of the folder; empty for a listing file.
  QString listing;

  bool isFolder() const { return !listing.isEmpty(); }
  bool operator==(const SourcePlaces&) const = default;
};

inline std::size_t qHash(const SourcePlaces& places, std::size_t seed = 0) {
  return qHashMulti(seed, places.path, places.listing);
}

struct SourceFacts {
  /// The folder, or the listing file.
  bool isThere = false;
  /// Its listing; of a listing file that is the file itself.
  bool isListed = false;
  /// How many entries the listing has, where that can be learned quickly.
  std::optional<std::int64_t> entries;
  /// When the listing was last changed.
  QDateTime listed;

  bool operator==(const SourceFacts&) const = default;
};

/// How many entries the listing at a path has; nothing where that cannot be learned quickly. It is called in
/// other threads, several at a time, and throws nothing.
using CountEntries = std::function<std::optional<std::int64_t>(const QString& listing)>;

/// Looks at the places of a source, which may take as long as a slow or lost drive keeps the system waiting.
/// Without `countEntries` no entries are counted.
SourceFacts lookAtSource(const SourcePlaces& places, const CountEntries& countEntries);

/// A few words on a source, for its row: "81,204 entries, 3 days old", "not there".
QString factsInBrief(const SourceFacts& facts, const SourcePlaces& places, const QLocale& locale,
                     QDate today);
/// The same as sentences, for tooltips and screen readers.
QString factsInFull(const SourceFacts& facts, const SourcePlaces& places, const QLocale& locale);

/// Looks at sources in other threads, a few at a time, and remembers what it has found. When it is destroyed,
/// what has not been looked at yet is given up; nothing is waited for.
class SourceLooks : public QObject {
  Q_OBJECT

 public:
  using Look = std::function<SourceFacts(const SourcePlaces&)>;

  /// `pool` must outlive what is still being looked at when the object is destroyed; `look` is called in its
  /// threads, several at a time, and throws nothing.
  SourceLooks(QThreadPool& pool, Look look, QObject* parent);
  ~SourceLooks() override;

  /// Looks at those of `places` that have not been looked at, and returns at once.
  void lookAt(const std::vector<SourcePlaces>& places);

  /// What was found; null while it is not known.
  const SourceFacts* facts(const SourcePlaces& places) const;

 Q_SIGNALS:
  /// More is known than before.
  void found();

 private:
  struct Finding {
    SourcePlaces places;
    SourceFacts facts;
  };
  struct Round;

  QThreadPool& pool_;
  Look look_;
  /// Nothing while it is being looked at.
  QHash<SourcePlaces, std::optional<SourceFacts>> known_;
};

}  // namespace quorvin
