// SPDX-License-Identifier: GPL-2.0-or-later

// The main window.
#pragma once

#include "app/command_line.h"
#include "app/search_form_controls.h"
#include "app/search_form_copy.h"
#include "app/search_form_export.h"
#include "app/search_form_hits.h"
#include "app/search_form_run.h"
#include "app/search_form_sources.h"
#include "app/search_form_status.h"
#include "app/search_form_view.h"
#include "app/search_form_windows.h"
#include "app/search_form_work.h"
#include "app/shutdown.h"
#include "app/start_up.h"
#include "app/version.h"
#include "hits/hit_list_model.h"
#include "hits/selection_size.h"
#include "search/hit_table.h"

#include <QLabel>
#include <QLocale>
#include <QMainWindow>
#include <QSize>
#include <QString>
#include <QTimer>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace quorvin {

/// Keeps the main window on a screen, no larger than that and no smaller than its controls need, in sizes
/// that include its frame.
class SearchFormFrame : public StartUpView, public ShutdownView {
 public:
  /// All must outlive the object.
  SearchFormFrame(QMainWindow& window, const SearchFormControls& controls, SearchFormDisplay& display,
                  SearchFormWork& jobs, SearchFormWindows& windows);

  /// Puts the window in the middle of the screen, as large as the controls and a good number of rows ask for.
  void takeInitialPlace();
  /// Sets the least size, which holds for the outer measures. It is kept as a limit, so that the window
  /// cannot be dragged smaller in the first place.
  void limitSize();
  /// Whether a size was set before the window had a frame. It was meant to include the frame;
  /// settleOuterSize() sees to that when there is one, since otherwise the window would grow by its frame at
  /// each start.
  bool isUnsettled() const { return outerSizeWished_.has_value(); }
  void settleOuterSize();
  /// Sees to it that the window is no larger than its screen and can be taken hold of: what was saved may be
  /// of a screen that is gone.
  void moveOntoScreen();
  /// Makes the window a maximized one that goes back to the place in `text`, which maximizedFrom() gave; does
  /// nothing for empty text.
  void restoreMaximized(const QString& text);

  // For start-up.
  void processEvents() override { display_.processEvents(); }
  void setVersionCaption(const QString& caption) override { controls_.lblVer->setText(caption); }
  void showListingName(const QString& path) override { window_.setWindowTitle(windowTitle(path)); }
  void setWebUpdateEnabled(bool enabled) override { jobs_.setWebUpdateEnabled(enabled); }
  float placement(PlacementKey key) const override;
  void setPlacement(PlacementKey key, float twips) override;
  void whenPainted(std::function<void()> action) override;
  /// The window is being painted.
  void painted();

  // For shutdown.
  bool isMinimized() const override { return window_.isMinimized(); }
  QString maximizedFrom() const override;
  void unloadOtherWindows() override;
  void enableSndQTime() override { jobs_.peers().SndQTime().enable(); }

 private:
  QSize frameSize() const { return window_.frameGeometry().size() - window_.size(); }

  QMainWindow& window_;
  const SearchFormControls& controls_;
  SearchFormDisplay& display_;
  SearchFormWork& jobs_;
  SearchFormWindows& windows_;
  /// The outer size asked for before the window had a frame.
  std::optional<QSize> outerSizeWished_;
  /// What restoreMaximized() was given last, and the place that this gave the window. While the window still
  /// goes back there, the text is kept as it is: without its frame it could only be guessed anew.
  QString maximizedText_;
  QRect maximizedPlace_;
  /// What is to be done when the window has been painted; nothing waits any more once it was.
  std::vector<std::function<void()>> afterPainting_;
  bool wasPainted_ = false;
  /// Ends the wait for a painting that may never come. The window owns it.
  QTimer& untilSeen_;
};

/// The main window: it puts the parts together and hands over what the user does.
/// Closing it during a run ends the run at its next yield; the window must live until the handler that
/// started the run has returned.
class SearchForm : public QMainWindow {
  Q_OBJECT

