#include "editors/local_loc_file_picker.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace quorvin {

namespace {

/// The folder to start in: what the user has typed so far may be the path of a file, or of nothing.
QString existingFolder(const QString& path) {
  if (path.isEmpty()) return QDir::currentPath();
  const QFileInfo info(QDir::fromNativeSeparators(path));
  if (info.isDir()) return info.absoluteFilePath();
  return QFileInfo(info.absolutePath()).isDir() ? info.absolutePath() : QDir::currentPath();
}

std::optional<QString> picked(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QStringList files = dialog.selectedFiles();
  if (files.isEmpty()) return std::nullopt;
  return QDir::toNativeSeparators(files.first());
}

}  // namespace

std::optional<QString> DialogFilePicker::openFile(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow());
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDirectory(existingFolder(question.initialFolder));
  if (!question.fileName.isEmpty()) dialog.selectFile(question.fileName);
  const std::optional<QString> path = picked(dialog);
  // The dialog's own default extension would be put behind the name of an existing file too.
  if (!path || QFileInfo::exists(*path)) return path;
  return withDefaultExtension(*path, question.defaultExtension, nativePathStyle());
}

std::optional<QString> DialogFilePicker::pickFolder(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow());
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  dialog.setDirectory(existingFolder(question.initialFolder));
  return picked(dialog);
}

}  // namespace quorvin
