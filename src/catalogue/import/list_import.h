// SPDX-License-Identifier: GPL-2.0-or-later

// Turning a list that another program made into a listing. What is read of which list:
// docs/formats/imports.md.
#pragma once

#include "catalogue/import/imported_listing.h"
#include "catalogue/import/list_formats.h"
#include "catalogue/import/list_lines.h"
#include "files/file_aside.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorvin {

struct ImportRequest {
  /// Null: as recognised from the first lines.
  const ListFormat* format = nullptr;
  ListReadOptions options = {};
  /// One for which isListEncoding() is true.
  std::string encoding = "utf-8";
  /// The volume's name.
  QString label;
  /// Where paths start that do not start with a slash; empty for the top.
  QString folder = {};
  /// The order of day and month in dates like 03/04/2004; nothing for that of those dates of the list that
  /// have one order only.
  std::optional<DayMonthOrder> order = {};
  /// How much memory the entries may take before they go to the disk.
  std::size_t memory = EntrySorter::kUsualMemory;
};

struct ImportReport {
  /// The format that was read; null where none was recognised, and then nothing was written.
  const ListFormat* format = nullptr;
  /// What the list itself decided, as ListReader::decided() says.
  QString decided;
  ImportCounts counts;
  std::int64_t lines = 0;
  std::int64_t notUnderstood = 0;
  struct Line {
    std::int64_t number = 0;
    QString text;
  };
  /// The first of those that were not understood.
  std::vector<Line> firstNotUnderstood;
  /// Lines whose bytes are no text.
  std::int64_t noText = 0;
  bool isStopped = false;

  static constexpr std::size_t kFirstLines = 5;
};

/// Called every few thousand lines with their number; what is being done is to stop when it gives false.
using ImportProgress = std::function<bool(std::int64_t lines)>;

/// As what importList() would read the list, by its first lines; null where none is recognised. Throws
/// RuntimeFault where it cannot be read.
const ListFormat* formatOfList(const ListLines::Read& read, const ImportRequest& request);

/// Reads the list and writes the listing into `listing`, which is put in place by the caller. Memory is
/// bounded by twice `request.memory`, the lines of the largest folder and a few MiB, however long the list
/// is; what does not fit is in files beside `place`, where the listing is going to be, until the end. Throws
/// RuntimeFault where something cannot be read or written, and as the readers do where the request makes no
/// sense.
ImportReport importList(const ListLines::Read& read, const ImportRequest& request, const QLocale& locale,
                        const QString& place, FileWriter& listing, const ImportProgress& progress);

}  // namespace quorvin
