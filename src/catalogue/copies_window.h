// SPDX-License-Identifier: GPL-2.0-or-later

// The window that says what is there more than once, and what on one volume only.
#pragma once

#include "catalogue/copies_job.h"
#include "catalogue/copies_model.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QThreadPool>
#include <QTimer>
#include <QTreeView>

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
/// goes over all sources in another thread; meanwhile the button is Stop. Groups unfold to their places.
/// Enter and a double click show a place in its folder, Ctrl+C copies the selected rows as text.
class CopiesWindow : public QDialog {
  Q_OBJECT

 public:
  CopiesWindow(CopiesWindowParts parts, QWidget* owner);
  ~CopiesWindow() override;

  /// Ends what goes on, and closes the window.
  void done(int result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void nameControls();
  void layOut();
  void connectControls();
  void Find_Click();
  CopyWish wish();
  void start();
  void letGo();
  void look();
  void showProgress();
  void showResult();
  void fitColumns();
  QString resultText(const CopiesJob& job) const;
  bool takeKey(const QKeyEvent& key);
  void showPlace(const QModelIndex& index);

  CopiesWindowParts parts_;
  CopiesModel rows_;
  QLineEdit* words_;
  QComboBox* what_;
  QLineEdit* match_;
  QCheckBox* empty_;
  QCheckBox* content_;
  QPushButton* find_;
  QPushButton* close_;
  QTreeView* list_;
  QLabel* status_;
  /// While it is there, the button is Stop.
  std::shared_ptr<CopiesJob> job_;
  QTimer watch_;
};

}  // namespace quorvin
