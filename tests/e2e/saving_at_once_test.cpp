// SPDX-License-Identifier: GPL-2.0-or-later

// Programs that close at the same moment.
#include "e2e/windowless_program.h"
#include "state/source_list_file.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvin::test {

namespace {

constexpr int kRounds = 20;

/// Processes that get ready and then all go on at once.
class Together {
 public:
  Together() {
    if (::pipe(gate_) != 0) throw std::runtime_error("no pipe could be made");
  }
  ~Together() {
    ::close(gate_[0]);
    if (gate_[1] >= 0) ::close(gate_[1]);
  }
  Together(const Together&) = delete;
  Together& operator=(const Together&) = delete;

  /// Does `work` in a process of its own as soon as run() is called.
  void add(const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
      ::close(gate_[1]);
      char byte = 0;
      // Nothing is ever written: the reading ends when the gate is closed by the test.
      const bool isOpen = ::read(gate_[0], &byte, 1) == 0;
      try {
        work();
      } catch (...) {
        ::_exit(1);
      }
      ::_exit(isOpen ? 0 : 1);
    }
    children_.push_back(child);
  }

  /// Lets them go, and waits for all. False when one has failed.
  bool run() {
    ::close(std::exchange(gate_[1], -1));
    bool allWell = true;
    for (const pid_t child : children_) {
      int status = 0;
      allWell = ::waitpid(child, &status, 0) == child && status == 0 && allWell;
    }
    return allWell;
  }

 private:
  int gate_[2] = {-1, -1};
  std::vector<pid_t> children_;
};

/// What one program has to save.
struct Belongings {
  QString NickName;
  SourceRecords online;
  SourceRecords offline;
};

Belongings belongingsOf(const QString& owner, int round) {
  // Enough for the lists of both to be written for a while.
  SourceRecords online;
  for (int number = 1; number <= 300; ++number) {
    online.push_back({QStringLiteral("%1 %2").arg(owner).arg(number), QStringLiteral("/%1/").arg(round)});
  }
  return {QStringLiteral("%1 %2").arg(owner).arg(round),
          online,
          {{QStringLiteral("Offline"), QStringLiteral("/%1/%2.txt").arg(owner).arg(round)}}};
}

class SavingAtOnce : public testing::Test {
 protected:
  SavingAtOnce() {
    place_.writeFile(QStringLiteral("data/any.txt"), "a file makes the folder valid");
    emptyTheLists();
    listing_ = place_.writeFile(QStringLiteral("cds.txt"), "");
  }

  void emptyTheLists() const {
    for (const char* name : {"Locations.txt", "Locations.txt_cds", "OfflineLocations.txt"}) {
      place_.writeFile(QStringLiteral("data/") + QString::fromLatin1(name), "");
    }
  }
  QString settingsPath() const { return place_.pathOf(QStringLiteral("settings/settings.ini")); }
  QByteArray dataFile(const char* name) const {
    return place_.readFile(QStringLiteral("data/") + QString::fromLatin1(name));
  }
  QString saved(const QString& application, const char* key) const {
    return IniSettingsStore(settingsPath())
        .read(application, QStringLiteral("Settings"), QString::fromLatin1(key), {});
  }

  /// A program that has read the lists, and everything that its user may have changed since.
  std::unique_ptr<WindowlessProgram> started(const QString& commandLine, const Belongings& belongings) const {
    auto program = std::make_unique<WindowlessProgram>(settingsPath(), commandLine);
    program->state.LocalFolder = place_.pathOf(QStringLiteral("data/"));
    program->setOnline({});
    program->setOffline({});
    loadSourceLists(program->state);
    program->state.NickName = belongings.NickName;
    program->setOnline(belongings.online);
    program->setOffline(belongings.offline);
    return program;
  }

  /// Its end. The only messages are about lists that were kept, one for each.
  static void end(WindowlessProgram& program) {
    program.end();
    for (const QString& message : program.messages.informed) {
      const bool isKept = message.contains(u"has been changed by another program.") ||
                          message.contains(u"was not there when the program started.");
      if (!isKept) throw std::runtime_error("a message");
    }
  }

  /// The list of whoever was first has been kept, that of the other is in its place.
  void expectBothKept(const char* name, const SourceRecords& one, const SourceRecords& other) const {
    const QByteArray list = dataFile(name);
    const QByteArray kept = dataFile((std::string(name) + ".kept").c_str());
    const bool isOnesFirst = list == listFile(other) && kept == listFile(one);
    const bool isOthersFirst = list == listFile(one) && kept == listFile(other);
    EXPECT_TRUE(isOnesFirst || isOthersFirst) << list.toStdString() << kept.toStdString();
  }
  void removeKeptLists() const { removeFromData(QStringLiteral("*.kept")); }
  void removeFromData(const QString& pattern) const {
    QDir data(place_.pathOf(QStringLiteral("data")));
    for (const QString& name : data.entryList({pattern})) data.remove(name);
  }

  void expectNothingLeftOver(const QStringList& lists) const {
    EXPECT_EQ(QDir(place_.pathOf(QStringLiteral("data"))).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              lists);
    EXPECT_EQ(
        QDir(place_.pathOf(QStringLiteral("settings"))).entryList(QDir::Files | QDir::Hidden, QDir::Name),
        QStringList({QStringLiteral("settings.ini"), QStringLiteral("settings.ini.lock")}));
  }

  TemporaryFolder place_;
  QString listing_;
};

