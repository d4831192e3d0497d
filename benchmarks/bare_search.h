// SPDX-License-Identifier: GPL-2.0-or-later

// The search run that the window starts, without a window: the measure of what the window adds.
#pragma once

#include "run_figures.h"
#include "search/segment/segment_store.h"

#include <QLocale>
#include <QString>

#include <memory>

namespace quorvin {

/// Searches one listing as its main data file. Nothing is shown, hits are dropped.
class BareSearch {
 public:
  /// `listing` is a whole path. `segments` must outlive the search; the window's own makes both do the same.
  BareSearch(const QString& listing, SegmentStore& segments, const QLocale& locale);
  ~BareSearch();
  BareSearch(const BareSearch&) = delete;
  BareSearch& operator=(const BareSearch&) = delete;

  /// Throws std::runtime_error when the run has something to tell: then it was not the search it should be.
  RunFigures run(const QString& words, const QString& match);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace quorvin
