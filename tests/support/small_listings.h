// SPDX-License-Identifier: GPL-2.0-or-later

// Short listings in great numbers, made at random from a seed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvin::test {

/// Random numbers that cost next to nothing.
class QuickRandom {
 public:
  explicit QuickRandom(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next();
  /// 0 to `limit` - 1.
  unsigned below(unsigned limit) { return static_cast<unsigned>((next() >> 32) * limit >> 32); }

 private:
  std::uint64_t state_;
};

/// Makes listings of a few lines out of few letters, so that words meet: all line kinds, entry lines whose
/// length is about that at which a rule changes, marks and almost marks, both line ends and none. One in
/// eight has characters of several bytes and bytes that are no UTF-8.
class SmallListings {
 public:
  explicit SmallListings(std::uint64_t seed) : random_(seed) {}

  /// A listing of at most three lines; it stays until the next call.
  std::string_view next();

  /// A listing of up to 3500 lines, nearly all of them entries of a few bytes.
  std::string_view nextLong();

  /// A search text in lower case, as UTF-8.
  std::string searchText();

  unsigned below(unsigned limit) { return random_.below(limit); }

 private:
  void addLine();
  void addPieces(unsigned count);
  void addPadded(std::size_t width);
  void addWrittenEntry();
  void addLineEnd();

  QuickRandom random_;
  bool ascii_ = true;
  std::string text_;
};

}  // namespace quorvin::test
