// SPDX-License-Identifier: GPL-2.0-or-later

// The window that says what is there more than once, and what on one volume only.
#pragma once

#include "catalogue/copies_job.h"
#include "catalogue/copies_model.h"
#include "catalogue/job_window.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QThreadPool>

#include <cstddef>
#include <functional>
#include <memory>

namespace quorvin {

/// What the window works with. All of it must outlive the window.
struct CopiesWindowParts {
  /// Its sources are gone over as they are when Find is pressed.
  const ProgramState& state;
  /// Where the listings are read. A thread that waits for a drive is left to itself when the window closes.
  QThreadPool& threads;
  QLocale locale;
  /// Shows a file in its folder; a name that is empty stands for the folder itself. False where it is not
  /// there.
  std::function<bool(const HitRow& file)> showFile;
  /// So many rows are shown at most.
  std::size_t mostRows = CopiesJob::kMostRows;
};

/// The window `CopiesWindow`: words that limit what is shown, what is to be shown, and the rows found. Find
/// goes over all sources. Groups unfold to their places; Enter and a double click show a place in its folder.
class CopiesWindow : public JobWindow {
  Q_OBJECT

 public:
  CopiesWindow(CopiesWindowParts parts, QWidget* owner);

 protected:
  void start() override;
  QString stoppedText() const override;
  QString progressText() const override;
  void jobEnded(std::shared_ptr<CatalogueJob> job) override;
  void openRow(const QModelIndex& row) override;

 private:
  void nameControls();
  QLayout* makeFields();
  CopyWish wish();
  void fitColumns();
  QString resultText(const CopiesJob& job) const;

  CopiesWindowParts parts_;
  CopiesModel rows_;
  QLineEdit* words_;
  QComboBox* what_;
  QLineEdit* match_;
  QCheckBox* empty_;
  QCheckBox* content_;
};

}  // namespace quorvin
