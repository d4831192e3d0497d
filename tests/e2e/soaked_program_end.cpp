// SPDX-License-Identifier: GPL-2.0-or-later

// How the program ends, and what is on the disk then.
#include "e2e/soaked_program.h"
#include "support/plain_walker.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <csignal>
#include <stdexcept>

namespace quorvin::test {

namespace {

constexpr int kSearchesAtTheEnd = 5;

[[noreturn]] void fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

/// The paths of all files below `folder`, from there on.
QStringList filesBelow(const QString& folder) {
  QStringList files;
  QDirIterator paths(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
  while (paths.hasNext()) files += paths.next().mid(folder.size());
  files.sort();
  return files;
}

}  // namespace

void SoakedProgram::beInTheMiddle(Moment moment, Dice& dice) {
  switch (moment) {
    case Moment::AtRest:
      return;
    case Moment::Searching:
      return program_->find(randomWords(dice).join(u' '));
    case Moment::Refreshing: {
      const Identities before = identitiesOfListings();
      startRefresh();
      waitForWork(before);
      return waitForRefreshed(before, dice.below(static_cast<int>(folders_.size())));
    }
    case Moment::InDialog:
      return program_->openFromFileMenu({QStringLiteral("o")}, QStringLiteral("Options"));
  }
}

bool SoakedProgram::isWriting() const {
  return !QDir(home_.data()).entryList({QStringLiteral("*.tmp")}).isEmpty();
}

/// The menu has closed and the refresh has started. Before that the menu has the keyboard, and Alt+F4 does
/// not reach the window manager, whose key it is.
void SoakedProgram::waitForWork(const Identities& before) const {
  // Nothing is written where no folder is there.
  if (std::ranges::none_of(folders_, [this](const SourceFolder& one) { return isListedAndThere(one); }))
    return;
  waitUntil(
      QStringLiteral("for the refresh to start"),
      [&] { return isWriting() || identitiesOfListings() != before; }, [this] { return messageShown(); });
}

void SoakedProgram::end(WayOut way, Moment moment, Dice& dice) {
  static const std::vector<QStringList> kKeys = {
      {QStringLiteral("ctrl+q")}, {QStringLiteral("alt+F4")}, {QStringLiteral("alt+f"), QStringLiteral("q")}};
  const QStringList ways = {QString(), QStringLiteral("SIGTERM"), QStringLiteral("SIGKILL")};
  const QStringList moments = {QStringLiteral("at rest"), QStringLiteral("searching"),
                               QStringLiteral("refreshing"), QStringLiteral("in a dialog")};
  const QStringList keys = dice.pick(kKeys);
  note(QStringLiteral("end %1, %2")
           .arg(way == WayOut::Keys ? keys.join(u' ') : ways[static_cast<int>(way)],
                moments[static_cast<int>(moment)]));
  if (way == WayOut::Kill) waitForRecoveryCopy();
  // What asks or reports on the way keeps the keys for itself.
  beInTheMiddle(way == WayOut::Keys && isGoingToReport() ? Moment::AtRest : moment, dice);
  // The window manager closes the window that has the keyboard, and that may be the progress window's turn.
  if (way == WayOut::Keys && keys.contains(QStringLiteral("alt+F4"))) program_->comeToFront();
  const ProgramEnd end = way == WayOut::Keys ? program_->endBy(keys)
                                             : program_->endBySignal(way == WayOut::Kill ? SIGKILL : SIGTERM);
  program_.reset();
  const bool hasEndedAsItShould =
      way == WayOut::Kill ? !end.isExit : end.isExit && end.code == 0 && end.errors.isEmpty();
  if (!hasEndedAsItShould) fail(QStringLiteral("the end was not clean: ") + end.errors);
  if (way != WayOut::Kill) {
    saved_ = lists_;
    savedNickName_ = nickName_;
  }
  compareSaved();
  takeOverListings();
}

void SoakedProgram::forgetUnsaved() {
  lists_ = saved_;
  nickName_ = savedNickName_;
}

/// Empty where there is none.
QString SoakedProgram::recoveryCopy() const {
  const QStringList names = QDir(home_.folder.path()).entryList({QStringLiteral("settings.ini.recovery-*")});
  return names.isEmpty() ? QString() : home_.folder.pathOf(names.front());
}

QJsonObject SoakedProgram::unsavedChanges() const {
  const auto arrayOf = [](const SourceRecords& records) {
    QJsonArray array;
    for (const auto& [description, path] : records) array.append(QJsonArray{description, path});
    return array;
  };
  QJsonObject changes;
  if (lists_.online != saved_.online) changes[QStringLiteral("online")] = arrayOf(lists_.online);
  if (lists_.offline != saved_.offline) changes[QStringLiteral("offline")] = arrayOf(lists_.offline);
  if (nickName_ != savedNickName_) {
    changes[QStringLiteral("settings")] = QJsonObject{{QStringLiteral("NickName"), nickName_}};
  }
  return changes;
}

void SoakedProgram::waitForRecoveryCopy() const {
  waitUntil(QStringLiteral("for the recovery copy"), [this] {
    const QString path = recoveryCopy();
    if (path.isEmpty()) return unsavedChanges().isEmpty();
    QFile copy(path);
    const QByteArray kept = copy.open(QIODevice::ReadOnly) ? copy.readAll() : QByteArray();
    return QJsonDocument::fromJson(kept).object() == unsavedChanges();
  });
}

void SoakedProgram::compareSaved() const {
  const auto compare = [this](const QString& name, const SourceRecords& records) {
    if (home_.dataFile(name) == listFile(records)) return;
    fail(QStringLiteral("%1 is\n%2instead of\n%3")
             .arg(name, QString::fromUtf8(home_.dataFile(name)), QString::fromUtf8(listFile(records))));
  };
  compare(QStringLiteral("Locations.txt"), saved_.online);
  compare(QStringLiteral("OfflineLocations.txt"), saved_.offline);
  if (!home_.settings().contains(QStringLiteral("\nNickName=%1\n").arg(savedNickName_))) {
    fail(QStringLiteral("not the settings: ") + home_.settings());
  }
}

int SoakedProgram::closeAndCompare(Dice& dice) {
  if (!isRunning()) start(dice);
  for (SourceFolder& folder : folders_) {
    if (!folder.isThere()) folder.bringBack();
  }
  refresh();
  for (int left = kSearchesAtTheEnd; left > 0; --left) search(randomWords(dice));
  end(WayOut::Keys, Moment::AtRest, dice);
  note(QStringLiteral("compare what is on the disk"));
  compareNamesLeft();
  return compareListings();
}

/// The folders as they are against what the listings of them hold.
int SoakedProgram::compareListings() const {
  for (const auto& [description, path] : lists_.online) {
    const QByteArray file = home_.dataFile(description + QStringLiteral(".txt"));
    const std::string difference =
        differenceOf(blocksOf(file, description.toStdString()), plainWalk(path.toStdString()));
    if (!difference.empty()) fail(description + QStringLiteral(": ") + QString::fromStdString(difference));
  }
  for (const auto& [description, path] : lists_.offline) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) fail(file.errorString());
    if (!offline_.at(path).isIn(file.readAll())) fail(QStringLiteral("not as it came: ") + path);
  }
  return static_cast<int>(lists_.online.size() + lists_.offline.size());
}

