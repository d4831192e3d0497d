// SPDX-License-Identifier: GPL-2.0-or-later

// The window with the space map of one volume, or of all.
#pragma once

#include "catalogue/job_window.h"
#include "catalogue/volumes/space_job.h"
#include "catalogue/volumes/space_map.h"
#include "state/program_state.h"

#include <QComboBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace quorvin {

/// What the window works with. All of it must outlive the window.
struct SpaceWindowParts {
  /// Its sources are gone over as they are when the window opens.
  const ProgramState& state;
  QThreadPool& threads;
  QLocale locale;
  /// Searches in a folder, as listed, which has a name. The window has closed itself.
  std::function<void(const QString& folder)> search;
  /// The path of the listing, and the volume of it that is shown first; empty for all sources.
  QString listing = {};
  QString volume = {};
};

/// The window `SpaceWindow`: where one is, the map, and what its colours mean. Nothing is read but listings,
/// so that the disk may be in a drawer.
class SpaceWindow : public JobWindow {
  Q_OBJECT

 public:
  SpaceWindow(SpaceWindowParts parts, QWidget* owner);

 protected:
  void start() override;
  QString stoppedText() const override;
  QString progressText() const override;
  void jobEnded(std::shared_ptr<CatalogueJob> job) override;

 private:
  QLayout* makeFields();
  void addActions();
  void showPlace();
  void showCurrent();
  void search(std::uint32_t folder);

  SpaceWindowParts parts_;
  SpaceMap* map_;
  QComboBox* colours_;
  QPushButton* up_;
  QLabel* place_;
  QLabel* legend_;
  std::shared_ptr<const SpaceJob> shown_;
};

}  // namespace quorvin
