// SPDX-License-Identifier: GPL-2.0-or-later

// Listings in memory for what opens them.
#pragma once

#include "search/format/listing_text.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

namespace quorvin::test {

inline ListingOpener openerOf(const QByteArray& bytes) {
  return [bytes] {
    return [bytes, at = qsizetype{0}](std::span<char> buffer) mutable {
      const qsizetype count = std::min(static_cast<qsizetype>(buffer.size()), bytes.size() - at);
      std::memcpy(buffer.data(), bytes.constData() + at, static_cast<std::size_t>(count));
      at += count;
      return static_cast<std::size_t>(count);
    };
  };
}

}  // namespace quorvin::test
