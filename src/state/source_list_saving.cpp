#include "state/source_list_saving.h"

#include "platform/file_lookup.h"
#include "platform/file_replacement.h"
#include "platform/sequential_file.h"
#include "state/source_list_file.h"

#include <QByteArray>

namespace quorvin {

namespace {

struct List {
  QString path;
  /// ProgramState::onlineListRead or its like.
  QString read;
  const SourceTable& table;
  int count;
};

bool isValidDataFolder(const QString& folder) {
  return ordinaryFileExists(folder + QStringLiteral("*.*"));
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

void keepCopy(const QString& path, MessageBoxes& messages) {
  const QString copy = nameForCopy(path);
  replaceFile(copy, contentOf(path));
  messages.inform(
      QStringLiteral("The list %1 was not read whole when the program started.\r\nIt is kept as %2, "
                     "and the list as it is now is saved in its place.")
          .arg(path, copy));
}

void save(const ProgramState& state, const List& list, MessageBoxes& messages) {
  if (!isValidDataFolder(state.LocalFolder)) {
    messages.inform(
        QStringLiteral("The Local Data Folder path is invalid.\r\n\r\n"
                       "Unable to save the online sources list."));
    return;
  }
  const bool holdsUnknownRecords = list.read != list.path && ordinaryFileExists(list.path);
  if (list.count == 0 && (holdsUnknownRecords || list.read.isEmpty())) return;
  if (holdsUnknownRecords) keepCopy(list.path, messages);
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
