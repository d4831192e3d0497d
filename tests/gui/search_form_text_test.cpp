// SPDX-License-Identifier: GPL-2.0-or-later

// The box of the search text: earlier texts, by Down, by its button and behind what is typed.
#include "app/search_form_text.h"

#include "gui/keys.h"
#include "gui/search_form_fixture.h"

namespace quorvin::test {

namespace {

class SearchText : public SearchFormTest {
 protected:
  SearchTextEdit& box() { return *controls().SearchStr; }
  QString text() { return box().text(); }
  void search(const QStringList& texts) {
    for (const QString& text : texts) find(text);
    type(&box(), QString());
  }
  QStringList shownTexts() {
    QStringList texts;
    for (const QAction* item : box().historyMenu()->actions()) texts.append(item->text());
    return texts;
  }
  QStringList kept() { return form().view().settings().searches; }
};

TEST_F(SearchText, DownShowsEarlierTextsTheNewestFirst) {
  search({QStringLiteral("rock"), QStringLiteral("live & loud"), QStringLiteral("tune")});
  press(Qt::Key_Down);
  ASSERT_TRUE(box().historyMenu()->isVisible());
  EXPECT_EQ(shownTexts().join(u'|'), QStringLiteral("tune|live && loud|rock"));
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(text(), QStringLiteral("live & loud"));
  EXPECT_EQ(focusName(), QStringLiteral("SearchStr"));
}

TEST_F(SearchText, AnEarlierTextIsOnlySearchedForWhenTheUserAsksForIt) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  search({QStringLiteral("tune"), QStringLiteral("zebra")});
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(text(), QStringLiteral("tune"));
  EXPECT_EQ(rows(), 0);
  press(Qt::Key_Return);
  EXPECT_EQ(rows(), 2);
}

TEST_F(SearchText, EscLeavesTheEarlierTexts) {
  search({QStringLiteral("rock")});
  typeText(QStringLiteral("x"));
  press(Qt::Key_Down);
  press(Qt::Key_Escape);
  EXPECT_FALSE(box().historyMenu()->isVisible());
  EXPECT_EQ(text(), QStringLiteral("x"));
}

TEST_F(SearchText, TheButtonShowsThemToo) {
  form();
  EXPECT_FALSE(box().historyButton()->isVisible());
  press(Qt::Key_Down);
  EXPECT_FALSE(box().historyMenu()->isVisible()) << "there is nothing to show";
  search({QStringLiteral("rock")});
  ASSERT_TRUE(box().historyButton()->isVisible());
  QTest::mouseClick(box().historyButton(), Qt::LeftButton);
  EXPECT_TRUE(box().historyMenu()->isVisible());
  press(Qt::Key_Return);
  EXPECT_EQ(text(), QStringLiteral("rock"));
}

TEST_F(SearchText, TheButtonIsInTheBoxAndTheTextEndsInFrontOfIt) {
  search({QStringLiteral("rock")});
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    box().setLayoutDirection(direction);
    const QRect button = box().historyButton()->geometry();
    EXPECT_TRUE(box().rect().contains(button)) << direction;
    const QMargins margins = box().textMargins();
    EXPECT_EQ(direction == Qt::LeftToRight ? margins.right() : margins.left(), button.width()) << direction;
    EXPECT_EQ(direction == Qt::LeftToRight ? margins.left() : margins.right(), 0) << direction;
  }
}

TEST_F(SearchText, TheRestOfAnEarlierTextIsShownBehindWhatIsTypedAndIsNoPartOfIt) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  search({QStringLiteral("tune 1"), QStringLiteral("TUNE 2 zebra")});
  typeText(QStringLiteral("tu"));
  EXPECT_EQ(box().completion(), QStringLiteral("NE 2 zebra"));
  EXPECT_EQ(box().accessibleDescription(), QStringLiteral("Right adds \"NE 2 zebra\""));
  EXPECT_EQ(text(), QStringLiteral("tu"));
  press(Qt::Key_Return);
  EXPECT_EQ(rows(), 2) << "only what was typed is searched for";
  EXPECT_EQ(text(), QStringLiteral("tu"));
}

TEST_F(SearchText, RightAndEndAtTheEndTakeTheRest) {
  search({QStringLiteral("Rock live")});
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_End}) {
    typeOver(QStringLiteral("ro"));
    press(key);
    EXPECT_EQ(text(), QStringLiteral("Rock live")) << key;
    EXPECT_EQ(box().completion(), QString()) << key;
    EXPECT_EQ(box().accessibleDescription(), QString()) << key;
    press(key);
    EXPECT_EQ(text(), QStringLiteral("Rock live")) << key;
  }
}

TEST_F(SearchText, WithinTheTextTheKeysMoveTheCursor) {
  search({QStringLiteral("rock live")});
  typeText(QStringLiteral("ro"));
  press(Qt::Key_Home);
  EXPECT_EQ(box().completion(), QString());
  press(Qt::Key_Right);
  EXPECT_EQ(text(), QStringLiteral("ro"));
  EXPECT_EQ(box().cursorPosition(), 1);
  press(Qt::Key_End);
  EXPECT_EQ(text(), QStringLiteral("ro"));
  EXPECT_EQ(box().completion(), QStringLiteral("ck live"));
}