 public:
  /// `state`, `messages`, `shell` and `segments` must outlive the window.
  /// Files are picked with `picker`, or, where that is null, with the system's dialogs.
  SearchForm(ProgramState& state, MessageBoxes& messages, Shell& shell, const QLocale& locale,
             SegmentStore* segments = nullptr, FilePicker* picker = nullptr);

  /// What closing the window does before it closes. A fault is reported and keeps the window open.
  void setUnloadHandler(std::function<void()> handler) { unloadHandler_ = std::move(handler); }

  /// To be called after the sources or settings of the state may have changed: while there are no sources,
  /// the empty hit list says what to do first.
  void sourcesChanged();
  /// What is to happen whenever sourcesChanged() is called.
  void setSourcesHandler(std::function<void()> handler) { sourcesHandler_ = std::move(handler); }

  /// Brings the window to the front, or the dialog that is open above it. `activationToken` is the desktop's
  /// permission for that; it may be empty.
  void comeForward(const QString& activationToken);
  /// Does what a start asks for, as if the user had done it by the controls. Nothing while a dialog or a
  /// message is open, since the user is about something else, nor while the program closes.
  void runErrand(const Errand& errand);
  /// The system wants the program to end: closes the window as the user would, and the dialogs and messages
  /// that are open. What cannot be saved at the second attempt either is given up.
  void closeUnasked();

  /// What start-up and shutdown work with.
  SearchFormFrame& frame() { return frame_; }
  /// How the hits are seen, and what is kept of that.
  SearchFormView& view() { return view_; }
  /// Its long jobs.
  SearchFormWork& jobs() { return jobs_; }

  /// Whether the window was closed and the program has come to its end.
  bool hasLeft() const { return hasLeft_; }

  /// What is done with hits that are dragged out of the list.
  void setDragStarter(DragStarter starter) { hitActions_.setDragStarter(std::move(starter)); }
  /// What shows the picture of a hit; without one a message says that there is none.
  void setPreviewOpener(PreviewOpener opener) { hitActions_.setPreviewOpener(std::move(opener)); }

  const SendTimer& SndQTime() { return jobs_.peers().SndQTime(); }
  Progress& progress() { return jobs_.progress(); }

  const SearchFormControls& controls() const { return controls_; }
  SearchFormCopy& copies() { return copy_; }
  const ItemMenu& itemMenu() const { return hitActions_.itemMenu(); }
  const SearchFormMenus& menus() const { return menus_; }
  SearchFormStatus& status() { return status_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void searchFor(const QString& text);
  void searchInFolder(const QString& folder);
  void searchListed(const QString& folder);
  void connectControls();
  void connectMenus();
  bool Form_Unload();
  void leave();
  void showEmptyText();
  /// What the source editor asks for when it has stored the sources.
  void rescan() {
    sourcesChanged();
    jobs_.startRefresh();
  }
  void layOut();
  bool isRestored(const QEvent& event) const;

  ProgramState& state_;
  MessageBoxes& messages_;
  QLocale locale_;
  HitTable hits_;
  NotesAtHand notes_{state_};
  HitListModel rows_;
  SearchFormControls controls_;
  SearchFormMenus menus_;
  SearchFormStatus status_;
  SearchFormDisplay display_;
  RunMessages runMessages_;
  SearchFormHits hitActions_;
  SearchFormCopy copy_;
  SearchFormView view_;
  SearchFormWork jobs_;
  SearchFormRun search_;
  /// Made when the list has its model.
  std::optional<SelectionSize> selectionSize_;
  SearchFormWindows windows_;
  SearchFormExport export_;
  /// Made when the list has its model.
  std::optional<SearchFormSources> sources_;
  SearchFormFrame frame_;
  std::function<void()> unloadHandler_;
  std::function<void()> sourcesHandler_;
  bool hasLeft_ = false;
};

}  // namespace quorvin
