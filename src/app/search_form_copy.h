// SPDX-License-Identifier: GPL-2.0-or-later

// Copying hits as text.
#pragma once

#include "app/search_form_hits.h"
#include "app/search_form_status.h"
#include "hits/hit_copy.h"
#include "hits/hit_list.h"
#include "hits/hit_paths.h"
#include "platform/message_box.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QLocale>
#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>

namespace quorvin {

/// What copies work with; all of it must outlive SearchFormCopy.
struct SearchFormCopyParts {
  const HitListView& list;
  const HitTable& table;
  const ProgramState& state;
  MessageBoxes& messages;
  SearchFormStatus& status;
  /// The one in which rows are written.
  QLocale locale;
};

/// Does what the items CopyRows, CopyNames and CopyPaths say: puts the selected hits on the clipboard, while
/// the window lives on. A copy that takes longer says in the status line how far it is. When a new search
/// takes the hits away, or the copy is stopped, the clipboard stays as it was. Hits that are sorted, filtered
/// or selected meanwhile change nothing about a copy that is under way; another copy takes its place.
class SearchFormCopy : public QObject {
  Q_OBJECT

 public:
  /// Some 200 MB of text; who wants more wants a file.
  static constexpr std::int64_t kMostRows = 1'000'000;

  SearchFormCopy(const SearchFormCopyParts& parts, const ItemMenu& items);

  /// Stops a copy that is under way and says so; false where there is none.
  bool stop();
  /// More rows than this are refused.
  void setMostRows(std::int64_t mostRows) { mostRows_ = mostRows; }
  /// See HitCopy::setUnseen().
  void setUnseen(std::chrono::milliseconds unseen) { copy_.setUnseen(unseen); }
  /// The window has closed: nothing more is put on the clipboard.
  void drop() { copy_.drop(); }

 private:
  void CopyRows_Click();
  void CopyNames_Click();
  void CopyPaths_Click();

  void copy(HitCopy::LineOf lineOf);
  QString rowText(int tableRow) const;
  QString pathText(int tableRow);
  void tellProgress();
  void end(CopyEnd end, const QString& text);
  void tellCopied();

  SearchFormCopyParts parts_;
  HitCopy copy_;
  std::int64_t mostRows_ = kMostRows;
  /// While paths are copied.
  std::optional<HitPaths> paths_;
  /// Of the present copy: how many files have not been found, and whether the status line has told of it.
  std::int64_t missing_ = 0;
  bool isTold_ = false;
};

}  // namespace quorvin
