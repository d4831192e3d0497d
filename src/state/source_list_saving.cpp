#include "state/source_list_saving.h"

#include "files/file_aside.h"
#include "files/file_identity.h"
#include "files/file_lookup.h"
#include "files/sequential_file.h"
#include "state/data_folder.h"
#include "state/source_list_file.h"

#include <QByteArray>

#include <optional>

namespace quorvin {

namespace {

struct List {
  QString path;
  /// ProgramState::onlineListRead or its like.
  QString read;
  const SourceTable& table;
  int count;
};

/// A folder may be written in many ways, "data/" and "data/./", so paths alone do not tell.
bool isSameFile(const QString& path, const QString& other) {
  const std::optional<FileIdentity> identity = fileIdentity(path);
  return path == other || (identity && identity == fileIdentity(other));
}

/// Whether there is a list whose records are in no table.
bool holdsUnknownRecords(const List& list) {
  return ordinaryFileExists(list.path) && !isSameFile(list.path, list.read);
}

QByteArray contentOf(const QString& path) {
  SequentialFile file(path);
  QByteArray content(static_cast<qsizetype>(file.sizeWhenOpened()), Qt::Uninitialized);
  const std::size_t size = file.read({content.data(), static_cast<std::size_t>(content.size())});
  content.truncate(static_cast<qsizetype>(size));
  return content;
}

/// A name that is still free: "PATH.kept", "PATH.kept2" and so on.
QString nameForCopy(const QString& path) {
  QString name = path + QStringLiteral(".kept");
  for (int number = 2; ordinaryFileExists(name); ++number) {
    name = path + QStringLiteral(".kept%1").arg(number);
  }
  return name;
}

/// The sentence that tells why the records of the list on disk are unknown.
QString whyUnknown(const List& list) {
  const QString reason =
      list.read.isEmpty()
          ? QStringLiteral("The list %1 was not read completely when the program started.")
          : QStringLiteral("The list %1 was not read, since its folder became the data folder only later.");
  return reason.arg(list.path);
}

void keepCopy(const List& list, MessageBoxes& messages) {
  const QString copy = nameForCopy(list.path);
  replaceFile(copy, contentOf(list.path));
  messages.inform(
      whyUnknown(list) +
      QStringLiteral("\r\nIt is kept as %1, and the list as it is now is saved in its place.").arg(copy));
}

/// An empty table is no gain over records that somebody has entered once.
void leaveAsItIs(const List& list, MessageBoxes& messages) {
  messages.inform(whyUnknown(list) +
                  QStringLiteral("\r\nIt stays as it is; the list in use is empty and was not saved."));
}

void save(const ProgramState& state, const List& list, MessageBoxes& messages) {
  if (!isValidDataFolder(state.LocalFolder)) {
    messages.inform(
        QStringLiteral("The Local Data Folder path is invalid.\r\n\r\n"
                       "Unable to save the online sources list."));
    return;
  }
  const bool isUnknown = holdsUnknownRecords(list);
  if (isUnknown && list.count == 0) return leaveAsItIs(list, messages);
  // Start-up did not come as far as the lists, so that nothing is known of this folder.
  if (list.read.isEmpty() && list.count == 0) return;
  if (isUnknown) keepCopy(list, messages);
  saveSourceList(list.path, list.table, list.count);
}

}  // namespace

void saveOnlineSources(const ProgramState& state, MessageBoxes& messages) {
  save(
      state,
      {state.LocalFolder + state.LocFile, state.onlineListRead, state.OnlineSources, state.OnlineSourceCount},
      messages);
}

void saveOfflineSources(const ProgramState& state, MessageBoxes& messages) {
  save(state,
       {state.LocalFolder + state.OffLineFile, state.offlineListRead, state.OfflineSources,
        state.OfflineSourceCount},
       messages);
}

}  // namespace quorvin
