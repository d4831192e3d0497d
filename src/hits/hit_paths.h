// Where the files of many hits are.
#pragma once

#include "files/folder_reader.h"
#include "files/path_style.h"
#include "search/hit_path.h"
#include "state/program_state.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// Finds what findOrdinaryFile() finds, but reads no folder twice: when the files of a whole selection are
/// gone, reading their folder for each of them would take minutes. The folder that was asked about last stays
/// open, since the next name is nearly always in it, too. For the time of one action: it does not see what
/// changes meanwhile.
class FoldersReadOnce {
 public:
  /// Gives the names of the ordinary files in a folder, which ends in a separator, in the file system's
  /// order.
  using ReadNames = std::function<QStringList(const QString& folder)>;

  explicit FoldersReadOnce(ReadNames readNames = ordinaryFiles);
  ~FoldersReadOnce();
  FoldersReadOnce(const FoldersReadOnce&) = delete;
  FoldersReadOnce& operator=(const FoldersReadOnce&) = delete;

  /// As findOrdinaryFile() does, for the path of a file in a folder.
  QString find(const QString& pattern);

  static QStringList ordinaryFiles(const QString& folder);

 private:
  struct Name {
    QString text;
    /// Counts in the file system's order.
    qsizetype place;
  };
  /// Sorted by their text.
  using Names = std::vector<Name>;

  bool isThere(const QString& folder, const QString& name);
  void enter(const QString& folder);
  const Names& namesIn(const QString& folder);

  ReadNames readNames_;
  std::map<QString, Names> folders_;
  std::unique_ptr<FolderReader> reader_;
  /// The folder that was asked about last, and whether it could be opened.
  QString folder_;
  bool isOpen_ = false;
};

/// Finds the files of many hits, one after another, for the time of one action.
class HitPaths {
 public:
  /// `state` must outlive the object.
  explicit HitPaths(const ProgramState& state, PathStyle style = nativePathStyle());

  /// The file of a hit; empty when it cannot be found, a fault being one of the reasons.
  HitPath of(const HitRow& hit);

 private:
  std::optional<QString> folderOf(const HitRow& hit);

  const ProgramState& state_;
  PathStyle style_;
  FoldersReadOnce folders_;
  FileLookUp lookUp_;
  /// The hit before, and its folder: neighbours mostly share it.
  HitRow before_;
  std::optional<QString> folderBefore_;
};

}  // namespace quorvin
