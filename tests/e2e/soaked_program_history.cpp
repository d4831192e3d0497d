// SPDX-License-Identifier: GPL-2.0-or-later

// Listings that are cut short by a refresh that is cancelled, and listings that are brought back.
#include "e2e/soaked_program.h"

#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <stdexcept>

namespace quorvin::test {

namespace {

constexpr int kWaitMilliseconds = 60'000;
constexpr unsigned kBetweenLooksMicroseconds = 200;
constexpr int kLooksAtMainWindow = 15;
constexpr unsigned kLittleWorkMicroseconds = 3'000;
const QString kResults = QStringLiteral("Results");
const QString kVersions = QStringLiteral("*.version");

/// Holds a process still as long as it lives.
class Pause {
 public:
  explicit Pause(qint64 process) : process_(static_cast<pid_t>(process)) { ::kill(process_, SIGSTOP); }
  ~Pause() { ::kill(process_, SIGCONT); }
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;

 private:
  pid_t process_;
};

QDir historyOf(const ProgramHome& home, const QString& listing = {}) {
  return QDir(home.data() + QStringLiteral("history/") + listing);
}

/// As the window has them.
QStringList listingsWithHistory(const ProgramHome& home) {
  QStringList names = historyOf(home).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  names.removeIf([&](const QString& name) { return historyOf(home, name).entryList({kVersions}).isEmpty(); });
  names.sort();
  return names;
}

}  // namespace

void SoakedProgram::restoreListing(Dice& dice) {
  const QStringList names = listingsWithHistory(home_);
  program_->openFromFileMenu({QStringLiteral("h")}, QStringLiteral("Listing History"));
  if (names.isEmpty() || dice.oneIn(4)) {
    note(QStringLiteral("listing history"));
    press({QStringLiteral("Down"), QStringLiteral("Escape")});
    program_->waitForMainWindow();
    return waitUntilAtRest();
  }
  const int index = dice.below(static_cast<int>(names.size()));
  const int row = dice.below(static_cast<int>(historyOf(home_, names[index]).entryList({kVersions}).size()));
  note(QStringLiteral("restore %1, row %2").arg(names[index]).arg(row));
  const QString path = home_.data() + names[index];
  const std::optional<FileIdentity> before = fileIdentity(path);
  press(QStringList{QStringLiteral("alt+l"), QStringLiteral("Home")} +
        QStringList(index, QStringLiteral("Down")) +
        QStringList{QStringLiteral("Tab"), QStringLiteral("Home")} +
        QStringList(row, QStringLiteral("Down")) + QStringList{QStringLiteral("alt+r")});
  waitUntil(
      QStringLiteral("for the restored listing"), [&] { return fileIdentity(path) != before; },
      [this] { return desktop_.titleOf(desktop_.activeWindow()); });
  waitUntilAtRest();
  press({QStringLiteral("Escape")});
  program_->waitForMainWindow();
  waitUntilAtRest();
  takeOverRestored(names[index]);
}

/// What was restored must be something that the listing has been before.
void SoakedProgram::takeOverRestored(const QString& name) {
  const QByteArray file = home_.dataFile(name);
  const std::vector<Listing>& known = everListed_[name];
  const auto found = std::ranges::find_if(known, [&](const Listing& one) { return one.isIn(file); });
  if (found == known.end()) throw std::runtime_error(name.toStdString() + " is nothing that it ever was");
  if (name == QStringLiteral("main.txt")) {
    main_ = *found;
  } else {
    listings_[name.chopped(QStringLiteral(".txt").size())] = *found;
  }
}

/// From the moment on at which the program writes a listing, it goes on in small steps until its progress is
/// shown. False when it has come to its end before.
bool SoakedProgram::pressCancel(const Identities& before) const {
  const auto isDone = [&] {
    return std::ranges::all_of(folders_, [&](const SourceFolder& folder) {
      return !isListedAndThere(folder) ||
             fileIdentity(listingPath(folder)) != before.at(folder.description());
    });
  };
  QElapsedTimer clock;
  clock.start();
  while (!isWriting() && !isDone()) {
    if (clock.hasExpired(kWaitMilliseconds)) throw std::runtime_error("the refresh did not start");
    QThread::usleep(kBetweenLooksMicroseconds);
  }
  while (!isDone()) {
    {
      const Pause pause(program_->processId());
      const QStringList windows =
          desktop_.windowsOf(program_->processId(), QStringLiteral(" *Updating online file lists.*"));
      if (!windows.isEmpty()) {
        desktop_.activate(windows.front());
        waitUntil(QStringLiteral("for the progress to take the keys"),
                  [&] { return desktop_.activeWindow() == windows.front(); });
        press({QStringLiteral("space")});
        return true;
      }
    }
    if (clock.hasExpired(kWaitMilliseconds)) throw std::runtime_error("the refresh shows no progress");
    QThread::usleep(kLittleWorkMicroseconds);
  }
  return false;
}

/// Where something is to be reported, a window comes, with which the window manager takes its time.
void SoakedProgram::closeResults() const {
  int looks = 0;
  waitUntil(
      QStringLiteral("for the main window alone"),
      [&] {
        const QString active = desktop_.activeWindow();
        const QString title = desktop_.titleOf(active);
        if (title == kResults) press({QStringLiteral("Escape")});
        if (title.isEmpty()) desktop_.activate(program_->mainWindow());
        looks = active == program_->mainWindow() ? looks + 1 : 0;
        return looks >= kLooksAtMainWindow;
      },
      [this] { return messageShown(); });
}

bool SoakedProgram::cancelRefresh() {
  const Identities before = identitiesOfListings();
  startRefresh();
  const bool isInTime = pressCancel(before);
  note(isInTime ? QStringLiteral("refresh, cancelled") : QStringLiteral("refresh, cancelled too late"));
  waitUntilAtRest();
  closeResults();
  waitUntilAtRest();
  takeOverListings(isInTime);
  refreshAgain();
  return isInTime;
}

/// The request to stop may still be in force, which the program asks about.
void SoakedProgram::refreshAgain() {
  note(QStringLiteral("refresh everything"));
  const Identities before = identitiesOfListings();
  startRefresh();
  waitUntil(
      QStringLiteral("for the question, or the refresh"),
      [&] {
        return isMessageShown() || identitiesOfListings() != before ||
               desktop_.titleOf(desktop_.activeWindow()) == kResults;
      },
      [this] { return messageShown(); });
  if (isMessageShown()) answer({QStringLiteral("alt+y")});
  refreshHasStarted(before);
}

}  // namespace quorvin::test
