#include "metafile/metafile_emf.h"

#include "metafile/metafile_whole.h"

#include <QTransform>

namespace quorvin {

namespace {

constexpr std::uint32_t kEndOfFile = 14;
constexpr std::int64_t kLeastHeader = 88;
constexpr std::uint32_t kLeastRecord = 8;

QSizeF nonZero(const QSizeF& size, const QSizeF& otherwise) {
  return size.width() > 0 && size.height() > 0 ? size : otherwise;
}

}  // namespace

struct EmfPlayer::Header {
  explicit Header(const MetafileBytes& record) {
    if (record.size() < kLeastHeader) throw MetafileFault("its header is too short");
    const QSizeF device = nonZero({double(record.i32(72)), double(record.i32(76))}, {1024, 768});
    const QSizeF millimetres = nonZero({double(record.i32(80)), double(record.i32(84))}, {270, 203});
    unitsPerMillimetre = {device.width() / millimetres.width(), device.height() / millimetres.height()};
    const QRectF frame = record.rect32(24);
    ownSize = frame.size();
    onDevice = {frame.x() / 100 * unitsPerMillimetre.width(), frame.y() / 100 * unitsPerMillimetre.height(),
                frame.width() / 100 * unitsPerMillimetre.width(),
                frame.height() / 100 * unitsPerMillimetre.height()};
    if (!frame.isValid()) takeBounds(record.rect32(8));
    sheet = sheetFor(ownSize);
  }

  /// Some writers leave the frame empty. The bounds include their last column and row.
  void takeBounds(const QRectF& bounds) {
    onDevice = bounds.adjusted(0, 0, 1, 1);
    ownSize = {onDevice.width() / unitsPerMillimetre.width() * 100,
               onDevice.height() / unitsPerMillimetre.height() * 100};
  }

  QTransform deviceToImage() const {
    return QTransform::fromTranslate(-onDevice.x(), -onDevice.y()) *
           QTransform::fromScale(sheet.pixels.width() / onDevice.width(),
                                 sheet.pixels.height() / onDevice.height());
  }

  QSizeF unitsPerMillimetre;
  QSizeF ownSize;
  QRectF onDevice;
  MetafileSheet sheet;
};

EmfPlayer::EmfPlayer(const MetafileBytes& file) : EmfPlayer(file, Header(file.slice(0, file.u32(4)))) {}

EmfPlayer::EmfPlayer(const MetafileBytes& file, const Header& header)
    : file_(file),
      ownSize_(wholeHundredths(header.ownSize)),
      canvas_(header.sheet.pixels, header.deviceToImage(), header.sheet.scale),
      objects_(file.u16(56)) {
  canvas_.state.mapping.deviceUnitsPerMillimetre = header.unitsPerMillimetre;
}

MetafilePicture EmfPlayer::play() {
  for (std::int64_t at = 0;;) {
    const std::uint32_t type = file_.u32(at);
    const std::uint32_t size = file_.u32(at + 4);
    if (size < kLeastRecord) throw MetafileFault("it is damaged or cut short");
    const MetafileBytes record = file_.slice(at, size);
    if (type == kEndOfFile) return {ownSize_, canvas_.finish()};
    try {
      playRecord(type, record);
    } catch (const MetafileFault&) {
      // One record that makes no sense does not spoil the others.
    }
    at += size;
  }
}

void EmfPlayer::playRecord(std::uint32_t type, const MetafileBytes& record) {
  playMapping(type, record) || playSetting(type, record) || playObject(type, record) ||
      playShape(type, record) || playPoints(type, record) || playPath(type, record) ||
      playClip(type, record) || playBitmap(type, record) || playText(type, record);
}

}  // namespace quorvin
