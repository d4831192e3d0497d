#include "state/program_state.h"

#include "platform/text_encoding.h"

namespace quorvin {

void ProgramState::resetFileNames() {
  RegKey = QStringLiteral("Ketta Quorvin");
  LocFile = QStringLiteral("Locations.txt");
  OffLineFile = QStringLiteral("OfflineLocations.txt");
}

QString ProgramState::onlineListingPath(const QString& description) const {
  return LocalFolder + trimBlanks(description).toString() + QStringLiteral(".txt");
}

bool ProgramState::hasSources() const {
  return OnlineSourceCount > 0 || OfflineSourceCount > 0 || !TextFile.isEmpty();
}

}  // namespace quorvin
