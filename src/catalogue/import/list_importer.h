// SPDX-License-Identifier: GPL-2.0-or-later

// Making the listing of a list where it belongs: its name, what is refused, and nothing half left behind.
#pragma once

#include "catalogue/import/import_sentences.h"
#include "catalogue/import/list_import.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace quorvin {

/// What is chosen for all lists that are imported together.
struct ImportChoices {
  /// What is asked of each list; its label is set for each.
  ImportRequest request = {};
  /// The folder for the listings; it has to exist.
  QString output;
  /// The name of the volume and of its listing; empty for that of the list, without its last ending.
  QString label = {};
  /// Whether a listing of the same name is replaced. A list is never replaced by its own listing.
  bool replaces = false;
  /// The program's data folder: a listing in it, or below, that is replaced is kept in its listing history.
  /// Empty for none.
  QString dataFolder = {};
  /// Whether a file is the program's own, in whose place no listing may stand; empty where none is.
  std::function<bool(const QString& path)> isOwnFile = {};
};

/// The day that the user says a list was made on, such as "2004-01-15"; nothing for an empty text. Throws
/// RuntimeFault (5) for another.
std::optional<std::int64_t> dayOfList(const QString& text, const ImportControls& controls);

struct ImportedList {
  /// Where the listing is.
  QString place;
  ImportReport report;

  /// Whether everything that the list names is in the listing, where a search finds it.
  bool isWhole() const {
    return report.notUnderstood == 0 && report.counts.leftOut == 0 && report.counts.misread == 0;
  }
};

/// Can be used in any thread, by one at a time.
class ListImporter {
 public:
  /// Asked every few thousand lines, and several times a second while a stream brings nothing: whether the
  /// import is to end.
  using StopRequested = std::function<bool()>;
  /// Called every few thousand lines with their number.
  using LinesRead = std::function<void(std::int64_t lines)>;

  ListImporter(ImportChoices choices, ImportControls controls, StopRequested stopRequested);

  /// As what `list` would be read, by its first lines; null where none is recognised, and for a stream, whose
  /// lines come once only. Throws RuntimeFault where it cannot be read.
  const ListFormat* formatOf(const QString& list) const;

  /// Reads `list`, a file, a stream, or "-" for standard input, and puts its listing in place. When a stop is
  /// requested, `report.isStopped` is true and no listing is made. Throws RuntimeFault, with which nothing at
  /// the place changes either: 5 where a listing is there already, no format is recognised, the list names
  /// nothing or the earlier listing cannot be kept, and as importList() and FileAside do.
  ImportedList import(const QString& list, const LinesRead& linesRead) const;

 private:
  QString nameOf(const QString& list) const;
  QString placeOf(const QString& list) const;
  void keepEarlier(const QString& place, const QString& replacement) const;

  ImportChoices choices_;
  ImportControls controls_;
  StopRequested stopRequested_;
};

}  // namespace quorvin
