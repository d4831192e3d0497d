// SPDX-License-Identifier: GPL-2.0-or-later

// What all commands have in common that go over listings as a search does.
#pragma once

#include "console/progress_line.h"
#include "search/search_run.h"

#include <QLocale>
#include <QString>

#include <cstdint>

namespace quorvin {

/// What is wrong with the words and the match percentage to search for, as a sentence; empty when nothing is.
QString complaintAboutSearch(const QString& searchText, const QString& desiredMatch);

/// Loads the user's own sources as loadUserSources() does. False where there are none, which is reported.
bool loadSourcesToSearch(ProgramState& state, const QLocale& locale, MessageBoxes& messages);

/// For RunParts::streamAt: standard input, which is "-", and pipes. They are opened when their turn comes.
ListingReader listingStreamAt(const QString& path);

/// Shows how far a search has come.
class SearchProgress : public RunDisplay {
 public:
  enum class Shows { FoundAndSearched, Searched };

  SearchProgress(bool isWanted, Shows shows) : line_(isWanted), shows_(shows) {}

  ProgressLine& line() { return line_; }

  void setDesMatch(const QString&) override {}
  void runStarted(const SearchQuery&) override {}
  void runEnded() override { line_.clear(); }
  void showFound(std::int64_t count) override { found_ = count; }
  void showSearched(std::int64_t count) override { searched_ = count; }
  void clearHits() override {}
  void hitsArrived() override {}
  void processEvents() override;

 private:
  ProgressLine line_;
  Shows shows_;
  QLocale locale_;
  std::int64_t found_ = 0;
  std::int64_t searched_ = 0;
};

}  // namespace quorvin
