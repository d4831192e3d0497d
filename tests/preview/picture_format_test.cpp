// The kind of a picture by what its bytes say.
#include "preview/picture_format.h"

#include "preview/corpus_picture.h"
#include "preview/metafile_writer.h"
#include "preview/picture_icon.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(PictureFormat, EveryFormatIsKnownByItsFirstBytes) {
  EXPECT_EQ(pictureFormatOf(bitmapCorpus().front().bytes), PictureFormat::Bitmap);
  EXPECT_EQ(pictureFormatOf(iconCorpus().front().bytes), PictureFormat::Icon);
  EXPECT_EQ(pictureFormatOf(gifCorpus().front().bytes), PictureFormat::Gif);
  EXPECT_EQ(pictureFormatOf("GIF87a"), PictureFormat::Gif);
  EXPECT_EQ(pictureFormatOf("\xFF\xD8\xFF\xE0"), PictureFormat::Jpeg);
  EXPECT_EQ(pictureFormatOf(EmfWriter().file()), PictureFormat::EnhancedMetafile);
  EXPECT_EQ(pictureFormatOf(WmfWriter().file()), PictureFormat::WindowsMetafile);
  EXPECT_EQ(pictureFormatOf(WmfWriter().file(false)), PictureFormat::WindowsMetafile);
}

TEST(PictureFormat, OtherFormatsAreNone) {
  EXPECT_EQ(pictureFormatOf({}), std::nullopt);
  EXPECT_EQ(pictureFormatOf("\x89PNG\r\n\x1A\n"), std::nullopt);
  EXPECT_EQ(pictureFormatOf("<svg xmlns='http://www.w3.org/2000/svg'/>"), std::nullopt);
  EXPECT_EQ(pictureFormatOf("II*"), std::nullopt);
  EXPECT_EQ(pictureFormatOf("GIF88a"), std::nullopt);
  EXPECT_EQ(pictureFormatOf(QByteArrayView("\0\0\1", 3)), std::nullopt);
  EXPECT_EQ(pictureFormatOf(EmfWriter().file().left(43)), std::nullopt);
}

TEST(PictureIcon, TheLargestIsTheBestAndThenTheOneOfMostColours) {
  const auto directory = [](const QList<std::array<int, 3>>& entries) {
    ByteWriter bytes;
    bytes.u16(0).u16(1).u16(entries.size());
    for (const auto& [width, height, depth] : entries) {
      bytes.u8(width).u8(height).u16(0).u16(1).u16(depth).u32(0).u32(0);
    }
    return bytes.bytes();
  };
  EXPECT_EQ(bestIcon(directory({{16, 16, 32}, {48, 48, 4}, {32, 32, 32}})), 1);
  EXPECT_EQ(bestIcon(directory({{32, 32, 4}, {32, 32, 32}, {32, 32, 8}})), 1);
  EXPECT_EQ(bestIcon(directory({{48, 48, 32}, {0, 0, 32}})), 1) << "A side of 0 is one of 256.";
  EXPECT_EQ(bestIcon(directory({{32, 32, 32}, {32, 32, 32}})), 0);
  EXPECT_EQ(bestIcon({}), 0);
  EXPECT_EQ(bestIcon(directory({{16, 16, 32}, {48, 48, 4}}).left(30)), 0) << "The second is cut off.";
}

}  // namespace

}  // namespace quorvin::test
