// SPDX-License-Identifier: GPL-2.0-or-later

// Rows of hits made as plainly as possible: each value of each row by itself, by way of QString. It judges
// HitRows, which makes them quickly.
#pragma once

#include "console/hit_rows.h"
#include "search/word_places.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvin::test {

/// A hit with all that there is to say of it.
struct PlainHit {
  std::int16_t match = 0;
  SourceKind kind = SourceKind::Online;
  std::string volume;
  std::string folder;
  std::string name;
  std::optional<EntryValues> values;
  bool areInherited = false;
  std::string listing;
};

/// What HitRows makes of hits.
class PlainHitRows {
 public:
  PlainHitRows(RowOptions options, const QLocale& locale, const SearchQuery& query,
               const ProgramState& state);

  /// Appends the row of `hit`, as HitRows::add() does.
  bool add(std::string& text, const PlainHit& hit);

  /// The match that the search gives the hit.
  std::int16_t matchOf(const PlainHit& hit) const;

 private:
  void addCell(std::string& text, HitField field, const PlainHit& hit);
  void addMember(std::string& text, HitField field, const PlainHit& hit);
  bool addRow(std::string& text, const PlainHit& hit);
  void addObject(std::string& text, const PlainHit& hit);
  void addText(std::string& text, std::string_view value) const;
  void addMarked(std::string& text, std::string_view value) const;
  QStringList wordsIn(const PlainHit& hit) const;
  std::optional<QString> pathOf(const PlainHit& hit);
  QString ownFolderOf(const PlainHit& hit) const;

  RowOptions options_;
  QLocale locale_;
  SearchQuery query_;
  WordPlaces places_;
  const ProgramState& state_;
  HitPaths paths_;
  bool looksForPaths_;
};

/// Has `rows` append the row of `hit`, with the folder entered first where `entersFolder`.
bool addQuickly(HitRows& rows, const PlainHit& hit, std::string& text, bool entersFolder = true);

}  // namespace quorvin::test
