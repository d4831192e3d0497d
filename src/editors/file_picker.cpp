#include "editors/file_picker.h"

#include <exception>

namespace quorvin {

namespace {

QString lastComponent(const QString& path, PathStyle style) {
  return path.mid(path.lastIndexOf(style.separator) + 1);
}

/// Browsing is a convenience: whatever goes wrong in it, the user can still type the path.
template <typename Ask>
std::optional<QString> askQuietly(Ask&& ask) {
  try {
    return ask();
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace

std::optional<PickedFile> askForFile(FilePicker& picker, const FileQuestion& question, PathStyle style) {
  const std::optional<QString> path = askQuietly([&] { return picker.openFile(question); });
  if (!path) return std::nullopt;
  const QString title = lastComponent(*path, style);
  if (title.isEmpty()) return std::nullopt;
  return PickedFile{*path, title};
}

std::optional<PickedFile> askForFolder(FilePicker& picker, const FileQuestion& question, PathStyle style) {
  const std::optional<QString> folder = askQuietly([&] { return picker.pickFolder(question); });
  if (!folder || folder->isEmpty()) return std::nullopt;
  return PickedFile{withTrailingSeparator(*folder, style) + question.fileName, question.fileName};
}

QString folderOf(const PickedFile& picked) {
  return picked.FileName.left(picked.FileName.indexOf(picked.FileTitle));
}

QString withDefaultExtension(const QString& path, const QString& extension, PathStyle style) {
  return lastComponent(path, style).contains(u'.') ? path : path + extension;
}

}  // namespace quorvin
