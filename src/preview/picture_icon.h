// The pictures in an icon file.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>

#include <functional>

namespace quorvin {

/// So many bytes of an icon file hold its directory, whatever it contains.
inline constexpr qsizetype kLongestIconDirectory = 6 + 16 * 256;

/// Gives so many bytes of an icon file from an offset on, or as many as there are.
using IconBytes = std::function<QByteArray(qint64 offset, qsizetype count)>;

/// The number of the best picture in an icon file that begins with `directory`: the largest, and among those
/// the one with the most colours; counted from 0. Where the directory does not tell the colours, as in the
/// files of pointers, the pictures do.
int bestIcon(QByteArrayView directory, const IconBytes& bytes);

/// Where that picture stands in the file, as the directory says; not checked.
struct IconPlace {
  qint64 offset = 0;
  qint64 length = 0;
};
IconPlace iconPlace(QByteArrayView directory, int number);

/// Makes transparent what the mask of a picture of 24 bits hides, which the image reader overlooks. `part`
/// are the bytes of the picture in the file; of other depths, and where they hold no whole mask, `image`
/// stays as it is.
void hideMaskedPixels(QImage& image, QByteArrayView part);

}  // namespace quorvin
