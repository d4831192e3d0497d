// SPDX-License-Identifier: GPL-2.0-or-later

// The export of hits: asking for a file, and writing it while the window lives on.
#pragma once

#include "app/search_form_status.h"
#include "editors/file_picker.h"
#include "hits/hit_export.h"
#include "hits/hit_list.h"
#include "hits/shown_rows.h"
#include "platform/message_box.h"
#include "search/hit_table.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

/// What exports work with; all of it must outlive SearchFormExport.
struct SearchFormExportParts {
  const ProgramState& state;
  MessageBoxes& messages;
  Work& work;
  FilePicker& picker;
  const HitTable& table;
  const HitListView& list;
  SearchFormStatus& status;
  QLocale locale;
};

/// Writes hits to a file of the user's as a job of the kind Export: a table, a page, or a listing, which the
/// ending of the file's name decides. `Progress` comes up when it takes longer. A new search, which takes the
/// hits away, ends the export; so do Cancel, stop() and the closing of the program. A file that is not whole
/// is never put in place.
class SearchFormExport {
 public:
  explicit SearchFormExport(const SearchFormExportParts& parts);

  /// All hits that the list shows, in its order.
  void ExportHits_Click();
  void ExportSelected_Click();
  /// Asks an export that is under way to end; false where there is none.
  bool stop();

 private:
  void exportRows(ListRows which);
  /// False when nothing is to be written to `path`; a message has said why.
  bool mayWriteTo(const QString& path) const;
  void write(Job& job, const QString& path, ExportFormat format, ListRows which);
  bool writeRows(Job& job, const QString& path, ExportFormat format, ListRows which);
  bool goOn(Job& job, std::int64_t written);
  bool mayGoOn(const Job& job) const;
  bool isCancelled(const Job& job) const;
  bool areHitsThere() const;
  void tellUnfinished(const Job& job) const;

  SearchFormExportParts parts_;
  /// Where the last export went.
  QString folder_;
  QElapsedTimer sinceStart_;
  bool isRunning_ = false;
  bool isStopped_ = false;
  bool isShown_ = false;
  std::int64_t timesCleared_ = 0;
  /// How many hits the present export, or the last one, is of.
  std::int64_t all_ = 0;
};

}  // namespace quorvin
