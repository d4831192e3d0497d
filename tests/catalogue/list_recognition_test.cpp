// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/import/list_recognition.h"

#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quorvin {
namespace {

TEST(ListRecognitions, TellTheFormatOfEachList) {
  const TemporaryFolder folder;
  const QStringList lists{folder.writeFile(u"cd.lst"_qs, "-rw-r--r-- 1 a a 5 Jan 15  2004 x\n"),
                          folder.writeFile(u"letter"_qs, "Dear Ann,\n"), folder.pathOf(u"missing"_qs),
                          folder.writeFile(u"sums"_qs, "d41d8cd98f00b204e9800998ecf8427e  x\n")};
  ListRecognition recognition(lists, {});
  recognition.run();
  EXPECT_TRUE(recognition.hasEnded());
  EXPECT_EQ(recognition.lists(), lists);
  ASSERT_EQ(recognition.formats().size(), 4U);
  EXPECT_EQ(recognition.formats()[0], listFormatNamed("ls"));
  EXPECT_EQ(recognition.formats()[1], nullptr);
  EXPECT_EQ(recognition.formats()[2], nullptr);
  EXPECT_EQ(recognition.formats()[3], listFormatNamed("checksums"));
}

// Nobody writes into it: who reads it waits.
TEST(ListRecognitions, LeaveStreamsAlone) {
  const TemporaryFolder folder;
  const QString pipe = folder.pathOf(u"pipe"_qs);
  ASSERT_EQ(::mkfifo(pipe.toUtf8().constData(), 0600), 0);
  ListRecognition recognition({pipe}, {});
  recognition.run();
  EXPECT_EQ(recognition.formats()[0], nullptr);
}

TEST(ListRecognitions, EndWhenTheyAreStopped) {
  const TemporaryFolder folder;
  ListRecognition recognition({folder.writeFile(u"sums"_qs, "d41d8cd98f00b204e9800998ecf8427e  x\n")}, {});
  recognition.stop();
  recognition.run();
  EXPECT_TRUE(recognition.hasEnded());
  EXPECT_EQ(recognition.formats()[0], nullptr);
}

}  // namespace
}  // namespace quorvin
