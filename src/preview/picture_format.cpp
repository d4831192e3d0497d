#include "preview/picture_format.h"

#include "metafile/boundary.h"

namespace quorvin {

namespace {

bool beginsIcon(QByteArrayView start) {
  const bool isIcon = start.startsWith(QByteArrayView("\0\0\1\0", 4));
  const bool isPointer = start.startsWith(QByteArrayView("\0\0\2\0", 4));
  return isIcon || isPointer;
}

}  // namespace

std::optional<PictureFormat> pictureFormatOf(QByteArrayView start) {
  if (start.startsWith("BM")) return PictureFormat::Bitmap;
  if (beginsIcon(start)) return PictureFormat::Icon;
  if (start.startsWith("\xFF\xD8\xFF")) return PictureFormat::Jpeg;
  if (start.startsWith("GIF87a") || start.startsWith("GIF89a")) return PictureFormat::Gif;
  if (isEnhancedMetafile(start)) return PictureFormat::EnhancedMetafile;
  if (isWindowsMetafile(start)) return PictureFormat::WindowsMetafile;
  return std::nullopt;
}

bool isMetafile(PictureFormat format) {
  return format == PictureFormat::WindowsMetafile || format == PictureFormat::EnhancedMetafile;
}

QByteArray imageReaderOf(PictureFormat format) {
  switch (format) {
    case PictureFormat::Icon:
      return "ico";
    case PictureFormat::Jpeg:
      return "jpeg";
    case PictureFormat::Gif:
      return "gif";
    default:
      return "bmp";
  }
}

}  // namespace quorvin
