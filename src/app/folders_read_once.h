// Look-ups for many files in a row.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <vector>

namespace quorvin {

/// Finds what findOrdinaryFile() finds, but reads no folder twice: when the files of a whole selection are
/// gone, reading their folder for each of them would take minutes. For the time of one action, since it does
/// not see what changes meanwhile.
class FoldersReadOnce {
 public:
  /// Gives the names of the ordinary files in a folder, which ends in a separator, in the file system's
  /// order.
  using ReadNames = std::function<QStringList(const QString& folder)>;

  explicit FoldersReadOnce(ReadNames readNames = ordinaryFiles);

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

  const Names& namesIn(const QString& folder);

  ReadNames readNames_;
  std::map<QString, Names> folders_;
};

}  // namespace quorvin
