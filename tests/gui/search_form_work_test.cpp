// SPDX-License-Identifier: GPL-2.0-or-later

// Long jobs beside each other, in the real window.
#include "archive/archive_maker.h"
#include "gui/search_form_fixture.h"
#include "preview/res_win.h"
#include "state/source_list_file.h"
#include "update/scripted_web_server.h"

namespace quorvin::test {

namespace {

/// Bytes that no packing makes smaller.
class WindowWork : public SearchFormTest {
 protected:
  WindowWork() {
    state_.ArchiveFile = QStringLiteral("main.zip");
    // As after a start that has read everything.
    readSettings(settings_, state_, 0, QLocale(QLocale::English, QLocale::UnitedStates));
    loadSourceLists(state_);
    folder_.writeFile(QStringLiteral("any.txt"), "x");
    for (int number = 1; number <= 200; ++number) {
      files_.writeFile(QStringLiteral("folder %1/song.mp3").arg(number), "x");
    }
    addOnlineFolder(QStringLiteral("Music"), files_.path());
  }

  /// Does `action` once, as soon as events run while `condition` holds.
  void when(std::function<bool()> condition, std::function<void()> action) {
    QTimer::singleShot(0, &form(), [this, condition = std::move(condition), action = std::move(action)] {
      if (condition()) return action();
      when(condition, action);
    });
  }
  bool progressIsShown() { return form().progress().isVisible(); }
  QPushButton* cancelButton() {
    return form().progress().findChild<QPushButton*>(QStringLiteral("CancelButton"));
  }
  bool isListed() { return folder_.has(QStringLiteral("Music.txt")); }

  TemporaryFolder files_;
};

class WindowUpdate : public WindowWork {
 protected:
  WindowUpdate() {
    const QByteArray archive = archiveOf("main.txt", madeNoise(1 << 20));
    server_.emplace(std::vector{sends(goodAnswer(archive))});
    state_.WebServer = server_->host();
    messages_.answers = {true};
  }
  void update() {
    form().frame().setWebUpdateEnabled(true);
    QTest::mouseClick(controls().WebUpdate, Qt::LeftButton);
  }

