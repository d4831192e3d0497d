// A main window for tests of the source editor.
#pragma once

#include "editors/source_editor_host.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace quorvin::test {

class RecordingEditorHost : public SourceEditorHost {
 public:
  void setAddLocalEnabled(bool enabled) override { note(QStringLiteral("AddLocal"), enabled); }
  void setEditOfflineEnabled(bool enabled) override { note(QStringLiteral("EditOffline"), enabled); }
  void refreshLocalLists() override {
    log.append(QStringLiteral("refresh"));
    if (duringRefresh) duringRefresh();
  }

  /// What was asked of the window, in order: "AddLocal off", "refresh".
  QStringList log;
  std::function<void()> duringRefresh;

 private:
  void note(const QString& item, bool enabled) {
    log.append(item + (enabled ? QStringLiteral(" on") : QStringLiteral(" off")));
  }
};

}  // namespace quorvin::test
