// SPDX-License-Identifier: GPL-2.0-or-later
#include "state/data_taken_along.h"

#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lookup.h"
#include "files/file_reader.h"
#include "state/protected_files.h"
#include "state/settings.h"
#include "texts/texts.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <vector>

namespace quorvin {

namespace {

constexpr std::size_t kPieceBytes = std::size_t{1} << 20;
constexpr char16_t kLocalFolder[] = u"LocalFolder";
constexpr QStringView kOfflineList = u"OfflineLocations.txt";
constexpr QStringView kOwnNote = u"about-this-folder.txt";

bool hasSourceList(const QString& folder) {
  return std::ranges::any_of(QDir(folder).entryList(QDir::Files), isSourceListName);
}

bool isSameFolder(const QString& one, const QString& other) {
  const QString canonical = QFileInfo(one).canonicalFilePath();
  return !canonical.isEmpty() && canonical == QFileInfo(other).canonicalFilePath();
}

std::vector<char> nextPiece(SequentialFile& file) {
  std::vector<char> piece(kPieceBytes);
  piece.resize(file.read(piece));
  return piece;
}

QByteArray wholeFile(const QString& path) {
  SequentialFile file(path);
  QByteArray bytes;
  for (auto piece = nextPiece(file); !piece.empty(); piece = nextPiece(file)) {
    bytes.append(piece.data(), static_cast<qsizetype>(piece.size()));
  }
  return bytes;
}

bool haveSameContent(const QString& one, const QString& other) {
  if (QFileInfo(one).size() != QFileInfo(other).size()) return false;
  SequentialFile first(one);
  SequentialFile second(other);
  for (auto piece = nextPiece(first); !piece.empty(); piece = nextPiece(first)) {
    if (piece != nextPiece(second)) return false;
  }
  return true;
}

/// The way of the user's data from one folder to another.
class DataMove {
 public:
  DataMove(const ProgramPlace& place, const QString& textFile, const QString& archiveFile)
      : from_(place.executableFolder), to_(place.dataFolder) {
    for (const QString& folder : {QStringLiteral("Received"), QStringLiteral("history")}) addBelow(folder);
    const QStringList names = QDir(from_).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
      const bool isListing = name.endsWith(QStringLiteral(".txt")) || name == textFile || name == archiveFile;
      if (isListing && !isSourceListName(name) && name != kOwnNote) names_.append(name);
    }
    // The lists come last: a move that was interrupted is seen by their absence.
    std::ranges::copy_if(names, std::back_inserter(names_), isSourceListName);
  }

  bool hasAny() const { return !names_.isEmpty(); }

  /// The name of a file that is there already and is another one; empty when there is none.
  QString clash() const {
    for (const QString& name : names_) {
      if (QFileInfo::exists(to_ + name) && !isThere(name)) return name;
    }
    return {};
  }

  void copy() const {
    for (const QString& name : names_) {
      if (!isThere(name)) copyFile(name);
    }
  }

 private:
  void addBelow(const QString& folder) {
    QDirIterator files(from_ + folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) names_.append(files.next().mid(from_.size()));
  }

  bool isThere(const QString& name) const {
    if (!QFileInfo::exists(to_ + name)) return false;
    if (name == kOfflineList) return wholeFile(to_ + name) == offlineList();
    return haveSameContent(from_ + name, to_ + name);
  }

  /// The offline list with the paths of listings that are copied too.
  QByteArray offlineList() const {
    QByteArray list = wholeFile(from_ + kOfflineList.toString());
    const QByteArray before = '"' + QFile::encodeName(from_);
    const QByteArray after = '"' + QFile::encodeName(to_);
    for (qsizetype at = list.indexOf(before); at >= 0; at = list.indexOf(before, at + 1)) {
      const qsizetype nameStart = at + before.size();
      const qsizetype nameEnd = list.indexOf('"', nameStart);
      if (nameEnd < 0) break;
      const QString name = QFile::decodeName(list.mid(nameStart, nameEnd - nameStart));
      if (names_.contains(name)) list.replace(at, before.size(), after);
    }
    return list;
  }

