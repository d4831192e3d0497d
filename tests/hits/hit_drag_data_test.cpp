// SPDX-License-Identifier: GPL-2.0-or-later

// What is dragged out of the list of hits, and when it is made.
#include "hits/hit_paths.h"
#include "hits/scan_into.h"
#include "support/eventually.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <QUrl>
#include <gtest/gtest.h>

#include <numeric>

namespace quorvin::test {

namespace {

class DraggedData : public testing::Test {
 protected:
  DraggedData() {
    state_.OnlineSources.set(1, QStringLiteral("Music"), files_.path());
    state_.OnlineSourceCount = 1;
  }

  static QString song(int number) { return QStringLiteral("song %1.mp3").arg(number); }
  /// Lists songs 1 to `count`, and makes the files of those from `firstFile` to `lastFile`.
  void list(int count, int firstFile = 1, int lastFile = 0) {
    QByteArray listing = blockHead("Music", listedFolder(files_.path(), nativePathStyle()).toUtf8());
    for (int number = 1; number <= count; ++number) listing += entryLine(song(number).toUtf8());
    for (int number = firstFile; number <= lastFile; ++number) files_.writeFile(song(number), "x");
    scanInto(table_, SourceKind::Online, listing, QStringLiteral("song"));
    ASSERT_EQ(table_.rowCount(), count);
  }
  std::vector<int> allRows() const {
    std::vector<int> rows(static_cast<std::size_t>(table_.rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
  }
  QUrl urlOf(int number) const { return QUrl::fromLocalFile(files_.pathOf(song(number))); }

  TemporaryFolder files_;
  ProgramState state_;
  HitTable table_;
};

constexpr int kMany = 100'000;
const QStringList kUrlsAndText = {QStringLiteral("text/uri-list"), QStringLiteral("text/plain")};

TEST_F(DraggedData, OfAHundredThousandHitsIsNotMadeWhenTheDragStarts) {
  list(kMany, 1, 3);
  const HitDragData data(table_, state_, allRows());
  EXPECT_EQ(data.formats(), kUrlsAndText);
  EXPECT_EQ(data.done(), 1) << "the first file is there, which is all that has to be known";
}

TEST_F(DraggedData, IsWholeWhereItIsAskedFor) {
  list(kMany, 1, 3);
  const HitDragData data(table_, state_, allRows());
  EXPECT_EQ(data.urls(), (QList<QUrl>{urlOf(1), urlOf(2), urlOf(3)}));
  EXPECT_EQ(data.text().count(u'\n'), kMany - 1);
  EXPECT_TRUE(data.text().startsWith(files_.pathOf(song(1)) + u'\n'));
  EXPECT_TRUE(data.text().endsWith(song(kMany)));
}

TEST_F(DraggedData, IsMadeWhileTheDragGoesOn) {
  list(kMany, 1, 3);
  const HitDragData data(table_, state_, allRows());
  EXPECT_EVENTUALLY(data.done() == kMany);
  ASSERT_TRUE(QFile::remove(files_.pathOf(song(2))));
  EXPECT_EQ(data.urls(), (QList<QUrl>{urlOf(1), urlOf(2), urlOf(3)})) << "nothing is looked for twice";
}

TEST_F(DraggedData, IsTextOnlyWhereNoFileIsThere) {
  list(100);
  const HitDragData data(table_, state_, allRows());
  EXPECT_EQ(data.formats(), QStringList{QStringLiteral("text/plain")});
  EXPECT_FALSE(data.hasUrls());
}

TEST_F(DraggedData, OffersFilesWhereOnlyLaterHitsHaveThem) {
  list(200, 150, 150);
  const HitDragData data(table_, state_, allRows());
  EXPECT_EQ(data.done(), HitDragData::kMostLookedAtFirst);
  EXPECT_EQ(data.formats(), kUrlsAndText);
  EXPECT_EQ(data.urls(), QList<QUrl>{urlOf(150)});
}

TEST_F(DraggedData, IsBytesForOtherPrograms) {
  list(2, 2, 2);
  const HitDragData data(table_, state_, allRows());
  EXPECT_EQ(data.data(QStringLiteral("text/uri-list")), urlOf(2).toEncoded() + "\r\n");
  EXPECT_EQ(QString::fromUtf8(data.data(QStringLiteral("text/plain"))), data.text());
  EXPECT_EQ(data.data(QStringLiteral("image/png")), QByteArray());
}

TEST_F(DraggedData, OfHitsThatAreGoneIsNothing) {
  list(3, 1, 3);
  const HitDragData data(table_, state_, allRows());
  table_.clear();
  EXPECT_EQ(data.text(), QString());
  EXPECT_TRUE(data.urls().isEmpty());
}

TEST_F(DraggedData, OfNoHitsHasNoForm) {
  EXPECT_TRUE(HitDragData(table_, state_, {}).formats().isEmpty());
}

}  // namespace

}  // namespace quorvin::test
