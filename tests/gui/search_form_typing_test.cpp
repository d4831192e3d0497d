// SPDX-License-Identifier: GPL-2.0-or-later

// Searching while the words are being typed.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "support/timer_tick.h"

#include <chrono>

namespace quorvin::test {

namespace {

class Typing : public SearchFormTest {
 protected:
  /// Makes the window search while typing, with the text box ready for keys. The pause after the last key
  /// ends by waitForIt() alone, however busy the machine is.
  void startTyping() {
    form().menus().SearchWhileTyping->trigger();
    pause().setInterval(std::chrono::hours(1));
    controls().SearchStr->setFocus();
  }
  QTimer& pause() { return timerOf(form(), QStringLiteral("TypingPause")); }
  /// Nothing was typed for long enough.
  void waitForIt() { tick(pause()); }
  QString status() { return form().findChild<QLabel*>(QStringLiteral("StatusText"))->text(); }
  void addMissingOfflineSource() {
    state_.OfflineSources.set(++state_.OfflineSourceCount, QStringLiteral("cd"),
                              folder_.pathOf(QStringLiteral("gone.lst")));
  }
};

TEST_F(Typing, SearchesNothingUntilItIsTurnedOn) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  form();
  EXPECT_FALSE(form().menus().SearchWhileTyping->isChecked());
  typeText(QStringLiteral("tune"));
  EXPECT_FALSE(pause().isActive());
  press(Qt::Key_V, Qt::AltModifier);
  press(Qt::Key_T);
  EXPECT_TRUE(form().menus().SearchWhileTyping->isChecked());
  EXPECT_TRUE(form().view().settings().searchWhileTyping);
  press(Qt::Key_Backspace);
  EXPECT_EVENTUALLY(rows() == 2);
  EXPECT_EQ(pause().interval(), 80);
}

TEST_F(Typing, IsOnAgainAtTheNextStart) {
  ViewSettings settings;
  settings.searchWhileTyping = true;
  form().view().take(settings);
  EXPECT_TRUE(form().menus().SearchWhileTyping->isChecked());
  typeText(QStringLiteral("t"));
  EXPECT_TRUE(pause().isActive());
}

TEST_F(Typing, SearchesAgainWithEachPause) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 12, "tune"));
  startTyping();
  typeText(QStringLiteral("tu"));
  waitForIt();
  EXPECT_EQ(rows(), 12);
  typeText(QStringLiteral("ne 12"));
  EXPECT_EQ(rows(), 12) << "not before the pause";
  waitForIt();
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
  EXPECT_FALSE(pause().isActive());
  press(Qt::Key_Backspace, {}, 3);
  waitForIt();
  EXPECT_EQ(rows(), 12);
}

TEST_F(Typing, TellsNothingAndEnterTells) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  addMissingOfflineSource();
  startTyping();
  typeText(QStringLiteral("tune"));
  waitForIt();
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(status(), QStringLiteral("2 hits  ·  1 listing missing"));
  press(Qt::Key_Return);
  EXPECT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(rows(), 2);
}

TEST_F(Typing, AKeyDuringARunEndsItAndAnotherFollows) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  addOnlineSource(QStringLiteral("second"), listingOf("SECOND", 6000, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  duringTheRun([] { typeText(QStringLiteral(" 5999")); });
  waitForIt();
  EXPECT_EQ(searched(), QStringLiteral("2,000"));
  EXPECT_EQ(status(), QStringLiteral("2,000 hits")) << "nobody has stopped it";
  EXPECT_FALSE(state_.AbortRequested);
  ASSERT_TRUE(pause().isActive());
  waitForIt();
  EXPECT_EQ(volumes().join(u','), QStringLiteral("FIRST,SECOND"));
}

TEST_F(Typing, AKeyEndsARunThatWasAskedForToo) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  duringTheRun([] { typeText(QStringLiteral(" 5999")); });
  press(Qt::Key_Return);
  EXPECT_EQ(searched(), QStringLiteral("2,000"));
  waitForIt();
  EXPECT_EQ(rows(), 1);
}

