// SPDX-License-Identifier: GPL-2.0-or-later

// Finding files for the search of the desktop: at once, with what is kept of the listings.
#pragma once

#include "search/segment/segment_store.h"
#include "state/program_state.h"

#include <QLocale>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// A file of a listing as the desktop shows it. All texts are free of line feeds and other control
/// characters, but for the identifier.
struct FoundFile {
  /// Says which file it is, to this program and to its next start. One line for each of its parts; no two
  /// files of one answer have the same.
  QString id;
  QString name;
  /// Where it is: volume and folder, as listed.
  QString place;
  /// The name of an icon for its kind, in the naming of the desktops.
  QString icon;
  /// All the words are in the name alone.
  bool isFoundByName = false;
};

/// Searches the user's own sources as the window does, but reads no listing: of each that is looked for the
/// first time, or has changed, nothing is found until the window or the console companion has searched it.
class FileFinder {
 public:
  /// So many files at most are one answer.
  static constexpr std::size_t kMostFiles = 20;

  explicit FileFinder(const QLocale& locale = QLocale());

  /// The files that hold all the words of `text`, those first whose names do. `isOver` is asked every few
  /// milliseconds at most; what was found until it says true is the answer. Nothing where settings or sources
  /// cannot be read, and for text without a word. Throws std::bad_alloc alone.
  std::vector<FoundFile> find(const QString& text, const std::function<bool()>& isOver);

  /// The file of an identifier that find() gave; nothing for any other text.
  static std::optional<FoundFile> fileOf(const QString& id);

  /// Where the file of an identifier is on this machine; empty where its drive is not connected, or it is not
  /// in a folder of the user's own. Throws std::bad_alloc alone.
  QString pathOf(const QString& id);

 private:
  bool loadSources();

  QLocale locale_;
  ProgramState state_;
  SegmentStore segments_;
};

}  // namespace quorvin
