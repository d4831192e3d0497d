// Writing files below a folder without ever leaving it.
#pragma once

#include "files/file_writer.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <string_view>

namespace quorvin {

/// An open file descriptor that is closed with the object.
class OwnedDescriptor {
 public:
  explicit OwnedDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
  ~OwnedDescriptor();
  OwnedDescriptor(OwnedDescriptor&& other) noexcept;
  OwnedDescriptor& operator=(OwnedDescriptor&& other) noexcept;

  int get() const { return descriptor_; }

 private:
  int descriptor_;
};

/// A file that is being written beside its place under a name of its own. What is at the place stays until
/// putInPlace(); without that call the written bytes vanish with the object.
class NewFile {
 public:
  /// `folder` is the open folder of the place, `name` the place's name in it, `shownPath` stands for it in
  /// messages. Throws RuntimeFault as faultOfSystemError maps the error.
  NewFile(OwnedDescriptor folder, const QString& name, const QString& shownPath);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  /// Throws as FileWriter::write does.
  void write(std::string_view bytes);

  /// Gives the file its name, in one step. A file that is replaced hands its permissions on, and the new one
  /// is brought to the medium first; a link is replaced itself, not what it leads to. Throws RuntimeFault
  /// when writing fails, and where a folder has the name; what is at the place then stays.
  void putInPlace();

 private:
  OwnedDescriptor folder_;
  std::string name_;
  std::string nameAside_;
  QString shownPath_;
  OwnedDescriptor file_;
  std::optional<FileWriter> writer_;
  bool isInPlace_ = false;
};

/// The folder below which files are written. Folders on the way are made as they are needed; a link on the
/// way is refused, since it may lead anywhere.
class FolderWriter {
 public:
  /// Opens `folder`, which may itself be reached by links. Throws RuntimeFault when it cannot be opened.
  explicit FolderWriter(const QString& folder);

  /// Makes the folder that the names in `path` lead to, if it is not there. The names must be names: not
  /// empty, not "." or "..", without separators. Throws RuntimeFault: 75 for a link or a file on the way, and
  /// others as faultOfSystemError maps them.
  void makeFolder(const QStringList& path) const;

  /// Begins the file that the names in `path` lead to. Throws as makeFolder() does.
  NewFile newFile(const QStringList& path) const;

 private:
  OwnedDescriptor enter(const QStringList& path, qsizetype count) const;
  QString shownPath(const QStringList& path, qsizetype count) const;

  QString folder_;
  OwnedDescriptor top_;
};

}  // namespace quorvin
