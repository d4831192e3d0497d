// SPDX-License-Identifier: GPL-2.0-or-later

// What a user does with the program besides searching, refreshing and closing.
#include "archive/archive_maker.h"
#include "e2e/soaked_program.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>

#include <algorithm>
#include <stdexcept>

namespace quorvin::test {

namespace {

const QString kFolderEditor = QStringLiteral("Local File Search Locations");
const QString kOfflineEditor = QStringLiteral("Offline Search List files");
const QString kReceived = QStringLiteral("Received/127.0.0.1/");

/// From the first box of the editors for sources back to their list, or the other way.
constexpr int kTabsToList = 4;
/// From their description on to the button that saves.
constexpr int kTabsToSave = 5;

QStringList times(int count, const QString& key) {
  return QStringList(count, key);
}

QByteArray headerDate(const QDate& day) {
  return QLocale::c().toString(day, QStringLiteral("ddd, dd MMM yyyy")).toLatin1() + " 00:00:00 GMT";
}

QStringList foldersIn(const QString& path) {
  return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

}  // namespace

/// There are two rows or more: going from the last to the first one selects that one alone, whatever was
/// selected before. Without a selection the buttons between the boxes and the list are passed over.
void SoakedProgram::selectRow(int row, bool hasSelection) const {
  press(times(hasSelection ? kTabsToList : 1, QStringLiteral("shift+Tab")) +
        QStringList{QStringLiteral("End"), QStringLiteral("Home")} + times(row, QStringLiteral("Down")));
}

/// Moves, deletes or adds an entry, in the editor that is open and in `records`; `unlisted` are the ones that
/// can be added. Says what it did.
QString SoakedProgram::editOnce(SourceRecords& records, const SourceRecords& unlisted, const AddEntry& add,
                                Dice& dice, bool& hasSelection) const {
  const int kind = dice.below(3);
  if (kind == 0 && !unlisted.empty()) {
    const SourceRecord& added = dice.pick(unlisted);
    add(added);
    records.push_back(added);
    return QStringLiteral("add ") + added.first;
  }
  if (records.size() < 2) return QStringLiteral("nothing");
  const int row = dice.below(static_cast<int>(records.size()));
  selectRow(row, hasSelection);
  hasSelection = true;
  QString done;
  if (kind == 1) {
    // Where the first one was deleted, nothing is selected, until a key leads to a row.
    press({QStringLiteral("Delete"), QStringLiteral("Up")});
    done = QStringLiteral("delete ") + records[static_cast<std::size_t>(row)].first;
    records.erase(records.begin() + row);
  } else {
    const bool isUp = dice.oneIn(2);
    press({isUp ? QStringLiteral("alt+Up") : QStringLiteral("alt+Down")});
    const int other = isUp ? row - 1 : row + 1;
    if (other >= 0 && other < static_cast<int>(records.size())) {
      std::swap(records[static_cast<std::size_t>(row)], records[static_cast<std::size_t>(other)]);
    }
    done =
        QStringLiteral("move row %1 %2").arg(row).arg(isUp ? QStringLiteral("up") : QStringLiteral("down"));
  }
  press(times(kTabsToList, QStringLiteral("Tab")));
  return done;
}

/// In the editor that is open: makes `records` those that are `wanted`, of which there is one at least.
void SoakedProgram::editTo(const SourceRecords& wanted, SourceRecords& records, const AddEntry& add) const {
  for (const SourceRecord& record : wanted) {
    if (std::ranges::find(records, record) != records.end()) continue;
    add(record);
    records.push_back(record);
  }
  bool hasSelection = false;
  for (int row = static_cast<int>(records.size()) - 1; row >= 0; --row) {
    if (std::ranges::find(wanted, records[static_cast<std::size_t>(row)]) != wanted.end()) continue;
    selectRow(row, hasSelection);
    hasSelection = true;
    press(QStringList{QStringLiteral("Delete"), QStringLiteral("Up")} +
          times(kTabsToList, QStringLiteral("Tab")));
    records.erase(records.begin() + row);
  }
}

SoakedProgram::AddEntry SoakedProgram::addingFolder() const {
  return [this](const SourceRecord& record) { program_->addFolder(record.first, record.second); };
}

SoakedProgram::AddEntry SoakedProgram::addingOfflineList() const {
  return [this](const SourceRecord& record) { program_->addOfflineList(record.second); };
}

void SoakedProgram::settleSources() {
  const auto isAsAtFirst = [](SourceRecords now, SourceRecords first) {
    std::ranges::sort(now);
    std::ranges::sort(first);
    return now == first;
  };
  for (SourceFolder& folder : folders_) {
    if (!folder.isThere()) folder.bringBack();
  }
  if (!isAsAtFirst(lists_.online, first_.online)) {
    program_->openFromFileMenu({QStringLiteral("a")}, kFolderEditor);
    editTo(first_.online, lists_.online, addingFolder());
    program_->saveFolders(false);
    waitUntilAtRest();
  }
  if (!isAsAtFirst(lists_.offline, first_.offline)) {
    program_->openFromFileMenu({QStringLiteral("Down"), QStringLiteral("Return")}, kOfflineEditor);
    editTo(first_.offline, lists_.offline, addingOfflineList());
    program_->saveOfflineLists();
    waitUntilAtRest();
  }
  refresh();
}

ProcessFigures SoakedProgram::settledFigures() {
  note(QStringLiteral("settle"));
  settleSources();
  lookAtPicture(QString(first_.online.front().first).replace(u' ', u'-') + QStringLiteral("-still.bmp"),
                {QSize(900, 700), QSize(200, 200)});
  return figures();
}

void SoakedProgram::editFolders(Dice& dice) {
  SourceRecords edited = lists_.online;
  const SourceRecords before = edited;
  program_->openFromFileMenu({QStringLiteral("a")}, kFolderEditor);
  bool hasSelection = false;
  for (int left = 1 + dice.below(3); left > 0; --left) {
    SourceRecords unlisted;
    for (const SourceFolder& folder : folders_) {
      const SourceRecord record{folder.description(), folder.path()};
      if (std::ranges::find(edited, record) == edited.end()) unlisted.push_back(record);
    }
    note(QStringLiteral("folders: ") + editOnce(edited, unlisted, addingFolder(), dice, hasSelection));
  }
  if (dice.oneIn(5)) {
    note(QStringLiteral("folders: cancel"));
    press({QStringLiteral("Escape")});
    return program_->waitForMainWindow();
  }
  const bool rescans = edited.size() > before.size() || dice.oneIn(3);
  note(rescans ? QStringLiteral("folders: save and rescan") : QStringLiteral("folders: save"));
  lists_.online = edited;
  const Identities identities = identitiesOfListings();
  program_->tab(kTabsToSave);
  press({QStringLiteral("space")});
  answer({rescans ? QStringLiteral("alt+y") : QStringLiteral("alt+n")});
  if (rescans) return refreshHasStarted(identities);
  program_->waitForMainWindow();
  waitUntilAtRest();
}

void SoakedProgram::editOfflineLists(Dice& dice) {
  SourceRecords edited = lists_.offline;
  program_->openFromFileMenu({QStringLiteral("Down"), QStringLiteral("Return")}, kOfflineEditor);
  bool hasSelection = false;
  for (int left = 1 + dice.below(3); left > 0; --left) {
    SourceRecords unlisted;
    for (const QString& path : offlineOnDisk_) {
      const SourceRecord record{QStringLiteral("Offline"), path};
      if (std::ranges::find(edited, record) == edited.end()) unlisted.push_back(record);
    }
    note(QStringLiteral("offline lists: ") +
         editOnce(edited, unlisted, addingOfflineList(), dice, hasSelection));
  }
  if (dice.oneIn(5)) {
    note(QStringLiteral("offline lists: cancel"));
    press({QStringLiteral("Escape")});
    program_->waitForMainWindow();
  } else {
    program_->saveOfflineLists();
    lists_.offline = edited;
  }
  waitUntilAtRest();
}

void SoakedProgram::editOptions(Dice& dice) {
  const QString name = name_ + QString::number(dice.below(1000));
  const bool isSaved = !dice.oneIn(4);
  note(QStringLiteral("options: nickname %1%2").arg(name, isSaved ? QString() : QStringLiteral(", cancel")));
  program_->openFromFileMenu({QStringLiteral("o")}, QStringLiteral("Options"));
  program_->typeAfterTabs(7, name);
  press({isSaved ? QStringLiteral("Return") : QStringLiteral("Escape")});
  program_->waitForMainWindow();
  waitUntilAtRest();
  if (isSaved) nickName_ = name;
}

void SoakedProgram::preview(Dice& dice) {
  std::vector<QString> pictures;
  for (const SourceFolder& folder : folders_) {
    const auto made = listings_.find(folder.description());
    if (!isListedAndThere(folder) || made == listings_.end()) continue;
    for (const auto& [path, facts] : made->second.files) {
      if (path.startsWith(QStringLiteral("pictures/"))) pictures.push_back(path.section(u'/', -1));
    }
  }
  if (pictures.empty()) return note(QStringLiteral("no picture to look at"));
  const QString name = dice.pick(pictures);
  lookAtPicture(name, {QSize(200 + dice.below(600), 200 + dice.below(400))});
}

/// Shows it in the window for pictures, which gets these sizes one after the other.
void SoakedProgram::lookAtPicture(const QString& name, const std::vector<QSize>& sizes) {
  search({name});
  note(QStringLiteral("preview ") + name);
  press({QStringLiteral("ctrl+f"), QStringLiteral("shift+Tab"), QStringLiteral("Home"),
         QStringLiteral("shift+F10"), QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Down"),
         QStringLiteral("Return")});
  if (name.contains(QStringLiteral("damaged"))) {
    answer({QStringLiteral("Return")});
  } else {
    program_->waitForWindow(QStringLiteral("Image Preview"));
    const QString window = desktop_.activeWindow();
    for (const QSize size : sizes) {
      desktop_.resize(window, size.width(), size.height());
      waitUntilAtRest();
    }
    press({QStringLiteral("Escape")});
  }
  program_->waitForMainWindow();
  waitUntilAtRest();
}

void SoakedProgram::lookAtHelp(Dice& dice) {
  const QString page = dice.oneIn(2) ? QStringLiteral("u") : QStringLiteral("r");
  note(QStringLiteral("help, ") + page);
  press({QStringLiteral("alt+h"), page});
  program_->waitForWindow(QStringLiteral("Quorvin Utility Help"));
  waitUntilAtRest();
  press(times(1 + dice.below(4), QStringLiteral("Tab")) + QStringList{QStringLiteral("Return")});
  waitUntilAtRest();
  press({QStringLiteral("alt+Left"), QStringLiteral("Page_Down"), QStringLiteral("ctrl+w")});
  program_->waitForMainWindow();
  waitUntilAtRest();
}

void SoakedProgram::updateFromWeb(Dice& dice) {
  const bool isNew = !dice.oneIn(4);
  const bool isWanted = !dice.oneIn(3);
  note(QStringLiteral("web update: %1")
           .arg(!isNew     ? QStringLiteral("nothing new")
                : isWanted ? QStringLiteral("take")
                           : QStringLiteral("refuse")));
  ++mainVersion_;
  const Listing next = mainListing();
  const QDate day = isNew ? QDate(2035, 1, 1).addDays(mainVersion_) : QDate(1979, 1, 1);
  site_.publish(archiveOf("main.txt", next.text()), headerDate(day));
  press({QStringLiteral("ctrl+f"), QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("Tab"),
         QStringLiteral("space")});
  if (isNew && isWanted) {
    answer({QStringLiteral("alt+y")});
    waitUntil(
        QStringLiteral("for the new main data file"),
        [&] { return home_.dataFile(QStringLiteral("main.txt")) == next.text(); },
        [this] { return messageShown(); });
    main_ = next;
    everListed_[QStringLiteral("main.txt")].push_back(next);
  } else {
    answer({isNew ? QStringLiteral("alt+n") : QStringLiteral("Return")});
  }
  program_->waitForMainWindow();
  waitUntilAtRest();
}

void SoakedProgram::shareWith(SoakedProgram& peer, bool isAdded, bool refreshesMeanwhile) {
  // What comes for a folder that has no listing yet is not compared.
  if (missingListings() > 0) return note(QStringLiteral("no exchange, a listing is missing"));
  note(QStringLiteral("share with %1, who %2")
           .arg(peer.name_, isAdded ? QStringLiteral("adds") : QStringLiteral("does not add")));
  const QStringList sharing = {QStringLiteral("alt+p"), QStringLiteral("s")};
  press(sharing);
  answer({QStringLiteral("Return")});
  program_->waitForMainWindow();
  waitUntilAtRest();
  if (refreshesMeanwhile) refresh();
  peer.getListsOf(*this, isAdded);
  press(sharing);
  waitUntilAtRest();
}

void SoakedProgram::getListsOf(const SoakedProgram& sharer, bool isAdded) {
  const QStringList before = foldersIn(home_.data() + kReceived);
  press({QStringLiteral("alt+p"), QStringLiteral("g")});
  program_->waitForWindow(QStringLiteral("Get Lists From Peer"));
  program_->type(QStringLiteral("127.0.0.1"));
  press({QStringLiteral("Return")});
  answer({isAdded ? QStringLiteral("alt+y") : QStringLiteral("alt+n")});
  if (isAdded) addReceived(sharer, before);
  program_->waitForMainWindow();
  waitUntilAtRest();
}

/// What came last of each folder of the peer is searched, in the place of what came earlier.
void SoakedProgram::addReceived(const SoakedProgram& sharer, const QStringList& foldersBefore) {
  for (const SourceRecord& shared : sharer.lists_.online) {
    const auto listing = sharer.listings_.find(shared.first);
    if (listing == sharer.listings_.end()) continue;
    const QString file = u'/' + shared.first + QStringLiteral(".txt");
    const QByteArray content = sharer.home_.dataFile(file);
    QString path;
    waitUntil(QStringLiteral("for the list ") + shared.first, [&] {
      for (const QString& folder : foldersIn(home_.data() + kReceived)) {
        const QString name = kReceived + folder + file;
        if (foldersBefore.contains(folder) || !home_.hasData(name)) continue;
        path = home_.data() + name;
        return home_.dataFile(name) == content;
      }
      return false;
    });
    offline_[path] = listing->second;
    const QString description = shared.first + QStringLiteral(" from 127.0.0.1");
    const auto earlier = std::ranges::find(lists_.offline, description, &SourceRecord::first);
    if (earlier != lists_.offline.end()) {
      earlier->second = path;
    } else {
      lists_.offline.push_back({description, path});
    }
  }
}

void SoakedProgram::changeFiles(Dice& dice) {
  if (dice.oneIn(4)) {
    const QString path = dice.pick(offlineOnDisk_);
    note(QStringLiteral("another list is now ") + path.section(u'/', -1));
    return writeFarList(path, dice);
  }
  SourceFolder& folder = dice.pick(folders_);
  if (!folder.isThere()) return note(QStringLiteral("no change, the folder is away"));
  for (int left = 1 + dice.below(4); left > 0; --left) {
    note(folder.description() + QStringLiteral(": ") + folder.change(dice));
  }
}

void SoakedProgram::takeAwayOrBringBack(Dice& dice) {
  const auto away = std::ranges::find_if(folders_, [](const SourceFolder& one) { return !one.isThere(); });
  if (away != folders_.end()) {
    note(QStringLiteral("bring back ") + away->description());
    return away->bringBack();
  }
  SourceFolder& folder = dice.pick(folders_);
  note(QStringLiteral("take away ") + folder.description());
  folder.takeAway();
}

}  // namespace quorvin::test