TEST_F(Typing, APauseThatEndsWithinTheRunIsNotLost) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  duringTheRun([this] {
    typeText(QStringLiteral(" 5999"));
    waitForIt();
  });
  waitForIt();
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
}

TEST_F(Typing, EnterDuringTheRunOfTheSameTextAsksForIt) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  addMissingOfflineSource();
  startTyping();
  typeText(QStringLiteral("tune"));
  duringTheRun([] { press(Qt::Key_Return); });
  waitForIt();
  EXPECT_EQ(rows(), 6000);
  EXPECT_EQ(messages_.informed.size(), 1U);
  EXPECT_EQ(form().view().settings().searches, QStringList{QStringLiteral("tune")});
}

TEST_F(Typing, EnterBeforeThePauseIsOneRun) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 3, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  press(Qt::Key_Return);
  EXPECT_EQ(rows(), 3);
  EXPECT_FALSE(pause().isActive());
}

TEST_F(Typing, EscStopsARunAndTheLineSaysSo) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  duringTheRun([] { press(Qt::Key_Escape); });
  waitForIt();
  EXPECT_EQ(status(), QStringLiteral("2,000 hits  ·  stopped after 0 of 1 listing"));
}

TEST_F(Typing, LeavesWhatIsTypedInTheMatchAlone) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 3, "tune"));
  startTyping();
  typeText(QStringLiteral("tune zebra"));
  press(Qt::Key_M, Qt::AltModifier);
  typeOver(QStringLiteral("-20"));
  waitForIt();
  EXPECT_EQ(controls().DesMatch->text(), QStringLiteral("-20"));
  EXPECT_EQ(rows(), 3);
  press(Qt::Key_Return);
  EXPECT_EQ(controls().DesMatch->text(), QStringLiteral("1"));
}

TEST_F(Typing, AnEmptyBoxSearchesNothingAndLeavesTheHits) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 3, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  waitForIt();
  press(Qt::Key_Backspace, {}, 4);
  waitForIt();
  EXPECT_EQ(rows(), 3);
  EXPECT_EQ(status(), QStringLiteral("3 hits"));
}

TEST_F(Typing, ARunThatAnEmptiedBoxHasEndedSaysSo) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 6000, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  duringTheRun([] { press(Qt::Key_Backspace, {}, 4); });
  waitForIt();
  waitForIt();
  EXPECT_EQ(status(), QStringLiteral("2,000 hits  ·  stopped after 0 of 1 listing"));
}

TEST_F(Typing, TooManyWordsAreSaidInTheLine) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 3, "tune"));
  startTyping();
  controls().SearchStr->setText(QStringLiteral("a ").repeated(101));
  typeText(QStringLiteral("a"));
  waitForIt();
  EXPECT_TRUE(messages_.informed.empty());
  EXPECT_EQ(status(), QStringLiteral("not searched: more than 101 words"));
}

TEST_F(Typing, OnlyTextsThatWereAskedForAreKept) {
  startTyping();
  typeText(QStringLiteral("tune"));
  waitForIt();
  EXPECT_EQ(form().view().settings().searches, QStringList());
  press(Qt::Key_Return);
  EXPECT_EQ(form().view().settings().searches, QStringList{QStringLiteral("tune")});
}

TEST_F(Typing, AnEarlierTextThatIsChosenIsSearchedForAtOnceAndItsRestOnlyWhenTaken) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 12, "tune"));
  startTyping();
  find(QStringLiteral("tune 12"));
  type(controls().SearchStr, QStringLiteral("tu"));
  waitForIt();
  EXPECT_EQ(rows(), 12);
  press(Qt::Key_Right);
  waitForIt();
  EXPECT_EQ(rows(), 1);
}

TEST_F(Typing, ClosingWithinThePauseSearchesNoMore) {
  addOnlineSource(QStringLiteral("first"), listingOf("FIRST", 12, "tune"));
  startTyping();
  typeText(QStringLiteral("tune"));
  form().close();
  waitForIt();
  EXPECT_EQ(rows(), 0);
}

}  // namespace

}  // namespace quorvin::test
