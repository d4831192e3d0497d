// What quorvin-metafile writes to its standard output, and how it is checked.
#pragma once

#include "metafile/metafile_play.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>

namespace quorvin {

/// The answer is a header of eight 32-bit little-endian numbers: a mark, a version, the own size (width,
/// height, in hundredths of a millimetre), the image (width, height, in pixels), the length of a text in
/// UTF-8, and zero. Then come the image's rows, from the top, without gaps, each pixel blue, green, red and
/// an unused byte; or, where there is no image (width and height zero), the text: why not.
inline constexpr std::int64_t kMetafileHeaderSize = 32;

/// No answer is longer: an image of at most 2000 pixels each way.
inline constexpr std::int64_t kLongestMetafileAnswer = kMetafileHeaderSize + 4LL * 2000 * 2000;

QByteArray metafileAnswer(const MetafilePicture& picture);
QByteArray metafileRefusal(QByteArrayView why);

/// The picture of an answer, whose bytes are not trusted. Throws MetafileFault with the text of a refusal
/// (shortened, and without control characters), and for every answer that is not exactly as described.
MetafilePicture pictureOfMetafileAnswer(QByteArrayView answer);

}  // namespace quorvin
