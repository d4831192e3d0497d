// SPDX-License-Identifier: GPL-2.0-or-later

// Pictures of every kind look as they should: as they were put into their files, and as other people's
// decoders see them.
#include "faults/runtime_fault.h"
#include "preview/corpus_picture.h"
#include "preview/loaded_picture.h"
#include "preview/second_decoder.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin::test {

namespace {

class PictureCorpus : public testing::Test {
 protected:
  LoadedPicture load(const CorpusPicture& picture) {
    // The name says nothing of the format.
    const QString path = folder_.writeFile(QStringLiteral("picture.dat"), picture.bytes);
    try {
      return loadPicture(path, {}, std::stop_source());
    } catch (const RuntimeFault& fault) {
      ADD_FAILURE() << fault.what();
      return {{}, {QImage(1, 1, QImage::Format_RGB32), 0}, {}};
    }
  }

  /// All that is seen of the picture, up to as many frames as there should be.
  QList<QImage> framesOf(const CorpusPicture& picture) {
    const LoadedPicture loaded = load(picture);
    QList<QImage> frames = {loaded.frame.image};
    while (loaded.decoder && frames.size() < picture.frames.size()) {
      const std::optional<PictureFrame> next = loaded.decoder->next();
      if (!next) break;
      frames.append(next->image);
    }
    return frames;
  }

  void expectAsMade(const std::vector<CorpusPicture>& corpus) {
    ASSERT_FALSE(corpus.empty());
    for (const CorpusPicture& picture : corpus) {
      SCOPED_TRACE(picture.name);
      expectSame(framesOf(picture), picture.frames, picture.tolerance);
    }
  }

  void expectAsImageMagickSees(const std::vector<CorpusPicture>& corpus, const QString& format,
                               int tolerance) {
    for (const CorpusPicture& picture : corpus) {
      SCOPED_TRACE(picture.name);
      expectSame(framesOf(picture), imageMagickFrames(picture.bytes, format), tolerance);
    }
  }

  static void expectSame(const QList<QImage>& seen, const QList<QImage>& expected, int tolerance) {
    ASSERT_EQ(seen.size(), expected.size());
    for (qsizetype frame = 0; frame < seen.size(); ++frame) {
      EXPECT_LE(largestDifference(seen[frame], expected[frame]), tolerance) << "frame " << frame;
    }
  }

  TemporaryFolder folder_;
};

TEST_F(PictureCorpus, BitmapsOfEveryDepthAndCompressionLookAsTheyWereMade) {
  expectAsMade(bitmapCorpus());
}

TEST_F(PictureCorpus, BitmapsLookAsTheSecondDecoderSeesThem) {
  std::vector<CorpusPicture> corpus = bitmapCorpus();
  // It reads neither of these headers.
  std::erase_if(corpus, [](const CorpusPicture& picture) {
    return picture.name.ends_with("header of 64 bytes") || picture.name.ends_with("header of 52 bytes");
  });
  expectAsImageMagickSees(corpus, QStringLiteral("bmp"), 15);
}

TEST_F(PictureCorpus, IconsOfEveryDepthAndSizeLookAsTheyWereMade) {
  expectAsMade(iconCorpus());
}

TEST_F(PictureCorpus, IconsLookAsTheSecondDecoderSeesThem) {
  std::vector<CorpusPicture> corpus = iconCorpus();
  // The other decoder shows all pictures of a file.
  std::erase_if(corpus, [](const CorpusPicture& picture) { return picture.name.starts_with("several"); });
  expectAsImageMagickSees(corpus, QStringLiteral("ico"), 0);
}

TEST_F(PictureCorpus, GifsLookAsTheyWereMadeFrameByFrame) {
  expectAsMade(gifCorpus());
}

TEST_F(PictureCorpus, GifsLookAsTheSecondDecoderSeesThem) {
  expectAsImageMagickSees(gifCorpus(), QStringLiteral("gif"), 0);
}

TEST_F(PictureCorpus, JpegsLookAsTheSecondDecoderSeesThem) {
  for (const CorpusPicture& picture : jpegCorpus()) {
    ASSERT_FALSE(picture.expected().isNull()) << picture.name;
  }
  expectAsMade(jpegCorpus());
}

}  // namespace

}  // namespace quorvin::test
