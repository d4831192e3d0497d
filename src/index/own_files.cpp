#include "index/own_files.h"

#include "files/file_identity.h"
#include "files/path_style.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace quorvin {
namespace {

bool isSameFile(const QString& path, const QString& other) {
  if (path == other) return true;
  // Only the file system knows which names are one to it.
  const std::optional<FileIdentity> identity = fileIdentity(path);
  return identity && identity == fileIdentity(other);
}

}  // namespace

bool isOwnFile(const QString& path, const ProgramState& state) {
  const QStringList names = {state.LocFile, state.OffLineFile, state.TextFile};
  return std::ranges::any_of(names, [&](const QString& name) {
    if (name.isEmpty()) return false;
    return isSameFile(path, isTakenAsItStands(name, nativePathStyle()) ? name : state.LocalFolder + name);
  });
}

}  // namespace quorvin