  std::optional<ScriptedWebServer> server_;
};

TEST_F(WindowUpdate, ARescanMeanwhileIsRefusedAndProgressStaysUntilTheUpdateHasEnded) {
  std::vector<QString> told;
  bool wasShown = false;
  bool couldBeCancelled = false;
  when([this] { return progressIsShown(); },
       [&] {
         form().menus().ReScan->trigger();
         told = messages_.informed;
         wasShown = progressIsShown();
         couldBeCancelled = cancelButton()->isEnabled();
       });
  update();
  EXPECT_EQ(told, std::vector<QString>{QStringLiteral(
                      "A web update is running. The rescan can be started when that has ended.")});
  EXPECT_TRUE(wasShown);
  EXPECT_TRUE(couldBeCancelled);
  EXPECT_FALSE(isListed());
  EXPECT_FALSE(progressIsShown());
  EXPECT_EQ(folder_.readFile(QStringLiteral("main.txt")), madeNoise(1 << 20));
  EXPECT_TRUE(controls().WebUpdate->isEnabled());
  EXPECT_TRUE(form().menus().ReScan->isEnabled());
  form().menus().ReScan->trigger();
  EXPECT_TRUE(isListed());
}

TEST_F(WindowUpdate, AfterTheRefusalTheUpdateCanStillBeCancelled) {
  when([this] { return progressIsShown(); },
       [&] {
         form().menus().ReScan->trigger();
         cancelButton()->click();
       });
  update();
  EXPECT_FALSE(progressIsShown());
  EXPECT_FALSE(folder_.has(QStringLiteral("main.zip")));
  EXPECT_FALSE(state_.AbortRequested);
  EXPECT_FALSE(controls().WebUpdate->isEnabled());
  EXPECT_EQ(controls().WebUpdate->toolTip(),
            QStringLiteral("The update was cancelled. It can be started again when the program is started "
                           "again."));
}

TEST_F(WindowUpdate, ASearchMeanwhileRunsAndTakesNoCancelAway) {
  addOnlineSource(QStringLiteral("Films"), listingOf("Films", 9000, "film"));
  when([this] { return progressIsShown(); },
       [&] {
         cancelButton()->click();
         find(QStringLiteral("film"));
         EXPECT_FALSE(state_.AbortRequested) << "the scan clears the flag";
       });
  update();
  EXPECT_FALSE(folder_.has(QStringLiteral("main.zip"))) << "the download was not cancelled";
  EXPECT_FALSE(controls().WebUpdate->isEnabled());
}

TEST_F(WindowUpdate, IsRefusedDuringARescanWhoseCancelStays) {
  std::vector<QString> told;
  when([this] { return state_.RescanRunning; },
       [&] {
         cancelButton()->click();
         update();
         told = messages_.informed;
         EXPECT_TRUE(state_.AbortRequested);
         EXPECT_FALSE(cancelButton()->isEnabled());
       });
  // The listing is incomplete, which the results say.
  when([] { return qobject_cast<ResWin*>(QApplication::activeModalWidget()) != nullptr; },
       [] { QApplication::activeModalWidget()->close(); });
  form().menus().ReScan->trigger();
  EXPECT_EQ(told, std::vector<QString>{QStringLiteral("The local folders are being rescanned. The web update "
                                                      "can be started when that has ended.")});
  EXPECT_EQ(server_->requests.size(), 0U);
  EXPECT_LT(folder_.readFile(QStringLiteral("Music.txt")).count("Directory: "), 201);
}

TEST_F(WindowUpdate, IsRefusedDuringASearch) {
  addOnlineSource(QStringLiteral("Films"), listingOf("Films", 9000, "film"));
  std::vector<QString> told;
  form();
  duringTheRun([&] {
    update();
    told = messages_.informed;
  });
  folder_.writeFile(QStringLiteral("Music.txt"), "");
  find(QStringLiteral("film"));
  EXPECT_EQ(told, std::vector<QString>{QStringLiteral(
                      "A search is running. The web update can be started when that has ended.")});
}

TEST_F(WindowUpdate, ClosingMeanwhileEndsIt) {
  when([this] { return progressIsShown(); }, [&] { form().close(); });
  update();
  EXPECT_FALSE(form().isVisible());
  EXPECT_FALSE(progressIsShown());
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_FALSE(folder_.has(QStringLiteral("main.txt")));
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(WindowWork, ARescanThatIsAskedForDuringASearchFollowsIt) {
  addOfflineSource(QStringLiteral("Films.txt"), listingOf("Films", 9000, "film"));
  folder_.writeFile(QStringLiteral("Music.txt"), "");
  bool ranDuringTheSearch = false;
  form();
  duringTheRun([&] {
    form().menus().ReScan->trigger();
    ranDuringTheSearch = state_.RescanRunning || !folder_.readFile(QStringLiteral("Music.txt")).isEmpty();
  });
  find(QStringLiteral("film"));
  EXPECT_FALSE(ranDuringTheSearch);
  EXPECT_EQ(folder_.readFile(QStringLiteral("Music.txt")).count("Directory: "), 201);
  EXPECT_EQ(controls().Find->text(), QStringLiteral("Find"));
}

class WindowExtraction : public WindowWork {
 protected:
  WindowExtraction() {
    state_.TextFile = QStringLiteral("main.txt");
    archive_ = folder_.writeFile(QStringLiteral("main.zip"), archiveOf("main.txt", QByteArray(8 << 20, 'x')));
  }
  void extract() { form().jobs().extractDataFile(archive_, folder_.path()); }

  QString archive_;
};

TEST_F(WindowExtraction, ClosingMeanwhileSavesAndEnds) {
  when([this] { return progressIsShown(); }, [&] { form().close(); });
  extract();
  EXPECT_FALSE(form().isVisible());
  EXPECT_FALSE(progressIsShown());
  EXPECT_TRUE(settings_.has(QStringLiteral("Ketta Quorvin"), QStringLiteral("Top")));
  EXPECT_EQ(folder_.readFile(QStringLiteral("Locations.txt")),
            QByteArray("\"Music\",\"" + files_.path().toUtf8() + "\"\r\n"));
  EXPECT_TRUE(folder_.has(QStringLiteral("OfflineLocations.txt")));
  EXPECT_TRUE(state_.ShuttingDown);
  EXPECT_TRUE(state_.QuitPending);
  EXPECT_FALSE(folder_.has(QStringLiteral("main.txt")));
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(WindowExtraction, ARescanMeanwhileIsRefused) {
  when([this] { return progressIsShown(); }, [&] { form().menus().ReScan->trigger(); });
  extract();
  EXPECT_EQ(messages_.informed,
            std::vector<QString>{QStringLiteral("The main data file is being unpacked. The rescan can be "
                                                "started when that has ended.")});
  EXPECT_EQ(folder_.readFile(QStringLiteral("main.txt")).size(), 8 << 20);
  EXPECT_FALSE(isListed());
}

TEST_F(WindowWork, AWebUpdateThatCannotBeUsedSaysWhatItTakes) {
  form().frame().setWebUpdateEnabled(false);
  EXPECT_FALSE(controls().WebUpdate->isEnabled());
  EXPECT_EQ(controls().WebUpdate->toolTip(),
            QStringLiteral("To use the web update, fill in the web server and the archive in File, Options, "
                           "and start the program again."));
  form().frame().setWebUpdateEnabled(true);
  EXPECT_TRUE(controls().WebUpdate->isEnabled());
  EXPECT_EQ(controls().WebUpdate->toolTip(), QString());
}

}  // namespace

}  // namespace quorvin::test
