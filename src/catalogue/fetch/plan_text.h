// SPDX-License-Identifier: GPL-2.0-or-later

// A fetch plan as text for people.
#pragma once

#include "catalogue/fetch/fetch_finder.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace quorvin {

/// What is said of a whole plan, as lines: the sums, and whether there are fewer volumes.
QStringList planSumLines(const FetchPlan& plan, const QLocale& locale);

/// A file that no volume has, as a line.
QString missingFileText(const WantedFile& file, const QLocale& locale);

/// What a volume is called: its name, or that of its listing where it has none.
QString volumeTitle(const PlanPlaces& places, std::uint32_t volume);

/// `text` with a blank for each control character: none ends a line, nor does a terminal obey one.
QString withoutControls(QString text);

/// The text of a plan, UTF-8: each volume with its listing, its folders and their files below it; then what
/// is missing, and the sums.
class PlanText {
 public:
  /// Makes a name, UTF-8, into what is shown of it.
  using Shown = std::function<std::string(std::string_view name)>;

  /// `finder` has found a plan, and must outlive the object.
  PlanText(const FetchFinder& finder, const QLocale& locale, Shown shown)
      : finder_(finder), locale_(locale), shown_(std::move(shown)) {}

  /// Of the volume at that place of the plan.
  std::string volume(std::size_t number) const;
  /// What follows the volumes; nothing where no file was wanted.
  std::string end() const;

 private:
  const FetchFinder& finder_;
  QLocale locale_;
  Shown shown_;
};

}  // namespace quorvin
