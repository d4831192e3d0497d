// Where the bytes of a listing come from.
#pragma once

#include <cstddef>
#include <span>

namespace quorvin {

/// The bytes of a listing, front to back.
class ListingSource {
 public:
  virtual ~ListingSource() = default;
  /// Fills `buffer` as far as there are bytes left; the number filled, 0 at the end. May throw RuntimeFault.
  virtual std::size_t read(std::span<char> buffer) = 0;
};

}  // namespace quorvin
