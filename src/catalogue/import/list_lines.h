// SPDX-License-Identifier: GPL-2.0-or-later

// A list as lines of UTF-8, whatever its encoding and line ends.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace quorvin {

/// A longer line is given in pieces of this length; no path is as long.
inline constexpr std::size_t kLongestListLine = 1 << 20;

/// The names of the encodings that can be read, "utf-8" first.
std::vector<std::string_view> listEncodings();

/// Whether `name` is one of listEncodings().
bool isListEncoding(std::string_view name);

/// Reads a list through once. UTF-16 is known by its mark, and the mark of UTF-8 is left out. Lines end with
/// NUL where the first 256 KiB hold one; else with CR LF or LF, whichever ends the first line.
class ListLines {
 public:
  /// Fills the buffer as far as there are bytes, and gives their number: less than its size only at the end.
  using Read = std::function<std::size_t(std::span<char>)>;

  /// `encoding` is one for which isListEncoding() is true; bytes of "utf-8" are given as they are. Throws
  /// what `read` throws, as next() does.
  ListLines(Read read, std::string_view encoding);
  ~ListLines();
  ListLines(const ListLines&) = delete;
  ListLines& operator=(const ListLines&) = delete;

  /// The first lines, `most` of them at most, as far as they are in the first 256 KiB. To be asked before
  /// next(), and valid until then.
  std::vector<std::string_view> firstLines(std::size_t most) const;

  /// The next line without its end; false when there is none. It is valid until the next call.
  bool next(std::string_view& line);

 private:
  struct Source;
  std::string_view withoutReturn(std::string_view line) const;

  std::unique_ptr<Source> source_;
  std::size_t place_ = 0;
};

}  // namespace quorvin
