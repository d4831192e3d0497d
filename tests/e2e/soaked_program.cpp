// SPDX-License-Identifier: GPL-2.0-or-later
#include "e2e/soaked_program.h"

#include "metafile/metafile_writer.h"
#include "preview/corpus_picture.h"
#include "support/plain_walker.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace quorvin::test {

namespace {

const QString kEverything = QStringLiteral("everything");
constexpr int kFolders = 5;
constexpr int kFilesOfLargeFolder = 1500;
constexpr int kFilesOfFolder = 40;
constexpr int kFarLists = 4;
constexpr int kLooksAtRest = 8;

[[noreturn]] void fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

QByteArray movingPicture() {
  for (const CorpusPicture& picture : gifCorpus()) {
    if (picture.frames.size() > 1) return picture.bytes;
  }
  throw std::logic_error("no picture moves");
}

/// One of each kind of picture, and a damaged one.
void addPictures(SourceFolder& folder) {
  const QString stem = QStringLiteral("pictures/") + QString(folder.description()).replace(u' ', u'-');
  const QByteArray bitmap = bitmapCorpus().front().bytes;
  folder.addLasting(stem + QStringLiteral("-still.bmp"), bitmap);
  folder.addLasting(stem + QStringLiteral("-moving.gif"), movingPicture());
  folder.addLasting(stem + QStringLiteral("-drawn.emf"), EmfWriter().rectangle(10, 10, 200, 100).file());
  folder.addLasting(stem + QStringLiteral("-damaged.bmp"), bitmap.first(20));
}

/// The help and the program that draws metafiles, where the copied program looks for them.
void completeProgram(const ProgramHome& home) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::path(home.program().toStdString()).parent_path();
  fs::copy_file(QUORVIN_METAFILE_PROGRAM, folder / "quorvin-metafile");
  fs::copy(QUORVIN_HELP_PAGES, folder, fs::copy_options::recursive);
}

}  // namespace

SoakedProgram::SoakedProgram(const QString& name, ProgramHome& home, WebSite& site, Dice& dice, SoakNote note)
    : name_(name), home_(home), site_(site), note_(std::move(note)), nickName_(name), savedNickName_(name) {
  completeProgram(home_);
  for (int number = 0; number < kFolders; ++number) {
    const QString description = name_ + u' ' + QChar(u'A' + number);
    folders_.emplace_back(description, home_.folder.pathOf(QStringLiteral("disks/%1/").arg(description)),
                          number == 0 ? kFilesOfLargeFolder : kFilesOfFolder, dice);
    addPictures(folders_.back());
    if (number < 3) lists_.online.push_back({description, folders_.back().path()});
  }
  for (int number = 1; number <= kFarLists; ++number) {
    const QString path = home_.list(QStringLiteral("far %1.txt").arg(number));
    offlineOnDisk_.push_back(path);
    writeFarList(path, dice);
  }
  lists_.offline.push_back({QStringLiteral("Offline"), offlineOnDisk_.front()});
  saved_ = lists_;
  first_ = lists_;
  main_ = mainListing();
  everListed_[QStringLiteral("main.txt")] = {main_};
  home_.folder.writeFile(QStringLiteral("data/main.txt"), main_.text());
  home_.folder.writeFile(QStringLiteral("data/Locations.txt"), listFile(lists_.online));
  home_.folder.writeFile(QStringLiteral("data/OfflineLocations.txt"), listFile(lists_.offline));
  home_.folder.writeFile(
      QStringLiteral("settings.ini"),
      QStringLiteral("[Ketta%20Quorvin/Settings]\nLocalFolder=%1\nTextFile=main.txt\nArchiveFile=main.zip\n"
                     "WebServer=%2\nNickName=%3\n")
          .arg(home_.data(), site_.host(), nickName_)
          .toUtf8());
}

