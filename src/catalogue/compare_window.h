// SPDX-License-Identifier: GPL-2.0-or-later

// The window that says what differs between two listings, versions or folders.
#pragma once

#include "catalogue/compare_job.h"
#include "catalogue/compare_model.h"
#include "catalogue/job_window.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QComboBox>
#include <QLocale>
#include <QThreadPool>

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
/// earlier to the later one by folder. At first the sides are the newest earlier version of a listing and the
/// listing itself. Enter and a double click show a file in its folder.
class CompareWindow : public JobWindow {
  Q_OBJECT

 public:
  CompareWindow(CompareWindowParts parts, QWidget* owner);

  /// Chooses a version as the earlier side and its listing as the later one.
  void chooseVersion(const QString& inHistory, int version);

 protected:
  void start() override;
  QString stoppedText() const override;
  QString progressText() const override;
  void jobEnded(std::shared_ptr<CatalogueJob> job) override;
  void openRow(const QModelIndex& row) override;

 private:
  /// One of the two.
  struct Side {
    QComboBox* source = nullptr;
    QComboBox* state = nullptr;
    /// What the rows of `state` stand for.
    std::vector<ComparedPlace> places = {};
  };

  void nameControls();
  QLayout* makeFields();
  void connectControls();
  void listSources();
  void listStates(Side& side);
  void showRows();
  void tellRows();

  CompareWindowParts parts_;
  ListingHistory history_;
  std::vector<ComparedSource> sources_;
  CompareModel rows_;
  Side earlier_;
  Side later_;
  QComboBox* what_;
  std::shared_ptr<const CompareJob> shown_;
};

}  // namespace quorvin
