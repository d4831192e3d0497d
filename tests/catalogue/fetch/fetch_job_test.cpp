// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/fetch/fetch_job.h"

#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::blockHead;
using test::entryLine;

class FetchJobTest : public testing::Test {
 protected:
  FetchJobTest() {
    const QString listing = folder_.writeFile(
        u"one.txt"_qs, blockHead("CD 1", "\\Films\\") + entryLine("film.avi", "734,003,200"));
    sources_.OfflineSources.set(1, u"one"_qs, QString(listing));
    sources_.OfflineSourceCount = 1;
    wanted_.add(u"FILM.AVI"_qs, 734'003'200);
    wanted_.add(u"gone.txt"_qs, std::nullopt);
  }

  TemporaryFolder folder_;
  ProgramState sources_;
  WantedFiles wanted_;
};

TEST_F(FetchJobTest, MakesThePlanAndSaysWhatThereIsToSay) {
  FetchJob job(sources_, std::move(wanted_), QLocale::c());
  job.run();
  ASSERT_TRUE(job.isComplete());
  ASSERT_EQ(job.finder().plan().volumes.size(), 1U);
  EXPECT_EQ(job.finder().plan().missing.size(), 1U);
  EXPECT_EQ(job.lines(), (QStringList{u"Volumes to insert: 1. To copy: 1 file, 700.00 MB"_qs,
                                      u"There is no way with fewer volumes"_qs, u"Not found: 1"_qs}));
  EXPECT_EQ(job.progressText(), u"1 searched"_qs);
}

TEST_F(FetchJobTest, HasNoPlanWhenItIsStopped) {
  FetchJob job(sources_, std::move(wanted_), QLocale::c());
  job.stop();
  job.run();
  EXPECT_TRUE(job.hasEnded());
  EXPECT_FALSE(job.isComplete());
}

}  // namespace
}  // namespace quorvin
