// SPDX-License-Identifier: GPL-2.0-or-later

// What the windows have in common that show what a job has found in listings.
#pragma once

#include "catalogue/catalogue_job.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QString>
#include <QThreadPool>
#include <QTimer>
#include <QTreeView>

#include <memory>

namespace quorvin {

/// A window with fields, rows, a line about these, and two buttons. The first button starts a job in another
/// thread, and is Stop meanwhile. In the rows, Ctrl+C copies those that are selected as text; Enter and a
/// double click unfold a row, or open it where there is none below it. Closing the window ends what goes on.
class JobWindow : public QDialog {
  Q_OBJECT

 public:
  ~JobWindow() override;

  void done(int result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  /// `threads`, where the job runs, must outlive the window; a thread that waits for a drive is left to
  /// itself when the window closes.
  JobWindow(const QString& startCaption, const QString& closeCaption, QThreadPool& threads, QWidget* owner);

  /// To be called once: puts `fields` above the rows, or what else shows the result, which becomes part of
  /// the window, and gives it its first size, for rows of so many characters.
  void layOut(QLayout* fields, QTreeView* list, int characters);
  void layOut(QLayout* fields, QWidget* view, int characters);

  /// Only where there are rows.
  QTreeView& list() { return *list_; }
  QPushButton& startButton() { return *start_; }
  void setStatus(const QString& text) { status_->setText(text); }

  /// Runs the job, and looks at it until it has ended or is let go.
  void startJob(std::shared_ptr<CatalogueJob> job);
  /// The job that goes on; null for none.
  const std::shared_ptr<CatalogueJob>& job() const { return job_; }
  /// The button is free again, and what the job still finds is not shown. The thread keeps the job until it
  /// has come to look.
  void letGo();

  /// The button was pressed while nothing went on.
  virtual void start() = 0;
  /// What the window says where the user has stopped the job.
  virtual QString stoppedText() const = 0;
  /// How far the job is.
  virtual QString progressText() const = 0;
  /// The job has come to its end, and the window has let go of it.
  virtual void jobEnded(std::shared_ptr<CatalogueJob> job) = 0;
  /// A row that has none below it was double-clicked, or Enter was pressed in it.
  virtual void openRow(const QModelIndex&) {}

 private:
  void Start_Click();
  void look();
  bool takeKey(const QKeyEvent& key);

  QThreadPool& threads_;
  QString startCaption_;
  QTreeView* list_ = nullptr;
  QLabel* status_;
  QPushButton* start_;
  QPushButton* close_;
  /// While it is there, the button is Stop.
  std::shared_ptr<CatalogueJob> job_;
  QTimer watch_;
};

}  // namespace quorvin
