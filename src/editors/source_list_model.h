// The list that the source editor edits.
#pragma once

#include "files/path_style.h"
#include "state/program_state.h"
#include "state/source_table.h"

#include <QAbstractTableModel>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace quorvin {

/// A source as the user sees it: columns 1 and 2 of a source table.
struct SourceEntry {
  QString description;
  QString path;

  bool operator==(const SourceEntry&) const = default;
};

/// What is known of a source: a few words for its row, and sentences; both empty while nothing is.
struct SourceStatus {
  QString brief;
  QString full;
};

/// The role of SourceStatus::brief.
inline constexpr int kSourceStatusRole = Qt::UserRole;

/// Why `entry` cannot be added, as a message to the user: a path of fewer than 3 characters, or a description
/// that is empty or holds one of :|*?\/ (an online source's description is part of a file name). The path is
/// looked at first. A path with a double quote is refused last: it leads nowhere without it, and a list of
/// sources cannot keep it. Nothing when the entry can be added; texts are taken as they are.
std::optional<QString> whyNotAdded(const SourceEntry& entry);

/// What the user should know of the descriptions of folders, as a sentence: that two of them would have one
/// listing, or that one would have its listing in the place of a file of the program's own. Empty where each
/// has a listing of its own.
QString descriptionNotice(const std::vector<SourceEntry>& entries, const ProgramState& state);

/// The description that is proposed for the folder at `path`: its name, with "_" for each character that no
/// description may hold. Empty for a path that ends in no name.
QString descriptionOfFolder(const QString& path, PathStyle style);

/// Rows 1 to `count` of `table`.
std::vector<SourceEntry> entriesOf(const SourceTable& table, int count);

/// Puts `entries` into rows 1 onwards of `table` and makes `count` their number; the rows above keep what
/// they held. Entries that do not all fit are refused: the result is then the message to the user, and
/// nothing has been stored.
std::optional<QString> storeEntries(const std::vector<SourceEntry>& entries, SourceTable& table, int& count);

/// The entries being edited, one a row, with the columns "Description" and "Path". Rows count from 0 here, as
/// the views count them.
class SourceListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  const std::vector<SourceEntry>& entries() const { return entries_; }

  void fill(std::vector<SourceEntry> entries);
  /// From now on rows have what `statusOf` says of their entries.
  void setStatuses(std::function<SourceStatus(const SourceEntry&)> statusOf);
  /// What is said of some entries has changed.
  void statusesChanged();
  void append(const SourceEntry& entry);

  // The commands on selected rows. Each returns the row to select afterwards; nothing when the selection is
  // left to the view. A row that is not there changes nothing.

  /// Removes the entries in `rows`, which ascend. The one above the first of them should be selected.
  std::optional<int> deleteEntries(const std::vector<int>& rows);
  /// Exchanges the entry with the one above, or below; the selection follows it. Nothing happens at the end
  /// of the list.
  std::optional<int> moveUp(int row);
  std::optional<int> moveDown(int row);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  bool has(int row) const;
  void exchangeWithNext(int row);

  std::vector<SourceEntry> entries_;
  std::function<SourceStatus(const SourceEntry&)> statusOf_;
};

}  // namespace quorvin
