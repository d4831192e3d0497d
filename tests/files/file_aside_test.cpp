// SPDX-License-Identifier: GPL-2.0-or-later
#include "files/file_aside.h"

#include "faults/runtime_fault.h"
#include "files/full_disk.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin {

namespace {

class FileAsideTest : public testing::Test {
 protected:
  /// The number of the fault that `work` throws, 0 for none; its description is kept.
  template <typename Work>
  int faultOf(Work work) {
    description_.clear();
    try {
      work();
    } catch (const RuntimeFault& fault) {
      description_ = fault.description();
      return fault.number();
    }
    return 0;
  }

  void write(const QString& name, std::string_view bytes, const AsideOptions& options = {}) const {
    FileAside file(folder_.pathOf(name), options);
    file.write(bytes);
    file.commit();
  }

  struct stat statusOf(const QString& name) const {
    struct stat status {};
    ::lstat(QFile::encodeName(folder_.pathOf(name)).constData(), &status);
    return status;
  }
  mode_t rightsOf(const QString& name) const { return statusOf(name).st_mode & 07777; }
  void setRights(const QString& name, mode_t rights) const {
    ASSERT_EQ(::chmod(QFile::encodeName(folder_.pathOf(name)).constData(), rights), 0);
  }

  TemporaryFolder folder_;
  QString description_;
};

/// The umask of the process as long as the object lives.
class Umask {
 public:
  explicit Umask(mode_t mask) : before_(::umask(mask)) {}
  ~Umask() { ::umask(before_); }
  Umask(const Umask&) = delete;
  Umask& operator=(const Umask&) = delete;

