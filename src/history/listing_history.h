// SPDX-License-Identifier: GPL-2.0-or-later

// What listings were before they were replaced. The files: docs/formats/listing-history.md.
#pragma once

#include "history/version_file.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// How much is kept of each listing.
struct HistoryLimits {
  int versions = 10;
  /// The differences of a listing's older versions together, in per cent of the listing's size. Those of a
  /// small listing may take up 64 KiB. The newest version, which is whole, does not count.
  int percent = 10;
};

/// An earlier version of a listing.
struct ListingVersion {
  /// Versions of a listing are numbered as they come; a number is not used again while newer ones are there.
  int number = 0;
  /// When the listing was made: milliseconds since the start of 1970, UTC.
  std::int64_t made = 0;
  std::uint64_t entries = 0;
  /// In bytes.
  std::uint64_t size = 0;
  /// False when the rescan that made it was stopped before its end.
  bool isComplete = true;
  /// False when a newer version that it differs from is missing.
  bool isReadable = true;
};

/// What has become of a listing before it is replaced.
struct KeptListing {
  /// Its entries; 0 where there is no listing, or where the new one has the same text: then nothing is lost.
  std::uint64_t entries = 0;
  /// The listing is there and has the same text as the new one.
  bool isSame = false;
  /// Why it could not be kept; empty when it was, or when there was nothing to keep.
  QString fault;
};

/// The earlier versions of the listings in a data folder, in `history/` there: the newest version of a
/// listing whole, each older one as what differs from the next newer one. A listing is known by its path
/// below the data folder ("Music.txt"). Nothing here changes a listing but restore(). One program at a time
/// changes a history.
class ListingHistory {
 public:
  /// `dataFolder` ends in a separator. `pause` may let events run.
  explicit ListingHistory(const QString& dataFolder, HistoryPause pause = {}, HistoryLimits limits = {});

  // Where a folder or a file of the history cannot be read, these throw RuntimeFault.

  /// The listings that have a history, sorted.
  QStringList listings() const;
  /// The versions of a listing, newest first, without those whose heads are damaged.
  std::vector<ListingVersion> versions(const QString& listing) const;
  /// The newest version that is complete, can be read and has entries; nothing where there is none.
  std::optional<ListingVersion> newestComplete(const QString& listing) const;
  /// The listing as it is now, with the number 0; nothing where there is none or it cannot be read.
  std::optional<ListingVersion> present(const QString& listing) const;

  /// To be called before the listing is replaced by the file at `replacement`: keeps its text, unless the
  /// replacement or the newest version holds the same, and removes what the limits do not allow. The newest
  /// complete version is never removed. `isComplete` is what the replacement will be known as. Never throws:
  /// a history that cannot be written must not stop what makes listings.
  KeptListing keep(const QString& listing, const QString& replacement, bool isComplete);

  /// The text of a version. Throws RuntimeFault: 53 where there is no such version, others when reading
  /// fails, and DamagedVersion.
  std::unique_ptr<ListingBytes> text(const QString& listing, int number) const;

  /// Puts a version in the place of the listing, which becomes a version itself. Throws RuntimeFault as
  /// text() does, fault 75 while a refresh is running, and others when a file cannot be written; the listing
  /// is then what it was.
  void restore(const QString& listing, int number);

 private:
  QString historyFolder() const;
  QString folderOf(const QString& listing) const;
  QString pathOf(const QString& listing) const;
  QString versionPath(const QString& listing, int number) const;
  void makeFolder(const QString& listing) const;

  int freeNumber(const QString& listing) const;

  void addPresent(const QString& listing, const ListingFacts& facts);
  void removeBeyondLimits(const QString& listing, std::uint64_t listingSize) const;

  ListingFacts factsOfFile(const QString& path) const;
  bool isMarkedIncomplete(const QString& listing, const ListingFacts& facts) const;
  void markIncomplete(const QString& listing, const ListingFacts& facts) const;

  QString dataFolder_;
  HistoryPause pause_;
  HistoryLimits limits_;
};

}  // namespace quorvin
