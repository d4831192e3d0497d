// SPDX-License-Identifier: GPL-2.0-or-later

// The window that says what differs between two listings, versions or folders.
#pragma once

#include "catalogue/compare_job.h"
#include "catalogue/compare_model.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QThreadPool>
#include <QTimer>
#include <QTreeView>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// What the window works with. All of it must outlive the window.
struct CompareWindowParts {
  /// Its sources, as they are when the window opens, can be compared.
  const ProgramState& state;
  /// Where the listings are read. A thread that waits for a drive is left to itself when the window closes.
  QThreadPool& threads;
  QLocale locale;
  /// Shows a file in its folder; a name that is empty stands for the folder itself. False where it is not
  /// there.
  std::function<bool(const HitRow& file)> showFile;
  /// So many changes are shown at most.
  std::size_t mostRows = CompareModel::kMostRows;
};

/// The window `CompareWindow`: two sides, each a source and which state of it, and the changes from the
/// earlier to the later one by folder. Compare reads them in another thread, and is Stop meanwhile. At first
/// the sides are the newest earlier version of a listing and the listing itself. Enter and a double click
/// show a file in its folder, Ctrl+C copies the selected rows as text.
class CompareWindow : public QDialog {
  Q_OBJECT

 public:
  CompareWindow(CompareWindowParts parts, QWidget* owner);
  ~CompareWindow() override;

  /// Chooses a version as the earlier side and its listing as the later one.
  void chooseVersion(const QString& inHistory, int version);

  /// Ends what goes on, and closes the window.
  void done(int result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// One of the two.
  struct Side {
    QComboBox* source = nullptr;
    QComboBox* state = nullptr;
    /// What the rows of `state` stand for.
    std::vector<ComparedPlace> places = {};
  };

  void nameControls();
  void layOut();
  void connectControls();
  void listSources();
  void listStates(Side& side);
  void Compare_Click();
  void start();
  void letGo();
  void look();
  void showResult();
  void showRows();
  void tellRows();
  bool takeKey(const QKeyEvent& key);
  void showPlace(const QModelIndex& index);

  CompareWindowParts parts_;
  ListingHistory history_;
  std::vector<ComparedSource> sources_;
  CompareModel rows_;
  Side earlier_;
  Side later_;
  QComboBox* what_;
  QPushButton* compare_;
  QPushButton* close_;
  QTreeView* list_;
  QLabel* status_;
  /// While it is there, the button is Stop.
  std::shared_ptr<CompareJob> job_;
  std::shared_ptr<const CompareJob> shown_;
  QTimer watch_;
};

}  // namespace quorvin
