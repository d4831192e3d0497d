#include "console/own_sources.h"

#include "files/file_lookup.h"
#include "platform/ini_settings_store.h"
#include "platform/standard_folders.h"
#include "state/defaults_file.h"
#include "state/settings.h"

#include <QDateTime>

namespace quorvin {

void loadOwnSources(ProgramState& state, const QLocale& locale) {
  state.resetFileNames();
  const QString defaults = QString::fromUtf16(kDefaultsFileName);
  if (ordinaryFileExists(defaults)) readDefaultsFile(defaults, state);
  const IniSettingsStore store(userSettingsPath());
  readSettings(store, state, dateValueOf(QDateTime::currentDateTime()), locale);
  if (state.LocalFolder.isEmpty()) completeLocalFolder(state, programFolder());
  loadSourceLists(state);
}

}  // namespace quorvin
