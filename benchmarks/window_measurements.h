// SPDX-License-Identifier: GPL-2.0-or-later

// The three measurements of one query in the window. Each is made in a process of its own: only so do its
// memory figures and its first run mean anything.
#pragma once

#include <QJsonObject>
#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

/// What is to be measured.
struct WindowTask {
  /// A whole path.
  QString listing;
  QString words;
  QString match;
  /// The hits that every complete run must have.
  std::int64_t expected = 0;
  /// Timed rounds of searches that follow the first.
  int rounds = 0;
  /// An existing folder for the settings.
  QString folder;
  QLocale locale;
};

// The results are objects of figures, as the report takes them. All throw std::runtime_error when a count is
// not the expected one.

/// The first search of all, which has to read the listing: "run" and "memory". It leaves behind what the
/// program keeps of a listing.
QJsonObject measureFirstSearch(const WindowTask& task);

/// The first search of a later start of the program ("run" and "memory"); then, in turn, searches in the
/// window and bare ones ("window" and "bare", seconds of each); a watched one ("watched"); and one that is
/// stopped ("stop").
QJsonObject measureLaterSearches(const WindowTask& task);

/// The first search of all, stopped when it first lets events run ("stop"). A complete one follows, to prove
/// that stopping did no harm.
QJsonObject measureStop(const WindowTask& task);

}  // namespace quorvin
