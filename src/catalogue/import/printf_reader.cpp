// SPDX-License-Identifier: GPL-2.0-or-later

// What find -printf writes with a pattern that the user names.
#include "catalogue/import/list_dates.h"
#include "catalogue/import/list_readers.h"
#include "catalogue/import/list_text.h"
#include "faults/runtime_fault.h"
#include "texts/texts.h"

#include <array>
#include <utility>
#include <vector>

namespace quorvin {

namespace {

RuntimeFault faultOf(const QString& sentence) {
  return RuntimeFault(FaultNumber::InvalidProcedureCall, sentence);
}

/// A piece of the pattern.
struct Piece {
  /// The letter of its directive, a capital T with the next letter in `time`; NUL for plain text.
  char directive = '\0';
  char time = '\0';
  std::string text;
};

bool isPath(const Piece& piece) {
  return std::string_view("pPfh").find(piece.directive) != std::string_view::npos && piece.directive != '\0';
}

void addText(std::vector<Piece>& pieces, char byte) {
  if (pieces.empty() || pieces.back().directive != '\0') pieces.emplace_back();
  pieces.back().text += byte;
}

std::vector<Piece> piecesOf(const std::string& pattern) {
  // The text that an escape stands for; the end of a row is not part of it.
  static constexpr std::string_view kEscapes = "tabfrv\\";
  static constexpr std::string_view kMeanings = "\t\a\b\f\r\v\\";
  std::vector<Piece> pieces;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const char next = at + 1 < pattern.size() ? pattern[at + 1] : '\0';
    if (pattern[at] == '\\' && next != '\0') {
      ++at;
      const std::size_t escape = kEscapes.find(next);
      const bool endsRow = next == 'n' || next == '0';
      if (endsRow && at + 1 == pattern.size()) break;
      if (endsRow || escape == std::string_view::npos) {
        throw faultOf(
            Texts::tr("the pattern may hold \\n or \\0 only at its end, and no other escapes than \\t"));
      }
      addText(pieces, kMeanings[escape]);
    } else if (pattern[at] == '%' && next == '%') {
      ++at;
      addText(pieces, '%');
    } else if (pattern[at] == '%') {
      // Widths, such as those of "%10s", are blanks in the row.
      at = pattern.find_first_not_of("-0123456789", at + 1);
      if (at == std::string::npos) throw faultOf(Texts::tr("the pattern ends within a directive"));
      Piece piece{pattern[at], '\0', {}};
      const bool hasLetter = piece.directive == 'T' || piece.directive == 'A' || piece.directive == 'C';
      if (hasLetter && at + 1 < pattern.size()) piece.time = pattern[++at];
      pieces.push_back(piece);
    } else {
      addText(pieces, pattern[at]);
    }
  }
  return pieces;
}

/// The parts of a date that come one by one, as in "%TY-%Tm-%Td %TH:%TM:%TS".
struct DateParts {
  std::array<std::int64_t, 6> values{};
  std::array<bool, 6> areThere{};
};

constexpr std::string_view kDateLetters = "YmdHMS";

class PrintfReader : public ListReader {
 public:
  explicit PrintfReader(const ListReadOptions& options)
      : options_(options), pieces_(piecesOf(options.pattern)) {
    int paths = 0;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
      if (!isPath(pieces_[i])) continue;
      ++paths;
      lastPath_ = i;
    }
    if (paths == 0) {
      throw faultOf(Texts::tr("the pattern holds no path: %p, %P, or %h and %f"));
    }
  }

