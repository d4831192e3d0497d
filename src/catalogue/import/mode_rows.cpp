// SPDX-License-Identifier: GPL-2.0-or-later

// The lists whose rows start with a mode, "-rw-r--r--": those of ls, find -ls, tar and rsync.
#include "catalogue/import/list_dates.h"
#include "catalogue/import/list_readers.h"
#include "catalogue/import/list_text.h"

#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kModeLength = 10;
constexpr std::string_view kArrow = " -> ";

/// A row up to its name.
struct ModeRow {
  char type = '-';
  /// How many numbers are before the mode: the inode, and blocks.
  int numbersBefore = 0;
  /// The word behind the mode: a count of links, or an owner.
  std::string_view second;
  std::optional<std::int64_t> size;
  ListDate modified;
  /// What follows the date and one blank.
  std::string_view name;
};

bool isMode(std::string_view word) {
  return word.size() >= kModeLength && word.size() <= kModeLength + 1 &&
         std::string_view("-dlbcpsDChVMLKNS").find(word.front()) != std::string_view::npos &&
         word.substr(1, kModeLength - 1).find_first_not_of("rwxsStT-") == std::string_view::npos;
}

std::optional<ListDate> takeAnyDate(std::string_view& text, std::optional<std::int64_t> made) {
  const std::string_view before = text;
  if (auto date = takeIsoDate(text)) {
    // A blank stands for the time.
    const bool isDayAlone = before.substr(0, before.size() - text.size()).find(':') == std::string_view::npos;
    if (isDayAlone) takeText(text, " ");
    return date;
  }
  if (auto date = takeIsoDate(text, '/')) return date;
  if (auto date = takeMonthNameDate(text, made)) return date;
  return takeYearlessDate(text, made);
}

std::optional<ListDate> takeTimeNumber(std::string_view& text, std::optional<std::int64_t>) {
  return takeUnixTime(text);
}

/// A moment in seconds, which only so many digits tell from other numbers.
std::optional<ListDate> takeLongTimeNumber(std::string_view& text, std::optional<std::int64_t>) {
  constexpr std::size_t kFewestDigits = 9;
  const std::string_view before = text;
  auto date = takeUnixTime(text);
  if (date && before.size() - text.size() >= kFewestDigits) return date;
  text = before;
  return std::nullopt;
}

/// Owners and groups may have any name, so the first date behind a size and at least so many words is looked
/// for.
template <typename TakeDate>
bool takeSizeAndDate(std::string_view text, const ListReadOptions& options, int fewestWords,
                     TakeDate&& takeDate, ModeRow& row) {
  constexpr int kMostWords = 12;
  std::string_view before;
  for (int words = 0; words < kMostWords; ++words) {
    takeBlanks(text);
    std::string_view rest = text;
    if (words >= fewestWords && looksLikeSize(before)) {
      if (const auto date = takeDate(rest, options.made); date && rest.starts_with(' ')) {
        row.size = exactSize(before);
        row.modified = *date;
        row.name = rest.substr(1);
        return !row.name.empty();
      }
    }
    const std::optional<std::string_view> word = takeWord(text);
    if (!word) return false;
    if (words == 0) row.second = *word;
    before = *word;
  }
  return false;
}

std::optional<ModeRow> readModeRow(std::string_view line, const ListReadOptions& options) {
  ModeRow row;
  takeBlanks(line);
  std::optional<std::string_view> word = takeWord(line);
  while (word && row.numbersBefore < 2 && looksLikeSize(*word)) {
    ++row.numbersBefore;
    takeBlanks(line);
    word = takeWord(line);
  }
  if (!word || !isMode(*word)) return std::nullopt;
  row.type = word->front();
  if (takeSizeAndDate(line, options, 1, takeAnyDate, row)) return row;
  // A group may have a number, too: links, owner, group and size are there as a rule.
  if (takeSizeAndDate(line, options, 4, takeTimeNumber, row)) return row;
  if (takeSizeAndDate(line, options, 1, takeLongTimeNumber, row)) return row;
  return std::nullopt;
}