TEST_F(SearchText, TheRestIsPainted) {
  search({QStringLiteral("rock live at wembley")});
  typeText(QStringLiteral("rock"));
  const QImage with = box().grab().toImage();
  form().view().change([](ViewSettings& settings) { settings.searches = {QStringLiteral("other")}; });
  EXPECT_NE(box().grab().toImage(), with);
}

TEST_F(SearchText, TheRestStandsOnTheLineOfTheText) {
  // The rows of the picture in which there is text; nothing in it reaches as high or low as the cursor.
  const auto rowsOfText = [this](int left) {
    const QImage picture = box().grab().toImage();
    const QColor background = picture.pixelColor(box().width() / 2, box().height() / 2);
    std::pair<int, int> rows{picture.height(), -1};
    for (int y = 4; y < picture.height() - 4; ++y) {
      for (int x = left; x < left + 40; ++x) {
        if (picture.pixelColor(x, y) != background) rows = {std::min(rows.first, y), y};
      }
    }
    return rows;
  };
  search({QStringLiteral("xxxxxxxxxxxxxxxxxxxxxxxx")});
  typeText(QStringLiteral("xx"));
  const auto ofRest = rowsOfText(40);
  press(Qt::Key_Right);
  EXPECT_EQ(ofRest, rowsOfText(40));
}

TEST_F(SearchText, TextsAreKeptOnceTheNewestFirst) {
  search({QStringLiteral("rock"), QStringLiteral("live"), QStringLiteral("ROCK"), QStringLiteral(" ")});
  EXPECT_EQ(kept().join(u'|'), QStringLiteral("ROCK|live"));
}

TEST_F(SearchText, ATextThatReplacesAnotherDuringARunIsKeptToo) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 6000, "tune"));
  form();
  duringTheRun([this] {
    type(&box(), QStringLiteral("song"));
    press(Qt::Key_Return);
  });
  find(QStringLiteral("tune"));
  EXPECT_EQ(kept().join(u'|'), QStringLiteral("song|tune"));
}

TEST_F(SearchText, UndoStartsAnewAfterAThousandChanges) {
  form();
  box().setFocus();
  for (int i = 0; i < 1000; ++i) typeText(QStringLiteral("x"));
  ASSERT_TRUE(box().isUndoAvailable());
  box().setCursorPosition(500);
  typeText(QStringLiteral("y"));
  EXPECT_FALSE(box().isUndoAvailable());
  EXPECT_EQ(box().cursorPosition(), 501);
  typeText(QStringLiteral("z"));
  EXPECT_EQ(text(), QString(500, u'x') + QStringLiteral("yz") + QString(500, u'x'));
  box().undo();
  EXPECT_EQ(text(), QString(500, u'x') + u'y' + QString(500, u'x'));
}

TEST_F(SearchText, TheMenuClearsTheHistory) {
  search({QStringLiteral("rock")});
  press(Qt::Key_V, Qt::AltModifier);
  press(Qt::Key_H);
  EXPECT_EQ(kept(), QStringList());
  EXPECT_FALSE(box().historyButton()->isVisible());
  find(QStringLiteral("live"));
  EXPECT_EQ(kept(), QStringList{QStringLiteral("live")});
}

TEST_F(SearchText, NoneAreKeptAndTheKeptOnesForgottenWhenThatIsTurnedOff) {
  search({QStringLiteral("rock")});
  EXPECT_TRUE(form().menus().KeepSearchHistory->isChecked());
  press(Qt::Key_V, Qt::AltModifier);
  press(Qt::Key_K);
  EXPECT_FALSE(form().menus().KeepSearchHistory->isChecked());
  EXPECT_EQ(kept(), QStringList());
  search({QStringLiteral("live")});
  EXPECT_EQ(kept(), QStringList());
  form().menus().KeepSearchHistory->trigger();
  search({QStringLiteral("tune")});
  EXPECT_EQ(kept(), QStringList{QStringLiteral("tune")});
}

TEST_F(SearchText, TheNextStartKnowsWhatTheLastOneKept) {
  int changes = 0;
  form().view().setChangeHandler([&] { ++changes; });
  search({QStringLiteral("rock")});
  EXPECT_EQ(changes, 1);
  const ViewSettings settings = form().view().settings();
  SearchForm next(state_, messages_, shell_, QLocale::c());
  next.view().take(settings);
  EXPECT_FALSE(next.controls().SearchStr->historyButton()->isHidden());
  next.controls().SearchStr->showHistory();
  ASSERT_EQ(next.controls().SearchStr->historyMenu()->actions().size(), 1);
  EXPECT_EQ(next.controls().SearchStr->historyMenu()->actions()[0]->text(), QStringLiteral("rock"));
}

}  // namespace

}  // namespace quorvin::test
