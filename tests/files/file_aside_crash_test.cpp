// SPDX-License-Identifier: GPL-2.0-or-later

// What FileAside leaves when the program is killed at any moment, and when any step fails.
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "support/qt_printing.h"
#include "support/system_call_watch.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <map>
#include <set>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin {
namespace {

struct Way {
  const char* name;
  AsideOptions options;
  bool replaces;
};

const QString kName = QStringLiteral("list.txt");
const QByteArray kOld = "the old content\r\n";
/// More than the writer's buffer, so that some of it is written before the end.
const std::string kNew(100'000, 'n');

std::vector<Way> ways() {
  std::vector<Way> all;
  for (const bool replaces : {true, false}) {
    all.push_back({"for what can be made again", {.durability = Durability::None}, replaces});
    all.push_back({"old or new", {}, replaces});
    all.push_back({"new for good", {.durability = Durability::New}, replaces});
    all.push_back({"under a name of the rules", {.nameAside = QStringLiteral("list.tmp")}, replaces});
  }
  return all;
}

class FileAsideCrash : public testing::TestWithParam<Way> {
 protected:
  FileAsideCrash() { reset(); }
  ~FileAsideCrash() override {
    test::systemCallWatcher() = nullptr;
    test::systemCallFault() = nullptr;
  }

  void reset() const {
    for (const QString& name : folder_.names()) QFile::remove(folder_.pathOf(name));
    if (!GetParam().replaces) return;
    folder_.writeFile(kName, kOld);
    ::chmod(folder_.pathOf(kName).toUtf8().constData(), 0640);
  }

  void write() const {
    FileAside file(folder_.pathOf(kName), GetParam().options);
    file.write(std::string_view(kNew).substr(0, 70'000));
    file.write(std::string_view(kNew).substr(70'000));
    file.commit();
  }

  /// Whether the new file is at the place; otherwise it is the old one or none, as at the start.
  bool isNew() const {
    if (!folder_.has(kName)) {
      EXPECT_FALSE(GetParam().replaces);
      return false;
    }
    const QByteArray content = folder_.readFile(kName);
    if (content == QByteArray::fromStdString(kNew)) return true;
    EXPECT_TRUE(GetParam().replaces);
    EXPECT_EQ(content, kOld);
    return false;
  }

  /// Writes in a child that is killed at its n-th moment. False when the child came to its end.
  bool killAt(int number) const {
    const pid_t child = ::fork();
    if (child == 0) {
      int moment = 0;
      test::systemCallWatcher() = [&](const std::string&) {
        if (++moment == number) ::raise(SIGKILL);
      };
      write();
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
  }

  const TemporaryFolder folder_;
};

TEST_P(FileAsideCrash, KilledAtAnyMomentLeavesTheOldFileOrTheNewOneWhole) {
  std::set<bool> seen;
  int number = 1;
  for (; killAt(number); ++number) {
    SCOPED_TRACE("killed at moment " + std::to_string(number));
    seen.insert(isNew());
    // What is left beside the place is found, and is in nobody's way.
    removeLeftovers(folder_.path());
    const QStringList left = folder_.names();
    for (const QString& name : left) {
      EXPECT_TRUE(name == kName || name == GetParam().options.nameAside) << name.toStdString();
    }
    write();
    EXPECT_TRUE(isNew());
    EXPECT_EQ(folder_.names(), QStringList{kName});
    reset();
  }
  EXPECT_TRUE(isNew());
  EXPECT_EQ(seen, (std::set<bool>{false, true}));
  // The folder and the file are opened, written to twice or more, and closed, and the file is renamed.
  EXPECT_GE(number, 2 * 2 + 2 * 3 + 2 + 2);
}

TEST_P(FileAsideCrash, AFailureOfAnyStepLeavesTheOldFileAndNothingBesideIt) {
  std::set<std::string> failed;
  for (int number = 1;; ++number) {
    int calls = 0;
    std::string spoilt;
    test::systemCallFault() = [&](const std::string& call) {
      // Without the rights, without the removal of what is in the way and without a closed folder it goes on.
      if (call == "fchmod" || call == "unlinkat" || ++calls != number) return 0;
      spoilt = call;
      return EIO;
    };
    bool isFault = false;
    try {
      write();
    } catch (const RuntimeFault& fault) {
      isFault = true;
      EXPECT_EQ(fault.number(), 57) << spoilt;
    }
    test::systemCallFault() = nullptr;
    if (spoilt.empty()) break;
    SCOPED_TRACE("call " + std::to_string(number) + ", " + spoilt);
    if (isFault) failed.insert(spoilt);
    // Only the sync of the folder comes when the new file is in place already.
    const bool isLastStep = GetParam().options.durability == Durability::New && spoilt == "fsync" && isNew();
    EXPECT_EQ(isNew(), !isFault || isLastStep);
    for (const QString& name : folder_.names()) {
      EXPECT_TRUE(name == kName || name == GetParam().options.nameAside) << name.toStdString();
    }
    reset();
  }
  const bool isSynced = GetParam().options.durability == Durability::New ||
                        (GetParam().options.durability == Durability::OldOrNew && GetParam().replaces);
  std::set<std::string> expected = {"open", "openat", "write", "close", "renameat"};
  if (isSynced) expected.insert("fsync");
  EXPECT_EQ(failed, expected);
}

TEST_P(FileAsideCrash, TheStepsComeInTheOrderThatKeepsOneOfBothFiles) {
  std::vector<std::string> order;
  test::systemCallWatcher() = [&](const std::string& moment) {
    for (const char* step : {"fchmod", "fsync", "renameat"}) {
      if (moment == std::string("after ") + step) order.emplace_back(step);
    }
  };
  write();
  test::systemCallWatcher() = nullptr;
  std::vector<std::string> expected;
  const Durability durability = GetParam().options.durability;
  if (GetParam().replaces) expected.emplace_back("fchmod");
  if (durability == Durability::New || (durability == Durability::OldOrNew && GetParam().replaces)) {
    expected.emplace_back("fsync");
  }
  expected.emplace_back("renameat");
  if (durability == Durability::New) expected.emplace_back("fsync");
  EXPECT_EQ(order, expected);
}

TEST(FileAsideSteps, AFileSystemThatCannotRefuseATakenNameReplacesNothingEither) {
  const TemporaryFolder folder;
  folder.writeFile(kName, kOld);
  for (const std::set<std::string>& unknown :
       {std::set<std::string>{"renameat2"}, std::set<std::string>{"renameat2", "linkat"}}) {
    test::systemCallFault() = [&](const std::string& call) { return unknown.contains(call) ? EINVAL : 0; };
    FileAside file(folder.pathOf(kName), {.mayReplace = false});
    file.write("new");
    EXPECT_FALSE(file.commitUnlessTaken(kName));
    EXPECT_TRUE(file.commitUnlessTaken(QStringLiteral("%1").arg(unknown.size())));
    test::systemCallFault() = nullptr;
    EXPECT_EQ(folder.readFile(QString::number(unknown.size())), "new");
  }
  EXPECT_EQ(folder.readFile(kName), kOld);
  EXPECT_EQ(folder.names(), (QStringList{QStringLiteral("1"), QStringLiteral("2"), kName}));
}

INSTANTIATE_TEST_SUITE_P(Ways, FileAsideCrash, testing::ValuesIn(ways()),
                         [](const auto& way) { return std::to_string(way.index); });

}  // namespace
}  // namespace quorvin
