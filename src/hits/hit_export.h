// SPDX-License-Identifier: GPL-2.0-or-later

// Hits written to a file: as a table, as a page, or as a listing.
#pragma once

#include "search/hit_table.h"

#include <QLocale>
#include <QString>
#include <Qt>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvin {

enum class ExportFormat : std::uint8_t {
  /// The six columns as the list shows them, with their titles, in UTF-8 with CR LF line ends (RFC 4180).
  Csv,
  /// One page that needs nothing else and asks for nothing: it searches and sorts its hits by itself.
  Html,
  /// A listing (docs/formats/listing.md). A search that found the hits finds the same ones in it, with
  /// volume,
  /// folder, name, size and date.
  Listing,
};

/// The format that the ending of a file's name stands for (".csv", ".html" or ".htm", ".txt"), whatever its
/// case; nothing for others.
std::optional<ExportFormat> exportFormatOf(const QString& path);

/// One of the formats: makes the text of the file piece by piece.
class ExportText {
 public:
  virtual ~ExportText() = default;

  /// Each appends to `text`: what comes before the first hit, one hit, what comes after the last one.
  virtual void start(std::string& text) = 0;
  virtual void add(std::string& text, const HitRow& row) = 0;
  virtual void end(std::string& text) = 0;
};

/// `direction` is the one in which the page is read.
std::unique_ptr<ExportText> makeExportText(ExportFormat format, const QLocale& locale,
                                           Qt::LayoutDirection direction);
/// The listing's and the page's makers.
std::unique_ptr<ExportText> makeListingText();
std::unique_ptr<ExportText> makePageText(const QLocale& locale, Qt::LayoutDirection direction);

/// Called every few milliseconds with the number of hits written so far; false ends the export.
using ExportProgress = std::function<bool(std::int64_t written)>;

/// Writes the rows `tableRows` of `table`, in that order, to the file at `path`, which gets its name only
/// when it is whole; a link there is followed. False when `goOn` has ended it: then everything is as it was
/// before. The table must not be cleared in between unless `goOn` says false from then on. Throws
/// RuntimeFault as FileAside does.
bool exportHits(const QString& path, ExportText& text, const HitTable& table,
                const std::vector<int>& tableRows, const ExportProgress& goOn);

}  // namespace quorvin
