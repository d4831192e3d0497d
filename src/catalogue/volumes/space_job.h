// SPDX-License-Identifier: GPL-2.0-or-later

// Making a space tree in a thread of its own.
#pragma once

#include "catalogue/catalogue_job.h"
#include "catalogue/run_watch.h"
#include "catalogue/volumes/space_tree.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <vector>

namespace quorvin {

/// Makes the space tree of the listings of a state of its own, or of some listings, with a store of segments
/// of its own. It only reads listings, each of which is replaced as a whole.
class SpaceJob : public CatalogueJob {
 public:
  /// `listings` are their paths; none for all sources.
  SpaceJob(ProgramState sources, std::vector<QString> listings, QLocale locale);

  /// How far it is, as a sentence; may be asked while it runs.
  QString progressText() const { return watch_.progressText(locale_); }

  // What has come of it; only once it has ended.

  const SpaceTree& tree() const { return sums_.tree(); }
  const std::vector<QString>& listings() const { return sums_.listings(); }
  /// What was said of single listings, as lines for people; the fault where it failed.
  QStringList lines() const;

 protected:
  bool work() override;

 private:
  ProgramState sources_;
  std::vector<QString> wanted_;
  QLocale locale_;
  RunWatch watch_;
  SpaceSums sums_;
};

}  // namespace quorvin