TEST_F(SavingAtOnce, ProgramsWithSetsOfTheirOwnKeepBoth) {
  for (int round = 1; round <= kRounds; ++round) {
    SCOPED_TRACE(round);
    const Belongings ann = belongingsOf(QStringLiteral("Ann"), round);
    const Belongings bob = belongingsOf(QStringLiteral("Bob"), round);
    const auto anns = started({}, ann);
    const auto bobs = started(listing_, bob);
    Together programs;
    programs.add([&] { end(*anns); });
    programs.add([&] { end(*bobs); });
    ASSERT_TRUE(programs.run());

    EXPECT_EQ(saved(QStringLiteral("Ketta Quorvin"), "NickName"), ann.NickName);
    EXPECT_EQ(saved(QStringLiteral("Ketta Quorvin"), "Height"), u"6000");
    EXPECT_EQ(saved(listing_, "NickName"), bob.NickName);
    EXPECT_EQ(saved(listing_, "TextFile"), listing_);
    EXPECT_EQ(saved(listing_, "Height"), u"6000");
    EXPECT_EQ(dataFile("Locations.txt"), listFile(ann.online));
    EXPECT_EQ(dataFile("Locations.txt_cds"), listFile(bob.online));
    expectBothKept("OfflineLocations.txt", ann.offline, bob.offline);
    removeKeptLists();
    emptyTheLists();
  }
  expectNothingLeftOver({QStringLiteral("Locations.txt"), QStringLiteral("Locations.txt_cds"),
                         QStringLiteral("OfflineLocations.txt"), QStringLiteral("any.txt")});
}

TEST_F(SavingAtOnce, ProgramsWithTheSameSetLeaveTheListsOfBoth) {
  for (int round = 1; round <= kRounds; ++round) {
    SCOPED_TRACE(round);
    const Belongings ann = belongingsOf(QStringLiteral("Ann"), round);
    const Belongings bob = belongingsOf(QStringLiteral("Bob"), round);
    const auto anns = started({}, ann);
    const auto bobs = started({}, bob);
    Together programs;
    programs.add([&] { end(*anns); });
    programs.add([&] { end(*bobs); });
    ASSERT_TRUE(programs.run());

    const QString nickName = saved(QStringLiteral("Ketta Quorvin"), "NickName");
    EXPECT_TRUE(nickName == ann.NickName || nickName == bob.NickName) << nickName.toStdString();
    EXPECT_EQ(saved(QStringLiteral("Ketta Quorvin"), "Height"), u"6000");
    expectBothKept("Locations.txt", ann.online, bob.online);
    expectBothKept("OfflineLocations.txt", ann.offline, bob.offline);
    removeKeptLists();
    emptyTheLists();
  }
  expectNothingLeftOver({QStringLiteral("Locations.txt"), QStringLiteral("Locations.txt_cds"),
                         QStringLiteral("OfflineLocations.txt"), QStringLiteral("any.txt")});
}

TEST_F(SavingAtOnce, ListsThatAreMadeForTheVeryFirstTimeAreKeptApartToo) {
  for (int round = 1; round <= kRounds; ++round) {
    SCOPED_TRACE(round);
    removeFromData(QStringLiteral("*Locations.txt*"));
    const Belongings ann = belongingsOf(QStringLiteral("Ann"), round);
    const Belongings bob = belongingsOf(QStringLiteral("Bob"), round);
    const auto anns = started({}, ann);
    const auto bobs = started({}, bob);
    Together programs;
    programs.add([&] { end(*anns); });
    programs.add([&] { end(*bobs); });
    ASSERT_TRUE(programs.run());
    expectBothKept("Locations.txt", ann.online, bob.online);
    expectBothKept("OfflineLocations.txt", ann.offline, bob.offline);
  }
  expectNothingLeftOver({QStringLiteral("Locations.txt"), QStringLiteral("Locations.txt.kept"),
                         QStringLiteral("OfflineLocations.txt"), QStringLiteral("OfflineLocations.txt.kept"),
                         QStringLiteral("any.txt")});
}

/// Runs "quorvin-cli sources add" with the settings of the folder `configured`, in place of this process.
void addSourceByConsole(const QString& configured, const QString& folder) {
  qputenv("XDG_CONFIG_HOME", configured.toLocal8Bit());
  ::execl(QUORVIN_CLI, QUORVIN_CLI, "sources", "add", "--quiet", QFile::encodeName(folder).constData(),
          nullptr);
  throw std::runtime_error("the console could not be started");
}

TEST_F(SavingAtOnce, ASourceThatTheConsoleAddsWhileTheWindowClosesIsNotLost) {
  QDir(place_.path()).mkpath(QStringLiteral("configured"));
  ASSERT_TRUE(QFile::link(place_.pathOf(QStringLiteral("settings")),
                          place_.pathOf(QStringLiteral("configured/quorvin"))));
  // The console finds the data by the settings of an earlier end.
  end(*started({}, belongingsOf(QStringLiteral("Ann"), 0)));
  const QString disk = place_.makeFolder(QStringLiteral("disk"));
  const SourceRecords added = {{QStringLiteral("disk"), disk}};
  for (int round = 1; round <= kRounds; ++round) {
    SCOPED_TRACE(round);
    removeKeptLists();
    emptyTheLists();
    const Belongings ann = belongingsOf(QStringLiteral("Ann"), round);
    const auto anns = started({}, ann);
    Together programs;
    programs.add([&] { end(*anns); });
    programs.add([&] { addSourceByConsole(place_.pathOf(QStringLiteral("configured")), disk); });
    ASSERT_TRUE(programs.run());

    // Whoever reads the list after the other has saved it has both; else the later one keeps that of the
    // other.
    SourceRecords both = ann.online;
    both.insert(both.end(), added.begin(), added.end());
    if (dataFile("Locations.txt") != listFile(both)) expectBothKept("Locations.txt", ann.online, added);
  }
}

}  // namespace

}  // namespace quorvin::test
