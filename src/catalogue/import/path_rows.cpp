// SPDX-License-Identifier: GPL-2.0-or-later

// The lists that have a whole path in each line: those of du, rclone and unzip, checksums, and paths alone.
#include "catalogue/import/checksum_line.h"
#include "catalogue/import/list_dates.h"
#include "catalogue/import/list_readers.h"
#include "catalogue/import/list_text.h"

#include <utility>

namespace quorvin {

namespace {

void takeSlash(ListEntry& entry) {
  if (entry.path.ends_with('/')) entry.kind = EntryKind::Folder;
}

/// "4<tab>./path", with --time "4<tab>2004-01-15 10:20<tab>./path". A folder comes behind what is in it.
class DuReader : public ListReader {
 public:
  explicit DuReader(ListReadOptions options) : options_(std::move(options)) {}

  LineSays read(std::string_view line, ListEntry& entry) override {
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos || !looksLikeSize(line.substr(0, tab))) return LineSays::NotUnderstood;
    entry.size = options_.areSizesBytes ? exactSize(line.substr(0, tab)) : std::nullopt;
    line.remove_prefix(tab + 1);
    entry.modified = {};
    std::string_view rest = line;
    if (const auto date = takeIsoDate(rest); date && takeText(rest, "\t")) {
      entry.modified = *date;
      line = rest;
    }
    if (line.empty()) return LineSays::NotUnderstood;
    entry.path = line;
    const bool isAbove = parentOfLast_ == entry.path;
    entry.kind = isAbove ? EntryKind::Folder : EntryKind::Unknown;
    parentOfLast_ =
        entry.path.substr(0, entry.path.rfind('/') == std::string::npos ? 0 : entry.path.rfind('/'));
    return LineSays::Entry;
  }

 private:
  ListReadOptions options_;
  std::string parentOfLast_;
};

/// A name as it is on the disk. For each control character rclone writes its picture, U+2400 to U+241F and
/// U+2421, and U+201B in front of what looks like one in the name itself.
std::string withoutPictures(std::string_view text) {
  static constexpr std::string_view kSame = "\xE2\x80\x9B";
  static constexpr std::string_view kPictures = "\xE2\x90";
  const auto pictured = [](std::string_view picture) -> int {
    if (!picture.starts_with(kPictures) || picture.size() <= kPictures.size()) return -1;
    const int number = static_cast<unsigned char>(picture[kPictures.size()]) - 0x80;
    if (number < 0x20) return number;
    return number == 0x21 ? 0x7F : -1;
  };
  std::string name;
  while (!text.empty()) {
    std::size_t length = 1;
    const int control = pictured(text);
    if (control >= 0) {
      name += static_cast<char>(control);
      length = kPictures.size() + 1;
    } else {
      if (text.starts_with(kSame) && pictured(text.substr(kSame.size())) >= 0) {
        text.remove_prefix(kSame.size());
        length = kPictures.size() + 1;
      }
      name += text.substr(0, length);
    }
    text.remove_prefix(length);
  }
  return name;
}

/// "     5 2004-01-15 10:20:30.000000000 path".
class RcloneReader : public ListReader {
 public:
  LineSays read(std::string_view line, ListEntry& entry) override {
    takeBlanks(line);
    const bool isUnknown = takeText(line, "-");
    const std::optional<std::int64_t> size = takeNumber(line);
    if (!size || !takeText(line, " ")) return LineSays::NotUnderstood;
    const std::string_view before = line;
    const std::optional<ListDate> date = takeIsoDate(line);
    const bool hasFraction =
        date && before.substr(0, before.size() - line.size()).find('.') != std::string_view::npos;
    if (!hasFraction || !takeText(line, " ") || line.empty()) return LineSays::NotUnderstood;
    entry = {withoutPictures(line), EntryKind::File, isUnknown ? std::nullopt : size, *date};
    return LineSays::Entry;
  }
};

/// A head, a line of dashes, "    5  2004-01-15 10:20   path" (-v: with method, packed size and checksum in
/// between), and another line of dashes.
class UnzipReader : public ListReader {
 public:
  LineSays read(std::string_view line, ListEntry& entry) override {
    if (line.starts_with("Archive: ")) {
      isInside_ = false;
      hasHead_ = true;
      return LineSays::NoEntry;
    }
    if (line.starts_with("--------")) {
      isInside_ = !isInside_;
      return LineSays::NoEntry;
    }
    // The archive's comment, the columns' titles, or the sum.
    if (!isInside_) return hasHead_ || line.empty() ? LineSays::NoEntry : otherwise(line);
    return readRow(line, entry);
  }

