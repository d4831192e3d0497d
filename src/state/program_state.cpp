#include "state/program_state.h"

namespace quorvin {

void ProgramState::resetFileNames() {
  RegKey = QStringLiteral("Ketta Quorvin");
  LocFile = QStringLiteral("Locations.txt");
  OffLineFile = QStringLiteral("OfflineLocations.txt");
}

}  // namespace quorvin
