// SPDX-License-Identifier: GPL-2.0-or-later

// The program's real main window, driven as a person would: words are typed, buttons are pressed.
#pragma once

#include "event_watch.h"
#include "run_figures.h"
#include "search/segment/segment_store.h"

#include <QLocale>
#include <QString>
#include <QTemporaryDir>

#include <cstdint>
#include <memory>

namespace quorvin {

class FilePicker;
class SearchForm;
struct ProgramState;

/// What came of pressing Stop when a run let events run for the first time.
struct StopFigures {
  /// Entries searched by the end of the run.
  std::int64_t searched = 0;
  /// From the press of Stop to the end of the run.
  double seconds = 0;
};

/// From now on settings, data and cache are below `folder`, so that nothing of the user's is read or written,
/// and there is no screen. To be called before there is an Application. Throws std::runtime_error when the
/// folder could not be made.
void liveIn(const QTemporaryDir& folder);

/// The window after a start-up with one listing on the command line. Needs an Application; user-interface
/// thread only. Every press throws std::runtime_error when the program shows a message.
class SearchWindow {
 public:
  /// `listing` is a whole path. Settings are kept in `folder`, which exists; segments where the environment
  /// says.
  /// Files are picked with `picker`; it may be null.
  SearchWindow(const QString& listing, const QString& folder, const QLocale& locale,
               FilePicker* picker = nullptr);
  ~SearchWindow();
  SearchWindow(const SearchWindow&) = delete;
  SearchWindow& operator=(const SearchWindow&) = delete;

  /// The segments that the window searches.
  SegmentStore& segments();

  /// The window itself, and the state that it works on.
  SearchForm& form();
  ProgramState& state();

  /// Types the search text and the desired match over what stands in their fields.
  void type(const QString& words, const QString& match);

  /// Presses Find and returns when the last row is in the list and events have run once more.
  RunFigures find();
  /// The same; `events` tells what the user could see and do meanwhile.
  RunFigures findWatched(EventFigures& events);

  /// Presses Find, and the same button again as soon as the run lets events run. Throws std::runtime_error
  /// when it never does.
  StopFigures findAndStop();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace quorvin
