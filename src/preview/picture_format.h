// What kind of picture a file is.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace quorvin {

/// The formats that can be shown.
enum class PictureFormat { Bitmap, Icon, Jpeg, Gif, WindowsMetafile, EnhancedMetafile };

/// So many bytes of a file tell its format.
inline constexpr qsizetype kFormatBytes = 64;

/// The format of a file that begins with `start`. Names do not count: a picture is what its bytes say.
/// Nothing for everything else.
std::optional<PictureFormat> pictureFormatOf(QByteArrayView start);

bool isMetafile(PictureFormat format);

/// The name of the image reader for a format that is no metafile.
QByteArray imageReaderOf(PictureFormat format);

}  // namespace quorvin
