// SPDX-License-Identifier: GPL-2.0-or-later

// The pictures in an icon file.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>

#include <functional>

namespace quorvin {

/// The directory of an icon file has at most so many bytes.
inline constexpr qsizetype kLongestIconDirectory = 6 + 16 * 256;

/// Returns `count` bytes of an icon file from `offset` on, or as many as there are.
using IconBytes = std::function<QByteArray(qint64 offset, qsizetype count)>;

/// The number, from 0, of the best picture in an icon file that starts with `directory`: the largest one, and
/// of several of that size the one with the most colours. Where the directory does not give the colours, as
/// in files of pointers, the pictures do.
int bestIcon(QByteArrayView directory, const IconBytes& bytes);

/// The place of that picture in the file, as the directory gives it; it is not checked.
struct IconPlace {
  qint64 offset = 0;
  qint64 length = 0;
};
IconPlace iconPlace(QByteArrayView directory, int number);

/// Makes the pixels transparent that the mask of a picture of 24 bits hides; the image reader overlooks such
/// masks. `part` holds the bytes of the picture in the file. With another depth, or without a whole mask,
/// `image` stays as it is.
void hideMaskedPixels(QImage& image, QByteArrayView part);

}  // namespace quorvin
