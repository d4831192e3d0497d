// SPDX-License-Identifier: GPL-2.0-or-later

// The window that shows what is on each volume, and where it is kept.
#pragma once

#include "catalogue/job_window.h"
#include "catalogue/volumes/volumes_model.h"
#include "search/hit_table.h"
#include "state/program_state.h"

#include <QAction>
#include <QLineEdit>
#include <QLocale>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace quorvin {

/// What the window works with. All of it must outlive the window.
struct VolumesWindowParts {
  /// Its sources are gone over as they are when the window opens, and when Show is pressed.
  const ProgramState& state;
  /// Where the listings are read. A thread that waits for a drive is left to itself when the window closes.
  QThreadPool& threads;
  QLocale locale;
  /// Shows a file in its folder; a name that is empty stands for the folder itself. False where it is not
  /// there.
  std::function<bool(const HitRow& file)> showFile;
  /// Searches in a folder, as listed; the window has closed itself. See SpaceWindowParts.
  std::function<void(const QString& folder)> search = {};
};

/// The window `VolumesWindow`: words that limit what is counted, and a row for each volume. It looks at all
/// sources when it opens; Show does so again. Enter and a double click open the space map of a volume, Space
/// Map that of all. F2, and a double click on a note, edit the note on a volume; a menu at each row does all
/// this, and shows the volume's folder.
class VolumesWindow : public JobWindow {
  Q_OBJECT

 public:
  VolumesWindow(VolumesWindowParts parts, QWidget* owner);

 protected:
  void start() override;
  QString stoppedText() const override;
  QString progressText() const override;
  void jobEnded(std::shared_ptr<CatalogueJob> job) override;
  void openRow(const QModelIndex& row) override;

 private:
  QLayout* makeFields();
  void addActions();
  QAction* addAction(const QString& name, const QString& caption, const QKeySequence& key,
                     void (VolumesWindow::*handler)(const QModelIndex& row));
  void showMap(const QString& listing, const QString& volume);
  void showMapOf(const QModelIndex& row);
  void editNote(const QModelIndex& row);
  void showFolder(const QModelIndex& row);
  bool keepNote(const KnownVolume& volume, const QString& note);

  VolumesWindowParts parts_;
  NotesAtHand notes_;
  VolumesModel rows_;
  QLineEdit* words_;
  QPushButton* map_;
};

}  // namespace quorvin