/// Every search finds something in it, so that there always are hits to be copied.
Listing SoakedProgram::mainListing() const {
  return {QStringLiteral("Main"),
          QStringLiteral("\\main\\%1\\").arg(allWords()),
          {{QStringLiteral("%1 in version %2.mp3").arg(kEverything).arg(mainVersion_),
            {10'486 * mainVersion_, QDate(2004, 1, 15)}}}};
}

void SoakedProgram::writeFarList(const QString& path, Dice& dice) {
  const QString number = QString::number(offline_.size());
  const Listing listing =
      randomListing(QStringLiteral("Far ") + number, QStringLiteral("\\far\\"), 15 + dice.below(15), dice);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(listing.text()) < 0) fail(file.errorString());
  offline_[path] = listing;
}

void SoakedProgram::start(Dice& dice) {
  const bool asks = !unsavedChanges().isEmpty();
  const bool takesBack = !dice.oneIn(3);
  note(QStringLiteral("start%1").arg(!asks       ? QString()
                                     : takesBack ? QStringLiteral(", take back what was not saved")
                                                 : QStringLiteral(", leave what was not saved")));
  const std::optional<FileIdentity> copy = fileIdentity(recoveryCopy());
  program_.emplace(desktop_, home_);
  if (asks) {
    program_->answerAtStart({takesBack ? QStringLiteral("alt+y") : QStringLiteral("alt+n")},
                            [&] { return fileIdentity(recoveryCopy()) != copy; });
    if (!takesBack) forgetUnsaved();
  }
  waitUntilAtRest();
}

void SoakedProgram::startAgain() {
  note(QStringLiteral("start again"));
  QProcessEnvironment environment = desktop_.environment();
  home_.addTo(environment);
  QProcess second;
  endWithTest(second);
  second.setProcessEnvironment(environment);
  second.setWorkingDirectory(home_.folder.path());
  second.start(home_.program(), QStringList());
  waitUntil(
      QStringLiteral("for the second start to end"), [&] { return second.waitForFinished(10); },
      [this] { return desktop_.titleOf(desktop_.activeWindow()); });
  const QByteArray errors = second.readAllStandardError();
  if (second.exitStatus() != QProcess::NormalExit || second.exitCode() != 0 || !errors.isEmpty()) {
    fail(QStringLiteral("the second start did not end well: ") + QString::fromUtf8(errors));
  }
  program_->waitForMainWindow();
  waitUntilAtRest();
}

bool SoakedProgram::isMessageShown() const {
  const QString window = desktop_.activeWindow();
  return window != program_->mainWindow() && desktop_.titleOf(window) == kTitle &&
         desktop_.processOf(window) == program_->processId();
}

void SoakedProgram::answer(const QStringList& keys) const {
  waitUntil(
      QStringLiteral("for a message"), [this] { return isMessageShown(); }, [this] { return messageShown(); },
      [this] { return activityOf(program_->processId()).ticks; });
  const QString message = desktop_.activeWindow();
  press(keys);
  // It may stay the last window that had the keys.
  waitUntil(
      QStringLiteral("for the message to go"),
      [&] { return !desktop_.windowsOf(program_->processId(), kTitle).contains(message); },
      [this] { return messageShown(); });
}

/// A program that has nothing to do gets no processor time.
void SoakedProgram::waitUntilAtRest() const {
  qint64 ticks = -1;
  int looks = 0;
  waitUntil(QStringLiteral("for the program to be at rest"), [&] {
    const ProcessActivity activity = activityOf(program_->processId());
    looks = activity.isWaiting && activity.ticks == ticks ? looks + 1 : 0;
    ticks = activity.ticks;
    return looks >= kLooksAtRest;
  });
}

QString SoakedProgram::messageShown() const {
  if (!program_) return {};
  press({QStringLiteral("ctrl+c")});
  return QStringLiteral("the window \"%1\" with\n%2")
      .arg(desktop_.titleOf(desktop_.activeWindow()), desktop_.clipboardText().left(500));
}

QString SoakedProgram::stateShown() const {
  QString text = name_ + QStringLiteral(", ") + home_.folder.path() + u'\n';
  for (const auto& [description, path] : lists_.online) {
    text += QStringLiteral("  %1 at %2%3\n")
                .arg(description, path,
                     listings_.contains(description) ? QString() : QStringLiteral(", no listing"));
  }
  for (const auto& [description, path] : lists_.offline) {
    text += QStringLiteral("  %1 at %2\n").arg(description, path);
  }
  try {
    if (!program_) return text + QStringLiteral("not running");
    const qint64 process = program_->processId();
    text += QStringLiteral("windows:\n");
    for (const QString& window : desktop_.windowsOf(process, QStringLiteral(".*"))) {
      text +=
          QStringLiteral("  \"%1\"%2\n")
              .arg(desktop_.titleOf(window),
                   window == desktop_.activeWindow() ? QStringLiteral(", which has the keys") : QString());
    }
    // Before it hears of a key again.
    text += whereThreadsAre(process);
    return text + messageShown();
  } catch (const std::exception& fault) {
    return text + QString::fromUtf8(fault.what());
  }
}

QStringList SoakedProgram::expectedHits(const QStringList& words) const {
  QStringList rows = main_.hits(words);
  for (const SourceRecord& record : lists_.online) {
    if (const auto made = listings_.find(record.first); made != listings_.end()) {
      rows += made->second.hits(words);
    }
  }
  for (const SourceRecord& record : lists_.offline) rows += offline_.at(record.second).hits(words);
  rows.sort();
  return rows;
}

int SoakedProgram::missingListings() const {
  return static_cast<int>(std::ranges::count_if(
      lists_.online, [this](const SourceRecord& record) { return !listings_.contains(record.first); }));
}

QStringList SoakedProgram::copiedHits() const {
  QStringList rows = desktop_.clipboardText().split(u'\n');
  rows.sort();
  return rows;
}

void SoakedProgram::compareHits(const QStringList& words) const {
  const QStringList copying = {QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c")};
  const QStringList expected = expectedHits(words);
  QStringList shown;
  press({QStringLiteral("ctrl+f"), QStringLiteral("shift+Tab")});
  waitUntil(
      QStringLiteral("for the hits"),
      [&] {
        press(copying);
        shown = copiedHits();
        return shown == expected;
      },
      [&] { return differenceOf(shown, expected); });
  // The search may not have been through yet.
  waitUntilAtRest();
  press(copying);
  waitUntilAtRest();
  shown = copiedHits();
  if (shown != expected) fail(QStringLiteral("hits are wrong; ") + differenceOf(shown, expected));
}

void SoakedProgram::search(const QStringList& words) {
  note(QStringLiteral("search \"%1\"").arg(words.join(u' ')));
  program_->find(words.join(u' '));
  for (int number = 0; number < missingListings(); ++number) answer({QStringLiteral("Return")});
  program_->waitForMainWindow();
  compareHits(words);
}

void SoakedProgram::waitForThreads(int most) const {
  waitUntil(QStringLiteral("for threads to end"),
            [&] { return figuresOf(program_->processId()).threads <= most; });
}

ProcessFigures SoakedProgram::figures() {
  // What is drawn into takes up memory, too. A window that becomes somewhat smaller keeps the memory it had,
  // so it is made large first.
  for (const QSize size : {QSize(1250, 950), QSize(900, 500)}) {
    desktop_.resize(program_->mainWindow(), size.width(), size.height());
    waitUntilAtRest();
  }
  search({kEverything});
  // Changed settings of the view are saved a second later.
  const auto isBeingSaved = [](const QString& descriptor) {
    return descriptor.endsWith(QStringLiteral(".part")) ||
           descriptor.endsWith(QStringLiteral("settings.ini.lock"));
  };
  ProcessFigures figures;
  waitUntil(QStringLiteral("for everything to be saved"), [&] {
    figures = figuresOf(program_->processId());
    return std::ranges::none_of(figures.descriptors, isBeingSaved);
  });
  return figures;
}

bool SoakedProgram::isListedAndThere(const SourceFolder& folder) const {
  return folder.isThere() && std::ranges::any_of(lists_.online, [&](const SourceRecord& record) {
           return record.first == folder.description();
         });
}

bool SoakedProgram::isAnyFolderAway() const {
  return std::ranges::any_of(lists_.online, [this](const SourceRecord& source) {
    return std::ranges::any_of(folders_, [&](const SourceFolder& folder) {
      return folder.description() == source.first && !folder.isThere();
    });
  });
}

QString SoakedProgram::listingPath(const SourceFolder& folder) const {
  return home_.data() + folder.description() + QStringLiteral(".txt");
}

QByteArray SoakedProgram::listingFile(const SourceFolder& folder) const {
  return home_.dataFile(folder.description() + QStringLiteral(".txt"));
}

SoakedProgram::Identities SoakedProgram::identitiesOfListings() const {
  Identities identities;
  for (const SourceFolder& folder : folders_) {
    identities[folder.description()] = fileIdentity(listingPath(folder));
  }
  return identities;
}

void SoakedProgram::startRefresh() const {
  press({QStringLiteral("alt+f"), QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Return")});
}

/// Waits until so many of the listed folders, or all where they are fewer, have a listing that was not there
/// `before`.
void SoakedProgram::waitForRefreshed(const Identities& before, int count) const {
  const auto all = static_cast<int>(std::ranges::count_if(
      folders_, [this](const SourceFolder& folder) { return isListedAndThere(folder); }));
  const int wanted = std::min(count, all);
  const auto isNew = [&](const SourceFolder& folder) {
    return isListedAndThere(folder) && fileIdentity(listingPath(folder)) != before.at(folder.description());
  };
  waitUntil(
      QStringLiteral("for %1 listings").arg(wanted),
      [&] { return std::ranges::count_if(folders_, isNew) >= wanted; }, [this] { return messageShown(); },
      [this] { return activityOf(program_->processId()).ticks; });
}

void SoakedProgram::refreshHasStarted(const Identities& before) {
  waitForRefreshed(before, kFolders);
  if (isAnyFolderAway()) {
    program_->waitForWindow(QStringLiteral("Results"));
    press({QStringLiteral("Escape")});
  }
  program_->waitForMainWindow();
  waitUntilAtRest();
  takeOverListings();
  for (const SourceFolder& folder : folders_) {
    if (isListedAndThere(folder) && !(listings_.at(folder.description()).files == folder.listing().files)) {
      fail(QStringLiteral("the listing of %1 is not new").arg(folder.description()));
    }
  }
}

/// Each listing is what it has to be now, or still what it was: then it stays known so.
/// One that was cut may hold less.
void SoakedProgram::takeOverListings(bool mayBeCut) {
  for (const SourceFolder& folder : folders_) {
    const auto earlier = listings_.find(folder.description());
    const bool isThere = fileIdentity(listingPath(folder)).has_value();
    if (!isThere && earlier == listings_.end()) continue;
    const QByteArray file = listingFile(folder);
    if (isListedAndThere(folder) && folder.listing().isIn(file)) {
      takeOver(folder.description(), folder.listing());
    } else if (earlier != listings_.end() && earlier->second.isIn(file)) {
      continue;
    } else if (const Listing cut = folder.listing().cutAs(file); mayBeCut && cut.isIn(file)) {
      takeOver(folder.description(), cut);
    } else {
      fail(QStringLiteral("the listing of %1 is neither the old nor the new one").arg(folder.description()));
    }
  }
}

void SoakedProgram::takeOver(const QString& description, const Listing& listing) {
  listings_[description] = listing;
  std::vector<Listing>& ever = everListed_[description + QStringLiteral(".txt")];
  if (ever.empty() || !(ever.back().files == listing.files)) ever.push_back(listing);
}

void SoakedProgram::refresh() {
  note(QStringLiteral("refresh"));
  const Identities before = identitiesOfListings();
  startRefresh();
  refreshHasStarted(before);
}

}  // namespace quorvin::test
