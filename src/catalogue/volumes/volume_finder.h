// SPDX-License-Identifier: GPL-2.0-or-later

// All that is known of the volumes of listings: what the console and the window show.
#pragma once

#include "catalogue/volumes/volume_sums.h"
#include "platform/message_box.h"
#include "search/search_run.h"
#include "state/program_state.h"

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// A volume with what is known about it.
struct KnownVolume {
  QString name;
  /// The path of its listing.
  QString listing;
  SourceKind kind = SourceKind::Offline;
  VolumeSum sum = {};
  /// When the listing was written, local time; invalid where that is not known.
  QDateTime listed = {};
  /// The folder that was listed, of an own source; empty for others.
  QString folder = {};
  /// Bytes that are free where that folder is; nothing where it is not there.
  std::optional<std::int64_t> freeBytes = {};
  /// The user's own note; empty for none.
  QString note = {};
};

/// What volumes are sorted by.
enum class VolumeColumn : std::uint8_t { Volume, Entries, Size, Newest, Listed, Free, Listing, Note };

/// The numbers of `volumes` in order. Names are compared without regard to case; what a volume does not have
/// comes last, in either direction, and what is the same stays in order.
std::vector<std::uint32_t> orderOfVolumes(const std::vector<KnownVolume>& volumes, VolumeColumn column,
                                          bool isDescending);

/// Goes over listings and finds their volumes. For one thread, which may be any: what it works with must be
/// its own.
class VolumeFinder {
 public:
  struct Wish {
    /// Only files that a search of this finds count; empty for all.
    QString searchText = {};
    /// As it was typed; corrected like that of a search.
    QString desiredMatch = QStringLiteral("50");
    /// What was read of listings is kept for later, and used.
    bool useCache = true;
  };
  /// Those of RunParts. The notes are those of the state's data folder.
  struct Parts {
    ProgramState& state;
    MessageBoxes& messages;
    QLocale locale;
    RunDisplay* display = nullptr;
    std::function<bool()> endRequested = [] { return false; };
    std::function<ListingReader(const QString& path)> streamAt = {};
    /// Told of each listing before it is read.
    std::function<void(SourceKind kind, const QString& path)> listingStarts = [](SourceKind, const QString&) {
    };
    /// Gives the bytes that are free on the drive of a folder; nothing where the folder is not there.
    std::function<std::optional<std::int64_t>(const QString& folder)> freeBytesAt = freeBytesOfDrive;
  };

  /// Asks the system; a drive that does not answer holds it up.
  static std::optional<std::int64_t> freeBytesOfDrive(const QString& folder);

  VolumeFinder(Wish wish, Parts parts) : wish_(std::move(wish)), parts_(std::move(parts)) {}
  VolumeFinder(const VolumeFinder&) = delete;
  VolumeFinder& operator=(const VolumeFinder&) = delete;

  /// Goes over `listings`, or the sources of the state where there are none; to be called once. False where
  /// it was ended before all was found. Throws as SearchRun does, and fault 9 for more than 101 words.
  bool find(const std::vector<QString>& listings = {});

  /// Those of which something was found, in the order of the listings; after find() has returned true.
  const std::vector<KnownVolume>& volumes() const { return volumes_; }
  /// What they hold altogether.
  FileSum sum() const;

  /// As SearchRun::failedListings(); may be asked however it ended.
  int failedListings() const { return failedListings_; }

 private:
  void read(VolumeSums& sums, const std::vector<QString>& listings);
  void addFacts(const VolumeSums& sums);

  Wish wish_;
  Parts parts_;
  std::vector<KnownVolume> volumes_;
  int failedListings_ = 0;
};

}  // namespace quorvin
