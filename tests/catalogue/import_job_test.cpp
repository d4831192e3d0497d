// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/import_job.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quorvin::test {
namespace {

class ImportJobs : public testing::Test {
 protected:
  ImportJobs() { folder_.makeFolder(u"out"_qs); }

  ImportJob jobOf(const QStringList& names) const {
    QStringList lists;
    for (const QString& name : names) lists += folder_.pathOf(name);
    return {lists,
            ImportChoices{{}, folder_.pathOf(u"out"_qs)},
            {u"Format"_qs, u"Dates"_qs, u"Encoding"_qs, u"Made"_qs}};
  }
  QString at(const QString& name) const { return folder_.pathOf(name); }

  TemporaryFolder folder_;
};

TEST_F(ImportJobs, TellOfEachListAndGoOnAfterOneThatIsRefused) {
  folder_.writeFile(u"one.lst"_qs, "./a/x\n");
  folder_.writeFile(u"two.lst"_qs, "./b/y\n./b/z\n");
  ImportJob job = jobOf({u"one.lst"_qs, u"gone.lst"_qs, u"two.lst"_qs});
  EXPECT_FALSE(job.hasEnded());
  job.run();
  EXPECT_TRUE(job.hasEnded());
  EXPECT_FALSE(job.isWhole());
  EXPECT_EQ(job.places(), (QStringList{at(u"out/one.txt"_qs), at(u"out/two.txt"_qs)}));
  const QString remarks = u"\n  files without an exact size: %1\n  files without a date: %1\n"_qs;
  const QString said = job.sentences().join(u'\n');
  EXPECT_TRUE(said.startsWith(at(u"one.lst"_qs) + u": read as paths; "_qs + at(u"out/one.txt"_qs) +
                              u" has 1 files, 1 folders"_qs + remarks.arg(1)))
      << said.toStdString();
  EXPECT_TRUE(said.contains(at(u"gone.lst"_qs))) << said.toStdString();
  EXPECT_TRUE(said.endsWith(at(u"two.lst"_qs) + u": read as paths; "_qs + at(u"out/two.txt"_qs) +
                            u" has 2 files, 1 folders"_qs + remarks.arg(2).chopped(1)))
      << said.toStdString();
  EXPECT_EQ(job.progress().list, at(u"two.lst"_qs));
}

TEST_F(ImportJobs, AreWholeWhereEveryListIs) {
  folder_.writeFile(u"one.lst"_qs, "./a/x\n");
  ImportJob job = jobOf({u"one.lst"_qs});
  job.run();
  EXPECT_TRUE(job.isWhole());
}

TEST_F(ImportJobs, MakeNothingOnceStopped) {
  folder_.writeFile(u"one.lst"_qs, "./a/x\n");
  ImportJob job = jobOf({u"one.lst"_qs});
  job.stop();
  job.run();
  EXPECT_TRUE(job.hasEnded());
  EXPECT_EQ(job.places(), QStringList());
  EXPECT_EQ(job.sentences(), QStringList());
  EXPECT_FALSE(folder_.names().contains(u"out/one.txt"_qs));
}

}  // namespace
}  // namespace quorvin::test
