#include "state/data_folder.h"

#include "files/file_lookup.h"

namespace quorvin {

bool isValidDataFolder(const QString& folder) {
  return ordinaryFileExists(folder + QStringLiteral("*.*"));
}

}  // namespace quorvin