  LineSays read(std::string_view line, ListEntry& entry) override {
    Row row;
    if (!readFrom(0, line, row)) return LineSays::NotUnderstood;
    if (row.path.empty() && row.name.empty()) {
      // %P of the folder that find was started with.
      if (!row.hasPath) return LineSays::NotUnderstood;
      row.path.assign(1, '.');
    }
    if (!row.name.empty()) row.path = row.folder.empty() ? row.name : row.folder + '/' + row.name;
    if (row.type != '\0' && std::string_view("fdl").find(row.type) == std::string_view::npos) {
      return LineSays::NoEntry;
    }
    entry = {row.path, EntryKind::Unknown, row.size, row.modified};
    if (row.type == 'd') entry.kind = EntryKind::Folder;
    if (row.type == 'f' || row.type == 'l') entry.kind = EntryKind::File;
    if (row.type == 'd' || row.type == 'l') {
      entry.size.reset();
      entry.modified = {};
    } else if (const auto date = dateOf(row.parts); date && row.modified.kind == ListDate::Kind::None) {
      entry.modified = *date;
    }
    return LineSays::Entry;
  }

 private:
  struct Row {
    std::string path;
    bool hasPath = false;
    std::string folder;
    std::string name;
    std::optional<std::int64_t> size;
    ListDate modified;
    DateParts parts;
    char type = '\0';
  };

  /// The rest of the row by the pieces from that of `number` on.
  bool readFrom(std::size_t number, std::string_view line, Row& row) const {
    for (std::size_t i = number; i < pieces_.size(); ++i) {
      const bool isFollowed = i + 1 < pieces_.size();
      if (i == lastPath_ && isFollowed) return readLastPath(i, line, row);
      if (!readPiece(i, line, row)) return false;
    }
    return line.empty();
  }

  /// The last path may hold the text that follows it in the pattern, so its end is tried from the right.
  bool readLastPath(std::size_t number, std::string_view line, Row& row) const {
    constexpr int kMostTries = 64;
    const std::string& next = pieces_[number + 1].text;
    if (next.empty()) return false;
    std::size_t end = line.rfind(next);
    for (int tries = 0; end != std::string_view::npos && tries < kMostTries; ++tries) {
      Row attempt = row;
      setPath(pieces_[number], line.substr(0, end), attempt);
      if (readFrom(number + 1, line.substr(end), attempt)) {
        row = attempt;
        return true;
      }
      end = end == 0 ? std::string_view::npos : line.rfind(next, end - 1);
    }
    return false;
  }

  static void setPath(const Piece& piece, std::string_view text, Row& row) {
    if (piece.directive == 'f') {
      row.name = text;
    } else if (piece.directive == 'h') {
      row.folder = text;
    } else {
      row.path = text;
      row.hasPath = true;
    }
  }

  /// A path, or the target of a link: up to the text that the pattern has next, or to the end.
  std::optional<std::string_view> takePath(std::size_t number, std::string_view& line) const {
    std::size_t length = line.size();
    if (number + 1 < pieces_.size()) {
      if (pieces_[number + 1].directive != '\0') return std::nullopt;
      length = line.find(pieces_[number + 1].text);
    }
    if (length == std::string_view::npos) return std::nullopt;
    const std::string_view text = line.substr(0, length);
    line.remove_prefix(length);
    return text;
  }

  bool readPiece(std::size_t number, std::string_view& line, Row& row) const {
    const Piece& piece = pieces_[number];
    if (piece.directive == '\0') return takeText(line, piece.text);
    if (isPath(piece)) {
      const std::optional<std::string_view> text = takePath(number, line);
      if (text) setPath(piece, *text, row);
      return text.has_value();
    }
    // The target of a link, which has any signs.
    if (piece.directive == 'l') return takePath(number, line).has_value();
    takeBlanks(line);
    if (piece.directive == 's') {
      row.size = takeNumber(line);
      return row.size.has_value();
    }
    if (piece.directive == 't') {
      std::string_view rest = line;
      takeWord(rest);
      takeBlanks(rest);
      const auto date = takeMonthNameDate(rest, options_.made);
      if (date) row.modified = *date;
      if (date) line = rest;
      return date.has_value();
    }
    if (piece.directive == 'T') return readTime(piece.time, line, row);
    if (piece.directive == 'y' || piece.directive == 'Y') {
      if (line.empty()) return false;
      row.type = line.front();
      line.remove_prefix(1);
      return true;
    }
    return skipWord(number, line);
  }

