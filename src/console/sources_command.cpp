// SPDX-License-Identifier: GPL-2.0-or-later

// "sources": what is searched.
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/json_text.h"
#include "faults/runtime_fault.h"
#include "files/file_lock.h"
#include "files/file_lookup.h"
#include "platform/ini_settings_store.h"
#include "state/settings.h"
#include "state/source_entries.h"
#include "state/source_list_file.h"
#include "texts/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace quorvin {

namespace {

// Long enough for any other program to finish its own change.
constexpr int kLockWaitMilliseconds = 5000;

/// Both lists while they are edited.
struct EditedSources {
  std::vector<SourceEntry> folders;
  std::vector<SourceEntry> offline;

  bool operator==(const EditedSources&) const = default;
};

/// A source by its place in its list.
struct Place {
  std::vector<SourceEntry>* list;
  std::size_t row;
};

QString absolutePath(const QString& path) {
  return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

/// A row of the list that is shown.
struct ShownSource {
  QString kind;
  SourceEntry entry;
  QString listing;
  bool isThere;
};

std::string textOf(const ShownSource& source, bool isJson) {
  if (isJson) {
    JsonLine line;
    line.add("kind", source.kind).add("description", source.entry.description).add("path", source.entry.path);
    return line.add("listing", source.listing).add("there", source.isThere).text();
  }
  const QString state = source.isThere ? QStringLiteral("there") : QStringLiteral("gone");
  const QStringList row{source.kind, source.entry.description, source.entry.path, source.listing, state};
  return row.join(u'\t').toStdString() + '\n';
}

class SourcesCommand {
 public:
  explicit SourcesCommand(const SourcesRequest& request) : request_(request) {}

  int run() {
    loadUserSources(state_, QLocale(), messages_);
    if (request_.action == SourcesRequest::Action::List) return list();
    // Two commands one after another must not each start from the same list.
    QDir().mkpath(QFileInfo(userSettingsPath()).path());
    const FileLock lock(userSettingsPath(), kLockWaitMilliseconds);
    state_.OnlineSourceCount = state_.OfflineSourceCount = 0;
    loadSourceLists(state_);
    return change();
  }

 private:
  int list() {
    for (const ShownSource& source : shown()) {
      const std::string row = textOf(source, request_.isJson);
      std::fwrite(row.data(), 1, row.size(), stdout);
    }
    const bool isWritten = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (!isWritten) printError(Texts::tr("the list could not be written to standard output"));
    if (!request_.isQuiet) printErrorLog(Texts::tr("The data folder is %1").arg(state_.LocalFolder));
    return isWritten ? 0 : 2;
  }

  std::vector<ShownSource> shown() const {
    std::vector<ShownSource> sources;
    for (const SourceEntry& entry : entriesOf(state_.OnlineSources, state_.OnlineSourceCount)) {
      sources.push_back({QStringLiteral("folder"), entry, state_.onlineListingPath(entry.description),
                         QFileInfo(entry.path).isDir()});
    }
    if (!state_.TextFile.isEmpty()) {
      const QString path = state_.placeOf(state_.TextFile);
      sources.push_back({QStringLiteral("main"), {state_.TextFile, path}, path, fileExists(path)});
    }
    for (const SourceEntry& entry : entriesOf(state_.OfflineSources, state_.OfflineSourceCount)) {
      sources.push_back({QStringLiteral("offline"), entry, entry.path, fileExists(entry.path)});
    }
    return sources;
  }

  int change() {
    const EditedSources before{entriesOf(state_.OnlineSources, state_.OnlineSourceCount),
                               entriesOf(state_.OfflineSources, state_.OfflineSourceCount)};
    edited_ = before;
    const QString refusal = edit();
    if (!refusal.isEmpty()) {
      for (const QString& line : refusal.split(QStringLiteral("\r\n"))) printError(line);
      return 2;
    }
    return save(before) ? 0 : 2;
  }

  /// Changes edited_; the sentences that say why that cannot be, a line each.
  QString edit() {
    switch (request_.action) {
      case SourcesRequest::Action::Add:
        return add();
      case SourcesRequest::Action::Remove:
        return remove();
      case SourcesRequest::Action::Move:
        return move();
      case SourcesRequest::Action::List:
        break;
    }
    return {};
  }

  QString add() {
    const std::size_t foldersBefore = edited_.folders.size();
    QString refusal;
    for (const QString& path : request_.names) {
      refusal = addOne(absolutePath(path));
      if (!refusal.isEmpty()) return refusal;
    }
    // A notice about folders that were there before is no reason to refuse new ones.
    if (edited_.folders.size() == foldersBefore) return {};
    const std::vector<SourceEntry> old(edited_.folders.begin(),
                                       edited_.folders.begin() + static_cast<std::ptrdiff_t>(foldersBefore));
    const QString notice = descriptionNotice(edited_.folders, state_);
    return notice == descriptionNotice(old, state_) ? QString() : notice;
  }

  QString addOne(const QString& path) {
    const bool isFolder = QFileInfo(path).isDir();
    if (!isFolder && !fileExists(path)) {
      return Texts::tr("%1 is neither a folder nor a listing file").arg(path);
    }
    std::vector<SourceEntry>& list = isFolder ? edited_.folders : edited_.offline;
    const QString refusal =
        isFolder ? addFolders({withTrailingSeparator(path, nativePathStyle())}, list, nativePathStyle())
                 : addListings({path}, list);
    if (!refusal.isEmpty() || request_.description.isEmpty()) return refusal;
    // As in the editors: a list cannot keep a double quote.
    list.back().description = QString(request_.description).replace(u'"', u'\'');
    return whyNotAdded(list.back()).value_or(QString());
  }

  QString remove() {
    std::vector<Place> places;
    for (const QString& name : request_.names) {
      Place place{};
      const QString refusal = find(name, place);
      if (!refusal.isEmpty()) return refusal;
      places.push_back(place);
    }
    // From the last one on, so that the places of those before it stay true.
    std::ranges::sort(places, std::ranges::greater(), &Place::row);
    const auto isSame = [](const Place& a, const Place& b) { return a.list == b.list && a.row == b.row; };
    for (std::size_t i = 0; i < places.size(); ++i) {
      const Place& place = places[i];
      const auto isTwin = [&](const Place& other) { return isSame(place, other); };
      if (std::any_of(places.begin(), places.begin() + static_cast<std::ptrdiff_t>(i), isTwin)) continue;
      place.list->erase(place.list->begin() + static_cast<std::ptrdiff_t>(place.row));
    }
    return {};
  }

  QString move() {
    Place place{};
    const QString refusal = find(request_.names.first(), place);
    if (!refusal.isEmpty()) return refusal;
    std::vector<SourceEntry>& list = *place.list;
    const auto count = static_cast<int>(list.size());
    if (request_.place < 1 || request_.place > count) {
      return Texts::tr("the list has places 1 to %1").arg(count);
    }
    SourceEntry entry = std::move(list[place.row]);
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(place.row));
    list.insert(list.begin() + (request_.place - 1), std::move(entry));
    return {};
  }

  /// The one source of that description or path.
  QString find(const QString& name, Place& place) {
    int found = 0;
    const QString path = absolutePath(name);
    for (std::vector<SourceEntry>* list : {&edited_.folders, &edited_.offline}) {
      for (std::size_t row = 0; row < list->size(); ++row) {
        const SourceEntry& entry = (*list)[row];
        if (entry.description != name && entry.path != name && QDir::cleanPath(entry.path) != path) continue;
        ++found;
        place = {list, row};
      }
    }
    if (found == 1) return {};
    if (found == 0) {
      return Texts::tr("there is no source \"%1\"; quorvin-cli sources shows them").arg(name);
    }
    return Texts::tr("%1 sources are called \"%2\"; please name the path of one").arg(found).arg(name);
  }

  bool save(const EditedSources& before) {
    for (const auto& refusal :
         {storeEntries(edited_.folders, state_.OnlineSources, state_.OnlineSourceCount),
          storeEntries(edited_.offline, state_.OfflineSources, state_.OfflineSourceCount)}) {
      if (!refusal) continue;
      printError(*refusal);
      return false;
    }
    if (edited_.folders != before.folders && !saveOnlineSources(state_, messages_)) return false;
    if (edited_.offline != before.offline && !saveOfflineSources(state_, messages_)) return false;
    const bool hasNewFolder = edited_.folders.size() > before.folders.size();
    if (hasNewFolder && !request_.isQuiet) {
      printErrorLog(Texts::tr("quorvin-cli refresh makes the listing"));
    }
    return true;
  }

  const SourcesRequest& request_;
  ProgramState state_;
  ErrorLines messages_;
  EditedSources edited_;
};

}  // namespace

int runSources(const SourcesRequest& request) {
  try {
    return SourcesCommand(request).run();
  } catch (const RuntimeFault& fault) {
    printError(fault.description());
    return 2;
  }
}

}  // namespace quorvin
