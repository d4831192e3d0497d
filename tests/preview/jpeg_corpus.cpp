// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/corpus_picture.h"
#include "preview/second_decoder.h"

#include <QBuffer>

namespace quorvin::test {

namespace {

/// Smooth, as photographs are: sharp edges would measure the format's losses.
QByteArray photograph() {
  QImage image(203, 117, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      image.setPixel(x, y, qRgb(x * 255 / 203, y * 255 / 117, (x + y) * 255 / 320));
    }
  }
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  image.save(&png, "PNG");
  return png.data();
}

CorpusPicture jpeg(const std::string& name, const QStringList& options) {
  QStringList arguments{QStringLiteral("png:-"), QStringLiteral("-quality"), QStringLiteral("92")};
  arguments += options;
  arguments += QStringLiteral("jpeg:-");
  const QByteArray bytes = outputOf(QStringLiteral(QUORVIN_CONVERT), arguments, photograph());
  // Two correct decoders may round the transform and the widening of colours differently.
  constexpr int kTolerance = 6;
  return {name, bytes, {stbImage(bytes)}, kTolerance};
}

QStringList option(const char* name, const char* value) {
  return {QString::fromLatin1(name), QString::fromLatin1(value)};
}

}  // namespace

std::vector<CorpusPicture> jpegCorpus() {
  const QStringList progressive = option("-interlace", "JPEG");
  const QStringList fourColours = option("-colorspace", "CMYK");
  const QStringList restarts = option("-define", "jpeg:restart-interval=4");
  return {
      jpeg("baseline", option("-sampling-factor", "4:4:4")),
      jpeg("half the colours", option("-sampling-factor", "4:2:2")),
      jpeg("a quarter of the colours", option("-sampling-factor", "4:2:0")),
      jpeg("progressive", progressive + option("-sampling-factor", "4:4:4")),
      jpeg("progressive, a quarter of the colours", progressive + option("-sampling-factor", "4:2:0")),
      jpeg("grey", option("-colorspace", "Gray")),
      jpeg("grey, progressive", progressive + option("-colorspace", "Gray")),
      jpeg("restarts", restarts + option("-sampling-factor", "4:2:0")),
      jpeg("four colours", fourColours + option("-sampling-factor", "4:4:4")),
      jpeg("four colours, progressive", fourColours + progressive + option("-sampling-factor", "4:4:4")),
  };
}

}  // namespace quorvin::test
