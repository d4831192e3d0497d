// SPDX-License-Identifier: GPL-2.0-or-later

// What quorvin-metafile answers, and how far its answers are trusted.
#include "metafile/boundary.h"

#include "metafile/metafile_corpus.h"
#include "metafile/play_metafile.h"
#include "preview/picture_printing.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(MetafileAnswer, APictureComesBackAsItWent) {
  const MetafilePicture picture = playMetafile(enhancedMetafileCorpus().front().bytes);
  const MetafilePicture back = pictureOfMetafileAnswer(metafileAnswer(picture));
  EXPECT_EQ(back.ownSize, picture.ownSize);
  EXPECT_EQ(back.image, picture.image.convertToFormat(QImage::Format_RGB32));
}

TEST(MetafileAnswer, WhatIsLeftOutComesBackInHarmlessLetters) {
  MetafilePicture picture{QSize(100, 100), QImage(3, 2, QImage::Format_RGB32), QStringLiteral("flood fills")};
  EXPECT_EQ(pictureOfMetafileAnswer(metafileAnswer(picture)).leftOut, QStringLiteral("flood fills"));
  EXPECT_EQ(pictureOfMetafileAnswer(metafileAnswer(picture).replace("flood", "f\n\xE4(d")).leftOut,
            QStringLiteral("f\?\?(d fills"));
  picture.leftOut = QString(400, u'x');
  EXPECT_EQ(pictureOfMetafileAnswer(metafileAnswer(picture)).leftOut, QString(400, u'x'));
  picture.leftOut += u'x';
  EXPECT_EQ(pictureOfMetafileAnswer(metafileAnswer(picture)).leftOut, QString(400, u'x'));
}

std::string answerFault(const QByteArray& answer) {
  try {
    pictureOfMetafileAnswer(answer);
  } catch (const MetafileFault& fault) {
    return fault.what();
  }
  return "none";
}

TEST(MetafileAnswer, ARefusalTellsItsReasonInHarmlessLetters) {
  EXPECT_EQ(answerFault(metafileRefusal("it has no size")), "it has no size");
  EXPECT_EQ(answerFault(metafileRefusal("a\nb\x01\xC3\xA4")), "a?b???");
  EXPECT_EQ(answerFault(metafileRefusal(QByteArray(5000, 'x'))), std::string(200, 'x'));
}

TEST(MetafileAnswer, WhateverIsNotExactlyAnAnswerIsRefused) {
  const std::string kNone = "the program that draws metafiles has not answered as it should";
  const QByteArray good = metafileAnswer({QSize(100, 100), QImage(3, 2, QImage::Format_RGB32)});
  EXPECT_EQ(answerFault(good), "none");
  EXPECT_EQ(answerFault({}), kNone);
  EXPECT_EQ(answerFault(good.chopped(1)), kNone);
  EXPECT_EQ(answerFault(good + 'x'), kNone);
  EXPECT_EQ(answerFault('x' + good), kNone);
  const auto with = [&good](qsizetype at, std::uint32_t value) {
    QByteArray bytes = good;
    return bytes.replace(at, 4, ByteWriter().u32(value).bytes());
  };
  for (const qsizetype size : {8, 12, 16, 20}) {
    EXPECT_EQ(answerFault(with(size, 0)), kNone) << size;
    EXPECT_EQ(answerFault(with(size, 0xFFFFFFFF)), kNone) << size;
  }
  EXPECT_EQ(answerFault(with(16, 2001)), kNone);
  EXPECT_EQ(answerFault(with(4, 1)), kNone);
  EXPECT_EQ(answerFault(with(24, 1)), kNone);
  EXPECT_EQ(answerFault(with(24, 1) + 'x'), "none");
  EXPECT_EQ(answerFault(with(24, 401) + QByteArray(401, 'x')), kNone);
  EXPECT_EQ(answerFault(with(24, 0xFFFFFFFF)), kNone);
}

}  // namespace

}  // namespace quorvin::test
