// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/volumes_job.h"

#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

class VolumesJobTest : public testing::Test {
 protected:
  VolumesJobTest() {
    state_.LocalFolder = data_.path();
    addListing(u"cd7.txt"_qs, test::blockHead("CD 7", "\\") + test::entryLine("film.avi", "2,048"));
  }
  void addListing(const QString& name, const QByteArray& listing) {
    state_.OfflineSources.set(++state_.OfflineSourceCount, name, data_.writeFile(name, listing));
  }

  TemporaryFolder data_;
  ProgramState state_;
};

TEST_F(VolumesJobTest, HasTheVolumesAndTheirSum) {
  VolumesJob job(sourcesOf(state_), {}, QLocale::c());
  job.run();
  ASSERT_TRUE(job.isComplete());
  ASSERT_EQ(job.volumes().size(), 1U);
  EXPECT_EQ(job.volumes()[0].name, u"CD 7"_qs);
  EXPECT_EQ(job.lines(), QStringList{u"1 volume: 1 file, 2.00 kB"_qs});
  EXPECT_EQ(job.progressText(), u"cd7.txt: 1 searched"_qs);
}

TEST_F(VolumesJobTest, SaysWhichListingsAreMissing) {
  addListing(u"gone.txt"_qs, {});
  addListing(u"gone too.txt"_qs, {});
  QFile::remove(data_.pathOf(u"gone.txt"_qs));
  QFile::remove(data_.pathOf(u"gone too.txt"_qs));
  VolumesJob job(sourcesOf(state_), {}, QLocale::c());
  job.run();
  EXPECT_TRUE(job.isComplete());
  EXPECT_EQ(job.lines(), (QStringList{u"1 volume: 1 file, 2.00 kB"_qs,
                                      u"Listing file not found: "_qs + data_.pathOf(u"gone.txt"_qs),
                                      u"and one more message"_qs}));
}

TEST_F(VolumesJobTest, AFaultIsASentenceAndThereIsNoResult) {
  VolumeFinder::Wish wish;
  wish.searchText = u"w"_qs + u" w"_qs.repeated(101);
  VolumesJob job(sourcesOf(state_), wish, QLocale::c());
  job.run();
  EXPECT_FALSE(job.isComplete());
  EXPECT_EQ(job.lines().size(), 1);
  EXPECT_TRUE(job.lines()[0].startsWith(u"Run-time error '9'"_qs)) << job.lines()[0].toStdString();
}

TEST_F(VolumesJobTest, IsNotCompleteOnceItIsStopped) {
  VolumesJob job(sourcesOf(state_), {}, QLocale::c());
  job.stop();
  job.run();
  EXPECT_TRUE(job.hasEnded());
  EXPECT_FALSE(job.isComplete());
}

}  // namespace
}  // namespace quorvin
