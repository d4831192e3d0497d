// SPDX-License-Identifier: GPL-2.0-or-later

// Where the files of many hits are, and how these hits are dragged to other programs.
#pragma once

#include "files/folder_reader.h"
#include "files/path_style.h"
#include "search/hit_path.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QBasicTimer>
#include <QMimeData>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <cstdint>
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

/// What is dragged out of the list of hits: the URLs of those files that are there ("text/uri-list"), and one
/// line for each hit, its path or where it is in the catalogue ("text/plain"). A drag starts at once: files
/// are looked for some milliseconds at a time while it goes on, and what is left of them when the data is
/// asked for, which is mostly where it is dropped. User-interface thread only.
class HitDragData : public QMimeData {
 public:
  /// So many hits at most are looked at in order to know whether there are URLs at all. Where none of their
  /// files is there, URLs are offered all the same if there are further hits.
  static constexpr std::int64_t kMostLookedAtFirst = 100;

  /// The hits in these rows of `table`, in this order. `table` and `state` must outlive the drag.
  HitDragData(const HitTable& table, const ProgramState& state, std::vector<int> tableRows);

  QStringList formats() const override;
  /// How many hits have been looked at so far.
  std::int64_t done() const { return done_; }

 protected:
  /// Nothing once the table has been cleared.
  QVariant retrieveData(const QString& format, QMetaType type) const override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void addHit() const;
  bool isWhole() const { return done_ == std::ssize(rows_); }
  bool isOfNow() const { return table_.timesCleared() == timesCleared_; }
  void makeAll() const;

  const HitTable& table_;
  std::int64_t timesCleared_;
  std::vector<int> rows_;
  QBasicTimer timer_;
  bool hasUrls_ = false;
  // Data is made where it is asked for, which the toolkit does of a constant object. The folder that paths
  // have open may be on a drive that is to be taken out, so they are let go of at the end.
  mutable std::optional<HitPaths> paths_;
  mutable std::int64_t done_ = 0;
  mutable QVariantList urls_;
  mutable QString lines_;
};

}  // namespace quorvin
