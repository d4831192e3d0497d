// SPDX-License-Identifier: GPL-2.0-or-later

// What can be compared: listings, their earlier versions, and folders as they are now.
#pragma once

#include "history/listing_history.h"
#include "search/format/listing_text.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace quorvin {

class FileAside;

/// A listing that the user can choose, with what else there is of it.
struct ComparedSource {
  /// What the user calls it.
  QString title;
  /// The path of its listing.
  QString listing;
  /// What the listing history knows it by; empty where it has none.
  QString inHistory;
  /// The own folder that it lists; empty where it is of no own folder.
  QString folder;
  SourceKind kind = SourceKind::Online;
};

/// The sources of `state` in the order of a search.
std::vector<ComparedSource> comparedSources(const ProgramState& state);

/// One of the two that are compared.
struct ComparedPlace {
  enum class State : std::uint8_t {
    /// The listing as it is.
    Listing,
    /// The earlier version `version`.
    Version,
    /// The own folder, which is listed as it is now.
    Folder,
  };

  ComparedSource source;
  State state = State::Listing;
  int version = 0;
};

/// Opens the listing at `path`; each call of it throws as SequentialFile does.
ListingOpener openerOfListing(const QString& path);
/// Opens a version; each call throws as ListingHistory::text() does. `history` must outlive it.
ListingOpener openerOfVersion(const ListingHistory& history, const QString& listing, int version);

/// The listing of a folder as it is now, in a file that goes with the object. Nobody is asked anything: what
/// cannot be read is left out. For any thread.
class FolderAsItIs {
 public:
  /// How far it has come: the folder that is being read.
  using Progress = std::function<void(const QString& status)>;

  /// Lists `folder` under the volume name `label`, as `locale` has it. `stop` is asked often. Throws
  /// RuntimeFault where the folder cannot be read at all, or the file cannot be written.
  FolderAsItIs(const QString& folder, const QString& label, const QLocale& locale,
               const std::function<bool()>& stop, const Progress& progress);
  ~FolderAsItIs();
  FolderAsItIs(const FolderAsItIs&) = delete;
  FolderAsItIs& operator=(const FolderAsItIs&) = delete;

  /// False where `stop` ended it.
  bool isWhole() const { return isWhole_; }
  /// Names that are not in the listing, since they could not be read or written.
  std::int64_t leftOut() const { return leftOut_; }
  QString path() const;

 private:
  std::unique_ptr<FileAside> file_;
  std::int64_t leftOut_ = 0;
  bool isWhole_ = false;
};

}  // namespace quorvin
