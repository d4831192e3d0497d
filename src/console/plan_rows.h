// SPDX-License-Identifier: GPL-2.0-or-later

// A fetch plan as text or JSON.
#pragma once

#include "catalogue/fetch/fetch_finder.h"
#include "console/table_row.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <functional>
#include <string>

namespace quorvin {

/// What is said of a whole plan, as lines for people: the sums, and whether there are fewer volumes.
QStringList planSumLines(const FetchPlan& plan, const QLocale& locale);

/// A file that no volume has, as a line for people.
QString missingFileText(const WantedFile& file, const QLocale& locale);

/// What a volume is called: its name, or that of its listing where it has none.
QString volumeTitle(const PlanPlaces& places, std::uint32_t volume);

/// Writes a plan piece by piece, UTF-8. In text each volume has its listing, its folders and their files
/// below it; what is missing and the sums follow. In JSON each volume, file, missing file and the sum is an
/// object.
class PlanRows {
 public:
  struct Options {
    /// Text or Json.
    TableFormat format = TableFormat::Text;
    bool isForTerminal = false;
  };
  /// Takes a piece; false where no more are wanted.
  using Write = std::function<bool(const std::string& piece)>;

  /// `finder` has found a plan, and must outlive the object.
  PlanRows(const FetchFinder& finder, Options options, const QLocale& locale);

  void write(const Write& write) const;

 private:
  std::string volumeText(std::size_t number) const;
  std::string volumeRows(std::size_t number) const;
  std::string endText() const;
  std::string endRows() const;
  std::string shown(const QString& text) const;
  std::string shown(std::string_view text) const;

  const FetchPlan& plan_;
  const FetchFinder& finder_;
  Options options_;
  QLocale locale_;
  CellForm cells_;
};

}  // namespace quorvin
