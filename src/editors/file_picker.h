// SPDX-License-Identifier: GPL-2.0-or-later

// Asking the user for a file or a folder: the program shows dialogs, a test answers by itself.
#pragma once

#include "files/path_style.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quorvin {

/// What a picker is opened with.
struct FileQuestion {
  /// The prefilled file name; it need not exist.
  QString fileName;
  /// Where to start; may be any text.
  QString initialFolder;
  /// What a typed name without an extension is completed with, for example ".txt".
  QString defaultExtension;
  /// Whether picking several at once matters more than the desktop's own dialog.
  bool isForSeveral = false;
};

/// What something is to be saved as.
struct SaveQuestion {
  QString title;
  /// Without an ending.
  QString fileName;
  /// Where to start; may be any text.
  QString initialFolder;
  /// The forms that there are, for example "Table (*.csv)"; the first is chosen at first.
  QStringList forms;
};

/// The system's dialogs to pick a file or a folder.
class FilePicker {
 public:
  virtual ~FilePicker() = default;

  /// The whole native path of the file that the user picks, which need not exist; nothing when the user
  /// cancels.
  virtual std::optional<QString> openFile(const FileQuestion& question) = 0;

  /// The same for any number of files, which exist; none when the user cancels. A picker that knows only
  /// single files gives one.
  virtual QStringList openFiles(const FileQuestion& question) {
    const std::optional<QString> file = openFile(question);
    return file ? QStringList(*file) : QStringList();
  }

  /// The native path of the folder that the user picks; nothing when the user cancels. Only the question's
  /// initial folder is used.
  virtual std::optional<QString> pickFolder(const FileQuestion& question) = 0;

  /// The same for any number of folders; none when the user cancels. A picker that knows only single folders
  /// gives one.
  virtual QStringList pickFolders(const FileQuestion& question) {
    const std::optional<QString> folder = pickFolder(question);
    return folder ? QStringList(*folder) : QStringList();
  }

  /// The whole native path under which the user wants to save, with the ending of the chosen form where none
  /// was typed; nothing when the user cancels. A file that is there is to be replaced.
  virtual std::optional<QString> saveFile(const SaveQuestion& question) = 0;
};

/// Shows the native dialogs where the system has them, above the window in use.
class DialogFilePicker : public FilePicker {
 public:
  std::optional<QString> openFile(const FileQuestion& question) override;
  QStringList openFiles(const FileQuestion& question) override;
  std::optional<QString> pickFolder(const FileQuestion& question) override;
  /// Native dialogs let the user pick one folder, so that a question for several is asked without them.
  QStringList pickFolders(const FileQuestion& question) override;
  std::optional<QString> saveFile(const SaveQuestion& question) override;
};

/// A picked file. `FileTitle` is the last component of the whole path `FileName`; it is never empty.
struct PickedFile {
  QString FileName;
  QString FileTitle;
};

/// Lets the user pick a file. A picker that fails counts as cancelled.
std::optional<PickedFile> askForFile(FilePicker& picker, const FileQuestion& question, PathStyle style);

/// Lets the user pick any number of files, as whole paths. A picker that fails counts as cancelled.
QStringList askForFiles(FilePicker& picker, const FileQuestion& question);

/// Lets the user pick a folder; the answer is as if the user had confirmed the prefilled file name in it. A
/// picker that fails counts as cancelled.
std::optional<PickedFile> askForFolder(FilePicker& picker, const FileQuestion& question, PathStyle style);

/// Lets the user pick any number of folders; each answer is as askForFolder() gives it. A picker that fails
/// counts as cancelled.
std::vector<PickedFile> askForFolders(FilePicker& picker, const FileQuestion& question, PathStyle style);

/// The part of `FileName` before the first occurrence of `FileTitle`: the folder with its trailing separator,
/// unless a folder further up holds the title in its name.
QString folderOf(const PickedFile& picked);

/// `path` with `extension` at its end when its last component holds no ".".
QString withDefaultExtension(const QString& path, const QString& extension, PathStyle style);

}  // namespace quorvin