/// False for what is neither file nor folder. Where a link leads is not told, and its own size and date say
/// nothing about the file.
bool takeKind(const ModeRow& row, ListEntry& entry) {
  entry.size = row.size;
  entry.modified = row.modified;
  entry.kind = row.type == 'd' || row.type == 'D' ? EntryKind::Folder : EntryKind::File;
  if (entry.kind == EntryKind::Folder || row.type == 'l') {
    entry.size.reset();
    entry.modified = {};
  }
  return std::string_view("-dlDCh").find(row.type) != std::string_view::npos;
}

std::string_view withoutTarget(const ModeRow& row) {
  return row.type == 'l' ? row.name.substr(0, row.name.find(kArrow)) : row.name;
}

/// "-rw-r--r-- 1 ann users 5 Jan 15  2004 name", below "FOLDER:" and "total 12".
class LsReader : public ListReader {
 public:
  LsReader(ListReadOptions options, LsNames names) : options_(std::move(options)), names_(names) {}

  LineSays read(std::string_view line, ListEntry& entry) override {
    const bool mayBeHead = std::exchange(mayBeHead_, line.empty());
    const bool mayBeTotal = std::exchange(mayBeTotal_, false);
    if (line.empty()) return LineSays::NoEntry;
    const std::optional<ModeRow> row = readModeRow(line, options_);
    if (row && isAllDigits(row->second)) return readRow(*row, entry);
    if (mayBeHead && line.ends_with(':')) return readHead(line.substr(0, line.size() - 1), entry);
    if ((mayBeTotal || mayBeHead) && isTotal(line)) return LineSays::NoEntry;
    // The first part of a head with a line end in it: what follows is not of the folder before.
    if (mayBeHead && hasHead_) isFolderKnown_ = false;
    return LineSays::NotUnderstood;
  }

 private:
  LineSays readHead(std::string_view text, ListEntry& entry) {
    // Blanks have no backslash in a head.
    const std::optional<std::string> folder =
        names_ == LsNames::Escaped ? withoutEscapes(text) : nameIn(text);
    isFolderKnown_ = folder && !folder->empty();
    if (!isFolderKnown_) return LineSays::NotUnderstood;
    hasHead_ = true;
    mayBeTotal_ = true;
    folder_ = *folder;
    entry = {folder_, EntryKind::Folder};
    return LineSays::Entry;
  }

  static bool isTotal(std::string_view line) {
    const std::size_t blank = line.rfind(' ');
    return blank != std::string_view::npos && blank > 0 && looksLikeSize(line.substr(blank + 1));
  }

  LineSays readRow(const ModeRow& row, ListEntry& entry) {
    if (!isFolderKnown_) return LineSays::NotUnderstood;
    if (!takeKind(row, entry)) return LineSays::NoEntry;
    const std::string_view shown = names_ == LsNames::Quoted ? row.name : withoutTarget(row);
    const std::optional<std::string> name = nameIn(shown);
    if (!name || name->empty()) return LineSays::NotUnderstood;
    if (*name == "." || *name == "..") return LineSays::NoEntry;
    entry.path = folder_.empty() ? *name : folder_ + '/' + *name;
    return isDoubtful(row, *name) ? LineSays::DoubtfulEntry : LineSays::Entry;
  }

  std::optional<std::string> nameIn(std::string_view shown) const {
    if (names_ == LsNames::Plain) return std::string(shown);
    if (names_ == LsNames::Quoted) return takeQuoted(shown);
    for (std::size_t blank = shown.find(' '); blank != std::string_view::npos;
         blank = shown.find(' ', blank + 1)) {
      if (blank == 0 || shown[blank - 1] != '\\') return std::nullopt;
    }
    return withoutEscapes(shown);
  }

  /// Whether the names are rather quoted or escaped, or the rows those of find -ls.
  bool isDoubtful(const ModeRow& row, const std::string& name) const {
    if (row.numbersBefore == 2 && !hasHead_) return true;
    if (names_ != LsNames::Plain) return false;
    const bool isQuoted = name.size() > 1 && name.front() == '"' && name.back() == '"';
    return isQuoted || name.find('\\') != std::string::npos;
  }

  ListReadOptions options_;
  LsNames names_;
  std::string folder_;
  /// False below a head that was not understood.
  bool isFolderKnown_ = true;
  bool mayBeHead_ = true;
  bool mayBeTotal_ = false;
  bool hasHead_ = false;
};