/// Nothing is there but what is known.
void SoakedProgram::compareNamesLeft() const {
  QStringList known = {QStringLiteral("Locations.txt"), QStringLiteral("OfflineLocations.txt"),
                       QStringLiteral("main.txt"), QStringLiteral("main.zip")};
  for (const SourceFolder& folder : folders_) {
    known += folder.description() + QStringLiteral(".txt");
    known += folder.description() + QStringLiteral(".zip");
    // A refresh that was killed leaves it behind, for the next refresh of that folder to replace.
    if (!isListedAndThere(folder)) known += folder.description() + QStringLiteral(".tmp");
  }
  const QRegularExpression grown(
      QStringLiteral("^(Received/127\\.0\\.0\\.1/([^/.]+\\.zip|[^/.]+/[^/.]+\\.txt)"
                     "|history/[^/]+/([0-9]{8}\\.version|incomplete))$"));
  QStringList surplus;
  for (const QString& name : filesBelow(home_.data())) {
    if (!known.contains(name) && !grown.match(name).hasMatch()) surplus += QStringLiteral("data/") + name;
  }
  const QRegularExpression temporary(QStringLiteral("\\.(part|tmp)$|\\.recovery-"));
  for (const QString& folder : {QStringLiteral("xdg_cache_home/"), QStringLiteral("xdg_config_home/"),
                                QStringLiteral("xdg_data_home/"), QStringLiteral("home/")}) {
    for (const QString& name : filesBelow(home_.folder.pathOf(folder))) {
      if (temporary.match(name).hasMatch()) surplus += folder + name;
    }
  }
  // The lock that keeps a second window away stays, as the next start would make it again.
  const QRegularExpression lock(QStringLiteral("^quorvin/[0-9a-f]{16}\\.lock$"));
  for (const QString& name : filesBelow(home_.folder.pathOf(QStringLiteral("runtime/")))) {
    if (!lock.match(name).hasMatch()) surplus += QStringLiteral("runtime/") + name;
  }
  for (const QString& name : home_.folder.names()) {
    if (temporary.match(name).hasMatch()) surplus += name;
  }
  if (!surplus.isEmpty()) fail(QStringLiteral("left over: ") + surplus.join(QStringLiteral(", ")));
}

}  // namespace quorvin::test
