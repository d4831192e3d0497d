// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/loaded_picture.h"

#include "faults/runtime_fault.h"
#include "metafile/boundary.h"
#include "platform/bitmap_reading.h"
#include "preview/picture_icon.h"
#include "texts/texts.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <new>
#include <utility>

namespace quorvin {

namespace {

constexpr qint64 kMostPixels = 256'000'000;
/// Pictures with more pixels than any screen has are made smaller after decoding.
constexpr double kMostPixelsKept = 16'000'000;
constexpr int kLongestSideKept = 8000;
/// Four bytes for each pixel of the largest picture, in the unit of the reader (2^20 bytes).
constexpr int kAllocationLimit = 1024;
/// How files that ask for no time at all are usually shown.
constexpr int kUsualMilliseconds = 100;
constexpr int kLeastMilliseconds = 20;
/// A JPEG picture can ask for a pass over all its pixels with some hundred bytes. With steps of this size it
/// can be stopped after each such pass.
constexpr qint64 kJpegStep = 256;

/// Bitmaps with these headers hold the usual header of 40 bytes and what usually follows it, but the reader
/// knows neither.
bool hasRareBitmapHeader(QByteArrayView start) {
  constexpr qsizetype kSizePlace = 14;
  const QByteArrayView size = start.size() < kSizePlace + 4 ? QByteArrayView() : start.sliced(kSizePlace, 4);
  return size == QByteArrayView("\x34\0\0\0", 4) || size == QByteArrayView("\x38\0\0\0", 4);
}

void useUsualBitmapHeader(PictureFile& file) {
  constexpr qint64 kSizePlace = 14;
  constexpr char kUsualSize = 40;
  if (hasRareBitmapHeader(file.part(0, kFormatBytes)))
    file.replaceBytes(kSizePlace, QByteArray(1, kUsualSize));
}

/// A mask of a colour without its lowest bits, where it has more than eight.
quint32 eightBitsOf(quint32 mask) {
  const int excess = std::popcount(mask) - 8;
  return excess > 0 ? mask & (mask << excess) : mask;
}

/// The reader makes nothing of colours with more than eight bits; the others would not be seen anyway.
void useEightBitsOfColours(PictureFile& file) {
  constexpr qint64 kMasksPlace = 54;
  constexpr qsizetype kMasks = 3;
  const QByteArray start = file.part(0, kMasksPlace + kMasks * 4);
  if (start.size() < kMasksPlace + kMasks * 4) return;
  const bool hasMasks = qFromLittleEndian<quint32>(start.data() + 30) == 3;
  if (!hasMasks || qFromLittleEndian<quint32>(start.data() + 14) < 40) return;
  QByteArray masks(kMasks * 4, '\0');
  for (qsizetype i = 0; i < kMasks; ++i) {
    const auto mask = qFromLittleEndian<quint32>(start.data() + kMasksPlace + i * 4);
    qToLittleEndian(eightBitsOf(mask), masks.data() + i * 4);
  }
  file.replaceBytes(kMasksPlace, masks);
}

/// The reader paints the background in its colour. Everybody else leaves it empty, and so does the reader
/// when the number of that colour is not in the palette. Unless the palette is full there is such a number.
void leaveBackgroundEmpty(PictureFile& file) {
  constexpr qint64 kColourPlace = 11;
  constexpr int kFullPalette = 7;
  const QByteArray start = file.part(0, kFormatBytes);
  const bool isFull = start.size() > kColourPlace && (start[10] & kFullPalette) == kFullPalette;
  if (!isFull) file.replaceBytes(kColourPlace, "\xFF");
}

/// The proportions may change, since the picture is stretched anyway.
QSize keptSize(const QSize& size) {
  const QSize sides = size.boundedTo({kLongestSideKept, kLongestSideKept});
  const double pixels = double(sides.width()) * sides.height();
  if (pixels <= kMostPixelsKept) return sides;
  return (QSizeF(sides) * std::sqrt(kMostPixelsKept / pixels)).toSize();
}

bool hasOldBitmapHeader(QByteArrayView start) {
  constexpr qsizetype kSizePlace = 14;
  return qFromLittleEndian<quint32>(start.data() + kSizePlace) == 12;
}

/// Leaving pixels out first is cheap for any size; the rest is done smoothly.
QImage reduced(const QImage& image, const QSize& size) {
  if (image.size() == size) return image;
  const QSize few = (size * 2).boundedTo(image.size());
  const QImage sample = image.scaled(few, Qt::IgnoreAspectRatio, Qt::FastTransformation);
  // The smooth colours are not in a palette.
  return sample.convertToFormat(QImage::Format_ARGB32_Premultiplied)
      .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The size in the header of formats whose reader calls too large a picture damaged.
QSize sizeInHeader(PictureFormat format, QByteArrayView start) {
  constexpr qsizetype kEnough = 26;
  if (start.size() < kEnough) return {};
  const auto number = [start](qsizetype at) { return qFromLittleEndian<qint32>(start.data() + at); };
  if (format == PictureFormat::Gif) return {number(6) & 0xFFFF, (number(6) >> 16) & 0xFFFF};
  if (format != PictureFormat::Bitmap || hasOldBitmapHeader(start)) return {};
  return {number(18), bitmapRows(number(22))};
}

/// Whether a large bitmap's file has less than half of the bytes that its pixels take, or, run-length
/// encoded, fewer than they can take.
bool lacksPixels(QByteArrayView start, const QSize& size, qint64 fileSize) {
  constexpr qint64 kMostPixelsToAByte = 128;
  const qint64 pixels = qint64{size.width()} * size.height();
  if (pixels <= qint64{16'000'000} || start.size() < kFormatBytes) return false;
  const bool isOld = hasOldBitmapHeader(start);
  const qint64 depth = qFromLittleEndian<quint16>(start.data() + (isOld ? 24 : 28));
  const quint32 compression = isOld ? 0 : qFromLittleEndian<quint32>(start.data() + 30);
  const bool isInRuns = compression == 1 || compression == 2;
  return fileSize < (isInRuns ? pixels / kMostPixelsToAByte : pixels * depth / 8 / 2);
}

[[noreturn]] void refusePicture(const QString& name, const QString& why) {
  throw RuntimeFault(FaultNumber::InvalidProcedureCall, Texts::tr("%1 cannot be shown: %2.").arg(name, why));
}

/// The limit that counts is ours, which gives a reason. Theirs is one for all threads, each of which may be
/// the first to read a picture.
void liftLimitOfReaders() {
  [[maybe_unused]] static const bool isLifted = [] {
    QImageReader::setAllocationLimit(kAllocationLimit);
    return true;
  }();
}

int shownFor(int milliseconds) {
  return milliseconds <= 0 ? kUsualMilliseconds : std::max(milliseconds, kLeastMilliseconds);
}

}  // namespace

PictureDecoder::PictureDecoder(std::unique_ptr<PictureFile> file, PictureFormat format, const QString& name)
    : file_(std::move(file)), format_(format), name_(name) {
  liftLimitOfReaders();
  if (format == PictureFormat::Icon) chooseIcon();
  if (format == PictureFormat::Jpeg) file_->limitSteps(kJpegStep);
  if (format == PictureFormat::Gif) leaveBackgroundEmpty(*file_);
  if (format == PictureFormat::Bitmap) {
    useUsualBitmapHeader(*file_);
    useEightBitsOfColours(*file_);
  }
  refuseTooLarge(sizeInHeader(format, file_->part(0, kFormatBytes)));
  rewind();
  size_ = reader_->size();
  size_.setHeight(bitmapRows(size_.height()));
  if (size_.isEmpty()) refuse(Texts::tr("it is damaged, or of a kind that is not supported"));
  refuseTooLarge(size_);
  if (format == PictureFormat::Bitmap && lacksPixels(file_->part(0, kFormatBytes), size_, file_->size())) {
    refuse(Texts::tr("it is damaged or cut short"));
  }
  // Only this reader saves work that way.
  if (format == PictureFormat::Jpeg && keptSize(size_) != size_) reader_->setScaledSize(keptSize(size_));
  roundsLeft_ = reader_->loopCount();
  // Cameras record how they were held.
  if (reader_->transformation().testFlag(QImageIOHandler::TransformationRotate90)) size_.transpose();
}

void PictureDecoder::refuse(const QString& why) const {
  refusePicture(name_, why);
}

void PictureDecoder::refuseTooLarge(const QSize& size) const {
  if (size.isEmpty() || qint64{size.width()} * size.height() <= kMostPixels) return;
  refuse(Texts::tr("with %1 by %2 pixels it is larger than 256 megapixels")
             .arg(size.width())
             .arg(size.height()));
}

void PictureDecoder::rewind() {
  file_->seek(0);
  reader_ = std::make_unique<QImageReader>(file_.get(), imageReaderOf(format_));
  reader_->setDecideFormatFromContent(false);
  reader_->setAutoTransform(true);
  if (iconNumber_ > 0) reader_->jumpToImage(iconNumber_);
}

void PictureDecoder::chooseIcon() {
  constexpr qint64 kLargestIcon = 4LL * 1024 * 1024;
  const QByteArray directory = file_->part(0, kLongestIconDirectory);
  iconNumber_ =
      bestIcon(directory, [this](qint64 offset, qsizetype count) { return file_->part(offset, count); });
  const IconPlace place = iconPlace(directory, iconNumber_);
  iconPart_ = file_->part(place.offset, std::min(place.length, kLargestIcon));
}

std::optional<PictureFrame> PictureDecoder::read() {
  QImage image = format_ == PictureFormat::Bitmap ? readBitmap(*reader_) : reader_->read();
  if (image.isNull()) return std::nullopt;
  mend(image);
  if (format_ != PictureFormat::Jpeg) image = reduced(image, keptSize(image.size()));
  ++framesRead_;
  return PictureFrame{image, shownFor(reader_->nextImageDelay())};
}

void PictureDecoder::mend(QImage& image) const {
  if (format_ == PictureFormat::Icon) hideMaskedPixels(image, iconPart_);
  // When the first frame has no transparent pixel, the reader says so of all frames; the pixels know better.
  if (format_ == PictureFormat::Gif && image.format() == QImage::Format_RGB32) {
    image.reinterpretAsFormat(QImage::Format_ARGB32);
  }
}

PictureFrame PictureDecoder::first() {
  const std::optional<PictureFrame> frame = read();
  if (!frame) refuse(Texts::tr("it is damaged or cut short"));
  return *frame;
}

std::optional<PictureFrame> PictureDecoder::next() {
  if (format_ != PictureFormat::Gif) return std::nullopt;
  if (reader_->canRead()) return read();
  // A single frame needs no second look.
  if (framesRead_ < 2 || roundsLeft_ == 0) return std::nullopt;
  if (roundsLeft_ > 0) --roundsLeft_;
  framesRead_ = 0;
  rewind();
  return read();
}

namespace {

LoadedPicture loadMetafile(PictureFile& file, const QString& path, const MetafileChild& child,
                           const std::stop_source& stop) {
  if (file.size() > kLargestMetafile) refusePicture(path, Texts::tr(kMetafileTooLarge));
  try {
    const MetafilePicture picture = drawInChild(child, file.readAll(), stop.get_token());
    return {picture.ownSize, {picture.image, 0}, {}, picture.leftOut};
  } catch (const MetafileFault& fault) {
    refusePicture(path, Texts::tr(fault.what()));
  }
}

LoadedPicture loadAny(const QString& path, const MetafileChild& child, const std::stop_source& stop) {
  auto file = std::make_unique<PictureFile>(path, stop);
  const std::optional<PictureFormat> format = pictureFormatOf(file->part(0, kFormatBytes));
  if (!format) refusePicture(path, Texts::tr("it is not a bitmap, icon, metafile, JPEG or GIF picture"));
  if (isMetafile(*format)) return loadMetafile(*file, path, child, stop);
  auto decoder = std::make_shared<PictureDecoder>(std::move(file), *format, path);
  PictureFrame frame = decoder->first();
  return {decoder->size(), std::move(frame), std::move(decoder)};
}

}  // namespace

LoadedPicture loadPicture(const QString& path, const MetafileChild& child, const std::stop_source& stop) {
  try {
    return loadAny(path, child, stop);
  } catch (const std::bad_alloc&) {
    refusePicture(path, Texts::tr("there is not enough memory for it"));
  }
}

}  // namespace quorvin
