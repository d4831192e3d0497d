// SPDX-License-Identifier: GPL-2.0-or-later

// What the user names to be compared.
#pragma once

#include "console/commands.h"
#include "history/listing_history.h"
#include "search/format/listing_text.h"
#include "state/program_state.h"

#include <QString>

#include <memory>
#include <vector>

namespace quorvin {

class FileAside;

/// The listing that the user means: its description, its name, or its path. Empty when it has no history.
QString listingWithHistory(const QString& text, const ListingHistory& history, const ProgramState& state);

/// Finds out what is compared, and opens it. A folder is listed as it is now, into a file that goes with the
/// object.
class ComparedSources {
 public:
  /// Both must outlive the object.
  ComparedSources(const CompareRequest& request, const ProgramState& state);
  ~ComparedSources();

  /// Finds both. Throws RuntimeFault with a sentence where there is no such listing, folder or version.
  /// Otherwise false where a folder could not be listed, which has been reported.
  bool find();
  /// The exit status of listing the folders: 2 where names were left out, which has been reported.
  int status() const { return status_; }

  const ListingOpener& before() const { return before_; }
  const ListingOpener& after() const { return after_; }

 private:
  bool asksForVersion() const;
  ListingOpener openerOf(const QString& name);
  ListingOpener openerOfVersion(const QString& listing) const;
  ListingOpener openerOfFolder(const QString& path);
  int versionToShow(const QString& listing) const;
  int versionOfDay(const QString& listing) const;
  QString historyOf(const QString& name) const;

  const CompareRequest& request_;
  const ProgramState& state_;
  ListingHistory history_;
  ListingOpener before_;
  ListingOpener after_;
  std::vector<std::unique_ptr<FileAside>> listedFolders_;
  int status_ = 0;
  bool areListed_ = true;
};

}  // namespace quorvin
