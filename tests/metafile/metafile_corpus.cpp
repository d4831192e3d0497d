// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/metafile_corpus.h"

#include "metafile/dib_writer.h"

namespace quorvin::test {

namespace {

constexpr std::uint32_t kNoPen = 0x80000008;
constexpr std::uint32_t kNoBrush = 0x80000005;
constexpr int kSolid = 0;
constexpr int kNone = 5;

}  // namespace

QImage fourColours() {
  QImage image(2, 2, QImage::Format_ARGB32);
  image.setPixel(0, 0, kBlue);
  image.setPixel(1, 0, kYellow);
  image.setPixel(0, 1, kRed);
  image.setPixel(1, 1, kGreen);
  return image.scaled(100, 100);
}

QList<SeenPoint> fourColoursIn(const QRect& place) {
  const auto at = [&place](int x, int y) {
    return place.topLeft() + QPoint(place.width() * x / 4, place.height() * y / 4);
  };
  return {{at(1, 1), kBlue}, {at(3, 1), kYellow}, {at(1, 3), kRed}, {at(3, 3), kGreen}};
}

EmfWriter filledEmf(QRgb colour) {
  EmfWriter emf;
  emf.select(kNoPen).brush(1, kSolid, colour).select(1);
  return emf;
}

namespace {

/// The four colours as a bitmap, and a mask that is set on its left half alone. `head` is the length of the
/// record before them; `imagePlace` and `maskPlace` are what the record says of their places.
struct MaskedBitmap {
  explicit MaskedBitmap(int head) {
    const QImage image = fourColours();
    const QByteArray header = dibHeader(image.size(), {}, 0);
    const QByteArray bits = dibBits(image, {});
    ByteWriter maskHeader;
    maskHeader.u32(40).u32(100).u32(100).u16(1).u16(1).zeros(24);
    // Rows of 100 bits, of which 50 are set, and 28 to fill them up.
    const QByteArray maskRow = QByteArray(6, '\xFF') + '\xC0' + QByteArray(9, '\0');
    const QByteArray mask = maskRow.repeated(100);
    const qsizetype maskAt = head + header.size() + bits.size();
    imagePlace = ByteWriter().u32(head).u32(header.size()).u32(head + header.size()).u32(bits.size()).bytes();
    maskPlace = ByteWriter()
                    .u32(maskAt)
                    .u32(maskHeader.size())
                    .u32(maskAt + maskHeader.size())
                    .u32(mask.size())
                    .bytes();
    noMask = QByteArray(16, '\0');
    bytes = header + bits + maskHeader.bytes() + mask;
  }

