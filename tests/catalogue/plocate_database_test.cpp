// SPDX-License-Identifier: GPL-2.0-or-later

// Databases of plocate. The program that reads them is a script of the test's own.
#include "catalogue/import/plocate_database.h"

#include "faults/runtime_fault.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quorvin {
namespace {

class PlocateDatabases : public testing::Test {
 protected:
  PlocateDatabases() : pathBefore_(qgetenv("PATH")) {
    database_ = folder_.writeFile(u"plocate.db"_qs, QByteArray("\0plocate\1\0\0\0", 12));
  }
  ~PlocateDatabases() override { qputenv("PATH", pathBefore_); }

  /// Has `commands` run in place of plocate.
  void setProgram(const QByteArray& commands) {
    QFile script(folder_.writeFile(u"plocate"_qs, "#!/bin/sh\n" + commands));
    ASSERT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    qputenv("PATH", folder_.path().toLocal8Bit() + ':' + pathBefore_);
  }

  std::string readAll(std::size_t step = 4096) {
    PlocatePaths paths(database_, [this] { return isStopped_; });
    std::string all;
    std::vector<char> buffer(step);
    while (const std::size_t size = paths.read(buffer)) all.append(buffer.data(), size);
    return all;
  }

  std::string faultOf() {
    try {
      readAll();
    } catch (const RuntimeFault& fault) {
      return fault.description().toStdString();
    }
    return {};
  }

  TemporaryFolder folder_;
  QByteArray pathBefore_;
  QString database_;
  bool isStopped_ = false;
};

TEST_F(PlocateDatabases, AreKnownByTheirStart) {
  EXPECT_TRUE(isPlocateDatabase(database_));
  EXPECT_FALSE(isPlocateDatabase(folder_.writeFile(u"list"_qs, "plocate\n")));
  EXPECT_FALSE(isPlocateDatabase(folder_.writeFile(u"short"_qs, QByteArray("\0ploc", 5))));
  EXPECT_FALSE(isPlocateDatabase(folder_.pathOf(u"gone"_qs)));
  EXPECT_FALSE(isPlocateDatabase(folder_.path()));
}

TEST_F(PlocateDatabases, AreReadByTheProgramThatIsGivenTheirPathAndAnEmptyText) {
  setProgram("printf '%s.' \"$@\"\nprintf '/a\\000/b\\nc\\000'\n");
  const std::string path = database_.toStdString();
  const std::string expected = "--null.--database." + path + ".." + std::string("/a\0/b\nc\0", 8);
  EXPECT_EQ(readAll(), expected);
  EXPECT_EQ(readAll(3), expected);
}

TEST_F(PlocateDatabases, MoreThanAPipeHoldsComesWhole) {
  setProgram("i=0\nwhile [ $i -lt 20000 ]; do echo /home/me/music/song$i; i=$((i+1)); done\n");
  const std::string all = readAll(1000);
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 20'000);
  EXPECT_TRUE(all.ends_with("/home/me/music/song19999\n"));
}

TEST_F(PlocateDatabases, OneWithoutPathsIsEmpty) {
  setProgram("exit 1\n");
  EXPECT_EQ(readAll(), "");
}

TEST_F(PlocateDatabases, WhatTheProgramSaysOfAFaultIsTold) {
  setProgram("printf '/a\\000'\necho 'wrong version' >&2\nexit 1\n");
  EXPECT_EQ(faultOf(), "plocate could not read " + database_.toStdString() + ": wrong version");
  setProgram("kill -9 $$\n");
  EXPECT_TRUE(faultOf().ends_with(": Process crashed")) << faultOf();
}

TEST_F(PlocateDatabases, WithoutTheProgramItIsNamed) {
  qputenv("PATH", folder_.path().toLocal8Bit());
  EXPECT_TRUE(faultOf().ends_with(database_.toStdString() +
                                  " is a database of plocate, which has to be installed to read it"))
      << faultOf();
}

TEST_F(PlocateDatabases, AStopEndsTheWaiting) {
  setProgram("printf '/a\\000'\nexec sleep 1000\n");
  isStopped_ = true;
  EXPECT_EQ(readAll(), std::string("/a\0", 3));
}

}  // namespace
}  // namespace quorvin
