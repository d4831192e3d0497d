// SPDX-License-Identifier: GPL-2.0-or-later

// What is done with a hit, seen from what the shell is asked for.
#include "hits/hit_actions.h"

#include "support/qt_printing.h"
#include "support/recording_message_boxes.h"
#include "support/recording_shell.h"

#include <gtest/gtest.h>

namespace quorvin::test {

namespace {

TEST(ItemMenuContentOfAFile, PicturesArePreviewedAndMusicIsQueued) {
  const ItemMenuContent picture{true, false};
  const ItemMenuContent music{false, true};
  const ItemMenuContent neither{false, false};
  EXPECT_EQ(itemMenuContent(u"Holiday.JPG"), picture);
  EXPECT_EQ(itemMenuContent(u"song.MP3"), music);
  EXPECT_EQ(itemMenuContent(u"notes.txt"), neither);
  for (const char16_t* name : {u"a.wmf", u"a.emf", u"a.bmp", u"a.jpg", u"a.gif", u".gif"}) {
    EXPECT_EQ(itemMenuContent(name), picture);
  }
  EXPECT_EQ(itemMenuContent(u"a.wav"), music);
}

TEST(ItemMenuContentOfAFile, ExtensionsOfOtherLengthsNeverFit) {
  const ItemMenuContent neither{false, false};
  for (const char16_t* name : {u"a.jpeg", u"a.png", u"mp3", u"wav", u"amp3", u"a.mp3 ", u"", u"jpg"}) {
    EXPECT_EQ(itemMenuContent(name), neither);
  }
}

class HitActionsTest : public testing::Test {
 protected:
  HitActionsTest() {
    state_.OnlineSources.set(++state_.OnlineSourceCount, QStringLiteral("Music"),
                             QStringLiteral("D:\\Music\\"));
    hit_.volume = QStringLiteral("Music");
    hit_.folder = QStringLiteral("\\Music\\Rock\\");
    hit_.name = QStringLiteral("song.mp3");
  }
  QString lookUp(const QString& pattern) {
    if (lookUpFault_) throw RuntimeFault(*lookUpFault_);
    const bool fits = pattern == wanted_ || pattern == QStringLiteral("D:\\Music\\Rock\\") + found_;
    return fits ? found_ : QString();
  }
  HitActions actions() {
    return HitActions(state_, shell_, messages_, kWindowsPaths,
                      [this](const QString& pattern) { return lookUp(pattern); });
  }
  void doEverything() {
    actions().launch(hit_);
    actions().openFolder(hit_);
    actions().enqueue(hit_);
  }

