// SPDX-License-Identifier: GPL-2.0-or-later
#include "fuzz/drawing_maker.h"

#include "fuzz/record_maker.h"
#include "metafile/metafile_writer.h"

namespace quorvin::fuzz {
namespace {

constexpr std::size_t kMostRecords = 60;

constexpr RecordKind kEnhanced[] = {
    // Lines and areas.
    {2, "bP"},
    {3, "bP"},
    {4, "bP"},
    {5, "bP"},
    {6, "bP"},
    {7, "bQ"},
    {8, "bQ"},
    {15, "nnc"},
    {41, "nnnff"},
    {42, "nnnn"},
    {43, "nnnn"},
    {44, "nnnnnn"},
    {45, "nnnnnnnn"},
    {46, "nnnnnnnn"},
    {47, "nnnnnnnn"},
    {53, "nncu"},
    {54, "nn"},
    {55, "nnnnnnnn"},
    {56, "bD"},
    {85, "bp"},
    {86, "bp"},
    {87, "bp"},
    {88, "bp"},
    {89, "bp"},
    {90, "bq"},
    {91, "bq"},
    {92, "bd"},
    // Paths, clips and regions.
    {26, "nn"},
    {28, ""},
    {29, "nnnn"},
    {30, "nnnn"},
    {59, ""},
    {60, ""},
    {61, ""},
    {62, "b"},
    {63, "b"},
    {64, "b"},
    {65, ""},
    {66, ""},
    {67, "u"},
    {68, ""},
    {71, "bliR"},
    {72, "blinnR"},
    {73, "blR"},
    {74, "blR"},
    {75, "luR"},
    // Units, colours and modes.
    {9, "nn"},
    {10, "nn"},
    {11, "nn"},
    {12, "nn"},
    {13, "nn"},
    {16, "u"},
    {17, "u"},
    {18, "u"},
    {19, "u"},
    {20, "u"},
    {21, "u"},
    {22, "u"},
    {23, "nnnnnn"},
    {24, "c"},
    {25, "c"},
    {27, "nn"},
    {31, "nnnn"},
    {32, "nnnn"},
    {33, ""},
    {34, "s"},
    {35, "ffffff"},
    {36, "ffffffu"},
    {57, "u"},
    {58, "u"},
    {98, "u"},
    {115, "u"},
    {120, "nn"},
    // Tools.
    {37, "o"},
    {38, "iunnc"},
    {39, "iucu"},
    {40, "i"},
    {48, "o"},
    {49, "ih"},
    {50, "iuh"},
    {51, "iu"},
    {52, ""},
    {82, "iF"},
    {93, "iuK"},
    {94, "iuB"},
    {95, "iBunucuu"},
    {99, "ih"},
    {100, "o"},
    {101, "i"},
    {122, "ih"},
    // Bitmaps.
    {76, "bnnnntnnffffffcuB"},
    {77, "bnnnntnnffffffcuBnn"},
    {78, "bnnnnmnnffffffcuBnnuK"},
    {79, "bnnnnnnnnnnffffffcuBnnuK"},
    {80, "bnnnnnnBuuu"},
    {81, "bnnnnnnButnn"},
    {114, "bnnnnannffffffcuBnn"},
    {116, "bnnnncnnffffffcuBnn"},
    {118, "bG"},
    // Text.
    {83, "buffx"},
    {84, "buffX"},
    {96, "buffy"},
    {97, "buffY"},
    {108, "S"},
    // What is meant for others.
    {70, "C"},
    {102, "h"},
    {103, "bh"},
    {104, "h"},
    {105, "uh"},
    {106, "uh"},
    {110, "uh"},
};

constexpr RecordKind kWindows[] = {
    // Lines and areas.
    {0x0213, "ww"},
    {0x0324, "V"},
    {0x0325, "V"},
    {0x0418, "wwww"},
    {0x0419, "cww"},
    {0x041B, "wwww"},
    {0x041F, "cww"},
    {0x0538, "W"},
    {0x0548, "vcww"},
    {0x061C, "wwwwww"},
    {0x0817, "wwwwwwww"},
    {0x081A, "wwwwwwww"},
    {0x0830, "wwwwwwww"},
    // Clips and regions.
    {0x012A, "j"},
    {0x012B, "j"},
    {0x012C, "j"},
    {0x0220, "ww"},
    {0x0228, "jj"},
    {0x0415, "wwww"},
    {0x0416, "wwww"},
    {0x0429, "jjww"},
    {0x06FF, "Z"},
    // Units, colours and modes.
    {0x001E, ""},
    {0x0035, ""},
    {0x0037, "vv"},
    {0x0102, "v"},
    {0x0103, "v"},
    {0x0104, "v"},
    {0x0105, "v"},
    {0x0106, "v"},
    {0x0107, "v"},
    {0x0108, "w"},
    {0x0127, "e"},
    {0x012E, "v"},
    {0x0149, "vv"},
    {0x0201, "c"},
    {0x0209, "c"},
    {0x020A, "ww"},
    {0x020B, "ww"},
    {0x020C, "ww"},
    {0x020D, "ww"},
    {0x020E, "ww"},
    {0x020F, "ww"},
    {0x0211, "ww"},
    {0x0214, "ww"},
    {0x0231, "c"},
    {0x0410, "wwww"},
    {0x0412, "wwww"},
    // Tools.
    {0x00F7, "vvc"},
    {0x012D, "j"},
    {0x0139, "v"},
    {0x0142, "vvE"},
    {0x01F0, "j"},
    {0x01F9, "H"},
    {0x0234, "j"},
    {0x02FA, "vwwc"},
    {0x02FB, "f"},
    {0x02FC, "vcv"},
    {0x0436, "vvc"},
    // Bitmaps.
    {0x061D, "twwww"},
    {0x0922, "twwwwwwwH"},
    {0x0922, "twwwwwww"},
    {0x0940, "twwwwwwE"},
    {0x0940, "twwwwwww"},
    {0x0B23, "twwwwwwwwH"},
    {0x0B41, "twwwwwwwwE"},
    {0x0B41, "twwwwwwwww"},
    {0x0D33, "vvvwwwwwwE"},
    {0x0F43, "tvwwwwwwwwE"},
    // Text.
    {0x0521, "N"},
    {0x0A32, "M"},
    // What is meant for others.
    {0x0626, "H"},
};

/// Bytes that are left out at the end of a record, or changed in it.
QByteArray spoiled(QByteArray content, Choices& choices) {
  if (!choices.oneIn(16) || content.isEmpty()) return content;
  if (choices.oneIn(2))
    return content.chopped(choices.below(static_cast<int>(std::min<qsizetype>(content.size(), 99))));
  const auto place = static_cast<qsizetype>(choices.number() % static_cast<std::uint32_t>(content.size()));
  content[place] = static_cast<char>(choices.byte());
  return content;
}

void add(test::EmfWriter& emf, const RecordKind& kind, Choices& choices) {
  constexpr int kHead = 8;
  emf.record(kind.number, spoiled(RecordMaker(choices, kHead).made(kind.parameters), choices));
}

void add(test::WmfWriter& wmf, const RecordKind& kind, Choices& choices) {
  constexpr int kHead = 6;
  wmf.record(kind.number, spoiled(RecordMaker(choices, kHead).made(kind.parameters), choices));
}

void addTools(test::EmfWriter& emf) {
  emf.pen(1, 0, 3, qRgb(200, 0, 0)).brush(2, 0, qRgb(0, 200, 0)).font(3, -20, QStringLiteral("DejaVu Sans"));
  emf.select(1).select(2).select(3);
}

void addTools(test::WmfWriter& wmf) {
  wmf.pen(0, 3, qRgb(200, 0, 0))
      .brush(0, qRgb(0, 200, 0))
      .font(-20, "DejaVu Sans")
      .region(QRect(50, 50, 99, 99));
  wmf.select(0).select(1).select(2);
}

template <typename Writer>
QByteArray chosen(std::span<const RecordKind> kinds, Choices& choices) {
  Writer writer;
  addTools(writer);
  for (std::size_t count = 0; count < kMostRecords && !choices.atEnd(); ++count)
    add(writer, choices.of(kinds), choices);
  return writer.file();
}

template <typename Writer>
QByteArray withEach(std::span<const RecordKind> kinds, Choices& choices) {
  Writer writer;
  addTools(writer);
  for (const RecordKind& kind : kinds) add(writer, kind, choices);
  return writer.file();
}

}  // namespace

std::span<const RecordKind> enhancedRecordKinds() {
  return kEnhanced;
}

std::span<const RecordKind> windowsRecordKinds() {
  return kWindows;
}

QByteArray enhancedDrawing(std::span<const RecordKind> kinds, Choices& choices) {
  return withEach<test::EmfWriter>(kinds, choices);
}

QByteArray windowsDrawing(std::span<const RecordKind> kinds, Choices& choices) {
  return withEach<test::WmfWriter>(kinds, choices);
}

QByteArray chosenDrawing(Choices& choices) {
  return choices.oneIn(3) ? chosen<test::WmfWriter>(kWindows, choices)
                          : chosen<test::EmfWriter>(kEnhanced, choices);
}

}  // namespace quorvin::fuzz
