#include "preview/picture_decoder.h"

#include "platform/runtime_fault.h"
#include "preview/picture_icon.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr qint64 kMostPixels = 256'000'000;
/// Decoded pictures of more pixels than any screen has are kept smaller.
constexpr double kMostPixelsKept = 16'000'000;
/// Four bytes for each pixel of the largest picture, in megabytes of the reader's kind.
constexpr int kAllocationLimit = 1024;
/// The usual reading of files that ask for no time at all.
constexpr int kUsualMilliseconds = 100;
constexpr int kLeastMilliseconds = 20;
/// A JPEG picture can ask for a pass over all its pixels with some hundred bytes. With steps of this size
/// there is a chance to stop after each such pass.
constexpr qint64 kJpegStep = 256;

/// Bitmaps with these headers hold what the usual one of 40 bytes holds, and behind it what it is followed
/// by, but the reader knows neither.
bool hasRareBitmapHeader(QByteArrayView start) {
  constexpr qsizetype kSizePlace = 14;
  const QByteArrayView size = start.size() < kSizePlace + 4 ? QByteArrayView() : start.sliced(kSizePlace, 4);
  return size == QByteArrayView("\x34\0\0\0", 4) || size == QByteArrayView("\x38\0\0\0", 4);
}

void useUsualBitmapHeader(PictureFile& file) {
  constexpr qint64 kSizePlace = 14;
  constexpr char kUsualSize = 40;
  if (hasRareBitmapHeader(file.start(kFormatBytes))) file.replaceByte(kSizePlace, kUsualSize);
}

QSize keptSize(const QSize& size) {
  const double pixels = double(size.width()) * size.height();
  if (pixels <= kMostPixelsKept) return size;
  return (QSizeF(size) * std::sqrt(kMostPixelsKept / pixels)).toSize().expandedTo({1, 1});
}

int shownFor(int milliseconds) {
  return milliseconds <= 0 ? kUsualMilliseconds : std::max(milliseconds, kLeastMilliseconds);
}

}  // namespace

QString pictureRefusal(const QString& name, const QString& why) {
  return QStringLiteral("%1 cannot be shown: %2.").arg(name, why);
}

PictureDecoder::PictureDecoder(std::unique_ptr<PictureFile> file, PictureFormat format, const QString& name)
    : file_(std::move(file)), readerName_(imageReaderOf(format)), name_(name) {
  // Ours is the limit that tells its reason.
  QImageReader::setAllocationLimit(kAllocationLimit);
  if (format == PictureFormat::Icon) iconNumber_ = bestIcon(file_->start(kLongestIconDirectory));
  if (format == PictureFormat::Jpeg) file_->limitSteps(kJpegStep);
  if (format == PictureFormat::Bitmap) useUsualBitmapHeader(*file_);
  rewind();
  size_ = reader_->size();
  if (size_.isEmpty()) refuse(QStringLiteral("it is damaged, or of a kind that is not supported"));
  if (qint64{size_.width()} * size_.height() > kMostPixels) {
    refuse(QStringLiteral("with %1 by %2 pixels it is larger than 256 megapixels")
               .arg(size_.width())
               .arg(size_.height()));
  }
  if (keptSize(size_) != size_) reader_->setScaledSize(keptSize(size_));
  roundsLeft_ = reader_->loopCount();
  // Cameras write down how they were held.
  if (reader_->transformation().testFlag(QImageIOHandler::TransformationRotate90)) size_.transpose();
}

void PictureDecoder::refuse(const QString& why) const {
  throw RuntimeFault(FaultNumber::InvalidProcedureCall, pictureRefusal(name_, why));
}

void PictureDecoder::rewind() {
  file_->seek(0);
  reader_ = std::make_unique<QImageReader>(file_.get(), readerName_);
  reader_->setDecideFormatFromContent(false);
  reader_->setAutoTransform(true);
  if (iconNumber_ > 0) reader_->jumpToImage(iconNumber_);
}

std::optional<PictureFrame> PictureDecoder::read() {
  const QImage image = reader_->read();
  if (image.isNull()) return std::nullopt;
  ++framesRead_;
  return PictureFrame{image, shownFor(reader_->nextImageDelay())};
}

PictureFrame PictureDecoder::first() {
  const std::optional<PictureFrame> frame = read();
  if (!frame) refuse(QStringLiteral("it is damaged or cut short"));
  return *frame;
}

std::optional<PictureFrame> PictureDecoder::next() {
  if (readerName_ != "gif") return std::nullopt;
  if (reader_->canRead()) return read();
  // A single frame needs no second look.
  if (framesRead_ < 2 || roundsLeft_ == 0) return std::nullopt;
  if (roundsLeft_ > 0) --roundsLeft_;
  framesRead_ = 0;
  rewind();
  if (keptSize(size_) != size_) reader_->setScaledSize(keptSize(size_));
  return read();
}

}  // namespace quorvin
