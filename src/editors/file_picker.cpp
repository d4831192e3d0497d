// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/file_picker.h"

#include "platform/screen_room.h"
#include "texts/texts.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <exception>
#include <type_traits>

namespace quorvin {

namespace {

QString lastComponent(const QString& path, PathStyle style) {
  return path.mid(path.lastIndexOf(style.separator) + 1);
}

/// Browsing is a convenience: whatever goes wrong in it, the user can still type the path.
template <typename Ask>
std::invoke_result_t<Ask> askQuietly(Ask&& ask) {
  try {
    return ask();
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

/// The folder to start in: what the user has typed so far may be the path of a file, or of nothing.
QString existingFolder(const QString& path) {
  if (path.isEmpty()) return QDir::currentPath();
  const QFileInfo info(QDir::fromNativeSeparators(path));
  if (info.isDir()) return info.absoluteFilePath();
  return QFileInfo(info.absolutePath()).isDir() ? info.absolutePath() : QDir::currentPath();
}

/// "csv" of "Table (*.csv)".
QString endingOf(const QString& form) {
  const qsizetype start = form.lastIndexOf(QStringLiteral("(*.")) + 3;
  return form.mid(start).section(u')', 0, 0).section(u' ', 0, 0);
}

QStringList allPicked(QFileDialog& dialog) {
  dialog.resize(dialog.sizeHint().boundedTo(largestInside(*dialog.screen())));
  QStringList paths;
  if (dialog.exec() != QDialog::Accepted) return paths;
  for (const QString& file : dialog.selectedFiles()) paths.append(QDir::toNativeSeparators(file));
  return paths;
}

std::optional<QString> picked(QFileDialog& dialog) {
  const QStringList files = allPicked(dialog);
  return files.isEmpty() ? std::nullopt : std::optional(files.first());
}

void askForFolderIn(QFileDialog& dialog, const FileQuestion& question) {
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  dialog.setDirectory(existingFolder(question.initialFolder));
}

PickedFile inFolder(const QString& folder, const FileQuestion& question, PathStyle style) {
  return {withTrailingSeparator(folder, style) + question.fileName, question.fileName};
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

QStringList DialogFilePicker::openFiles(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow());
  dialog.setFileMode(QFileDialog::ExistingFiles);
  dialog.setDirectory(existingFolder(question.initialFolder));
  if (!question.fileName.isEmpty()) dialog.selectFile(question.fileName);
  return allPicked(dialog);
}

std::optional<QString> DialogFilePicker::pickFolder(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow());
  askForFolderIn(dialog, question);
  return picked(dialog);
}

QStringList DialogFilePicker::pickFolders(const FileQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow(), Texts::tr("Choose Folders to Catalogue"));
  dialog.setOption(QFileDialog::DontUseNativeDialog, question.isForSeveral);
  askForFolderIn(dialog, question);
  // The toolkit's own dialog has these views, and says of a folder only that it is to be one.
  for (const char* name : {"listView", "treeView"}) {
    auto* view = dialog.findChild<QAbstractItemView*>(QString::fromLatin1(name));
    if (view) view->setSelectionMode(QAbstractItemView::ExtendedSelection);
  }
  return allPicked(dialog);
}

std::optional<QString> DialogFilePicker::saveFile(const SaveQuestion& question) {
  QFileDialog dialog(QApplication::activeWindow(), question.title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setNameFilters(question.forms);
  dialog.setDirectory(existingFolder(question.initialFolder));
  const auto takeEnding = [&dialog](const QString& form) { dialog.setDefaultSuffix(endingOf(form)); };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeEnding);
  takeEnding(question.forms.value(0));
  dialog.selectFile(question.fileName + u'.' + endingOf(question.forms.value(0)));
  return picked(dialog);
}

std::optional<PickedFile> askForFile(FilePicker& picker, const FileQuestion& question, PathStyle style) {
  const std::optional<QString> path = askQuietly([&] { return picker.openFile(question); });
  if (!path) return std::nullopt;
  const QString title = lastComponent(*path, style);
  if (title.isEmpty()) return std::nullopt;
  return PickedFile{*path, title};
}

QStringList askForFiles(FilePicker& picker, const FileQuestion& question) {
  return askQuietly([&] { return std::optional(picker.openFiles(question)); }).value_or(QStringList());
}

std::optional<PickedFile> askForFolder(FilePicker& picker, const FileQuestion& question, PathStyle style) {
  const std::optional<QString> folder = askQuietly([&] { return picker.pickFolder(question); });
  if (!folder || folder->isEmpty()) return std::nullopt;
  return inFolder(*folder, question, style);
}

std::vector<PickedFile> askForFolders(FilePicker& picker, const FileQuestion& question, PathStyle style) {
  const auto folders = askQuietly([&] { return std::optional(picker.pickFolders(question)); });
  std::vector<PickedFile> all;
  for (const QString& folder : folders.value_or(QStringList())) {
    if (!folder.isEmpty()) all.push_back(inFolder(folder, question, style));
  }
  return all;
}

QString folderOf(const PickedFile& picked) {
  return picked.FileName.left(picked.FileName.indexOf(picked.FileTitle));
}

QString withDefaultExtension(const QString& path, const QString& extension, PathStyle style) {
  return lastComponent(path, style).contains(u'.') ? path : path + extension;
}

}  // namespace quorvin
