// SPDX-License-Identifier: GPL-2.0-or-later

// Getting the main data file out of its archive at start-up.
#include "archive/archive_maker.h"
#include "support/fault_number.h"
#include "update/web_update.h"
#include "update/web_update_fixture.h"

namespace quorvin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DataFileExtractionTest : public testing::Test {
 protected:
  void extract(const QByteArray& archive) {
    const QString path = data_.writeFile(u"main.zip"_qs, archive);
    std::optional<Job> job = work_.start(JobKind::Extraction);
    ASSERT_TRUE(job);
    extractDataFile(*job, path, data_.path(), boxes_, ProtectedFiles(state_, data_.path(), {}));
  }

  TemporaryFolder data_;
  ProgramState state_;
  RecordingWorkDisplay view_;
  Work work_{state_, view_};
  RecordingMessageBoxes boxes_;
};

TEST_F(DataFileExtractionTest, ShowsItsProgressAndUnpacksEverything) {
  MadeEntry main;
  main.name = "main.txt";
  main.content = "content";
  MadeEntry other = main;
  other.name = "other/notes.txt";
  extract(archiveOf({main, other}));
  EXPECT_EQ(view_.log, QStringList({u"progress shown"_qs, u"status Decompressing Compressed Data File."_qs,
                                    u"maximum 100"_qs, u"bar 0"_qs, u"bar 0"_qs, u"bar 50"_qs, u"bar 100"_qs,
                                    u"progress unloaded"_qs}));
  EXPECT_EQ(data_.readFile(u"main.txt"_qs), QByteArray("content"));
  EXPECT_EQ(data_.readFile(u"other/notes.txt"_qs), QByteArray("content"));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataFileExtractionTest, DoesNotMindThatNoDataFileCameOut) {
  extract(archiveOf("else.txt", "content"));
  EXPECT_EQ(data_.names(), QStringList({u"else.txt"_qs, u"main.zip"_qs}));
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataFileExtractionTest, TellsWhatIsWrongWithTheArchiveAndFails) {
  try {
    extract("no archive");
    ADD_FAILURE() << "nothing was wrong";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 75);
    EXPECT_EQ(fault.description(),
              u"Path/File access error: "_qs + data_.pathOf(u"main.zip"_qs) + u" could not be unpacked"_qs);
  }
  EXPECT_THAT(boxes_.informed, ElementsAre(u"Archive Error: \"main.zip\" is no zip archive, or its end is "
                                           u"missing. Nothing was unpacked."_qs));
  EXPECT_FALSE(view_.isShown);
}

TEST_F(DataFileExtractionTest, FailsWhereAFileCannotBeWritten) {
  data_.writeFile(u"main.txt/inside.txt"_qs, "mine");
  EXPECT_FAULT(extract(archiveOf("main.txt", "content")), 75);
  EXPECT_FALSE(view_.isShown);
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataFileExtractionTest, IsEndedByTheClosingOfTheProgramAndTheRequestStaysForOthers) {
  view_.onEvents = [this] {
    state_.AbortRequested = true;
    state_.QuitPending = true;
  };
  extract(archiveOf("main.txt", QByteArray(1 << 20, 'x')));
  EXPECT_EQ(data_.names(), QStringList{u"main.zip"_qs});
  EXPECT_TRUE(state_.AbortRequested);
  EXPECT_THAT(boxes_.informed, IsEmpty());
}

TEST_F(DataFileExtractionTest, IsEndedByTheUserWithoutAFault) {
  view_.onEvents = [this] { state_.AbortRequested = true; };
  extract(archiveOf("main.txt", QByteArray(1 << 20, 'x')));
  EXPECT_EQ(data_.names(), QStringList{u"main.zip"_qs});
  EXPECT_FALSE(state_.AbortRequested);
  EXPECT_FALSE(view_.isShown);
}

TEST_F(DataFileExtractionTest, LeavesOutSourceListsAndSaysSo) {
  MadeEntry main;
  main.name = "main.txt";
  main.content = "content";
  MadeEntry list = main;
  list.name = "OfflineLocations.txt";
  extract(archiveOf({list, main}));
  EXPECT_EQ(data_.names(), QStringList({u"main.txt"_qs, u"main.zip"_qs}));
  EXPECT_THAT(boxes_.informed,
              ElementsAre(u"These files of the archive were left out, since they would have replaced your "
                          u"source lists, your settings, your listing history, or the program itself:\r\n"
                          u"OfflineLocations.txt"_qs));
}

}  // namespace
}  // namespace quorvin::test
