// SPDX-License-Identifier: GPL-2.0-or-later

// The best picture of an icon file.
#include "preview/picture_icon.h"

#include "metafile/byte_writer.h"

#include <QList>
#include <gtest/gtest.h>

#include <array>

namespace quorvin::test {

namespace {

/// The directory of an icon file (type 1) or of a pointer file (type 2), with width, height and depth of each
/// picture; the pictures stand one after another behind it, 16 bytes for each.
QByteArray directoryOf(int type, const QList<std::array<int, 3>>& entries) {
  ByteWriter bytes;
  bytes.u16(0).u16(type).u16(entries.size());
  qsizetype place = 6 + 16 * entries.size();
  for (const auto& [width, height, depth] : entries) {
    bytes.u8(width).u8(height).u16(0).u16(1).u16(depth).u32(16).u32(place);
    place += 16;
  }
  return bytes.bytes();
}

int bestOf(const QByteArray& file) {
  return bestIcon(file, [&file](qint64 offset, qsizetype count) { return file.mid(offset, count); });
}

TEST(PictureIcon, TheLargestIsTheBestAndThenTheOneOfMostColours) {
  EXPECT_EQ(bestOf(directoryOf(1, {{16, 16, 32}, {48, 48, 4}, {32, 32, 32}})), 1);
  EXPECT_EQ(bestOf(directoryOf(1, {{32, 32, 4}, {32, 32, 32}, {32, 32, 8}})), 1);
  EXPECT_EQ(bestOf(directoryOf(1, {{48, 48, 32}, {0, 0, 32}})), 1) << "A side of 0 is one of 256.";
  EXPECT_EQ(bestOf(directoryOf(1, {{32, 32, 32}, {32, 32, 32}})), 0);
  EXPECT_EQ(bestOf({}), 0);
  EXPECT_EQ(bestOf(directoryOf(1, {{16, 16, 32}, {48, 48, 4}}).left(30)), 0) << "The second is cut off.";
}

TEST(PictureIcon, WhereTheDirectoryHasNoColoursThePicturesTell) {
  const auto picture = [](int depth) {
    return ByteWriter().u32(40).u32(32).u32(64).u16(1).u16(depth).bytes();
  };
  EXPECT_EQ(bestOf(directoryOf(1, {{32, 32, 0}, {32, 32, 0}}) + picture(4) + picture(8)), 1);
  // What would be the depth is the hot spot of a pointer.
  EXPECT_EQ(bestOf(directoryOf(2, {{32, 32, 31}, {32, 32, 1}}) + picture(4) + picture(24)), 1);
  EXPECT_EQ(bestOf(directoryOf(1, {{32, 32, 24}, {32, 32, 0}}) + picture(1) +
                   QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16)),
            1)
      << "A compressed picture counts as one of 32 bits.";
}

}  // namespace

}  // namespace quorvin::test