  /// Something that is of no use here: up to the sign that the pattern has next.
  bool skipWord(std::size_t number, std::string_view& line) const {
    if (number + 1 == pieces_.size()) {
      line = {};
      return true;
    }
    const Piece& next = pieces_[number + 1];
    const std::size_t end = next.directive == '\0' ? line.find(next.text.front()) : std::string_view::npos;
    if (end == std::string_view::npos) return false;
    line.remove_prefix(end);
    return true;
  }

  static bool readTime(char letter, std::string_view& line, Row& row) {
    if (letter == '@' || letter == '+') {
      const auto date = letter == '@' ? takeUnixTime(line) : takePlusDate(line);
      if (date) row.modified = *date;
      return date.has_value();
    }
    if (letter == 'F' || letter == 'T') return readWhole(letter, line, row);
    const std::size_t part = kDateLetters.find(letter);
    if (part == std::string_view::npos) return false;
    const std::optional<std::int64_t> value = takeNumber(line);
    if (!value) return false;
    row.parts.values[part] = *value;
    row.parts.areThere[part] = true;
    if (letter == 'S' && line.starts_with('.')) {
      line.remove_prefix(1);
      takeNumber(line);
    }
    return true;
  }

  /// "2004-01-15+10:20:30.0000000000".
  static std::optional<ListDate> takePlusDate(std::string_view& line) {
    auto date = takeIsoDate(line);
    if (!date || !takeText(line, "+")) return std::nullopt;
    const auto second = takeClock(line);
    if (!second) return std::nullopt;
    date->seconds += *second;
    return date;
  }

  /// "10:20:30", with or without parts of a second.
  static std::optional<std::int64_t> takeClock(std::string_view& line) {
    std::int64_t second = 0;
    for (const int unit : {3600, 60, 1}) {
      const std::optional<std::int64_t> value = takeNumber(line);
      if (!value || *value > 60) return std::nullopt;
      second += *value * unit;
      if (unit != 1 && !takeText(line, ":")) return std::nullopt;
    }
    if (takeText(line, ".")) takeNumber(line);
    return second;
  }

  /// "%TF" and "%TT".
  static bool readWhole(char letter, std::string_view& line, Row& row) {
    if (letter == 'T') {
      const auto second = takeClock(line);
      if (!second) return false;
      row.parts.values[3] = *second / 3600;
      row.parts.values[4] = *second / 60 % 60;
      row.parts.values[5] = *second % 60;
      return true;
    }
    for (std::size_t part = 0; part < 3; ++part) {
      if (part > 0 && !takeText(line, "-")) return false;
      const auto value = takeNumber(line);
      if (!value) return false;
      row.parts.values[part] = *value;
      row.parts.areThere[part] = true;
    }
    return true;
  }

  static std::optional<ListDate> dateOf(const DateParts& parts) {
    const auto& [year, month, day, hour, minute, second] = parts.values;
    if (!parts.areThere[0] || !parts.areThere[1] || !parts.areThere[2]) return std::nullopt;
    if (year > 9999 || month > 12 || day > 31 || hour > 23 || minute > 59 || second > 60) return std::nullopt;
    const auto number = wallClockDay(static_cast<int>(year), static_cast<int>(month), static_cast<int>(day));
    if (!number) return std::nullopt;
    return ListDate{ListDate::Kind::WallClock, ((*number * 24 + hour) * 60 + minute) * 60 + second};
  }

  ListReadOptions options_;
  std::vector<Piece> pieces_;
  std::size_t lastPath_ = 0;
};

}  // namespace

std::unique_ptr<ListReader> makePrintfReader(const ListReadOptions& options) {
  return std::make_unique<PrintfReader>(options);
}

}  // namespace quorvin
