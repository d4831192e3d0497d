// SPDX-License-Identifier: GPL-2.0-or-later

// The main window by keys alone: searching, going through the hits, and doing something with one.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "hits/hit_list.h"
#include "search/hit_path.h"

#include <QClipboard>

namespace quorvin::test {

namespace {

class MainWindowKeys : public SearchFormTest {
 protected:
  /// Makes these files and lists them as an online source.
  void haveFiles(const QStringList& names) {
    QByteArray listing = blockHead("Music", listedFolder(files_.path(), nativePathStyle()).toUtf8());
    for (const QString& name : names) {
      files_.writeFile(name, "x");
      listing += entryLine(name.toUtf8());
    }
    addOnlineSource(QStringLiteral("Music"), listing);
    state_.OnlineSources.set(1, QStringLiteral("Music"), files_.path());
  }
  /// Searches and goes to the first hit.
  void goToHits(const QString& text) {
    form();
    typeText(text);
    press(Qt::Key_Return);
    tabTo("HitList");
    press(Qt::Key_Home);
  }
  QString openCall(const QString& name) {
    return QStringLiteral("open %1 in %2").arg(files_.pathOf(name), files_.path());
  }

  TemporaryFolder files_;
};

TEST_F(MainWindowKeys, TabReachesEveryControlAndComesBack) {
  haveFiles({QStringLiteral("a.txt")});
  form().frame().setWebUpdateEnabled(true);
  EXPECT_EQ(tabStops().toStdString(), "SearchStr DesMatch Find WebUpdate HitList");
}

TEST_F(MainWindowKeys, TheProgramStartsReadyToTypeAndEnterSearches) {
  haveFiles({QStringLiteral("one tune.txt"), QStringLiteral("two tune.txt"), QStringLiteral("song.txt")});
  form();
  typeText(QStringLiteral("tune"));
  press(Qt::Key_Return);
  EXPECT_EQ(rows(), 2);
}

TEST_F(MainWindowKeys, TheMatchIsReachedByItsLetterAndEnterSearchesFromThereToo) {
  haveFiles({QStringLiteral("one tune.txt"), QStringLiteral("two tune.txt")});
  form();
  typeText(QStringLiteral("two tune"));
  press(Qt::Key_M, Qt::AltModifier);
  EXPECT_EQ(focusName(), QStringLiteral("DesMatch"));
  typeOver(QStringLiteral("99"));
  press(Qt::Key_Return);
  EXPECT_EQ(rows(), 1);
  press(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(focusName(), QStringLiteral("SearchStr"));
}

TEST_F(MainWindowKeys, SpaceOnFindSearches) {
  haveFiles({QStringLiteral("tune.txt")});
  form();
  typeText(QStringLiteral("tune"));
  tabTo("Find");
  press(Qt::Key_Space);
  EXPECT_EQ(rows(), 1);
}

TEST_F(MainWindowKeys, EscStopsARun) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 20'000, "tune"));
  form();
  typeText(QStringLiteral("tune"));
  duringTheRun([] { press(Qt::Key_Escape); });
  press(Qt::Key_Return);
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
  EXPECT_LT(rows(), 20'000);
  EXPECT_TRUE(form().isVisible());
}

TEST_F(MainWindowKeys, ArrowsGoThroughTheHitsAndEnterOpensOne) {
  haveFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
  goToHits(QStringLiteral("txt"));
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  press(Qt::Key_End);
  press(Qt::Key_Return);
  EXPECT_EQ(shell_.calls,
            (std::vector{openCall(QStringLiteral("b.txt")), openCall(QStringLiteral("c.txt"))}));
}

TEST_F(MainWindowKeys, TheMenuOfAHitIsOpenedAndUsed) {
  haveFiles({QStringLiteral("a.mp3"), QStringLiteral("b.mp3")});
  goToHits(QStringLiteral("mp3"));
  press(Qt::Key_Down);
  press(Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_TRUE(form().itemMenu().menu->isVisible());
  press(Qt::Key_P);
  press(Qt::Key_F10, Qt::ShiftModifier);
  press(Qt::Key_F);
  press(Qt::Key_F10, Qt::ShiftModifier);
  press(Qt::Key_Down, {}, 3);
  press(Qt::Key_Return);
  EXPECT_EQ(
      shell_.calls,
      (std::vector{
          openCall(QStringLiteral("b.mp3")), QStringLiteral("open folder %1 at b.mp3").arg(files_.path()),
          QStringLiteral("enqueue %1 in %2").arg(files_.pathOf(QStringLiteral("b.mp3")), files_.path())}));
}

TEST_F(MainWindowKeys, TheMenuOfAHitIsLeftByEsc) {
  haveFiles({QStringLiteral("a.mp3")});
  goToHits(QStringLiteral("mp3"));
  press(Qt::Key_F10, Qt::ShiftModifier);
  press(Qt::Key_Escape);
  EXPECT_FALSE(form().itemMenu().menu->isVisible());
  EXPECT_EQ(focusName(), QStringLiteral("HitList"));
  EXPECT_TRUE(shell_.calls.empty());
}

TEST_F(MainWindowKeys, APictureIsPreviewedFromTheMenuOfItsHit) {
  haveFiles({QStringLiteral("cover.bmp")});
  QString shown;
  form().setPreviewOpener([&](const QString&, const QString& name) { shown = name; });
  goToHits(QStringLiteral("bmp"));
  press(Qt::Key_F10, Qt::ShiftModifier);
  press(Qt::Key_Down, {}, 3);
  press(Qt::Key_Return);
  EXPECT_EQ(shown, QStringLiteral("cover.bmp"));
}

TEST_F(MainWindowKeys, SeveralHitsAreSelectedAndTheirPathsCopied) {
  haveFiles({QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt")});
  goToHits(QStringLiteral("txt"));
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            files_.pathOf(QStringLiteral("a.txt")) + u'\n' + files_.pathOf(QStringLiteral("b.txt")));
}

TEST_F(MainWindowKeys, TheWebUpdateIsStarted) {
  state_.WebServer = QStringLiteral("127.0.0.1:1");
  state_.ArchiveFile = QStringLiteral("main.zip");
  form().frame().setWebUpdateEnabled(true);
  tabTo("WebUpdate");
  press(Qt::Key_Space);
  ASSERT_EQ(messages_.informed.size(), 1U);
  EXPECT_TRUE(messages_.informed[0].contains(QStringLiteral("Could not get an update.")));
}

TEST_F(MainWindowKeys, ControlQEndsTheProgram) {
  form();
  press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(form().isVisible());
}

}  // namespace

}  // namespace quorvin::test
