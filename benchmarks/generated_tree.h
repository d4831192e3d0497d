// SPDX-License-Identifier: GPL-2.0-or-later

// Volumes full of made-up folders and files.
#pragma once

#include "catalogue_writer.h"
#include "name_maker.h"
#include "random_source.h"
#include "vocabulary.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorvin {

/// Makes one volume after another; equal seeds give equal volumes. Folders are up to seven deep. Most hold a
/// handful of files, a few hold thousands: the number of files is long-tailed with a mean of some 16.
class GeneratedTree {
 public:
  GeneratedTree(std::uint64_t seed, CatalogueWriter& writer) : random_(seed), writer_(writer) {}

  /// Writes volumes until there are `entries` entries. The last volume is broken off after the entry that
  /// makes up the number, as that of an indexing run that was stopped.
  void write(std::int64_t entries);

 private:
  void visit(int depth);
  std::vector<std::string> subFolders(int depth);
  void writeFiles();
  std::int64_t fileCount();

  Vocabulary vocabulary_;
  RandomSource random_;
  NameMaker names_{vocabulary_, random_};
  CatalogueWriter& writer_;
  std::int64_t wanted_ = 0;
  std::string volume_;
  std::string path_;
};

}  // namespace quorvin
