// SPDX-License-Identifier: GPL-2.0-or-later
#include "preview/second_decoder.h"

#include <QProcess>

#include <memory>
#include <stb/stb_image.h>
#include <stdexcept>

namespace quorvin::test {

QByteArray outputOf(const QString& program, const QStringList& arguments, const QByteArray& input) {
  QProcess process;
  process.start(program, arguments);
  process.write(input);
  process.closeWriteChannel();
  process.waitForFinished(-1);
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
    throw std::runtime_error((program + u' ').toStdString() + process.readAllStandardError().toStdString());
  }
  return process.readAllStandardOutput();
}

QList<QImage> imageMagickFrames(const QByteArray& picture, const QString& format) {
  const QString convert = QStringLiteral(QUORVIN_CONVERT);
  const QByteArray sizes =
      outputOf(convert,
               {format + QStringLiteral(":-"), QStringLiteral("-coalesce"), QStringLiteral("-format"),
                QStringLiteral("%w %h\n"), QStringLiteral("info:-")},
               picture);
  const QByteArray pixels =
      outputOf(convert,
               {format + QStringLiteral(":-"), QStringLiteral("-coalesce"), QStringLiteral("-depth"),
                QStringLiteral("8"), QStringLiteral("rgba:-")},
               picture);
  QList<QImage> frames;
  qsizetype at = 0;
  for (const QByteArray& line : sizes.trimmed().split('\n')) {
    const QList<QByteArray> size = line.split(' ');
    const int width = size.value(0).toInt();
    const int height = size.value(1).toInt();
    const QByteArray bytes = pixels.mid(at, qsizetype{4} * width * height);
    if (bytes.size() < qsizetype{4} * width * height) throw std::runtime_error("pixels are missing");
    const QImage image(reinterpret_cast<const uchar*>(bytes.constData()), width, height, 4 * width,
                       QImage::Format_RGBA8888);
    frames.append(image.convertToFormat(QImage::Format_ARGB32));
    at += bytes.size();
  }
  return frames;
}

QImage stbImage(const QByteArray& picture) {
  int width = 0;
  int height = 0;
  int channels = 0;
  const std::unique_ptr<stbi_uc, void (*)(void*)> pixels(
      stbi_load_from_memory(reinterpret_cast<const stbi_uc*>(picture.constData()),
                            static_cast<int>(picture.size()), &width, &height, &channels, 4),
      stbi_image_free);
  if (!pixels) return {};
  return QImage(pixels.get(), width, height, 4 * width, QImage::Format_RGBA8888)
      .convertToFormat(QImage::Format_ARGB32);
}

}  // namespace quorvin::test
