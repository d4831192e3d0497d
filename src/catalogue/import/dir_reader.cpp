// SPDX-License-Identifier: GPL-2.0-or-later

// The lists of "dir /s", in the languages in which their heads are known.
#include "catalogue/import/list_dates.h"
#include "catalogue/import/list_readers.h"
#include "catalogue/import/list_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

/// What dir writes in a language. Letters that were not ASCII are left out, since they come in many
/// encodings.
struct DirLanguage {
  /// Before the path of a folder.
  std::string_view head;
  /// The order of day and month; nothing where it differs from country to country.
  std::optional<DayMonthOrder> order;
};

constexpr std::array<DirLanguage, 8> kLanguages{{{"Directory of ", std::nullopt},
                                                 {"Verzeichnis von ", DayMonthOrder::DayFirst},
                                                 {"pertoire de ", DayMonthOrder::DayFirst},
                                                 {"Directorio de ", DayMonthOrder::DayFirst},
                                                 {"Directory di ", DayMonthOrder::DayFirst},
                                                 {"Pasta de ", DayMonthOrder::DayFirst},
                                                 {"Map van ", DayMonthOrder::DayFirst},
                                                 {"Katalog: ", DayMonthOrder::DayFirst}}};

/// " Volume in drive C is MUSIC", and the line with the serial number.
constexpr std::array<std::string_view, 10> kVolumeWords{
    "olume in drive ", "olume Serial ", " in Laufwerk ", "olumeseriennummer", " lecteur ",
    " du volume ",     "unidad",        "unit",          " station ",         "stacji"};
constexpr std::array<std::string_view, 5> kSerialWords{"mero de ", "Numero di serie", "volumenummer",
                                                       "Serial", "seryjny"};

/// The size, where a row has something else.
constexpr std::array<std::string_view, 5> kFolderWords{"<DIR>", "<REP>", "<JUNCTION>", "<SYMLINKD>", "<D>"};

bool holdsOneOf(std::string_view text, const auto& words) {
  return std::ranges::any_of(
      words, [&](std::string_view word) { return text.find(word) != std::string_view::npos; });
}

/// "\music" of "C:\music" and "\\server\share\music" of itself; nothing for what is no whole path.
std::optional<std::string> slashedPath(std::string_view path) {
  if (path.size() >= 2 && path[1] == ':') path.remove_prefix(2);
  if (!path.starts_with('\\')) return std::nullopt;
  std::string slashed(path);
  std::ranges::replace(slashed, '\\', '/');
  return slashed;
}

/// "1,234", "1.234", or with a no-break blank in any encoding.
std::optional<std::int64_t> takeGroupedSize(std::string_view& text) {
  std::string digits;
  std::size_t at = 0;
  while (at < text.size()) {
    if (text[at] >= '0' && text[at] <= '9') {
      digits += text[at++];
      continue;
    }
    std::size_t sign = 1;
    if (text.substr(at).starts_with("\u00A0")) sign = 2;
    if (text.substr(at).starts_with("\u202F")) sign = 3;
    const bool isSign = sign > 1 || std::string_view(",.'\xA0\xFF").find(text[at]) != std::string_view::npos;
    const bool isGroup =
        isSign && text.size() >= at + sign + 3 && isAllDigits(text.substr(at + sign, 3)) &&
        (text.size() == at + sign + 3 || text[at + sign + 3] < '0' || text[at + sign + 3] > '9');
    if (!isGroup || digits.empty()) break;
    at += sign;
  }
  std::string_view whole = digits;
  const auto size = takeNumber(whole);
  // What is left has to be the blank before the name.
  if (!size || !whole.empty() || !text.substr(at).starts_with(' ')) return std::nullopt;
  text.remove_prefix(at);
  return size;
}

class DirReader : public ListReader {
 public:
  LineSays read(std::string_view line, ListEntry& entry) override {
    if (line.find_first_not_of(" \t") == std::string_view::npos) return LineSays::NoEntry;
    if (line.front() >= '0' && line.front() <= '9') return readRow(line, entry);
    if (line.front() != ' ') return readOther(line);
    if (readHead(line)) {
      entry = {folder_, EntryKind::Folder};
      return LineSays::Entry;
    }
    if (isSum(line)) return LineSays::NoEntry;
    return readOther(line);
  }

 private:
  bool readHead(std::string_view line) {
    for (const DirLanguage& language : kLanguages) {
      const std::size_t place = line.find(language.head);
      // The first letters of the line may be those that are not ASCII.
      if (place == std::string_view::npos || place > 6) continue;
      const auto path = slashedPath(line.substr(place + language.head.size()));
      if (!path) continue;
      folder_ = *path;
      order_ = language.order;
      return true;
    }
    return false;
  }

  LineSays readOther(std::string_view line) const {
    // A total's title stands alone, and ends with a colon.
    const bool isTitle = line.ends_with(':') && !folder_.empty();
    const bool isVolume =
        folder_.empty() && (holdsOneOf(line, kVolumeWords) || holdsOneOf(line, kSerialWords));
    return isTitle || isVolume || (!folder_.empty() && holdsOneOf(line, kVolumeWords))
               ? LineSays::NoEntry
               : LineSays::NotUnderstood;
  }

  /// "   2 File(s)   1,234 bytes", below the rows of a folder.
  static bool isSum(std::string_view line) {
    if (takeBlanks(line) < 2) return false;
    return takeNumber(line) && line.starts_with(' ') &&
           line.find_first_of("0123456789") != std::string_view::npos;
  }

  LineSays readRow(std::string_view line, ListEntry& entry) const {
    const std::optional<ListDate> date = takeNumericDate(line);
    if (!date || takeBlanks(line) == 0) return LineSays::NotUnderstood;
    for (const std::string_view word : kFolderWords) {
      if (!takeText(line, word)) continue;
      takeBlanks(line);
      return finish(line, EntryKind::Folder, std::nullopt, {}, entry);
    }
    // A link to a file, and what an archive has on tape.
    if (takeText(line, "<SYMLINK>")) {
      takeBlanks(line);
      return finish(line.substr(0, line.rfind(" [")), EntryKind::File, std::nullopt, {}, entry);
    }
    const bool isOnTape = takeText(line, "(");
    const std::size_t bracket = line.find(") ");
    std::string taped;
    if (isOnTape && bracket != std::string_view::npos) {
      taped = std::string(line.substr(0, bracket)) + std::string(line.substr(bracket + 1));
      line = taped;
    }
    const std::optional<std::int64_t> size = takeGroupedSize(line);
    if (!size || !takeText(line, " ")) return LineSays::NotUnderstood;
    return finish(line, EntryKind::File, size, order_ ? inOrder(*date, order_) : *date, entry);
  }

  LineSays finish(std::string_view name, EntryKind kind, std::optional<std::int64_t> size, ListDate date,
                  ListEntry& entry) const {
    if (name.empty() || folder_.empty()) return LineSays::NotUnderstood;
    if (name == "." || name == "..") return LineSays::NoEntry;
    if (kind == EntryKind::Folder) {
      // A junction's target is behind its name.
      if (const std::size_t target = name.find(" [");
          target != std::string_view::npos && name.ends_with(']')) {
        name = name.substr(0, target);
      }
    }
    entry = {folder_.ends_with('/') ? folder_ + std::string(name) : folder_ + '/' + std::string(name), kind,
             size, date};
    return LineSays::Entry;
  }

  std::string folder_;
  std::optional<DayMonthOrder> order_;
};

}  // namespace

std::unique_ptr<ListReader> makeDirReader(const ListReadOptions&) {
  return std::make_unique<DirReader>();
}

}  // namespace quorvin
