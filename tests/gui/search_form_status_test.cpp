// SPDX-License-Identifier: GPL-2.0-or-later

// What the main window says about its searches: in the line at the bottom, and in the list where it is empty.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

#include <QStatusBar>

namespace quorvin::test {

namespace {

class WindowStatus : public SearchFormTest {
 protected:
  QString status() { return form().findChild<QLabel*>(QStringLiteral("StatusText"))->text(); }
  QString emptyText() { return controls().HitList->emptyText(); }
  /// Types `text` and presses Enter, as soon as the run lets events run.
  void enterDuringTheRun(const QString& text) {
    duringTheRun([this, text] {
      type(controls().SearchStr, text);
      press(Qt::Key_Return);
    });
  }
};

TEST_F(WindowStatus, IsEmptyBeforeTheFirstSearch) {
  EXPECT_EQ(status(), QString());
  EXPECT_EQ(form().findChild<QStatusBar*>(QStringLiteral("StatusLine")), form().statusBar());
}

TEST_F(WindowStatus, CountsHitsAsTheLocaleWritesThem) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 4321, "tune"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("4,321 hits"));
  EXPECT_EQ(found(), QStringLiteral("4,321"));
  find(QStringLiteral("zebra"));
  EXPECT_EQ(status(), QStringLiteral("0 hits"));
}

TEST_F(WindowStatus, SaysHowManyHitsAreSelectedAndHowLargeTheyAre) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 3000, "tune"));
  find(QStringLiteral("tune"));
  controls().HitList->setFocus();
  press(Qt::Key_Home);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(status(), QStringLiteral("3,000 hits  ·  2 selected, 2.00 kB"));
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EVENTUALLY(status() == QStringLiteral("3,000 hits  ·  3,000 selected, 2.93 MB"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("3,000 hits"));
}

TEST_F(WindowStatus, ARunThatWasStoppedSaysSo) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 4500, "tune"));
  addOnlineSource(QStringLiteral("second"), listingOf("SECOND", 2, "tune"));
  form();
  duringTheRun([this] { pressFind(); });
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("2,002 hits  ·  stopped after 1 of 2 listings"));
  pressFind();
  EXPECT_EQ(status(), QStringLiteral("4,502 hits"));
}

TEST_F(WindowStatus, AStopRequestLeftOverFromBeforeIsToldWhenItCutsAListingShort) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 4500, "tune"));
  form();
  state_.AbortRequested = true;
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("2,000 hits  ·  stopped after 0 of 1 listing"));
}

TEST_F(WindowStatus, EnterWithANewTextDuringARunSearchesForThat) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  addOnlineSource(QStringLiteral("second"), listingOf("SECOND", 3, "song"));
  form();
  enterDuringTheRun(QStringLiteral("song"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
  EXPECT_EQ(volumes().join(u','), QStringLiteral("SECOND,SECOND,SECOND"));
  EXPECT_EQ(searched(), QStringLiteral("6,003"));
  EXPECT_EQ(status(), QStringLiteral("3 hits"));
  EXPECT_FALSE(state_.AbortRequested);
}

TEST_F(WindowStatus, EnterWithAnotherMatchDuringARunSearchesWithThat) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  form();
  duringTheRun([this] {
    type(controls().DesMatch, QStringLiteral("60"));
    press(Qt::Key_Return);
  });
  find(QStringLiteral("tune 5999"));
  EXPECT_EQ(rows(), 1);
}

TEST_F(WindowStatus, OfSeveralTextsEnteredDuringARunTheLastIsSearchedFor) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  form();
  duringTheRun([this] {
    type(controls().SearchStr, QStringLiteral("zebra"));
    press(Qt::Key_Return);
    type(controls().SearchStr, QStringLiteral("tune 1234"));
    press(Qt::Key_Return);
  });
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("1 hit"));
}

TEST_F(WindowStatus, EnterWithTheSameTextDuringARunStopsIt) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  form();
  enterDuringTheRun(QStringLiteral("tune"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("2,000 hits  ·  stopped after 0 of 1 listing"));
}

TEST_F(WindowStatus, FindStaysTheStopButtonWhateverTheTextIs) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  form();
  duringTheRun([this] {
    type(controls().SearchStr, QStringLiteral("song"));
    pressFind();
  });
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("2,000 hits  ·  stopped after 0 of 1 listing"));
}

TEST_F(WindowStatus, ClosingWhileANewTextWaitsSearchesNoMore) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  form();
  duringTheRun([this] {
    type(controls().SearchStr, QStringLiteral("song"));
    press(Qt::Key_Return);
    form().close();
  });
  find(QStringLiteral("tune"));
  EXPECT_FALSE(form().isVisible());
  EXPECT_EQ(volumes().count(QStringLiteral("FIRST")), rows());
}

