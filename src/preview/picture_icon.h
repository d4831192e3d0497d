// The pictures in an icon file.
#pragma once

#include <QByteArrayView>

namespace quorvin {

/// So many bytes of an icon file hold its directory, whatever it contains.
inline constexpr qsizetype kLongestIconDirectory = 6 + 16 * 256;

/// The number of the best picture in an icon file that begins with `directory`: the largest, and among those
/// the one with the most colours; counted from 0.
int bestIcon(QByteArrayView directory);

}  // namespace quorvin
