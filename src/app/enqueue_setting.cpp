#include "app/enqueue_setting.h"

#include "state/settings.h"

namespace quorvin {

QString enqueueCommand(const SettingsStore& settings, const ProgramState& state) {
  return settings.read(state.RegKey, QString::fromUtf16(kSettingsSection), QStringLiteral("EnqueueCommand"),
                       QString());
}

}  // namespace quorvin