  void copyFile(const QString& name) const {
    const QString target = to_ + name;
    if (!QDir().mkpath(QFileInfo(target).path())) throw RuntimeFault(FaultNumber::PathFileAccess);
    AsideOptions options;
    options.mayReplace = false;
    FileAside copy(target, options);
    if (name == kOfflineList) {
      const QByteArray list = offlineList();
      copy.write({list.constData(), static_cast<std::size_t>(list.size())});
    } else {
      SequentialFile original(from_ + name);
      for (auto piece = nextPiece(original); !piece.empty(); piece = nextPiece(original)) {
        copy.write({piece.data(), piece.size()});
      }
    }
    copy.finish();
    // The web update tells by its time whether an archive is the newest.
    QFile file(copy.path());
    if (file.open(QIODevice::ReadWrite)) {
      file.setFileTime(QFileInfo(from_ + name).lastModified(), QFileDevice::FileModificationTime);
    }
    if (!copy.commitUnlessTaken(QFileInfo(target).fileName()))
      throw RuntimeFault(FaultNumber::PathFileAccess);
  }

  QString from_;
  QString to_;
  /// Relative to both folders.
  QStringList names_;
};

QString whereItWas(const ProgramPlace& place) {
  return Texts::tr(
             "Your lists were kept in %1, beside the program, where a new build or an update may remove "
             "them.")
      .arg(place.executableFolder);
}

QString takenText(const ProgramPlace& place) {
  return whereItWas(place) + QStringLiteral("\r\n\r\n") +
         Texts::tr(
             "They have been copied to %1, and are used there from now on. The "
             "old files are no longer "
             "needed.")
             .arg(place.dataFolder);
}

QString clashText(const ProgramPlace& place, const QString& name) {
  return whereItWas(place) + QStringLiteral("\r\n\r\n") +
         Texts::tr(
             "They could not be copied to %1, which holds another file of the "
             "name %2. Put together by "
             "hand what you want to keep, and choose its folder under File, Options.")
             .arg(place.dataFolder, name);
}

QString faultText(const ProgramPlace& place, const RuntimeFault& fault) {
  return whereItWas(place) + QStringLiteral("\r\n\r\n") +
         Texts::tr("They could not be copied to %1: %2").arg(place.dataFolder, fault.description());
}

QString stored(const SettingsStore& store, const QString& application, const QString& key) {
  return store.read(application, QString::fromUtf16(kSettingsSection), key, {});
}

/// Whether what is beside the program is in use, or was, before the settings were lost.
bool isInUse(const QString& localFolder, const ProgramPlace& place) {
  if (!localFolder.isEmpty()) return isSameFolder(localFolder, place.executableFolder);
  // Then a first run takes the folder that is named there.
  if (ordinaryFileExists(QString::fromUtf16(kDefaultsFileName))) return false;
  // Where this user cannot write, the lists are somebody else's.
  return hasSourceList(place.executableFolder) && QFileInfo(place.executableFolder).isWritable() &&
         !hasSourceList(place.dataFolder);
}

void move(SettingsStore& store, const QString& application, const QString& localFolder,
          const ProgramPlace& place, MessageBoxes& messages) {
  const DataMove data(place, stored(store, application, QStringLiteral("TextFile")),
                      stored(store, application, QStringLiteral("ArchiveFile")));
  const QString clash = data.clash();
  if (!clash.isEmpty()) return messages.inform(clashText(place, clash));
  prepareUserDataFolder(place.dataFolder);
  data.copy();
  if (!localFolder.isEmpty()) {
    store.write(application, QString::fromUtf16(kSettingsSection), QString::fromUtf16(kLocalFolder),
                place.dataFolder);
  }
  if (data.hasAny()) messages.inform(takenText(place));
}

}  // namespace

void takeAlongData(SettingsStore& store, const QString& application, const ProgramPlace& place,
                   MessageBoxes& messages) {
  if (!isInstalledOrBuilt(place.executableFolder)) return;
  QString localFolder;
  try {
    localFolder = stored(store, application, QString::fromUtf16(kLocalFolder));
  } catch (const RuntimeFault&) {
    // Start-up will report that the settings cannot be read.
    return;
  }
  if (!isInUse(localFolder, place)) return;
  try {
    move(store, application, localFolder, place, messages);
  } catch (const RuntimeFault& fault) {
    messages.inform(faultText(place, fault));
  }
}

}  // namespace quorvin
