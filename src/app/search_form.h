// The main window.
#pragma once

#include "app/hit_list_model.h"
#include "app/search_form_controls.h"
#include "app/search_form_display.h"
#include "app/search_form_frame.h"
#include "app/search_form_hits.h"
#include "app/search_form_windows.h"
#include "app/search_form_work.h"
#include "search/hit_table.h"
#include "search/search_run.h"

#include <QLocale>
#include <QMainWindow>

#include <functional>
#include <utility>

namespace quorvin {

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

  /// To be called after the sources of the state have changed: while there are none, the empty hit list says
  /// what to do first.
  void sourcesChanged();

  /// What start-up and shutdown work with.
  SearchFormFrame& frame() { return frame_; }
  /// Its long jobs.
  SearchFormWork& jobs() { return jobs_; }

  /// Whether the window was closed and the program has come to its end.
  bool hasLeft() const { return hasLeft_; }

  /// What shows the picture of a hit; without one a message says that there is none.
  void setPreviewOpener(PreviewOpener opener) { hitActions_.setPreviewOpener(std::move(opener)); }

  const SendTimer& SndQTime() { return jobs_.peers().SndQTime(); }
  Progress& progress() { return jobs_.progress(); }

  const SearchFormControls& controls() const { return controls_; }
  const ItemMenu& itemMenu() const { return hitActions_.itemMenu(); }
  const SearchFormMenus& menus() const { return menus_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  /// The messages of a run: what the run has to show comes first, and a closed window shows none.
  class RunMessages : public MessageBoxes {
   public:
    explicit RunMessages(SearchForm& form) : form_(form) {}
    void inform(const QString& text) override;
    bool askYesNo(const QString& text) override;
    FaultAnswer askAbortRetryIgnore(const QString& text) override;

   private:
    SearchForm& form_;
  };

  void connectControls();
  void connectMenus();
  bool Form_Unload();
  void leave();
  void Find_Click();
  void stopRun();
  void layOut();
  bool isRestored(const QEvent& event) const;

  ProgramState& state_;
  MessageBoxes& messages_;
  QLocale locale_;
  HitTable hits_;
  HitListModel rows_;
  SearchFormControls controls_;
  SearchFormMenus menus_;
  SearchFormDisplay display_;
  RunMessages runMessages_;
  SearchRun searchRun_;
  SearchFormHits hitActions_;
  SearchFormWork jobs_;
  SearchFormWindows windows_;
  SearchFormFrame frame_;
  std::function<void()> unloadHandler_;
  bool hasLeft_ = false;
};

}  // namespace quorvin