TEST_F(WindowStatus, AnEmptyListSaysWhy) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 3, "tune"));
  find(QStringLiteral("zebra"));
  EXPECT_EQ(emptyText(), QStringLiteral("No file found in 1 listing."));
  EXPECT_EQ(controls().HitList->accessibleDescription(), emptyText());
  find(QStringLiteral("gui/media"));
  EXPECT_EQ(emptyText(), QStringLiteral("No file found in 1 listing.\n"
                                        "Folders are written with \\: try gui\\media"));
  find(QStringLiteral("tune zebra"));
  EXPECT_EQ(emptyText(),
            QStringLiteral("No file found in 1 listing.\n"
                           "More than 50% of the words means all 2 of them; with 49, 1 is enough."));
  type(controls().DesMatch, QStringLiteral("100"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(emptyText(),
            QStringLiteral("No file holds more than 100% of the words; 99 asks for all of them."));
  type(controls().DesMatch, QStringLiteral("99"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(emptyText(), QString());
  EXPECT_EQ(rows(), 3);
}

TEST_F(WindowStatus, WhyTheListIsEmptyStaysWhenAMenuIsUsedAndGoesWithTheNextRun) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 6000, "tune"));
  find(QStringLiteral("zebra"));
  form().sourcesChanged();
  EXPECT_EQ(emptyText(), QStringLiteral("No file found in 1 listing."));
  QString during = QStringLiteral("?");
  duringTheRun([&] { during = emptyText(); });
  find(QStringLiteral("giraffe"));
  EXPECT_EQ(during, QString());
  type(controls().SearchStr, QString());
  pressFind();
  EXPECT_EQ(emptyText(), QStringLiteral("No file found in 1 listing."));
}

TEST_F(WindowStatus, ManyMissingListsAreOneMessageWhenTheUserWantsNoMore) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 3, "tune"));
  for (int list = 1; list <= 60; ++list) {
    state_.OfflineSources.set(++state_.OfflineSourceCount, QStringLiteral("cd"),
                              folder_.pathOf(QStringLiteral("%1.lst").arg(list)));
  }
  messages_.mostOfAKind = 1;
  find(QStringLiteral("tune"));
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(messages_.informed[0],
            QStringLiteral("Listing file not found: %1").arg(folder_.pathOf(QStringLiteral("1.lst"))));
  EXPECT_EQ(status(), QStringLiteral("3 hits  ·  60 listings missing"));
}

TEST_F(WindowStatus, TheNoteStaysUntilTheNextSearch) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 3, "tune"));
  form().status().setNote(QStringLiteral("Sorted"));
  EXPECT_EQ(status(), QStringLiteral("Sorted"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(status(), QStringLiteral("3 hits"));
  form().status().setNote(QStringLiteral("Sorted"));
  EXPECT_EQ(status(), QStringLiteral("3 hits  ·  Sorted"));
}

TEST_F(WindowStatus, ARescanSaysWhatItDid) {
  const TemporaryFolder files;
  files.writeFile(QStringLiteral("a.txt"), "x");
  files.writeFile(QStringLiteral("b.txt"), "x");
  addOnlineFolder(QStringLiteral("Music"), files.path());
  form().menus().ReScan->trigger();
  EXPECT_EQ(status(), QStringLiteral("1 listing, 2 entries, 2 new, 0 gone"));
  QFile::remove(files.pathOf(QStringLiteral("a.txt")));
  files.writeFile(QStringLiteral("c.txt"), "x");
  files.writeFile(QStringLiteral("d.txt"), "x");
  form().menus().ReScan->trigger();
  EXPECT_EQ(status(), QStringLiteral("1 listing, 3 entries, 2 new, 1 gone"));
  form().menus().ReScan->trigger();
  EXPECT_EQ(status(), QStringLiteral("1 listing, 3 entries, 0 new, 0 gone"));
}

TEST_F(WindowStatus, TheListReachesToTheLineAndTheLineToTheBottom) {
  form().resize(900, 600);
  QTest::qWait(0);
  const QRect bar = form().statusBar()->geometry();
  const QPoint endOfList = controls().HitList->mapTo(&form(), controls().HitList->rect().bottomLeft());
  EXPECT_EQ(endOfList.y() + 1, bar.top());
  EXPECT_EQ(bar.bottom() + 1, form().height());
  EXPECT_EQ(bar.width(), form().width());
}

TEST_F(WindowStatus, ALongLineIsCutAndDoesNotWidenTheWindow) {
  form().resize(300, 300);
  form().status().setNote(QStringLiteral("wide ").repeated(200));
  QTest::qWait(0);
  EXPECT_EQ(form().width(), 300);
  form().resize(1, 1);
  QTest::qWait(0);
  EXPECT_EQ(form().frameGeometry().size(), QSize(200, 100));
}

}  // namespace

}  // namespace quorvin::test
