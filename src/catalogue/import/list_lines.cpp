// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_lines.h"

#include "platform/byte_decoding.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kChunk = 256 * 1024;
constexpr std::string_view kUtf8 = "utf-8";
/// Those in which lists of the systems that have one are written. In all of them a line ends as in ASCII.
constexpr std::array<std::string_view, 12> kByteEncodings{
    "windows-1252", "cp437",        "cp850", "cp852", "cp866", "windows-1250",
    "windows-1251", "windows-1253", "cp932", "cp936", "cp949", "cp950"};

/// Bytes of one encoding as UTF-8.
class Recoder {
 public:
  /// `start` are the first bytes.
  Recoder(std::string_view start, std::string_view encoding) {
    const bool isLittle = start.starts_with("\xFF\xFE");
    const bool isBig = start.starts_with("\xFE\xFF");
    if (start.starts_with("\xEF\xBB\xBF")) skipped_ = 3;
    if (isLittle || isBig) {
      utf16_.emplace(isLittle ? QStringDecoder::Utf16LE : QStringDecoder::Utf16BE);
    } else if (encoding != kUtf8) {
      bytes_ = std::make_unique<ByteDecoder>(std::string(encoding));
    }
  }

  void append(std::string& text, std::string_view chunk, bool isLast) {
    chunk.remove_prefix(std::exchange(skipped_, 0));
    if (utf16_) {
      const QString decoded = (*utf16_)(QByteArrayView(chunk.data(), static_cast<qsizetype>(chunk.size())));
      text += decoded.toStdString();
    } else if (bytes_) {
      bytes_->append(text, chunk);
      if (isLast) bytes_->finish(text);
    } else {
      text += chunk;
    }
  }

 private:
  std::unique_ptr<ByteDecoder> bytes_;
  std::optional<QStringDecoder> utf16_;
  std::size_t skipped_ = 0;
};

}  // namespace

struct ListLines::Source {
  Source(Read given, std::string_view encoding) : read(std::move(given)), chunk(kChunk, '\0') {
    const std::string_view start = nextChunk();
    recoder.emplace(start, encoding);
    recoder->append(text, start, isAtEnd);
    // Neither a path nor a text holds a NUL.
    const bool hasNuls = text.find('\0') != std::string::npos;
    end = hasNuls ? '\0' : '\n';
    const std::size_t feed = text.find('\n');
    hasReturns = !hasNuls && feed != std::string::npos && feed > 0 && text[feed - 1] == '\r';
  }

  std::string_view nextChunk() {
    const std::size_t count = read(chunk);
    isAtEnd = count < chunk.size();
    return {chunk.data(), count};
  }

  Read read;
  std::string chunk;
  std::optional<Recoder> recoder;
  std::string text;
  char end = '\n';
  bool hasReturns = false;
  bool isAtEnd = false;
};

std::vector<std::string_view> listEncodings() {
  std::vector<std::string_view> names{kUtf8};
  names.insert(names.end(), kByteEncodings.begin(), kByteEncodings.end());
  return names;
}

bool isListEncoding(std::string_view name) {
  return std::ranges::count(listEncodings(), name) > 0;
}

ListLines::ListLines(Read read, std::string_view encoding)
    : source_(std::make_unique<Source>(std::move(read), encoding)) {}

ListLines::~ListLines() = default;

std::string_view ListLines::withoutReturn(std::string_view line) const {
  if (source_->hasReturns && line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::vector<std::string_view> ListLines::firstLines(std::size_t most) const {
  std::vector<std::string_view> lines;
  std::string_view rest = source_->text;
  while (lines.size() < most && !rest.empty()) {
    const std::size_t end = rest.find(source_->end);
    // The rest of a line may be still to come.
    if (end == std::string_view::npos && !source_->isAtEnd && !lines.empty()) break;
    lines.push_back(withoutReturn(rest.substr(0, end)));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return lines;
}

bool ListLines::next(std::string_view& line) {
  Source& source = *source_;
  std::size_t searched = place_;
  for (;;) {
    const std::size_t end = source.text.find(source.end, searched);
    const std::size_t length = std::min(end, source.text.size()) - place_;
    if (end != std::string::npos || length >= kLongestListLine) {
      const std::size_t taken = std::min(length, kLongestListLine);
      line = withoutReturn(std::string_view(source.text).substr(place_, taken));
      place_ += taken == length && end != std::string::npos ? taken + 1 : taken;
      return true;
    }
    if (source.isAtEnd) {
      if (length == 0) return false;
      line = withoutReturn(std::string_view(source.text).substr(place_));
      place_ = source.text.size();
      return true;
    }
    source.text.erase(0, std::exchange(place_, 0));
    searched = source.text.size();
    const std::string_view chunk = source.nextChunk();
    source.recoder->append(source.text, chunk, source.isAtEnd);
  }
}

}  // namespace quorvin