/// "  123  4 -rw-r--r-- 1 ann users 5 Jan 15  2004 ./path\ with\ escapes".
class FindLsReader : public ListReader {
 public:
  explicit FindLsReader(ListReadOptions options) : options_(std::move(options)) {}

  LineSays read(std::string_view line, ListEntry& entry) override {
    const std::optional<ModeRow> row = readModeRow(line, options_);
    if (!row || row->numbersBefore != 2 || !isAllDigits(row->second)) return LineSays::NotUnderstood;
    if (!takeKind(*row, entry)) return LineSays::NoEntry;
    const std::optional<std::string> path = withoutEscapes(withoutTarget(*row));
    if (!path || path->empty()) return LineSays::NotUnderstood;
    entry.path = *path;
    return LineSays::Entry;
  }

 private:
  ListReadOptions options_;
};

/// "-rw-r--r-- ann/users 5 2004-01-15 10:20 path\nwith escapes".
class TarReader : public ListReader {
 public:
  explicit TarReader(ListReadOptions options) : options_(std::move(options)) {}

  LineSays read(std::string_view line, ListEntry& entry) override {
    const std::optional<ModeRow> row = readModeRow(line, options_);
    if (!row || row->second.find('/') == std::string_view::npos) return LineSays::NotUnderstood;
    if (!takeKind(*row, entry)) return LineSays::NoEntry;
    std::string_view shown = withoutTarget(*row);
    if (row->type == 'h') {
      // A further name of a file that is in the archive already; its size is written as 0.
      shown = shown.substr(0, shown.rfind(" link to "));
      entry.size.reset();
    }
    const std::optional<std::string> path = withoutEscapes(shown);
    if (!path || path->empty()) return LineSays::NotUnderstood;
    entry.path = *path;
    return LineSays::Entry;
  }

 private:
  ListReadOptions options_;
};

/// "-rw-r--r--          1,234 2004/01/15 10:20:30 path\#012with escapes".
class RsyncReader : public ListReader {
 public:
  explicit RsyncReader(ListReadOptions options) : options_(std::move(options)) {}

  LineSays read(std::string_view line, ListEntry& entry) override {
    const std::optional<ModeRow> row = readModeRow(line, options_);
    if (!row || row->numbersBefore != 0 || !exactSize(row->second) || exactSize(row->second) != row->size) {
      return LineSays::NotUnderstood;
    }
    // Other programs write dates with dashes, and a count of links before the size.
    const bool isOwnDate = row->name.data() - line.data() >= 21 &&
                           line[static_cast<std::size_t>(row->name.data() - line.data()) - 16] == '/';
    if (!isOwnDate) return LineSays::NotUnderstood;
    if (!takeKind(*row, entry)) return LineSays::NoEntry;
    entry.path = withoutNumbers(withoutTarget(*row));
    return LineSays::Entry;
  }

 private:
  /// "\#012" with three octal digits.
  static std::string withoutNumbers(std::string_view text) {
    constexpr std::size_t kEscape = 5;
    std::string plain;
    while (!text.empty()) {
      const bool isEscape = text.size() >= kEscape && text.starts_with("\\#") && text[2] >= '0' &&
                            text[2] <= '3' && text[3] >= '0' && text[3] <= '7' && text[4] >= '0' &&
                            text[4] <= '7';
      plain += isEscape ? static_cast<char>((text[2] - '0') * 64 + (text[3] - '0') * 8 + text[4] - '0')
                        : text.front();
      text.remove_prefix(isEscape ? kEscape : 1);
    }
    return plain;
  }

  ListReadOptions options_;
};

}  // namespace

std::unique_ptr<ListReader> makeLsReader(const ListReadOptions& options, LsNames names) {
  return std::make_unique<LsReader>(options, names);
}

std::unique_ptr<ListReader> makeFindLsReader(const ListReadOptions& options) {
  return std::make_unique<FindLsReader>(options);
}

std::unique_ptr<ListReader> makeTarReader(const ListReadOptions& options) {
  return std::make_unique<TarReader>(options);
}

std::unique_ptr<ListReader> makeRsyncReader(const ListReadOptions& options) {
  return std::make_unique<RsyncReader>(options);
}

}  // namespace quorvin
