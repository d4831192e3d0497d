// SPDX-License-Identifier: GPL-2.0-or-later

// A look for copies from the listings to the sums: what the console and the window have in common.
#pragma once

#include "catalogue/copy_contents.h"
#include "catalogue/copy_sums.h"
#include "platform/message_box.h"
#include "search/search_run.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// What is wanted of a look for copies.
struct CopyWish {
  enum class SumBy { Nothing, Volume, Folder };

  /// Only files that a search of this finds are meant; empty for all.
  QString searchText = {};
  /// As it was typed; corrected like that of a search.
  QString desiredMatch = QStringLiteral("50");
  /// What is on one volume only, instead of what is there more than once.
  bool singleOnly = false;
  /// Sums take the place of files.
  SumBy sumBy = SumBy::Nothing;
  /// Files of no bytes as well.
  bool withEmpty = false;
  /// Files that are at hand are read: those that hold different things are not the same.
  bool byContent = false;
  /// What was read of listings is kept for later, and used.
  bool useCache = true;
};

/// Goes over listings and finds what is wanted. For one thread, which may be any: what it works with must be
/// its own.
class CopyFinder {
 public:
  /// The first four are those of RunParts.
  struct Parts {
    ProgramState& state;
    MessageBoxes& messages;
    QLocale locale;
    RunDisplay* display = nullptr;
    /// Asked while listings are read, and by what comes after that.
    std::function<bool()> endRequested = [] { return false; };
    /// As in RunParts.
    std::function<ListingReader(const QString& path)> streamAt = {};
    /// Called whenever names and sizes are compared and it may be shown.
    std::function<void()> comparing = [] {};
    /// As CopyContents::Parts has it.
    std::function<void(std::int64_t done, std::int64_t all)> reading = [](std::int64_t, std::int64_t) {};
    /// Told of each listing before it is read.
    std::function<void(SourceKind kind, const QString& path)> listingStarts = {};
  };

  /// Throws fault 9 for more than 101 words.
  CopyFinder(const CopyWish& wish, Parts parts);
  CopyFinder(const CopyFinder&) = delete;
  CopyFinder& operator=(const CopyFinder&) = delete;

  /// Goes over `listings`, or the sources of the state where there are none; to be called once. False where
  /// it was ended before all was found. Throws as Copies::find() and visitSingleFiles() do.
  bool find(const std::vector<QString>& listings = {});

  // What was found; only after find() has returned true.

  const Copies& copies() const { return *copies_; }
  /// Empty unless copies themselves are wanted.
  const EqualFolders& equalFolders() const { return *equalFolders_; }
  const FolderTree& folders() const { return files_->folders(); }
  const std::vector<QString>& listings() const { return files_->listings(); }
  /// The lines about copies, in their order.
  std::vector<CopyLine> lines() const { return copyLines(*copies_, *equalFolders_, which_); }
  /// What is wanted of each folder: single files, or copies beyond the first of each; empty where copies
  /// themselves are wanted.
  const std::vector<FileSum>& inFolders() const { return inFolders_; }
  /// Goes over the single files that are wanted, as visitSingleFiles() does.
  bool visitSingle(const std::function<void(ListedFiles::Visited&)>& visit, const StopAsked& stop) const {
    return visitSingleFiles(*copies_, which_, visit, stop);
  }
  /// The sums of everything, as lines for people.
  QStringList sumLines() const;

  /// As SearchRun::failedListings(); may be asked however the look ended.
  int failedListings() const { return run_->failedListings(); }

 private:
  RunParts runParts();
  SegmentStore::Segments segmentsOf(const QString& listing);
  bool compare();
  bool lookInside();
  bool isEnded() const;

  CopyWish wish_;
  Parts parts_;
  WhichFiles which_;
  std::optional<SearchQuery> words_;
  std::optional<SegmentStore> segments_;
  std::optional<ListedFiles> files_;
  std::optional<Copies> copies_;
  std::optional<EqualFolders> equalFolders_;
  std::optional<SearchRun> run_;
  std::vector<FileSum> inFolders_;
  /// Of each listing, by its number.
  std::vector<SourceKind> kinds_;
  CopyContents::Counts contents_;
  /// Files that hold something else than one with their name and size.
  std::int64_t differing_ = 0;
};

}  // namespace quorvin
