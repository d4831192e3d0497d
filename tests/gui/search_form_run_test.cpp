// SPDX-License-Identifier: GPL-2.0-or-later

// Searching with the real window: typing, pressing Find and Stop, reading rows, colours and labels.
#include "gui/search_form_fixture.h"

namespace quorvin::test {

namespace {

using WindowRun = SearchFormTest;

TEST_F(WindowRun, FindShowsAHitInSixColumns) {
  addOnlineSource(QStringLiteral("DATA1"),
                  blockHead("DATA1", "\\Music\\Rock\\") +
                      entryLine("Live at Wembley.mp3", "1,234,567", "15 Jan 2004 10:20:30"));
  find(QStringLiteral("rock live"));
  ASSERT_EQ(rows(), 1);
  EXPECT_EQ(rowTexts(0).join(u'|'),
            QStringLiteral("100%|DATA1|\\Music\\Rock\\|Live at Wembley.mp3|1.18mb|Jan, 15 04"));
  EXPECT_EQ(found(), QStringLiteral("1"));
  EXPECT_EQ(searched(), QStringLiteral("1"));
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
}

TEST_F(WindowRun, AHitSaysWhichWordsItHoldsAlsoWhenOthersAreTypedLater) {
  addOnlineSource(QStringLiteral("disk"),
                  blockHead("DISK", "\\Music\\Rock\\") + entryLine("Northern Live.mp3"));
  find(QStringLiteral("NORTHERN rock zebra"));
  type(controls().SearchStr, QStringLiteral("music"));
  ASSERT_EQ(rows(), 1);
  const QModelIndex name = controls().HitList->model()->index(0, static_cast<int>(HitColumn::Name));
  EXPECT_EQ(name.data(kWordPlacesRole).value<TextRanges>(), (TextRanges{{0, 8}}));
  EXPECT_EQ(name.data(Qt::AccessibleDescriptionRole).toString(),
            QStringLiteral("From the listing of an online source. 2 of 3 words; missing: zebra"));
  pressFind();
  EXPECT_EQ(name.sibling(0, 2).data(kWordPlacesRole).value<TextRanges>(), (TextRanges{{1, 5}}));
}

TEST_F(WindowRun, RowsStandInTheOrderAndColourOfTheirSources) {
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD", 1, "tune"));
  setMainDataFile(listingOf("MAIN", 1, "tune"));
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 1, "tune"));
  find(QStringLiteral("tune"));
  EXPECT_EQ(volumes().join(u','), QStringLiteral("DISK,MAIN,CD"));
  ASSERT_EQ(rows(), 3);
  EXPECT_EQ(colour(0), QColor(0, 0, 255));
  EXPECT_EQ(colour(1), QColor(255, 0, 0));
  EXPECT_EQ(colour(2), QColor(255, 127, 0));
}

TEST_F(WindowRun, EnterInTheSearchTextFinds) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  type(controls().SearchStr, QStringLiteral("tune"));
  QTest::keyClick(controls().SearchStr, Qt::Key_Return);
  EXPECT_EQ(rows(), 2);
}

TEST_F(WindowRun, EnterInTheDesiredMatchFinds) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  type(controls().SearchStr, QStringLiteral("tune"));
  type(controls().DesMatch, QStringLiteral("99"));
  QTest::keyClick(controls().DesMatch, Qt::Key_Enter);
  EXPECT_EQ(rows(), 2);
}

TEST_F(WindowRun, WithoutSourcesTheListIsClearedAndBothCountsAreZero) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  find(QStringLiteral("tune"));
  ASSERT_EQ(rows(), 2);
  state_.OnlineSourceCount = 0;
  pressFind();
  EXPECT_EQ(rows(), 0);
  EXPECT_EQ(found(), QStringLiteral("0"));
  EXPECT_EQ(searched(), QStringLiteral("0"));
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
}

TEST_F(WindowRun, EmptySearchTextLeavesListAndLabels) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  find(QStringLiteral("tune"));
  type(controls().SearchStr, QString());
  type(controls().DesMatch, QStringLiteral("250"));
  pressFind();
  EXPECT_EQ(rows(), 2);
  EXPECT_EQ(found(), QStringLiteral("2"));
  EXPECT_EQ(searched(), QStringLiteral("2"));
  EXPECT_EQ(controls().DesMatch->text(), QStringLiteral("100"));
  EXPECT_TRUE(messages_.informed.empty());
}

struct Correction {
  const char16_t* typed;
  const char16_t* shown;
};

class CorrectedMatch : public SearchFormTest, public testing::WithParamInterface<Correction> {};

TEST_P(CorrectedMatch, IsWrittenBack) {
  form();
  type(controls().DesMatch, QString::fromUtf16(GetParam().typed));
  find(QStringLiteral("tune"));
  EXPECT_EQ(controls().DesMatch->text(), QString::fromUtf16(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(OfWhatIsTyped, CorrectedMatch,
                         testing::Values(Correction{u"0", u"1"}, Correction{u"-7", u"1"},
                                         Correction{u"250", u"100"}, Correction{u"50.5", u"50"},
                                         Correction{u"51.5", u"52"}, Correction{u"abc", u"1"}));

TEST_F(WindowRun, StopDuringTheFirstListingStillSearchesTheOthers) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 4500, "tune"));
  addOnlineSource(QStringLiteral("second"), listingOf("SECOND", 2, "tune"));
  setMainDataFile(listingOf("MAIN", 3, "tune"));
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD", 4, "tune"));
  form();
  QString captionAtStop;
  duringTheRun([&] {
    captionAtStop = controls().Find->text();
    pressFind();
  });
  find(QStringLiteral("tune"));
  EXPECT_EQ(captionAtStop, QStringLiteral("Stop"));
  EXPECT_EQ(searched(), QStringLiteral("2,009"));
  EXPECT_EQ(volumes().count(QStringLiteral("FIRST")), 2000);
  EXPECT_EQ(volumes().count(QStringLiteral("SECOND")), 2);
  EXPECT_EQ(volumes().count(QStringLiteral("MAIN")), 3);
  EXPECT_EQ(volumes().count(QStringLiteral("CD")), 4);
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
  EXPECT_FALSE(state_.AbortRequested);
}

