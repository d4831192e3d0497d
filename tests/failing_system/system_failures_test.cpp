// SPDX-License-Identifier: GPL-2.0-or-later

// The program and the console while the system fails them: every call of every kind once, until a run gets
// through.
#include "archive/archive_maker.h"
#include "failing_system/failing_program.h"
#include "history/listing_history.h"
#include "platform/ini_settings_store.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/sweep.h"
#include "support/temporary_folder.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <random>

namespace quorvin::test {
namespace {

/// The contents of all files below a folder by their names.
using Files = std::map<QString, QByteArray>;

QString errorNumber(int number) {
  return QString::number(number);
}

/// Texts, listings and pictures are; what the toolkit needs at every turn is not.
constexpr int kLargeBlock = 64 * 1024;

const std::vector<SystemFailure> kFailures = {
    {"open", errorNumber(EACCES)},      {"open", errorNumber(EMFILE)},
    {"read", errorNumber(EIO)},         {"write", errorNumber(ENOSPC)},
    {"write", QStringLiteral("short")}, {"fsync", errorNumber(EIO)},
    {"rename", errorNumber(EACCES)},    {"mkdir", errorNumber(ENOSPC)},
    {"stat", errorNumber(EIO)},         {"list", errorNumber(EIO)},
    {"list", errorNumber(EMFILE)},      {"socket", errorNumber(ECONNRESET)},
    {"allocate", errorNumber(ENOMEM)},  {"allocate", errorNumber(ENOMEM), kLargeBlock}};

/// What is done, and the files that this makes or replaces. A listing is short where its folder could not be
/// read, and an archive where it did not come whole: the messages say so.
struct Deed {
  const char* name;
  QStringList command;
  QStringList products;
  /// Done twice, it makes the same as done once.
  bool isRepeatable = true;
  /// Held against a lack of memory alone: its other calls are those of the console's deeds.
  bool isAboutMemory = false;
};

QStringList console(const QStringList& arguments) {
  return QStringList(QStringLiteral(QUORVIN_CLI)) + arguments;
}

QStringList window(const QString& scenario) {
  return {QStringLiteral(QUORVIN_SCENARIOS), scenario};
}

/// What the window saves when it is closed.
const QStringList kSaved = {u"settings.ini"_qs, u"data/Locations.txt"_qs, u"data/OfflineLocations.txt"_qs};

const std::vector<Deed> kDeeds = {
    {"Find", console({u"find"_qs, u"song"_qs}), {}},
    {"FindInListing", console({u"find"_qs, u"--format"_qs, u"json"_qs, u"old"_qs, u"data/Music.txt"_qs}), {}},
    {"FindUncached", console({u"find"_qs, u"--no-cache"_qs, u"--count"_qs, u"song"_qs}), {}},
    {"Index",
     console({u"index"_qs, u"Music"_qs, u"--output"_qs, u"data/Music.txt"_qs}),
     {u"data/Music.txt"_qs}},
    {"Refresh", console({u"refresh"_qs}), {u"data/Music.txt"_qs, u"data/Films.txt"_qs}},
    {"ClearCache", console({u"cache"_qs, u"--clear"_qs}), {}},
    {"History", console({u"history"_qs}), {}},
    {"Restore",
     console({u"history"_qs, u"Music"_qs, u"--restore"_qs, u"--number"_qs, u"2"_qs}),
     {u"data/Music.txt"_qs}},
    {"Closing", window(u"closing"_qs), kSaved, false},
    {"Update", window(u"update"_qs), {u"data/main.txt"_qs, u"data/main.zip"_qs}},
    {"Exchange", window(u"exchange"_qs), {}},
    {"WindowStart", window(u"start"_qs), kSaved, true, true},
    {"WindowSearch", window(u"search"_qs), kSaved, true, true},
    {"WindowRefresh", window(u"refresh"_qs), kSaved + QStringList{u"data/Music.txt"_qs, u"data/Films.txt"_qs},
     true, true},
    {"WindowCopy", window(u"copy"_qs), kSaved, true, true},
    {"WindowExport", window(u"export"_qs), kSaved + QStringList{u"exported.csv"_qs}, true, true},
};

std::vector<Deed> deedsThatAreKilled() {
  std::vector<Deed> deeds = kDeeds;
  std::erase_if(deeds, [](const Deed& deed) { return deed.isAboutMemory; });
  return deeds;
}

bool isOfConsole(const Deed& deed) {
  return deed.command.first() == QStringLiteral(QUORVIN_CLI);
}

std::ostream& operator<<(std::ostream& out, const Deed& deed) {
  return out << deed.name;
}

class FailingSystem : public testing::TestWithParam<Deed> {
 protected:
  FailingSystem() {
    prepare();
    undisturbed_ = run({"none", {}}, 0);
    after_ = filesOf(place_->path());
  }