  ProgramState state_;
  RecordingShell shell_;
  RecordingMessageBoxes messages_;
  HitRow hit_;
  QString wanted_ = QStringLiteral("D:\\Music\\Rock\\song.mp3");
  QString found_ = QStringLiteral("song.mp3");
  std::optional<RuntimeFault> lookUpFault_;
};

TEST_F(HitActionsTest, LaunchOpensTheFileInItsFolder) {
  actions().launch(hit_);
  EXPECT_EQ(shell_.calls, std::vector{QStringLiteral("open D:\\Music\\Rock\\song.mp3 in D:\\Music\\Rock\\")});
}

TEST_F(HitActionsTest, OpenFolderShowsTheFileInItsFolder) {
  actions().openFolder(hit_);
  EXPECT_EQ(shell_.calls, std::vector{QStringLiteral("open folder D:\\Music\\Rock\\ at song.mp3")});
}

TEST_F(HitActionsTest, EnqueueHandsTheFileToAPlayer) {
  actions().enqueue(hit_);
  EXPECT_EQ(shell_.calls,
            std::vector{QStringLiteral("enqueue D:\\Music\\Rock\\song.mp3 in D:\\Music\\Rock\\")});
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(HitActionsTest, TheRealNameIsUsedForACutOne) {
  hit_.name = QString(65, u'n');
  wanted_ = QStringLiteral("D:\\Music\\Rock\\") + hit_.name + u'*';
  found_ = QString(70, u'n') + QStringLiteral(".mp3");
  actions().launch(hit_);
  EXPECT_EQ(shell_.calls,
            std::vector{QStringLiteral("open D:\\Music\\Rock\\%1 in D:\\Music\\Rock\\").arg(found_)});
}

TEST_F(HitActionsTest, HitsOfOtherListingsDoNothing) {
  hit_.kind = SourceKind::MainDataFile;
  doEverything();
  hit_.kind = SourceKind::Offline;
  doEverything();
  EXPECT_TRUE(shell_.calls.empty());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(HitActionsTest, AVolumeWithoutSourceDoesNothing) {
  hit_.volume = QStringLiteral("music");
  doEverything();
  EXPECT_TRUE(shell_.calls.empty());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(HitActionsTest, AFileThatIsGoneDoesNothing) {
  found_.clear();
  doEverything();
  EXPECT_TRUE(shell_.calls.empty());
  EXPECT_TRUE(messages_.informed.empty());
}

TEST_F(HitActionsTest, Fault52OfTheShellNamesTheFile) {
  shell_.fault = RuntimeFault(FaultNumber::BadFileName);
  doEverything();
  const QString told = QStringLiteral(
      "Bad file name Launching: D:\\Music\\Rock\\song.mp3\r\n"
      "The file may have been renamed, deleted or moved. Try rescanning the file lists.");
  EXPECT_EQ(messages_.informed, (std::vector{told, told, told}));
}

TEST_F(HitActionsTest, OtherFaultsOfTheShellTellNumberAndDescription) {
  shell_.fault = RuntimeFault(FaultNumber::FileNotFound, QStringLiteral("File not found: x"));
  doEverything();
  const QString told = QStringLiteral("Launch Error: 53File not found: x");
  EXPECT_EQ(messages_.informed, (std::vector{told, told, told}));
}

TEST_F(HitActionsTest, Fault52OfTheLookUpIsToldOnceAndEndsTheAction) {
  lookUpFault_ = RuntimeFault(FaultNumber::BadFileName);
  actions().launch(hit_);
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral(
                "Bad file name Launching: D:\\Music\\Rock\\song.mp3\r\n"
                "The file may have been renamed, deleted or moved. Try rescanning the file lists.")});
  EXPECT_TRUE(shell_.calls.empty());
}

TEST_F(HitActionsTest, ANameThatNoFileCanHaveIsFault52) {
  hit_.name = QStringLiteral("a|b");
  EXPECT_TRUE(actions().resolve(hit_).isEmpty());
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral(
                "Bad file name Launching: D:\\Music\\Rock\\a|b\r\n"
                "The file may have been renamed, deleted or moved. Try rescanning the file lists.")});
}

TEST_F(HitActionsTest, OtherFaultsOfTheResolverTellNumberAndDescription) {
  state_.OnlineSources.set(1, QStringLiteral("Music"), QString());
  EXPECT_TRUE(actions().resolve(hit_).isEmpty());
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral("Launch Error: 5Invalid procedure call or argument")});
}

TEST_F(HitActionsTest, AQuietLookTellsNoFault) {
  lookUpFault_ = RuntimeFault(FaultNumber::BadFileName);
  const auto theirLookUp = [this](const QString& pattern) { return lookUp(pattern); };
  EXPECT_TRUE(actions().resolveQuietly(hit_, theirLookUp).isEmpty());
  EXPECT_TRUE(messages_.informed.empty());
  lookUpFault_.reset();
  EXPECT_EQ(actions().resolveQuietly(hit_, theirLookUp).fullPath(),
            QStringLiteral("D:\\Music\\Rock\\song.mp3"));
}

TEST_F(HitActionsTest, WithoutAPlayerOneMessageSaysSo) {
  shell_.outcome = EnqueueOutcome::NoPlayer;
  actions().enqueue(hit_);
  EXPECT_EQ(messages_.informed,
            std::vector{QStringLiteral(
                "No audio player was found. Install one of Audacious, VLC, Strawberry, Clementine, DeaDBeeF "
                "or Rhythmbox, or set EnqueueCommand in the settings to the command of your player.")});
}

TEST_F(HitActionsTest, APlayerThatCannotBeStartedIsTold) {
  shell_.outcome = EnqueueOutcome::NotStarted;
  actions().enqueue(hit_);
  EXPECT_EQ(messages_.informed, std::vector{QStringLiteral(
                                    "The audio player could not be started. Please check the command in the "
                                    "setting EnqueueCommand.")});
}

}  // namespace

}  // namespace quorvin::test
