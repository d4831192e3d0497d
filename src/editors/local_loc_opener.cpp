#include "editors/local_loc_opener.h"

#include "editors/local_loc_layout.h"

#include <QScopeGuard>

namespace quorvin {

LocalLocOpener::LocalLocOpener(const SourceEditing& editing, QWidget* owner)
    : editing_(editing), owner_(owner) {}

void LocalLocOpener::AddLocal_Click() {
  LocMode_ = QString::fromUtf16(kOnlineMode);
  SourceEditorHost& host = editing_.host;
  const auto enableBoth = [&host](bool enabled) {
    host.setAddLocalEnabled(enabled);
    host.setEditOfflineEnabled(enabled);
  };
  enableBoth(false);
  const auto afterwards = qScopeGuard([&enableBoth] { enableBoth(true); });
  LocalLoc dialog(editing_, LocMode_, owner_);
  showModally(dialog);
}

void LocalLocOpener::EditOffline_Click() {
  LocalLoc dialog(editing_, LocMode_, owner_);
  arrangeForOffline(dialog);
  showModally(dialog);
}

void LocalLocOpener::arrangeForOffline(LocalLoc& dialog) {
  const LocalLocControls& controls = dialog.controls();
  dialog.setWindowTitle(QStringLiteral("Offline Search List files"));
  controls.OK->hide();
  controls.OK->setEnabled(false);
  controls.SaveOffLine->show();
  controls.Desc->setText(QStringLiteral("Offline"));
  setPathCaption(controls, QStringLiteral("Path to List file"));
  widenPathOverDescription(controls);
  LocMode_ = QString::fromUtf16(kOfflineMode);
  dialog.setLocMode(LocMode_);
  controls.Label1->hide();
  controls.Desc->hide();
  controls.LocalDataFolder->setFocus();
  const ProgramState& state = editing_.state;
  dialog.entries().fill(entriesOf(state.OfflineSources, state.OfflineSourceCount));
}

void LocalLocOpener::showModally(LocalLoc& dialog) {
  shown_ = &dialog;
  dialog.exec();
}

void LocalLocOpener::unload() {
  if (shown_) shown_->reject();
}

}  // namespace quorvin
