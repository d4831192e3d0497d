#include "preview/picture_icon.h"

#include <QtEndian>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kHeaderSize = 6;
constexpr qsizetype kEntrySize = 16;

/// A side of 256 pixels is written as 0.
int side(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value == 0 ? 256 : value;
}

}  // namespace

int bestIcon(QByteArrayView directory) {
  if (directory.size() < kHeaderSize) return 0;
  const int told = qFromLittleEndian<quint16>(directory.data() + 4);
  const auto held = static_cast<int>((directory.size() - kHeaderSize) / kEntrySize);
  int best = 0;
  std::pair<int, int> bestWorth;
  for (int number = 0; number < std::min(told, held); ++number) {
    const QByteArrayView entry = directory.sliced(kHeaderSize + number * kEntrySize, kEntrySize);
    const std::pair<int, int> worth(side(entry[0]) * side(entry[1]),
                                    qFromLittleEndian<quint16>(entry.data() + 6));
    if (worth <= bestWorth) continue;
    best = number;
    bestWorth = worth;
  }
  return best;
}

}  // namespace quorvin
