// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/start_up.h"

#include "app/version.h"
#include "faults/runtime_fault.h"
#include "files/file_aside.h"
#include "files/file_lookup.h"
#include "index/dir_io.h"
#include "state/settings.h"
#include "state/source_list_file.h"
#include "texts/texts.h"

#include <QStringList>

#include <utility>

namespace quorvin {

namespace {

QString programFolderOf(const StartUpConditions& conditions) {
  return withTrailingSeparator(conditions.programFolder(), conditions.pathStyle);
}

}  // namespace

StartUp::StartUp(ProgramState& state, const SettingsStore& store, MessageBoxes& boxes, StartUpView& view,
                 ExtractDataFile extractDataFile)
    : state_(state),
      store_(store),
      boxes_(boxes),
      view_(view),
      extractDataFile_(std::move(extractDataFile)) {}

void StartUp::Form_Load(const StartUpConditions& conditions) {
  try {
    runSteps(conditions);
  } catch (const RuntimeFault& fault) {
    boxes_.inform(Texts::tr("Statup error: %1 %2").arg(QString::number(fault.number()), fault.description()));
  }
  noteSettingsAtStart(store_, state_, conditions.locale, [&] { return programFolderOf(conditions); });
}

void StartUp::runSteps(const StartUpConditions& conditions) {
  view_.setVersionCaption(versionCaption());
  view_.setWebUpdateEnabled(false);
  state_.resetFileNames();
  if (conditions.commandLine.isEmpty()) {
    readDefaultsFile(state_);
  } else {
    takeCommandLine(conditions.commandLine, conditions.pathStyle);
  }

  readPlacement(
      store_, state_, [this](PlacementKey key) { return view_.placement(key); },
      [this](PlacementKey key, float twips) { view_.setPlacement(key, twips); });
  readSettings(store_, state_, conditions.now, conditions.locale);
  if (!state_.WebServer.isEmpty() && !state_.ArchiveFile.isEmpty()) view_.setWebUpdateEnabled(true);
  completeLocalFolder(state_, [&] { return programFolderOf(conditions); });
  loadSourceLists(state_);
  view_.whenPainted([folder = state_.LocalFolder, lists = QStringList{state_.LocFile, state_.OffLineFile}] {
    removeLeftovers(folder);
    for (const QString& list : lists) removeEarlierLeftovers(folder + list);
  });
  if (dataFileIsOnlyInArchive()) {
    extractDataFile_(state_.LocalFolder + state_.ArchiveFile, state_.LocalFolder);
  }
  view_.processEvents();
}

void StartUp::takeCommandLine(const QString& commandLine, PathStyle style) {
  state_.TextFile = commandLine;
  if (!ordinaryFileExists(commandLine)) {
    state_.missingListing = commandLine;
    boxes_.inform(Texts::tr(kListingNotFound));
    return;
  }
  view_.showListingName(commandLine);
  // A settings set and a list of online sources of the file's own.
  state_.RegKey = commandLine;
  state_.LocFile += u'_' + BaseNameOf(commandLine, style);
}

bool StartUp::dataFileIsOnlyInArchive() const {
  if (state_.TextFile.isEmpty() || state_.ArchiveFile.isEmpty()) return false;
  return !ordinaryFileExists(state_.LocalFolder + state_.TextFile) &&
         ordinaryFileExists(state_.LocalFolder + state_.ArchiveFile);
}

}  // namespace quorvin
