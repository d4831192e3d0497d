// SPDX-License-Identifier: GPL-2.0-or-later

// The window with the disks that are to be fetched for selected hits.
#pragma once

#include "catalogue/fetch/fetch_job.h"
#include "catalogue/job_window.h"
#include "search/hit_table.h"
#include "state/volume_notes.h"

#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

namespace quorvin {

/// What the window works with. All of it must outlive the window.
struct FetchWindowParts {
  /// Its sources are gone over as they are when the plan is made.
  const ProgramState& state;
  /// What is wanted; asked each time that a plan is made. It may throw RuntimeFault.
  std::function<WantedFiles()> wanted;
  QThreadPool& threads;
  QLocale locale;
  /// Shows a file in its folder; see CopiesWindowParts.
  std::function<bool(const HitRow& file)> showFile;
  /// Asks the user for the file to save a plan in, with its usual name; nothing when the user cancels.
  std::function<std::optional<QString>(const QString& title, const QString& name)> saveFile;
  /// Asks the user where the script is to copy to; nothing when the user cancels.
  std::function<std::optional<QString>()> pickFolder;
};

/// The window `FetchWindow`: the volumes in the order in which they are to be inserted, the user's notes on
/// where they are, and below each what to copy from it. The plan can be saved as text, or as a script that
/// copies.
class FetchWindow : public JobWindow {
  Q_OBJECT

 public:
  FetchWindow(FetchWindowParts parts, QWidget* owner);

 protected:
  void start() override;
  QString stoppedText() const override;
  QString progressText() const override;
  void jobEnded(std::shared_ptr<CatalogueJob> job) override;
  void openRow(const QModelIndex& row) override;

 private:
  QLayout* makeFields();
  void showPlan();
  void addVolume(std::size_t number);
  void addMissing();
  void saveText();
  void saveScript();
  void save(const QString& path,
            const std::function<void(const std::function<bool(const std::string&)>&)>& write);

  FetchWindowParts parts_;
  NotesAtHand notes_;
  QStandardItemModel rows_;
  QPushButton* text_;
  QPushButton* script_;
  std::shared_ptr<const FetchJob> shown_;
};

}  // namespace quorvin
