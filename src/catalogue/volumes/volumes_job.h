// SPDX-License-Identifier: GPL-2.0-or-later

// A look at all volumes that goes on in a thread of its own.
#pragma once

#include "catalogue/catalogue_job.h"
#include "catalogue/run_watch.h"
#include "catalogue/volumes/volume_finder.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <optional>

namespace quorvin {

/// Finds the volumes of the listings of a state of its own, with a store of segments of its own. It only
/// reads listings, each of which is replaced as a whole.
class VolumesJob : public CatalogueJob {
 public:
  VolumesJob(ProgramState sources, VolumeFinder::Wish wish, QLocale locale);

  /// How far it is, as a sentence; may be asked while it runs.
  QString progressText() const { return watch_.progressText(locale_); }

  // What has come of it; only once it has ended, and is complete.

  const std::vector<KnownVolume>& volumes() const { return finder_.volumes(); }
  /// The sum of everything and what was said of single listings, as lines for people; the fault where it
  /// failed.
  QStringList lines() const;

 protected:
  bool work() override { return finder_.find(); }

 private:
  VolumeFinder::Parts parts();

  ProgramState sources_;
  QLocale locale_;
  RunWatch watch_;
  VolumeFinder finder_;
};

}  // namespace quorvin