  /// A new folder with two sources, one of which has an older listing; a peer's folder with one listing; and
  /// an archive that a web server has.
  void prepare() {
    place_ = std::make_unique<TemporaryFolder>();
    place_->writeFile(u"Music/song.mp3"_qs, "12345");
    place_->writeFile(u"Music/Deep/song two.mp3"_qs, "1");
    place_->writeFile(u"Films/film.avi"_qs, "12345");
    const QByteArray top = place_->path().toUtf8();
    place_->writeFile(u"data/Locations.txt"_qs,
                      "\"Music\",\"" + top + "Music/\"\r\n\"Films\",\"" + top + "Films/\"\r\n");
    makeHistory();
    for (const auto& name : {u"data/Music.txt"_qs, u"data/Films.txt"_qs})
      place_->writeFile(name, kOldListing);
    place_->writeFile(u"data/main.txt"_qs, "the main list as it was");
    place_->writeFile(u"peer/Far.txt"_qs, kOldListing);
    place_->writeFile(u"served.zip"_qs, served_);
    if (GetParam().isAboutMemory) {
      place_->writeFile(u"far.txt"_qs, farListing());
      place_->writeFile(u"exported.csv"_qs, "the hits as they were exported last time");
    }
    setTimes();
    IniSettingsStore store(place_->pathOf(u"settings.ini"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"LocalFolder"_qs, place_->pathOf(u"data/"_qs));
    store.write(u"Ketta Quorvin"_qs, u"Settings"_qs, u"JoinDate"_qs, u"15 Jan 2004"_qs);
    before_ = filesOf(place_->path());
  }

  /// What is kept of it, and its hits as text, take up large blocks.
  static QByteArray farListing() {
    QByteArray listing = blockHead("Far", "\\far\\");
    for (int number = 1; number <= 3000; ++number) {
      listing += entryLine("a song of the " + QByteArray::number(number) + "th singer.mp3");
    }
    return listing;
  }

  /// Three versions of a listing, the second of which may be restored.
  void makeHistory() {
    const QString data = place_->pathOf(u"data/"_qs);
    ListingHistory history(data);
    for (int version = 1; version <= 3; ++version) {
      const QByteArray next = version == 3 ? QByteArray(kOldListing) : earlierListing(version + 1);
      place_->writeFile(kRestored, earlierListing(version));
      setTime(kRestored);
      ASSERT_EQ(history.keep(u"Music.txt"_qs, place_->writeFile(u"next"_qs, next), true).fault, QString());
    }
    QFile::remove(place_->pathOf(u"next"_qs));
  }

  static QByteArray earlierListing(int version) {
    return QByteArray(kOldListing).replace("old song", "song " + QByteArray::number(version));
  }

  /// Everything that the listing ever held is still there, in its place or as a version. `lastIsTold`: what
  /// it held last may be gone, since that was said.
  void expectHistoryKept(bool lastIsTold = false) {
    const ListingHistory history(place_->pathOf(u"data/"_qs));
    std::vector<QByteArray> held = {place_->readFile(kRestored)};
    for (const ListingVersion& version : history.versions(u"Music.txt"_qs)) {
      held.push_back(textOf(*history.text(u"Music.txt"_qs, version.number)));
    }
    std::vector<QByteArray> wanted;
    // What is written to a file of the user's choice goes there without a history.
    if (!lastIsTold && GetParam().name != std::string_view("Index")) wanted.push_back(kOldListing);
    for (int version = 1; version <= 3; ++version) wanted.push_back(earlierListing(version));
    for (const QByteArray& text : wanted) {
      EXPECT_TRUE(std::ranges::find(held, text) != held.end()) << "lost: " << text.toStdString();
    }
  }

  static QByteArray textOf(ListingBytes& version) {
    QByteArray text;
    std::vector<char> piece(4096);
    while (const std::size_t count = version.read(piece)) {
      text.append(piece.data(), static_cast<qsizetype>(count));
    }
    return text;
  }

  /// Listings and archives hold the times of files.
  void setTimes() {
    for (const auto& name :
         {u"Music/song.mp3"_qs, u"Music/Deep/song two.mp3"_qs, u"Films/film.avi"_qs, u"peer/Far.txt"_qs}) {
      setTime(name);
    }
  }

  void setTime(const QString& name) {
    QFile file(place_->pathOf(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        file.setFileTime(QDateTime(QDate(2004, 1, 15), QTime(12, 0)), QFileDevice::FileModificationTime));
  }

  FailedRun run(const SystemFailure& failure, int number) {
    FailedRun run = runFailing(place_->path(), GetParam().command, failure, number);
    run.output = withoutPlace(run.output, place_->path());
    run.errors = QString::fromUtf8(withoutPlace(run.errors.toUtf8(), place_->path()));
    return run;
  }

  /// The same text in each folder, as a path of the system and as listings have it, and with each port.
  static QByteArray withoutPlace(QByteArray bytes, const QString& folder) {
    const QByteArray path = folder.toUtf8();
    bytes.replace(path, "HERE/").replace(QByteArray(path).replace('/', '\\'), "HERE\\");
    static const QRegularExpression port(QStringLiteral("(?<=127\\.0\\.0\\.1[:_])\\d+"));
    // Byte by byte, so that archives come through too.
    return QString::fromLatin1(bytes).replace(port, QStringLiteral("PORT")).toLatin1();
  }

  static Files filesOf(const QString& folder) {
    Files files;
    QDirIterator below(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (below.hasNext()) {
      QFile file(below.next());
      EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
      const QString name =
          QString::fromUtf8(withoutPlace(file.fileName().mid(folder.size()).toUtf8(), folder));
      // What is kept of a search can be made again at any time, and its names differ from folder to folder.
      if (name.startsWith(u"cache/")) continue;
      // Versions hold the time at which they were replaced; history_tests look at them.
      if (name.startsWith(u"data/history/")) continue;
      // A listing that could not be finished stays aside; the next refresh replaces it.
      if (name.endsWith(u".tmp")) continue;
      // A peer answers a question for a list that it does not have with an empty archive, which it makes
      // first.
      if (name == u"peer/.zip") continue;
      files[name] = withoutPlace(file.readAll(), folder);
      // Packed listings hold the time of packing.
      if (name.startsWith(u"peer/") && files[name].startsWith("PK")) files[name] = "an archive";
      if (name.endsWith(u"/Far.zip") && files[name].startsWith("PK")) files[name] = "an archive";
    }
    return files;
  }

  /// Every file is what it was before or what an undisturbed run makes of it, and there is no other one.
  void expectWholeFiles(const FailedRun& run) {
    const Files now = filesOf(place_->path());
    for (const auto& [name, content] : now) {
      // A list that could not be read when the program started is kept beside the new one.
      const QString base = name.endsWith(u".kept") ? name.chopped(5) : name;
      const bool old = before_.count(base) != 0 && before_.at(base) == content;
      const bool made = after_.count(name) != 0 && after_.at(name) == content;
      const bool admittedlyShort = GetParam().products.contains(name) && run.errors != undisturbed_.errors;
      EXPECT_TRUE(old || made || admittedlyShort) << name.toStdString() << ":\n" << content.toStdString();
    }
    for (const auto& [name, content] : before_)
      EXPECT_EQ(now.count(name), 1U) << name.toStdString() << " is gone";
    expectHistoryKept(run.errors.contains(u"could not be kept in the listing history"));
  }

  /// A run that says nothing has done all of its work.
  void expectAllDoneOrSaid(const FailedRun& run) {
    EXPECT_FALSE(run.errors.contains(u"terminate") || run.errors.contains(u"std::"))
        << run.errors.toStdString();
    if (run.status == 2 && undisturbed_.status != 2) {
      EXPECT_NE(run.errors, undisturbed_.errors) << "it ends with 2 and does not say why";
      return;
    }
    if (run.errors != undisturbed_.errors) return;
    EXPECT_EQ(run.status, undisturbed_.status);
    EXPECT_EQ(run.output, undisturbed_.output);
    for (const QString& name : GetParam().products) {
      EXPECT_EQ(filesOf(place_->path())[name], after_[name]) << name.toStdString();
    }
  }

  /// Settings are saved one after the other, so each of them is old or new.
  bool isOldOrNew(const QString& name, const QByteArray& content) const {
    const QByteArray before = before_.at(name);
    const QByteArray after = after_.count(name) == 0 ? before : after_.at(name);
    if (name != u"settings.ini") return content == before || content == after;
    const QList<QByteArray> known = (before + after).split('\n');
    return std::ranges::all_of(content.split('\n'),
                               [&](const QByteArray& line) { return known.contains(line); });
  }

  /// Every file is its old or its new self, and a run that is left alone then does all of the work.
  void expectNothingLostByKilling() {
    const Files left = filesOf(place_->path());
    for (const auto& [name, content] : before_) {
      ASSERT_EQ(left.count(name), 1U) << name.toStdString() << " is gone";
      // The rules have an update written over the earlier archive, which can be fetched again.
      if (name.endsWith(u".zip")) continue;
      EXPECT_TRUE(isOldOrNew(name, left.at(name))) << name.toStdString() << ":\n"
                                                   << left.at(name).toStdString();
    }
    expectHistoryKept();
    if (!GetParam().isRepeatable) return;
    const FailedRun next = run({"none", {}}, 0);
    EXPECT_EQ(next.status, undisturbed_.status);
    EXPECT_EQ(next.output, undisturbed_.output);
    for (const QString& name : GetParam().products) {
      EXPECT_EQ(filesOf(place_->path())[name], after_[name]) << name.toStdString();
    }
  }

  const QByteArray served_ = archiveOf("main.txt", "the main list as it is now");
  FailedRun undisturbed_;
  Files before_;
  Files after_;
  std::unique_ptr<TemporaryFolder> place_;

  static inline const QString kRestored = QStringLiteral("data/Music.txt");
  static constexpr const char* kOldListing =
      "\r\nVolume:    MUSIC\r\nDirectory: \\old\\\r\n\r\n"
      "old song.mp3                                                                  1 bytes 15 Jan 2004 "
      "12:00:00\r\n";
};

/// How many calls further the next failure is; 0 for failures that this deed is not held against.
int strideOf(const Deed& deed, const SystemFailure& failure) {
  const bool allocates = failure.call == std::string_view("allocate");
  const bool isLarge = failure.above > 0;
  // Where the toolkit has no memory for trifles, it ends the program by its own rules.
  if (allocates && isLarge == isOfConsole(deed)) return 0;
  if (isLarge) return sweep(1, 3);
  if (deed.isAboutMemory) return 0;
  if (allocates) return sweep(7, 499);
  return isOfConsole(deed) ? sweep(1, 3) : sweep(1, 11);
}

TEST_P(FailingSystem, EveryFailureIsSaidAndLeavesWholeFiles) {
  for (const SystemFailure& failure : kFailures) {
    const int stride = strideOf(GetParam(), failure);
    if (stride == 0) continue;
    int number = 1;
    for (;; number += stride) {
      SCOPED_TRACE(testing::Message()
                   << failure.call << " " << number << " fails by " << failure.how.toStdString());
      prepare();
      const FailedRun run = this->run(failure, number);
      const bool isToolkits = failure.above > 0 && run.lacksPixels();
      if (!isToolkits) {
        EXPECT_FALSE(run.crashed) << run.errors.toStdString();
        EXPECT_TRUE(run.status >= 0 && run.status <= 2) << run.status;
      }
      expectWholeFiles(run);
      expectAllDoneOrSaid(run);
      if (!run.failed || (run.crashed && !isToolkits)) break;
    }
    RecordProperty(std::string(failure.call) + "_" + failure.how.toStdString(), number);
  }
}

class KilledSystem : public FailingSystem {};

TEST_P(KilledSystem, AKilledRunLeavesWholeFilesAndTheNextOneNeedsNoHelp) {
  for (const char* call : {"open", "write", "fsync", "rename", "mkdir", "read", "list", "stat"}) {
    for (int number = 1;; number += isOfConsole(GetParam()) ? sweep(1, 3) : sweep(1, 11)) {
      SCOPED_TRACE(testing::Message() << "killed at " << call << " " << number);
      prepare();
      const FailedRun killed = run({call, QStringLiteral("kill")}, number);
      if (!killed.failed) break;
      ASSERT_TRUE(killed.crashed);
      expectNothingLostByKilling();
      if (HasFailure()) return;
    }
  }
}

TEST_P(KilledSystem, ARunThatIsKilledAtAnyMomentLosesNothing) {
  const int kills = sweep(1000, 40) / static_cast<int>(deedsThatAreKilled().size()) + 1;
  QElapsedTimer clock;
  clock.start();
  prepare();
  run({"none", {}}, 0);
  const qint64 wholeRun = clock.nsecsElapsed() / 1000;
  std::mt19937_64 random(12345);
  for (int kill = 0; kill < kills; ++kill) {
    prepare();
    const std::chrono::microseconds after(random() % static_cast<std::uint64_t>(wholeRun));
    SCOPED_TRACE(testing::Message() << "killed after " << after.count() << " microseconds");
    runKilled(place_->path(), GetParam().command, after);
    expectNothingLostByKilling();
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Deeds, FailingSystem, testing::ValuesIn(kDeeds),
                         [](const auto& deed) { return std::string(deed.param.name); });
INSTANTIATE_TEST_SUITE_P(Deeds, KilledSystem, testing::ValuesIn(deedsThatAreKilled()),
                         [](const auto& deed) { return std::string(deed.param.name); });

}  // namespace

}  // namespace quorvin::test