 private:
  LineSays otherwise(std::string_view line) {
    takeBlanks(line);
    hasHead_ = line.starts_with("Length");
    return hasHead_ ? LineSays::NoEntry : LineSays::NotUnderstood;
  }

  static LineSays readRow(std::string_view line, ListEntry& entry) {
    takeBlanks(line);
    const std::optional<std::int64_t> size = takeNumber(line);
    if (!size || takeBlanks(line) == 0) return LineSays::NotUnderstood;
    bool isLong = false;
    std::optional<ListDate> date = takeNumericDate(line);
    for (int words = 0; !date && words < 3; ++words) {
      isLong = true;
      if (!takeWord(line)) return LineSays::NotUnderstood;
      takeBlanks(line);
      date = takeNumericDate(line);
    }
    if (!date) return LineSays::NotUnderstood;
    if (isLong && (takeBlanks(line) == 0 || !takeWord(line))) return LineSays::NotUnderstood;
    if (!takeText(line, isLong ? "  " : "   ") || line.empty()) return LineSays::NotUnderstood;
    entry = {std::string(line), EntryKind::File, size, *date};
    takeSlash(entry);
    return LineSays::Entry;
  }

  bool hasHead_ = false;
  bool isInside_ = false;
};

/// See checksumLineIn().
class ChecksumsReader : public ListReader {
 public:
  LineSays read(std::string_view line, ListEntry& entry) override {
    if (line.empty() || line.starts_with(';') || line.starts_with('#')) return LineSays::NoEntry;
    std::optional<ChecksumLine> checksum = checksumLineIn(line);
    if (!checksum) return LineSays::NotUnderstood;
    entry = {std::move(checksum->path), EntryKind::File};
    return LineSays::Entry;
  }
};

/// "CHECKSUM data/path", with any blanks between, and "%0A", "%0D" and "%25" in paths.
class BagItReader : public ListReader {
 public:
  LineSays read(std::string_view line, ListEntry& entry) override {
    if (line.empty()) return LineSays::NoEntry;
    const std::optional<std::string_view> checksum = takeWord(line);
    if (!checksum || !isChecksum(*checksum) || takeBlanks(line) == 0) return LineSays::NotUnderstood;
    takeText(line, "*");
    takeText(line, "./");
    if (!line.starts_with("data/")) return LineSays::NotUnderstood;
    entry = {plain(line), EntryKind::File};
    return LineSays::Entry;
  }

 private:
  static std::string plain(std::string_view text) {
    std::string path;
    while (!text.empty()) {
      char sign = text.front();
      std::size_t length = 3;
      if (text.starts_with("%0A") || text.starts_with("%0a")) {
        sign = '\n';
      } else if (text.starts_with("%0D") || text.starts_with("%0d")) {
        sign = '\r';
      } else if (text.starts_with("%25")) {
        sign = '%';
      } else {
        length = 1;
      }
      path += sign;
      text.remove_prefix(length);
    }
    return path;
  }
};

/// A path in each line, as find, locate and plocate write them.
class PathsReader : public ListReader {
 public:
  LineSays read(std::string_view line, ListEntry& entry) override {
    if (line.empty()) return LineSays::NoEntry;
    entry = {std::string(line), EntryKind::Unknown};
    takeSlash(entry);
    const bool isPath = line.starts_with('/') || line.starts_with("./") || line == ".";
    return isPath ? LineSays::Entry : LineSays::DoubtfulEntry;
  }
};

}  // namespace

std::unique_ptr<ListReader> makeDuReader(const ListReadOptions& options) {
  return std::make_unique<DuReader>(options);
}

std::unique_ptr<ListReader> makeRcloneReader(const ListReadOptions&) {
  return std::make_unique<RcloneReader>();
}

std::unique_ptr<ListReader> makeUnzipReader(const ListReadOptions&) {
  return std::make_unique<UnzipReader>();
}

std::unique_ptr<ListReader> makeChecksumsReader(const ListReadOptions&) {
  return std::make_unique<ChecksumsReader>();
}

std::unique_ptr<ListReader> makeBagItReader(const ListReadOptions&) {
  return std::make_unique<BagItReader>();
}

std::unique_ptr<ListReader> makePathsReader(const ListReadOptions&) {
  return std::make_unique<PathsReader>();
}

}  // namespace quorvin
