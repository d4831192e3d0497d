// SPDX-License-Identifier: GPL-2.0-or-later

// Copying hits from the real window, few of them and very many.
#include "app/search_form_copy.h"

#include "gui/keys.h"
#include "gui/window_hits_fixture.h"

namespace quorvin::test {

namespace {

class CopiedHits : public WindowHits {
 protected:
  /// More than can be copied in one slice.
  static constexpr int kVeryMany = 20'000;

  CopiedHits() { QGuiApplication::clipboard()->setText(QStringLiteral("before")); }

  /// Hits of a main data file, whose disk is not here, all of them selected.
  void selectFarHits(int count) {
    setMainDataFile(listingOf("DISK_7", count, "tune"));
    find(QStringLiteral("tune"));
    ASSERT_EQ(rows(), count);
    activate(form());
    list()->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
  }
  static void copyRows() { press(Qt::Key_C, Qt::ControlModifier); }
  static void copyNames() { press(Qt::Key_C, Qt::ControlModifier | Qt::AltModifier); }
  static void copyPaths() { press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier); }
  QString status() { return form().findChild<QLabel*>(QStringLiteral("StatusText"))->text(); }
  /// Lets everything happen that still would.
  static void letEventsRun() {
    for (int pass = 0; pass < 20; ++pass) QCoreApplication::processEvents();
  }
};

TEST_F(CopiedHits, ControlCCopiesTheSelectedRowsAsText) {
  showFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
  click(1);
  click(2, Qt::ShiftModifier);
  QTest::keyClick(list(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), rowTexts(1).join(u'\t') + u'\n' + rowTexts(2).join(u'\t'));
  EXPECT_TRUE(clipboard().startsWith(QStringLiteral("100%\tMusic\t\\")));
}

TEST_F(CopiedHits, ControlShiftCCopiesFullPathsAndForMissingFilesWhereTheyAreInTheCatalogue) {
  showFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
  QFile::remove(files_.pathOf(QStringLiteral("b.txt")));
  click(0);
  click(2, Qt::ShiftModifier);
  QTest::keyClick(list(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(clipboard(), files_.pathOf(QStringLiteral("a.txt")) + QStringLiteral("\nMusic:") +
                             QString::fromUtf8(listed(files_.path())) + QStringLiteral("b.txt\n") +
                             files_.pathOf(QStringLiteral("c.txt")));
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("1 of 3 could not be found on a connected drive. For these, the path "
                                       "in the catalogue was copied.")});
}

TEST_F(CopiedHits, OfHitsFromOtherListingsThePathInTheCatalogueIsCopied) {
  setMainDataFile(listingOf("DISK_7", 1, "tune"));
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD 12", 1, "tune"));
  find(QStringLiteral("tune"));
  list()->setFocus();
  QTest::keyClick(list(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(list(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(clipboard(), QStringLiteral("DISK_7:\\Music\\tune 1.mp3\nCD 12:\\Music\\tune 1.mp3"));
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("2 of 2 could not be found on a connected drive. For these, the path "
                                       "in the catalogue was copied.")});
}

TEST_F(CopiedHits, ControlCInTheSearchTextCopiesTheSearchText) {
  showFiles({QStringLiteral("a.txt")});
  click(0);
  type(controls().SearchStr, QStringLiteral("rock"));
  controls().SearchStr->selectAll();
  QTest::keyClick(controls().SearchStr, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(clipboard(), QStringLiteral("rock"));
}

TEST_F(CopiedHits, TooManyRowsAreNotCopied) {
  EXPECT_EQ(SearchFormCopy::kMostRows, 1'000'000);
  selectFarHits(1001);
  form().copies().setMostRows(1000);
  copyRows();
  EXPECT_EQ(clipboard(), QStringLiteral("before"));
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("1,001 hits are selected. At most 1,000 can be copied at once.")});
}

TEST_F(CopiedHits, ALongCopySaysHowFarItIsAndWhatCameOfIt) {
  selectFarHits(kVeryMany);
  form().copies().setUnseen(std::chrono::milliseconds(0));
  copyPaths();
  EXPECT_TRUE(status().endsWith(QStringLiteral(" of 20,000 hits copied so far; Esc stops")))
      << status().toStdString();
  EXPECT_EQ(clipboard(), QStringLiteral("before"));
  EXPECT_EVENTUALLY(
      status().endsWith(QStringLiteral("20,000 hits were copied. 20,000 of 20,000 could not be found on a "
                                       "connected drive. For these, the path in the catalogue was copied.")));
  const QStringList lines = clipboard().split(u'\n');
  ASSERT_EQ(lines.size(), kVeryMany);
  EXPECT_EQ(lines.first(), QStringLiteral("DISK_7:\\Music\\tune 1.mp3"));
  EXPECT_EQ(lines.last(), QStringLiteral("DISK_7:\\Music\\tune 20000.mp3"));
  EXPECT_TRUE(messages_.informed.empty()) << "nobody has to answer what the line says";
}

TEST_F(CopiedHits, EscStopsALongCopyAndTheClipboardStays) {
  selectFarHits(kVeryMany);
  copyRows();
  press(Qt::Key_Escape);
  EXPECT_TRUE(
      status().endsWith(QStringLiteral("Copying was stopped. The clipboard holds what it held before.")))
      << status().toStdString();
  letEventsRun();
  EXPECT_EQ(clipboard(), QStringLiteral("before"));
}

TEST_F(CopiedHits, EscStopsTheCopyAloneAndTheFilterTheNextTime) {
  selectFarHits(kVeryMany);
  press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  list()->setFocus();
  copyRows();
  press(Qt::Key_Escape);
  EXPECT_TRUE(controls().FilterStr->isVisible());
  press(Qt::Key_Escape);
  EXPECT_FALSE(controls().FilterStr->isVisible());
}

TEST_F(CopiedHits, ANewSearchEndsALongCopyAndTheClipboardStays) {
  selectFarHits(kVeryMany);
  copyRows();
  find(QStringLiteral("tune 7.mp3"));
  EXPECT_EVENTUALLY(
      status().endsWith(QStringLiteral("Copying was given up, since a new search has replaced the hits. The "
                                       "clipboard holds what it held before.")));
  letEventsRun();
  EXPECT_EQ(clipboard(), QStringLiteral("before"));
}

TEST_F(CopiedHits, ClosingTheWindowEndsALongCopyAndTheClipboardStays) {
  selectFarHits(kVeryMany);
  copyRows();
  ASSERT_TRUE(form().close());
  letEventsRun();
  EXPECT_EQ(clipboard(), QStringLiteral("before"));
  EXPECT_FALSE(status().contains(QStringLiteral("copied"))) << status().toStdString();
}

TEST_F(CopiedHits, AreThoseThatWereSelectedInTheOrderThatTheyHadThen) {
  selectFarHits(kVeryMany);
  copyNames();
  press(Qt::Key_4, Qt::ControlModifier);
  press(Qt::Key_4, Qt::ControlModifier);
  press(Qt::Key_Down);
  EXPECT_EVENTUALLY(clipboard() != u"before");
  const QStringList lines = clipboard().split(u'\n');
  ASSERT_EQ(lines.size(), kVeryMany);
  EXPECT_EQ(lines.first(), QStringLiteral("tune 1.mp3"));
  EXPECT_EQ(lines.last(), QStringLiteral("tune 20000.mp3"));
}

TEST_F(CopiedHits, AnotherCopyTakesThePlaceOfALongOne) {
  selectFarHits(kVeryMany);
  copyRows();
  press(Qt::Key_Down);
  copyNames();
  EXPECT_EQ(clipboard(), QStringLiteral("tune 2.mp3"));
  letEventsRun();
  EXPECT_EQ(clipboard(), QStringLiteral("tune 2.mp3"));
}

TEST_F(CopiedHits, ASelectionThatIsLetGoIsToldInTheStatusLine) {
  // Sorted by size, the first half and the second follow each other in turn.
  constexpr int kHalf = 100'001;
  QByteArray listing = blockHead("DISK_7", "\\Music\\");
  for (int i = 0; i < 2 * kHalf; ++i) {
    const int size = i < kHalf ? 2 * i : 2 * (i - kHalf) + 1;
    listing += entryLine("tune", QByteArray::number(size));
  }
  setMainDataFile(listing);
  find(QStringLiteral("tune"));
  ASSERT_EQ(rows(), 2 * kHalf);
  list()->selectionModel()->select(
      QItemSelection(list()->model()->index(0, 0), list()->model()->index(kHalf - 1, kHitColumnCount - 1)),
      QItemSelectionModel::ClearAndSelect);
  press(Qt::Key_5, Qt::ControlModifier);
  EXPECT_EVENTUALLY(status().endsWith(
      QStringLiteral("100,001 hits are no longer selected: they are scattered too widely now")));
}

}  // namespace

}  // namespace quorvin::test
