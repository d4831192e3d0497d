// SPDX-License-Identifier: GPL-2.0-or-later

// Texts that stay where they are, without memory of their own for each.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace quorvin {

class KeptTexts {
 public:
  /// A copy of `text` that is valid as long as the object.
  std::string_view keep(std::string_view text) {
    if (text.size() > room_) {
      room_ = std::max(kPiece, text.size());
      pieces_.push_back(std::make_unique_for_overwrite<char[]>(room_));
      next_ = pieces_.back().get();
    }
    char* const kept = next_;
    std::copy(text.begin(), text.end(), kept);
    next_ += text.size();
    room_ -= text.size();
    return {kept, text.size()};
  }

 private:
  static constexpr std::size_t kPiece = std::size_t{1} << 20;

  std::vector<std::unique_ptr<char[]>> pieces_;
  char* next_ = nullptr;
  std::size_t room_ = 0;
};

}  // namespace quorvin
