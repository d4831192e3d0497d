// Hits as rows of text for scripts and terminals.
#pragma once

#include "hits/hit_paths.h"
#include "search/hit_table.h"
#include "search/word_places.h"

#include <QLocale>
#include <QString>
#include <QStringList>

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

/// A hit as it was found. The texts are UTF-8.
struct FoundHit {
  std::int16_t match = 0;
  SourceKind kind = SourceKind::Online;
  std::string_view volume;
  /// As listed.
  std::string_view folder;
  std::string_view name;
  /// Nothing where its listing has none up to it.
  std::optional<EntryValues> values;
  /// They are those of an earlier line of the listing.
  bool areInherited = false;
  /// The path of its listing.
  std::string_view listing;
};

/// Makes rows of hits, with columns that are chosen once.
///
/// Tsv: columns with tabs between, control characters in them turned into blanks. Csv: RFC 4180 with LF line
/// ends, columns quoted where needed. Json: an object a row; numbers are numbers, words an array, and what is
/// not known is left out, as is "inherited" unless it is true. Bytes that are no UTF-8 are U+FFFD there.
class HitRows {
 public:
  /// `state` has the own folders; it must outlive the object.
  HitRows(RowOptions options, const QLocale& locale, WordPlaces words, const ProgramState& state);

  /// Appends the titles of the columns; there are none in Json.
  void addHead(std::string& text) const;

  /// Appends the row of `hit`. Nothing, and false, where its path is all that was asked for and is not known.
  bool add(std::string& text, const FoundHit& hit);

 private:
  void addCell(std::string& text, HitField field, const FoundHit& hit);
  void addMember(std::string& text, HitField field, const FoundHit& hit);
  bool addRow(std::string& text, const FoundHit& hit);
  void addObject(std::string& text, const FoundHit& hit);
  void addText(std::string& text, std::string_view value) const;
  void addMarked(std::string& text, std::string_view value) const;
  QStringList wordsIn(const FoundHit& hit) const;
  std::optional<QString> pathOf(const FoundHit& hit);
  const QString& ownFolderOf(const FoundHit& hit);

  RowOptions options_;
  QLocale locale_;
  WordPlaces words_;
  const ProgramState& state_;
  HitPaths paths_;
  /// Each path is looked for on the drive, and not only those that the listing leaves open.
  bool looksForPaths_;
  /// The folder of the hit before, as listed, and where it is; empty where it is not known.
  std::string volumeBefore_;
  std::string folderBefore_;
  bool isFolderKnown_ = false;
  QString ownFolder_;
};

}  // namespace quorvin
