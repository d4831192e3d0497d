// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/options_edit.h"

#include "dates/general_date.h"
#include "texts/texts.h"

#include <exception>
#include <optional>

namespace quorvin {

namespace {

OptionsOutcome storeInOrder(const OptionTexts& texts, ProgramState& state, MessageBoxes& messages,
                            const OptionsConditions& conditions) {
  const std::optional<DateValue> joinDate = readGeneralDate(texts.JoinD, conditions.locale);
  if (!joinDate) {
    messages.inform(Texts::tr("The Join Date / Time format can not be understood, check the format."));
    return OptionsOutcome::DateRefused;
  }
  state.JoinDate = *joinDate;
  state.NickName = texts.Nic;
  const QString folder = texts.LocalDataFolder.isEmpty() ? conditions.programFolder() : texts.LocalDataFolder;
  state.LocalFolder = withTrailingSeparator(folder, conditions.pathStyle);
  if (!conditions.isValidFolder(state.LocalFolder)) {
    messages.inform(Texts::tr("The Local Data Folder path is invalid.\r\n\r\nPlease Pick a valid path!"));
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