TEST_F(WindowRun, EscapeStopsARun) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 4500, "tune"));
  form();
  duringTheRun([&] { QTest::keyClick(&form(), Qt::Key_Escape); });
  find(QStringLiteral("tune"));
  EXPECT_EQ(searched(), QStringLiteral("2,000"));
}

TEST_F(WindowRun, EscapeWhileIdleAsksForNothing) {
  QTest::keyClick(&form(), Qt::Key_Escape);
  EXPECT_FALSE(state_.AbortRequested);
  EXPECT_TRUE(form().isVisible());
}

TEST_F(WindowRun, CountsAndRowsMoveDuringTheRun) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 4500, "tune"));
  form();
  QString seen;
  duringTheRun([&] {
    // Long enough for the next showing to be due at the second yield.
    QTest::qSleep(20);
    duringTheRun([&] { seen = found() + u'/' + searched() + u'/' + QString::number(rows()); });
  });
  find(QStringLiteral("tune"));
  EXPECT_EQ(seen, QStringLiteral("4,000/4,000/4000"));
  EXPECT_EQ(found(), QStringLiteral("4,500"));
  EXPECT_EQ(searched(), QStringLiteral("4,500"));
  EXPECT_EQ(rows(), 4500);
}

TEST_F(WindowRun, MissingOnlineListingIsToldAndTheRunGoesOn) {
  addMissingOnlineSource(QStringLiteral("gone"));
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  find(QStringLiteral("tune"));
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(messages_.informed[0], QStringLiteral("Listing file not found: %1gone.txt").arg(folder_.path()));
  EXPECT_EQ(rows(), 2);
}

TEST_F(WindowRun, MissingMainDataFileEndsTheRunAndLeavesTheSearchedCount) {
  addOfflineSource(QStringLiteral("cd.lst"), listingOf("CD", 4, "tune"));
  find(QStringLiteral("tune"));
  ASSERT_EQ(searched(), QStringLiteral("4"));
  state_.TextFile = QStringLiteral("gone.lst");
  pressFind();
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(messages_.informed[0], QStringLiteral("Listing file not found: %1gone.lst").arg(folder_.path()));
  EXPECT_EQ(rows(), 0);
  EXPECT_EQ(found(), QStringLiteral("0"));
  EXPECT_EQ(searched(), QStringLiteral("4"));
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
}

/// Looks at the labels each time that a message is shown.
class LabelReadingMessages : public RecordingMessageBoxes {
 public:
  void inform(const QString& text) override {
    RecordingMessageBoxes::inform(text);
    if (look) look();
  }
  std::function<void()> look;
};

TEST(WindowRunMessages, ComeAfterTheCountsUpToThem) {
  const TemporaryFolder folder;
  ProgramState state;
  state.LocalFolder = folder.path();
  folder.writeFile(QStringLiteral("disk.txt"), blockHead("DISK", "\\") + entryLine("tune"));
  state.OnlineSources.set(++state.OnlineSourceCount, QStringLiteral("disk"), QString());
  state.OnlineSources.set(++state.OnlineSourceCount, QStringLiteral("gone"), QString());
  LabelReadingMessages messages;
  RecordingShell shell;
  SearchForm form(state, messages, shell, QLocale::c());
  QString seen;
  messages.look = [&] {
    seen = form.controls().lblFound->text() + u'/' + form.controls().lblSearched->text();
  };
  form.controls().SearchStr->setText(QStringLiteral("tune"));
  form.controls().Find->click();
  EXPECT_EQ(seen, QStringLiteral("1/1"));
}

TEST_F(WindowRun, ClosingDuringARunEndsItWithoutSearchingOn) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 4500, "tune"));
  addMissingOnlineSource(QStringLiteral("gone"));
  addOnlineSource(QStringLiteral("second"), listingOf("SECOND", 2, "tune"));
  form();
  duringTheRun([&] { form().close(); });
  find(QStringLiteral("tune"));
  EXPECT_FALSE(form().isVisible());
  EXPECT_EQ(volumes().count(QStringLiteral("SECOND")), 0);
  EXPECT_LE(rows(), 2000);
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(WindowRun, TooManyWordsAreAFaultThatLeavesTheWindowUsable) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  find(QStringLiteral("tune"));
  controls().SearchStr->setText(QStringLiteral("a ").repeated(101) + u'a');
  pressFind();
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].startsWith(QStringLiteral("Run-time error '9': ")))
      << messages_.informed[0].toStdString();
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
  EXPECT_EQ(rows(), 2);
  find(QStringLiteral("tune"));
  EXPECT_EQ(rows(), 2);
}

TEST_F(WindowRun, DesiredMatchBeyondSixteenBitsIsCorrectedWithoutAWord) {
  type(controls().DesMatch, QStringLiteral("40000"));
  find(QStringLiteral("tune"));
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(controls().DesMatch->text(), QStringLiteral("100"));
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
}

}  // namespace

}  // namespace quorvin::test
