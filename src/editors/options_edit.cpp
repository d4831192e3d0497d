#include "editors/options_edit.h"

#include "platform/file_lookup.h"
#include "platform/general_date.h"

#include <exception>
#include <optional>

namespace quorvin {

namespace {

/// A folder is accepted only if at least one ordinary file is in it.
bool isValidDataFolder(const QString& folder, const OptionsConditions& conditions) {
  const QString pattern = folder + QStringLiteral("*.*");
  return conditions.holdsFiles ? conditions.holdsFiles(pattern) : ordinaryFileExists(pattern);
}

OptionsOutcome storeInOrder(const OptionTexts& texts, ProgramState& state, MessageBoxes& messages,
                            const OptionsConditions& conditions) {
  const std::optional<DateValue> joinDate = readGeneralDate(texts.JoinD, conditions.locale);
  if (!joinDate) {
    messages.inform(QStringLiteral("The Join Date / Time format can not be understood, check the format."));
    return OptionsOutcome::DateRefused;
  }
  state.JoinDate = *joinDate;
  state.NickName = texts.Nic;
  const QString folder = texts.LocalDataFolder.isEmpty() ? conditions.programFolder() : texts.LocalDataFolder;
  state.LocalFolder = withTrailingSeparator(folder, conditions.pathStyle);
  if (!isValidDataFolder(state.LocalFolder, conditions)) {
    messages.inform(
        QStringLiteral("The Local Data Folder path is invalid.\r\n\r\nPlease Pick a valid path!"));
    return OptionsOutcome::FolderRefused;
  }
  state.TextFile = texts.LocalFile;
  state.ArchiveFile = texts.RemoteFile;
  state.WebServer = texts.Server;
  return OptionsOutcome::Stored;
}

}  // namespace

OptionTexts optionTexts(const ProgramState& state, const QLocale& locale) {
  OptionTexts texts;
  texts.LocalDataFolder = state.LocalFolder;
  texts.LocalFile = state.TextFile;
  texts.RemoteFile = state.ArchiveFile;
  texts.Server = state.WebServer;
  texts.JoinD = generalDateText(state.JoinDate, locale);
  texts.Nic = state.NickName;
  return texts;
}

OptionsOutcome storeOptions(const OptionTexts& texts, ProgramState& state, MessageBoxes& messages,
                            const OptionsConditions& conditions) {
  try {
    return storeInOrder(texts, state, messages, conditions);
  } catch (const std::exception&) {
    return OptionsOutcome::Failed;
  }
}

}  // namespace quorvin