 private:
  mode_t before_;
};

TEST_F(FileAsideTest, ReplacesAFileOrMakesIt) {
  write(u"a"_qs, "first and longer");
  EXPECT_EQ(folder_.readFile(u"a"_qs), "first and longer");
  write(u"a"_qs, "second");
  EXPECT_EQ(folder_.readFile(u"a"_qs), "second");
  EXPECT_EQ(folder_.names(), QStringList{u"a"_qs});
}

TEST_F(FileAsideTest, ShowsNothingUntilItIsCommitted) {
  folder_.writeFile(u"a"_qs, "old");
  {
    FileAside file(folder_.pathOf(u"a"_qs));
    file.write("new");
    file.finish();
    EXPECT_EQ(folder_.readFile(u"a"_qs), "old");
    EXPECT_EQ(QFileInfo(file.path()).size(), 3);
    EXPECT_EQ(folder_.names().size(), 2);
  }
  EXPECT_EQ(folder_.readFile(u"a"_qs), "old");
  EXPECT_EQ(folder_.names(), QStringList{u"a"_qs});
}

TEST_F(FileAsideTest, IsHiddenUntilThenUnderANameThatCannotBeGuessed) {
  const FileAside first(folder_.pathOf(u"a"_qs));
  const FileAside second(folder_.pathOf(u"a"_qs));
  const QRegularExpression pattern(u"^\\.quorvin-%1-[0-9a-f]{16}\\.part$"_qs.arg(::getpid()));
  for (const FileAside* file : {&first, &second}) {
    EXPECT_TRUE(pattern.match(QFileInfo(file->path()).fileName()).hasMatch()) << file->path().toStdString();
  }
  EXPECT_NE(first.path(), second.path());
}

TEST_F(FileAsideTest, IsANewFileSoThatOtherNamesKeepTheOldOne) {
  folder_.writeFile(u"a"_qs, "old");
  ASSERT_EQ(
      ::link(folder_.pathOf(u"a"_qs).toUtf8().constData(), folder_.pathOf(u"b"_qs).toUtf8().constData()), 0);
  write(u"a"_qs, "new");
  EXPECT_EQ(folder_.readFile(u"b"_qs), "old");
}

TEST_F(FileAsideTest, WritesAtAnyPlace) {
  FileAside file(folder_.pathOf(u"a"_qs));
  file.writeAt(4, "efgh");
  file.writeAt(0, "abcd");
  file.writeAt(2, "XY");
  file.commit();
  EXPECT_EQ(folder_.readFile(u"a"_qs), "abXYefgh");
}

TEST_F(FileAsideTest, KeepsTheRightsOfWhatItReplaces) {
  const Umask mask(022);
  for (const mode_t rights : {0600U, 0640U, 0666U, 0444U}) {
    folder_.writeFile(u"a"_qs, "old");
    setRights(u"a"_qs, rights);
    write(u"a"_qs, "new");
    EXPECT_EQ(rightsOf(u"a"_qs), rights);
    QFile::remove(folder_.pathOf(u"a"_qs));
  }
}

TEST_F(FileAsideTest, HandsNoRightToExecuteOn) {
  const Umask mask(022);
  folder_.writeFile(u"a"_qs, "old");
  setRights(u"a"_qs, 04755);
  write(u"a"_qs, "new");
  EXPECT_EQ(rightsOf(u"a"_qs), 0644U);
}

TEST_F(FileAsideTest, FollowsTheUmaskWhereItReplacesNothing) {
  const Umask mask(027);
  write(u"a"_qs, "new");
  EXPECT_EQ(rightsOf(u"a"_qs), 0640U);
}

TEST_F(FileAsideTest, NobodyElseReadsItMeanwhileWhereTheOldFileIsPrivate) {
  const Umask mask(022);
  folder_.writeFile(u"a"_qs, "old");
  setRights(u"a"_qs, 0600);
  const FileAside file(folder_.pathOf(u"a"_qs));
  EXPECT_EQ(QFile::permissions(file.path()) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

// Only the superuser may give files away.
TEST_F(FileAsideTest, KeepsTheOwnerWhereTheSystemAllows) {
  const bool mayGive = ::geteuid() == 0;
  const uid_t user = mayGive ? 12345 : ::geteuid();
  const gid_t group = mayGive ? 54321 : ::getegid();
  folder_.writeFile(u"a"_qs, "old");
  ASSERT_EQ(::chown(folder_.pathOf(u"a"_qs).toUtf8().constData(), user, group), 0);
  write(u"a"_qs, "new");
  EXPECT_EQ(statusOf(u"a"_qs).st_uid, user);
  EXPECT_EQ(statusOf(u"a"_qs).st_gid, group);
}

TEST_F(FileAsideTest, WhatOneGroupWasAllowedIsNotForAnother) {
  constexpr uid_t kOrdinary = 65534;
  const bool mayGive = ::geteuid() == 0;
  folder_.writeFile(u"a"_qs, "old");
  setRights(u"a"_qs, 0664);
  setRights(u""_qs, 0777);
  const gid_t group = mayGive ? 54321 : ::getegid();
  ASSERT_EQ(::chown(folder_.pathOf(u"a"_qs).toUtf8().constData(), mayGive ? kOrdinary : ::geteuid(), group),
            0);
  const pid_t child = ::fork();
  if (child == 0) {
    const bool isOrdinary =
        !mayGive || (::setgroups(0, nullptr) == 0 && ::setgid(kOrdinary) == 0 && ::setuid(kOrdinary) == 0);
    write(u"a"_qs, "new");
    ::_exit(isOrdinary ? 0 : 1);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(folder_.readFile(u"a"_qs), "new");
  EXPECT_EQ(rightsOf(u"a"_qs), mayGive ? 0644U : 0664U);
}

TEST_F(FileAsideTest, ReplacesALinkItselfUnlessItIsToFollowIt) {
  folder_.writeFile(u"target"_qs, "old");
  const auto link = [&] {
    QFile::remove(folder_.pathOf(u"link"_qs));
    return ::symlink("target", folder_.pathOf(u"link"_qs).toUtf8().constData()) == 0;
  };
  ASSERT_TRUE(link());
  write(u"link"_qs, "new", {.followsLink = true});
  EXPECT_TRUE(S_ISLNK(statusOf(u"link"_qs).st_mode));
  EXPECT_EQ(folder_.readFile(u"target"_qs), "new");
  write(u"link"_qs, "newer");
  EXPECT_FALSE(S_ISLNK(statusOf(u"link"_qs).st_mode));
  EXPECT_EQ(folder_.readFile(u"link"_qs), "newer");
  EXPECT_EQ(folder_.readFile(u"target"_qs), "new");
}

TEST_F(FileAsideTest, FollowsALinkToWhatIsNotThereYetButNotForEver) {
  const TemporaryFolder elsewhere;
  ASSERT_TRUE(QFile::link(elsewhere.pathOf(u"a"_qs), folder_.pathOf(u"link"_qs)));
  write(u"link"_qs, "new", {.followsLink = true});
  EXPECT_EQ(elsewhere.readFile(u"a"_qs), "new");
  ASSERT_EQ(::symlink("loop", folder_.pathOf(u"loop"_qs).toUtf8().constData()), 0);
  EXPECT_EQ(faultOf([&] { write(u"loop"_qs, "new", {.followsLink = true}); }), 75);
}

TEST_F(FileAsideTest, ReplacesAPipeByAFile) {
  ASSERT_EQ(::mkfifo(folder_.pathOf(u"pipe"_qs).toUtf8().constData(), 0600), 0);
  write(u"pipe"_qs, "new");
  EXPECT_EQ(folder_.readFile(u"pipe"_qs), "new");
}

TEST_F(FileAsideTest, AFolderIsNotReplaced) {
  folder_.makeFolder(u"sub"_qs);
  EXPECT_NE(faultOf([&] { write(u"sub"_qs, "x"); }), 0);
  EXPECT_EQ(description_.section(u": "_qs, 1), folder_.pathOf(u"sub"_qs));
  EXPECT_EQ(folder_.names(), QStringList{u"sub"_qs});
}

TEST_F(FileAsideTest, PathsThatCannotBeAFileAreFaults) {
  folder_.writeFile(u"file"_qs, "");
  EXPECT_EQ(faultOf([&] { write(u"gone/a"_qs, ""); }), 53);
  EXPECT_EQ(faultOf([&] { write(u"file/a"_qs, ""); }), 76);
  EXPECT_EQ(faultOf([&] { write(u""_qs, ""); }), 75);
  EXPECT_EQ(faultOf([&] { write(u".."_qs, ""); }), 75);
  EXPECT_EQ(faultOf([&] { write(u"a"_qs + QChar(u'\0') + u"b"_qs, ""); }), 52);
  EXPECT_EQ(faultOf([&] { FileAside file{QString()}; }), 75);
  EXPECT_EQ(folder_.names(), QStringList{u"file"_qs});
}

TEST_F(FileAsideTest, APathWithoutAFolderIsInTheCurrentOne) {
  const CurrentFolder current(folder_.path());
  FileAside file(u"a"_qs);
  file.commit();
  EXPECT_EQ(folder_.names(), QStringList{u"a"_qs});
}

TEST_F(FileAsideTest, MessagesNameTheShownPath) {
  EXPECT_EQ(faultOf([&] { write(u"gone/a"_qs, "", {.shownPath = u"list.txt"_qs}); }), 53);
  EXPECT_EQ(description_, u"File not found: list.txt"_qs);
}

TEST_F(FileAsideTest, ANameAsideIsMadeAnewAndStaysWithoutCommit) {
  const TemporaryFolder elsewhere;
  const QString target = elsewhere.writeFile(u"target"_qs, "mine");
  ASSERT_TRUE(QFile::link(target, folder_.pathOf(u"a.tmp"_qs)));
  const AsideOptions options{.nameAside = u"a.tmp"_qs};
  {
    FileAside file(folder_.pathOf(u"a.txt"_qs), options);
    EXPECT_EQ(file.path(), folder_.pathOf(u"a.tmp"_qs));
    file.write("new");
    file.finish();
  }
  EXPECT_EQ(elsewhere.readFile(u"target"_qs), "mine");
  EXPECT_EQ(folder_.names(), QStringList{u"a.tmp"_qs});
  EXPECT_EQ(folder_.readFile(u"a.tmp"_qs), "new");
  write(u"a.txt"_qs, "newer", options);
  EXPECT_EQ(folder_.names(), QStringList{u"a.txt"_qs});
  EXPECT_EQ(folder_.readFile(u"a.txt"_qs), "newer");
}

TEST_F(FileAsideTest, AnotherProgramThatStillWritesUnderTheNameAsideSpoilsNothing) {
  const AsideOptions options{.nameAside = u"a.tmp"_qs};
  FileAside first(folder_.pathOf(u"a.txt"_qs), options);
  first.write("first");
  FileAside second(folder_.pathOf(u"a.txt"_qs), options);
  first.finish();
  second.write("second");
  second.commit();
  EXPECT_EQ(folder_.readFile(u"a.txt"_qs), "second");
  EXPECT_EQ(faultOf([&] { first.commit(); }), 53);
}

TEST_F(FileAsideTest, ErrorsInWritingUnderAGivenNameNameIt) {
  folder_.writeFile(u"a.txt"_qs, "old");
  {
    const FullDisk disk(100);
    const auto writeMuch = [&] { write(u"a.txt"_qs, std::string(1000, 'x'), {.nameAside = u"a.tmp"_qs}); };
    EXPECT_EQ(faultOf(writeMuch), 61);
  }
  EXPECT_EQ(description_, u"Disk full: "_qs + folder_.pathOf(u"a.tmp"_qs));
  EXPECT_EQ(folder_.readFile(u"a.txt"_qs), "old");
  folder_.makeFolder(u"b.tmp"_qs);
  EXPECT_EQ(faultOf([&] { write(u"b.txt"_qs, "", {.nameAside = u"b.tmp"_qs}); }), 75);
  EXPECT_EQ(description_.section(u": "_qs, 1), folder_.pathOf(u"b.tmp"_qs));
}

TEST_F(FileAsideTest, DiscardRemovesWhatWouldStay) {
  FileAside file(folder_.pathOf(u"a.txt"_qs), {.nameAside = u"a.tmp"_qs});
  file.discard();
  EXPECT_EQ(folder_.names(), QStringList());
}

TEST_F(FileAsideTest, TakesAFreeNameAndReplacesNothing) {
  const Umask mask(022);
  folder_.writeFile(u"a.zip"_qs, "old");
  setRights(u"a.zip"_qs, 0600);
  ASSERT_TRUE(QFile::link(u"/nowhere/at/all"_qs, folder_.pathOf(u"link.zip"_qs)));
  FileAside file(folder_.pathOf(u"a.zip"_qs), {.mayReplace = false});
  file.write("new");
  EXPECT_FALSE(file.commitUnlessTaken(u"a.zip"_qs));
  EXPECT_FALSE(file.commitUnlessTaken(u"link.zip"_qs));
  EXPECT_TRUE(file.commitUnlessTaken(u"b.zip"_qs));
  EXPECT_EQ(folder_.readFile(u"a.zip"_qs), "old");
  EXPECT_EQ(folder_.readFile(u"b.zip"_qs), "new");
  EXPECT_EQ(rightsOf(u"b.zip"_qs), 0644U);
  EXPECT_EQ(folder_.names(), (QStringList{u"a.zip"_qs, u"b.zip"_qs}));
  EXPECT_TRUE(S_ISLNK(statusOf(u"link.zip"_qs).st_mode));
}

}  // namespace

}  // namespace quorvin
