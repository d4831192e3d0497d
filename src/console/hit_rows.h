// SPDX-License-Identifier: GPL-2.0-or-later

// Hits as rows of text for scripts and terminals.
#pragma once

#include "console/row_cells.h"
#include "dates/general_number.h"
#include "hits/hit_paths.h"
#include "search/hit_table.h"
#include "search/match/search_query.h"
#include "search/word_places.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

enum class RowFormat : std::uint8_t { Tsv, Csv, Json };

/// What a column of the rows holds. Size is in bytes, Modified like "2004-01-15T10:20:30" in the time zone of
/// the listing, Path the path of the hit's file where it is from an own folder, Listing the path of the
/// listing, Words the words that were found. The last three are a column as the window shows it.
enum class HitField : std::uint8_t {
  Match,
  Volume,
  Folder,
  Name,
  Path,
  Size,
  Modified,
  Listing,
  Words,
  ShownMatch,
  ShownSize,
  ShownDate
};

/// The names of the first nine, which users can ask for, in their order.
QStringList hitFieldNames();
/// The field of such a name.
std::optional<HitField> hitFieldNamed(const QString& name);

struct RowOptions {
  RowFormat format = RowFormat::Tsv;
  /// Empty for the window's six columns; for Json, that is for all nine.
  std::vector<HitField> fields = {};
  /// Rows end with NUL instead of LF, and the text of a Tsv row with one column is left as it is.
  bool endsWithNul = false;
  /// Control characters, which a hostile name may hold, must not reach the terminal.
  bool isForTerminal = false;
  /// The words that were found are highlighted, in Tsv.
  bool isColoured = false;
};

/// What the hits of one folder in one listing share. The texts are UTF-8.
struct HitFolder {
  SourceKind kind = SourceKind::Online;
  std::string_view volume;
  /// As listed, and in lower case.
  std::string_view folder;
  std::string_view lowerFolder;
  /// The path of its listing.
  std::string_view listing;
};

/// A hit as it was found. The texts are UTF-8.
struct FoundHit {
  /// 100 where folder and name have all words of the search between them, and only there.
  std::int16_t match = 0;
  /// As listed, and in lower case.
  std::string_view name;
  std::string_view lowerName;
  /// Nothing where its listing has none up to it.
  std::optional<EntryValues> values;
  /// They are those of an earlier line of the listing.
  bool areInherited = false;
};

/// Makes rows of hits, with columns that are chosen once.
///
/// Tsv: columns with tabs between, control characters in them turned into blanks. Csv: RFC 4180 with LF line
/// ends, columns quoted where needed. Json: an object a row; numbers are numbers, words an array, and what is
/// not known is left out, as is "inherited" unless it is true. Bytes that are no UTF-8 are U+FFFD there.
///
/// What hits of a folder share is made into text once, and so are matches and days. Rows ask for no memory
/// but for that of the text they are appended to, coloured ones and those of names that a listing leaves open
/// apart.
class HitRows {
 public:
  /// `query` is the search that finds the hits. `state` has the own folders; it must outlive the object.
  HitRows(RowOptions options, const QLocale& locale, SearchQuery query, const ProgramState& state);

  /// Appends the titles of the columns; there are none in Json.
  void addHead(std::string& text) const;

  /// The hits that follow are in `folder`, whose texts are not needed afterwards. To be called before the
  /// first hit.
  void enterFolder(const HitFolder& folder);

  /// Appends the row of `hit`. Nothing, and false, where its path is all that was asked for and is not known.
  bool add(std::string& text, const FoundHit& hit);

 private:
  /// A column that each hit has its own value in.
  struct OwnColumn {
    HitField field;
    /// What is in front of the value in Json: the member's name.
    std::string key;
  };

  bool isJson() const { return options_.format == RowFormat::Json; }
  bool asksFor(HitField field) const;
  void addShared(std::string& text, HitField field) const;
  void addCell(std::string& text, HitField field, const FoundHit& hit);
  void addMember(std::string& text, const OwnColumn& column, const FoundHit& hit);
  void endObject(std::string& text, const FoundHit& hit) const;
  void addName(std::string& text, std::string_view value) const;
  void addMarked(std::string& text, std::string_view value) const;
  void addWords(std::string& text, const FoundHit& hit) const;
  template <typename AreFound>
  void addWordsThat(std::string& text, AreFound areFound) const;
  const std::string& matchCell(std::int16_t match);
  const std::string* pathOf(const FoundHit& hit);
  const std::string& ownFolder();

  RowOptions options_;
  SearchQuery query_;
  WordPlaces places_;
  const ProgramState& state_;
  HitPaths paths_;
  CellForm cells_;
  /// Each path is looked for on the drive, and not only those that the listing leaves open.
  bool looksForPaths_;
  bool isPathAlone_;
  char rowEnd_;

  std::vector<OwnColumn> own_;
  /// All that is in front of each of them, shared columns and separators, in Json also the names of members
  /// that each hit has; at last what is behind.
  std::vector<std::string> shared_;

  MebibyteWriter sizes_;
  DayTexts shownDays_;
  /// All words of the query.
  std::string allWords_;
  /// By match; empty where it has not been asked for.
  std::array<std::string, 101> matches_;

  SourceKind kind_ = SourceKind::Online;
  std::string volume_;
  std::string folder_;
  std::string listing_;
  /// For each word of the query: the folder has it.
  std::vector<bool> folderHas_;
  /// Where the folder is; empty where that is not known, nothing where it has not been asked for.
  std::optional<std::string> ownFolder_;
  std::string path_;
};

}  // namespace quorvin
