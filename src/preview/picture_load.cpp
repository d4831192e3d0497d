#include "preview/picture_load.h"

#include "faults/runtime_fault.h"
#include "metafile/boundary.h"
#include "preview/picture_file.h"
#include "preview/picture_format.h"

#include <new>
#include <utility>

namespace quorvin {

namespace {

[[noreturn]] void refuse(const QString& path, const QString& why) {
  throw RuntimeFault(FaultNumber::InvalidProcedureCall, pictureRefusal(path, why));
}

LoadedPicture loadMetafile(PictureFile& file, const QString& path, const MetafileChild& child,
                           const PictureStop& stop) {
  if (file.size() > kLargestMetafile) refuse(path, QString::fromLatin1(kMetafileTooLarge));
  try {
    const MetafilePicture picture = drawInChild(child, file.readAll(), stop);
    return {picture.ownSize, {picture.image, 0}, {}};
  } catch (const MetafileFault& fault) {
    refuse(path, QString::fromLatin1(fault.what()));
  }
}

LoadedPicture loadAny(const QString& path, const MetafileChild& child, const PictureStop& stop) {
  auto file = std::make_unique<PictureFile>(path, stop);
  const std::optional<PictureFormat> format = pictureFormatOf(file->part(0, kFormatBytes));
  if (!format) refuse(path, QStringLiteral("it is not a bitmap, icon, metafile, JPEG or GIF picture"));
  if (isMetafile(*format)) return loadMetafile(*file, path, child, stop);
  auto decoder = std::make_shared<PictureDecoder>(std::move(file), *format, path);
  PictureFrame frame = decoder->first();
  return {decoder->size(), std::move(frame), std::move(decoder)};
}

}  // namespace

LoadedPicture loadPicture(const QString& path, const MetafileChild& child, const PictureStop& stop) {
  try {
    return loadAny(path, child, stop);
  } catch (const std::bad_alloc&) {
    refuse(path, QStringLiteral("there is not enough memory for it"));
  }
}

}  // namespace quorvin