  QByteArray imagePlace;
  QByteArray maskPlace;
  QByteArray noMask;
  QByteArray bytes;
};

}  // namespace

EmfWriter gradientEmf(int mode, const QList<SeenPoint>& corners, const QList<int>& areas) {
  ByteWriter content;
  content.zeros(16).u32(corners.size()).u32(areas.size() / (mode == 2 ? 3 : 2)).u32(mode);
  for (const SeenPoint& corner : corners) {
    content.u32(corner.at.x()).u32(corner.at.y());
    content.u8(0)
        .u8(qRed(corner.colour))
        .u8(0)
        .u8(qGreen(corner.colour))
        .u8(0)
        .u8(qBlue(corner.colour))
        .u16(0);
  }
  for (const int number : areas) content.u32(number);
  EmfWriter emf;
  emf.record(118, content);
  return emf;
}

QByteArray maskedEmf(std::uint32_t operations, bool hasMask) {
  const MaskedBitmap bitmap(128);
  ByteWriter content;
  content.zeros(16).u32(100).u32(50).u32(100).u32(100).u32(operations).u32(0).u32(0).zeros(24 + 8);
  content.raw(bitmap.imagePlace).u32(0).u32(0).u32(0).raw(hasMask ? bitmap.maskPlace : bitmap.noMask);
  return EmfWriter().record(78, content.raw(bitmap.bytes)).file();
}

QByteArray leaningEmf(bool hasMask) {
  const MaskedBitmap bitmap(140);
  ByteWriter content;
  content.zeros(16).u32(100).u32(50).u32(200).u32(50).u32(150).u32(150);
  content.u32(0).u32(0).u32(100).u32(100).zeros(24 + 8).raw(bitmap.imagePlace);
  content.u32(0).u32(0).u32(0).raw(hasMask ? bitmap.maskPlace : bitmap.noMask);
  return EmfWriter().record(79, content.raw(bitmap.bytes)).file();
}

namespace {

QByteArray emfPens() {
  EmfWriter emf;
  emf.pen(1, kSolid, 10, kRed).select(1).brush(2, kSolid, kGreen).select(2).rectangle(20, 20, 180, 180);
  emf.pen(3, kSolid, 8, kBlue).select(3).moveTo(200, 100).lineTo(390, 100);
  emf.pen(4, kNone, 30, kBlack).select(4).ellipse(220, 20, 380, 80);
  return emf.file();
}

QByteArray emfText() {
  EmfWriter emf;
  emf.record(18, ByteWriter().u32(1)).record(24, ByteWriter().u32(metafileColour(kRed)));
  // Full blocks fill their whole cell, so that points inside are known.
  emf.font(1, -60, QStringLiteral("DejaVu Sans Mono")).select(1);
  return emf.text(20, 40, QString(4, QChar(0x2588)), 60).file();
}

CorpusMetafile emfClip(const std::string& name, const EmfWriter& clipped, const QList<SeenPoint>& points) {
  return {name, EmfWriter(clipped).rectangle(0, 0, 400, 200).file(), points, false};
}

QByteArray emfPath() {
  EmfWriter emf = filledEmf(kBlue);
  emf.record(59).moveTo(50, 50).lineTo(150, 50).lineTo(150, 150).lineTo(50, 150).record(61).record(60);
  emf.box(62, 0, 0, 0, 0);
  // A path of curves and lines that go on from each other.
  emf.record(59).moveTo(250, 150);
  emf.points16(88, {{250, 80}, {350, 80}, {350, 150}})
      .lineTo(350, 190)
      .lineTo(250, 190)
      .record(61)
      .record(60);
  return emf.box(62, 0, 0, 0, 0).file();
}

QByteArray emfWindow() {
  EmfWriter emf = filledEmf(kRed);
  emf.record(17, ByteWriter().u32(8)).place(10, -1000, -500).place(9, 2000, 1000);
  emf.place(12, 0, 0).place(11, 400, 200);
  return emf.rectangle(-500, -250, 500, 250).file();
}

QByteArray emfMillimetres() {
  // In tenths of millimetres, upwards: half the picture's width from the left, the upper half.
  return filledEmf(kRed).record(17, ByteWriter().u32(2)).rectangle(0, 0, 500, -250).file();
}

QByteArray emfWorld() {
  EmfWriter emf = filledEmf(kRed);
  // Twice as large, and moved.
  emf.record(35, ByteWriter().f32(2).f32(0).f32(0).f32(2).f32(100).f32(20)).rectangle(0, 0, 50, 50);
  return emf.record(36, ByteWriter().zeros(24).u32(1)).rectangle(300, 150, 380, 190).file();
}

QByteArray emfStates() {
  EmfWriter emf = filledEmf(kRed);
  emf.record(33).brush(2, kSolid, kBlue).select(2).rectangle(0, 0, 100, 100);
  return emf.record(34, ByteWriter().u32(-1)).rectangle(200, 0, 300, 100).file();
}

QByteArray emfArcs() {
  EmfWriter emf = filledEmf(kRed);
  // A pie of the upper right quarter, a chord of the upper half, against the clock.
  emf.record(47, ByteWriter().u32(0).u32(0).u32(200).u32(200).u32(200).u32(100).u32(100).u32(0));
  emf.record(46, ByteWriter().u32(200).u32(0).u32(400).u32(200).u32(400).u32(100).u32(200).u32(100));
  return emf.file();
}

QByteArray emfPolygons() {
  EmfWriter emf = filledEmf(kGreen);
  emf.record(19, ByteWriter().u32(1)).points16(86, {{20, 180}, {100, 20}, {180, 180}});
  ByteWriter two;
  two.zeros(16).u32(2).u32(8).u32(4).u32(4);
  for (const QPoint& point : {QPoint(220, 20), QPoint(380, 20), QPoint(380, 180), QPoint(220, 180),
                              QPoint(260, 60), QPoint(340, 60), QPoint(340, 140), QPoint(260, 140)}) {
    two.u16(point.x()).u16(point.y());
  }
  return emf.record(91, two).file();
}

// What is to be seen of the drawings that both kinds of metafile have.
const QList<SeenPoint> kPensSeen = {{{100, 100}, kGreen}, {{20, 100}, kRed},   {{16, 100}, kRed},
                                    {{5, 100}, kWhite},   {{300, 103}, kBlue}, {{300, 110}, kWhite},
                                    {{300, 50}, kGreen}};
const QList<SeenPoint> kInsideSeen = {{{100, 100}, kRed}, {{40, 100}, kWhite}, {{160, 100}, kWhite}};
const QList<SeenPoint> kOutsideSeen = {{{100, 100}, kWhite}, {{40, 100}, kRed}, {{160, 100}, kRed}};
const QList<SeenPoint> kPolygonsSeen = {
    {{100, 120}, kGreen}, {{30, 40}, kWhite}, {{240, 100}, kGreen}, {{300, 100}, kWhite}};
const QList<SeenPoint> kArcsSeen = {
    {{130, 70}, kRed}, {{70, 70}, kWhite}, {{130, 130}, kWhite}, {{300, 50}, kRed}, {{300, 150}, kWhite}};
const QList<SeenPoint> kWindowSeen = {
    {{200, 100}, kRed}, {{90, 100}, kWhite}, {{310, 100}, kWhite}, {{110, 60}, kRed}};
const QList<SeenPoint> kSavedStateSeen = {{{50, 50}, kBlue}, {{250, 50}, kRed}};

}  // namespace

std::vector<CorpusMetafile> enhancedMetafileCorpus() {
  const QImage image = fourColours();
  const DibForm form;
  const QByteArray bits = dibBits(image, form);
  const QByteArray header = dibHeader(image.size(), form, bits.size());
  const QRect place(100, 50, 100, 100);
  const DibForm indexed{40, 8, 0, false, {}, paletteOf(256), 0};
  const QImage colours = indexedPicture(indexed.palette);

  EmfWriter intersected = filledEmf(kRed);
  intersected.box(30, 50, 50, 150, 150);
  EmfWriter excluded = filledEmf(kRed);
  excluded.box(29, 50, 50, 150, 150);
  EmfWriter region = filledEmf(kRed);
  region.clipRegion({{50, 50, 100, 100}, {250, 50, 100, 100}}, 5);
  EmfWriter path = filledEmf(kRed);
  path.record(59).ellipse(100, 0, 300, 200).record(60).record(67, ByteWriter().u32(5));

  return {
      {"pens", emfPens(), kPensSeen, false},
      {"text",
       emfText(),
       {{{30, 80}, kRed},
        {{90, 80}, kRed},
        {{215, 80}, kRed},
        {{10, 80}, kWhite},
        {{300, 80}, kWhite},
        {{70, 80}, kWhite}},
       false},
      emfClip("clip to a rectangle", intersected, kInsideSeen),
      emfClip("clip without a rectangle", excluded, kOutsideSeen),
      emfClip("clip to a region", region,
              {{{100, 100}, kRed}, {{200, 100}, kWhite}, {{300, 100}, kRed}, {{100, 40}, kWhite}}),
      emfClip("clip to a path", path, {{{200, 100}, kRed}, {{110, 10}, kWhite}, {{110, 100}, kRed}}),
      {"bitmap", EmfWriter().stretchDib(place, image.size(), header, bits).file(), fourColoursIn(place)},
      {"bitmap of a palette",
       EmfWriter()
           .stretchDib({0, 0, 390, 140}, colours.size(), dibHeader(colours.size(), indexed, 0),
                       dibBits(colours, indexed))
           .file(),
       {{{15, 10}, colours.pixel(0, 0)},
        {{375, 130}, colours.pixel(12, 6)},
        {{195, 70}, colours.pixel(6, 3)}},
       false},
      {"bitmap by exclusive or",
       filledEmf(kYellow)
           .rectangle(0, 0, 400, 200)
           .stretchDib(place, image.size(), header, bits, 0x00660046)
           .file(),
       {{{125, 75}, kWhite}, {{175, 75}, kBlack}, {{125, 125}, kGreen}, {{175, 125}, kRed}},
       false},
      {"path",
       emfPath(),
       {{{100, 100}, kBlue},
        {{40, 100}, kWhite},
        {{300, 130}, kBlue},
        {{300, 80}, kWhite},
        {{260, 180}, kBlue}}},
      {"window and viewport", emfWindow(), kWindowSeen},
      {"millimetres",
       emfMillimetres(),
       {{{100, 50}, kRed}, {{250, 50}, kWhite}, {{100, 150}, kWhite}},
       false},
      {"world", emfWorld(), {{{150, 70}, kRed}, {{195, 115}, kRed}, {{90, 50}, kWhite}, {{340, 170}, kRed}}},
      {"saved state", emfStates(), kSavedStateSeen},
      {"arcs", emfArcs(), kArcsSeen},
      {"polygons", emfPolygons(), kPolygonsSeen, false},
      {"gradients",
       gradientEmf(2, {{{0, 0}, kRed}, {{400, 0}, kRed}, {{0, 200}, kRed}}, {0, 1, 2}).file(),
       {{{100, 50}, kRed}, {{300, 150}, kWhite}},
       false},
      {"bitmap through a mask", maskedEmf(0xAACC0020), {{{125, 75}, kBlue}, {{175, 75}, kWhite}}, false},
      {"bitmap in a parallelogram", leaningEmf(true), {{{137, 75}, kBlue}, {{187, 75}, kWhite}}, false},
      {"hatches",
       EmfWriter()
           .select(kNoPen)
           .record(18, ByteWriter().u32(2))
           .record(25, ByteWriter().u32(metafileColour(kYellow)))
           .brush(1, 2, kYellow, 0)
           .select(1)
           .rectangle(0, 0, 200, 200)
           .select(kNoBrush)
           .rectangle(200, 0, 400, 200)
           .file(),
       {{{100, 100}, kYellow}, {{300, 100}, kWhite}},
       false},
  };
}

namespace {

WmfWriter sheetWmf() {
  WmfWriter wmf;
  wmf.pen(kNone, 0, kBlack).select(0).brush(kSolid, kWhite).select(1).rectangle(0, 0, 400, 200);
  return wmf;
}

}  // namespace

WmfWriter filledWmf(QRgb colour) {
  WmfWriter wmf = sheetWmf();
  wmf.brush(kSolid, colour).select(2);
  return wmf;
}

namespace {

QByteArray wmfPens() {
  WmfWriter wmf = sheetWmf();
  wmf.pen(kSolid, 10, kRed).select(2).brush(kSolid, kGreen).select(3).rectangle(20, 20, 180, 180);
  wmf.pen(kSolid, 8, kBlue).select(4).moveTo(200, 100).lineTo(390, 100);
  return wmf.pen(kNone, 30, kBlack).select(5).ellipse(220, 20, 380, 80).file();
}

QByteArray wmfText() {
  WmfWriter wmf;
  wmf.record(0x0102, ByteWriter().u16(2)).record(0x0201, ByteWriter().u32(metafileColour(kYellow)));
  wmf.record(0x0209, ByteWriter().u32(metafileColour(kBlue))).font(60, "DejaVu Sans Mono").select(0);
  return wmf.text(20, 40, "MMMM").file();
}

}  // namespace

std::vector<CorpusMetafile> windowsMetafileCorpus() {
  const QImage image = fourColours();
  const QByteArray dib = dibOf(image, {});
  const QRect place(100, 50, 100, 100);
  const auto clipped = [](const std::string& name, WmfWriter wmf, const QList<SeenPoint>& points,
                          bool isForSecondDecoder) {
    return CorpusMetafile{name, wmf.rectangle(0, 0, 400, 200).file(), points, isForSecondDecoder};
  };
  ByteWriter two;
  two.u16(2).u16(4).u16(4);
  for (const QPoint& point : {QPoint(220, 20), QPoint(380, 20), QPoint(380, 180), QPoint(220, 180),
                              QPoint(260, 60), QPoint(340, 60), QPoint(340, 140), QPoint(260, 140)}) {
    two.u16(point.x()).u16(point.y());
  }
  return {
      {"pens", wmfPens(), kPensSeen, false},
      {"text",
       wmfText(),
       {{{30, 44}, kYellow}, {{120, 44}, kYellow}, {{10, 70}, kWhite}, {{300, 70}, kWhite}},
       false},
      clipped("clip to a rectangle", filledWmf(kRed).box(0x0416, 50, 50, 150, 150), kInsideSeen, true),
      clipped("clip without a rectangle", filledWmf(kRed).box(0x0415, 50, 50, 150, 150), kOutsideSeen, false),
      clipped("clip to a region",
              filledWmf(kRed).region({50, 50, 100, 100}).record(0x012C, ByteWriter().u16(3)), kInsideSeen,
              false),
      {"bitmap", sheetWmf().stretchDib(place, image.size(), dib).file(), fourColoursIn(place)},
      {"polygons", filledWmf(kGreen).polygon({{20, 180}, {100, 20}, {180, 180}}).record(0x0538, two).file(),
       kPolygonsSeen},
      {"arcs",
       filledWmf(kRed)
           .record(0x081A, ByteWriter().u16(0).u16(100).u16(100).u16(200).u16(200).u16(200).u16(0).u16(0))
           .record(0x0830, ByteWriter().u16(100).u16(200).u16(100).u16(400).u16(200).u16(400).u16(0).u16(200))
           .file(),
       kArcsSeen, false},
      {"window",
       filledWmf(kRed)
           .place(0x020B, -1000, -500)
           .place(0x020C, 2000, 1000)
           .rectangle(-500, -250, 500, 250)
           .file(),
       kWindowSeen, false},
      {"saved state",
       filledWmf(kRed)
           .record(0x001E)
           .brush(kSolid, kBlue)
           .select(3)
           .rectangle(0, 0, 100, 100)
           .record(0x0127, ByteWriter().u16(-1))
           .rectangle(200, 0, 300, 100)
           .file(),
       kSavedStateSeen},
      {"without placeable header",
       filledWmf(kRed).rectangle(100, 50, 300, 150).file(false),
       {{{200, 100}, kRed}, {{50, 100}, kWhite}, {{350, 100}, kWhite}}},
  };
}

}  // namespace quorvin::test
