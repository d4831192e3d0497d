// SPDX-License-Identifier: GPL-2.0-or-later

// The boundary between the program with the windows and quorvin-metafile, the program that draws metafiles.
//
// Metafiles are small programs, and most of those that do harm come from strangers. So they are drawn by a
// process of their own: quorvin-metafile reads one from its standard input, draws it and writes an answer to
// its standard output. This header is all that both programs share. The windows' side includes nothing else
// of this folder, and does not link what draws.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <QString>

#include <cstdint>
#include <stdexcept>

namespace quorvin {

/// Thrown for a metafile, a record of one, or an answer that does not hold what it says it holds. what() is
/// English and continues the words "It cannot be shown because".
class MetafileFault : public std::runtime_error {
 public:
  explicit MetafileFault(const char* why) : std::runtime_error(why) {}
};

/// Whether a file that starts with `bytes` is an enhanced metafile, or a Windows metafile with or without a
/// placeable header. 44 bytes are enough to say so.
bool isEnhancedMetafile(QByteArrayView bytes);
bool isWindowsMetafile(QByteArrayView bytes);

/// The question: the bytes of a metafile, at most this many. Larger ones are refused, with this reason.
inline constexpr std::int64_t kLargestMetafile = 64LL * 1024 * 1024;
inline constexpr const char* kMetafileTooLarge = QT_TRANSLATE_NOOP("Texts", "it is larger than 64 MB");

/// A metafile as an image. `ownSize` is the size that the file asks for, in hundredths of a millimetre.
/// `leftOut` is what of the drawing is not in the image, as words that continue "Drawn without:" ("flood
/// fills, letters of symbol fonts"); empty when nothing is known to be missing.
struct MetafilePicture {
  QSize ownSize;
  QImage image;
  QString leftOut = {};
};

/// The answer is a header of eight 32-bit little-endian numbers: a mark, a version, the picture's own size
/// (width, height, in hundredths of a millimetre), the image (width, height, in pixels), the length of a text
/// in ASCII, and zero. Then come the rows of the image, from the top and without gaps, with four bytes for
/// each pixel: blue, green, red and an unused one. The text comes last: what is left out of the image or,
/// where there is no image (its width and height are zero), the reason.
inline constexpr std::int64_t kMetafileHeaderSize = 32;

/// No answer is longer: an image has at most 2000 pixels each way, and what is left out takes at most 400
/// bytes.
inline constexpr std::int64_t kLongestLeftOut = 400;
inline constexpr std::int64_t kLongestMetafileAnswer =
    kMetafileHeaderSize + 4LL * 2000 * 2000 + kLongestLeftOut;

QByteArray metafileAnswer(const MetafilePicture& picture);
QByteArray metafileRefusal(QByteArrayView why);

/// The picture of an answer, whose bytes are not trusted. Throws MetafileFault: for a refusal with its text
/// (shortened, and without control characters), and for every answer that is not exactly as described above.
MetafilePicture pictureOfMetafileAnswer(QByteArrayView answer);

}  // namespace quorvin
