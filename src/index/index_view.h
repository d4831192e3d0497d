// What the indexer and the refresh show while they work.
#pragma once

#include <QString>

#include <cstdint>

namespace quorvin {

/// How far an indexing has come, all folders since its start together.
struct IndexCounts {
  std::int64_t folders = 0;
  std::int64_t files = 0;
};

/// What a walk needs of the `Progress` window; the console and the tests have their own.
class IndexView {
 public:
  virtual ~IndexView() = default;

  /// Makes the `Progress` window when there is none; comes before anything else is shown in it.
  virtual void createProgress() = 0;
  /// Sets the label `Status` of `Progress`.
  virtual void setStatus(const QString& text) = 0;
  /// Tells how much has been indexed; comes before events are processed.
  virtual void showIndexed(const IndexCounts& counts) = 0;
  /// Lets pending window events run; the user may cancel or close meanwhile.
  virtual void processEvents() = 0;
};

/// What the local list refresh needs besides.
class RefreshView : public IndexView {
 public:
  /// The title of `Progress`.
  virtual QString progressTitle() const = 0;
  virtual void setProgressTitle(const QString& title) = 0;
  /// `Progress` is to be shown (without taking the focus) from the start of a refresh to its end, however it
  /// ends.
  virtual void refreshBegins() = 0;
  virtual void refreshEnded() = 0;
  /// The source in `row` (1 to `count`) is being indexed.
  virtual void showSource(int row, int count) = 0;
  /// Sets the mouse pointer back to the default.
  virtual void setDefaultPointer() = 0;
  /// Shows the error log in the result window `ResWin`; returns when the user has closed it.
  virtual void showErrorLog(const QString& log) = 0;
};

}  // namespace quorvin
