// SPDX-License-Identifier: GPL-2.0-or-later

// The kind of a picture by what its bytes say.
#include "preview/picture_file.h"

#include "metafile/metafile_writer.h"
#include "preview/corpus_picture.h"

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

}  // namespace

}  // namespace quorvin::test
