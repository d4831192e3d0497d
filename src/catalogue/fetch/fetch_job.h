// SPDX-License-Identifier: GPL-2.0-or-later

// A fetch plan that is made in a thread of its own.
#pragma once

#include "catalogue/catalogue_job.h"
#include "catalogue/fetch/fetch_finder.h"
#include "catalogue/run_watch.h"

#include <QLocale>
#include <QString>
#include <QStringList>

namespace quorvin {

/// Finds the fewest volumes that have all of `wanted`, in the listings of a state of its own.
class FetchJob : public CatalogueJob {
 public:
  FetchJob(ProgramState sources, WantedFiles wanted, QLocale locale);

  /// How far it is, as a sentence; may be asked while it runs.
  QString progressText() const { return watch_.progressText(locale_); }

  // What has come of it; only once it has ended, and is complete.

  const FetchFinder& finder() const { return finder_; }
  /// What is said of the whole plan, and of single listings, as lines for people; the fault where it failed.
  QStringList lines() const;

 protected:
  bool work() override { return finder_.find(std::nullopt, {}); }

 private:
  FetchFinder::Parts parts();

  ProgramState sources_;
  QLocale locale_;
  RunWatch watch_;
  FetchFinder finder_;
};

}  // namespace quorvin
