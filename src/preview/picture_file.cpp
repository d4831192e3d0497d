// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/picture_file.h"

#include "faults/runtime_fault.h"
#include "files/file_reader.h"
#include "metafile/boundary.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

bool isIconFile(QByteArrayView start) {
  const bool isIcon = start.startsWith(QByteArrayView("\0\0\1\0", 4));
  const bool isPointer = start.startsWith(QByteArrayView("\0\0\2\0", 4));
  return isIcon || isPointer;
}

}  // namespace

std::optional<PictureFormat> pictureFormatOf(QByteArrayView start) {
  if (start.startsWith("BM")) return PictureFormat::Bitmap;
  if (isIconFile(start)) return PictureFormat::Icon;
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
    // Metafiles never come this far: they are drawn, not read.
    case PictureFormat::EnhancedMetafile:
    case PictureFormat::WindowsMetafile:
    case PictureFormat::Bitmap:
      return "bmp";
  }
  return {};
}

PictureFile::PictureFile(const QString& path, std::stop_source stop) : file_(path), stop_(std::move(stop)) {
  // Opening it this way first reports what is wrong with a file that cannot be read, and never waits for a
  // pipe.
  const SequentialFile check(path);
  if (!file_.open(QIODevice::ReadOnly)) {
    throw RuntimeFault(FaultNumber::PathFileAccess,
                       describe(FaultNumber::PathFileAccess) + QStringLiteral(": ") + path);
  }
  open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

QByteArray PictureFile::part(qint64 position, qsizetype count) {
  seek(position);
  const QByteArray bytes = read(count);
  seek(0);
  return bytes;
}

void PictureFile::replaceBytes(qint64 position, const QByteArray& bytes) {
  replacements_.push_back({position, bytes});
}

bool PictureFile::seek(qint64 position) {
  return QIODevice::seek(position) && file_.seek(position);
}

qint64 PictureFile::readData(char* buffer, qint64 wanted) {
  if (stop_.stop_requested()) return -1;
  const qint64 position = file_.pos();
  const qint64 count = file_.read(buffer, std::min(wanted, largestStep_));
  for (const auto& [start, bytes] : replacements_) {
    const qint64 first = std::max(start, position);
    const qint64 last = std::min(start + bytes.size(), position + count);
    for (qint64 at = first; at < last; ++at) buffer[at - position] = bytes[at - start];
  }
  return count;
}

}  // namespace quorvin
