// SPDX-License-Identifier: GPL-2.0-or-later

// The line at the bottom of the main window.
#pragma once

#include "work/progress.h"

#include <QLocale>
#include <QMainWindow>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace quorvin {

/// The status bar `StatusLine`: the hits, the selected ones, what was unusual about the search, and a note of
/// what else has happened. Before the first search it shows the note alone.
class SearchFormStatus {
 public:
  /// Makes the bar of `window`, which must outlive the object.
  SearchFormStatus(QMainWindow& window, const QLocale& locale);

  /// A search starts: nothing is known of it, and the note is of the past.
  void runStarted();
  void setHits(std::int64_t count);
  /// `bytes` is nothing while it is not known yet.
  void setSelected(std::int64_t count, std::optional<std::int64_t> bytes);
  /// What is unusual about the order of the hits; empty for nothing.
  void setOrder(const QString& note);
  /// What is unusual about the search.
  void setRun(const QStringList& texts);
  /// Anything that the user should know and need not answer; empty for nothing. It stays until the next note
  /// or search.
  void setNote(const QString& note);

  QString text() const { return label_->text(); }

 private:
  void show();

  QLocale locale_;
  MiddleElidedLabel* label_;
  std::optional<std::int64_t> hits_;
  QString selection_;
  QString order_;
  QStringList run_;
  QString note_;
};

}  // namespace quorvin
