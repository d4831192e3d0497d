// The main window.
#pragma once

#include "app/hit_list_model.h"
#include "app/search_form_controls.h"
#include "app/search_form_display.h"
#include "app/search_form_hits.h"
#include "app/search_form_network.h"
#include "app/search_form_refresh.h"
#include "app/search_form_windows.h"
#include "app/shutdown.h"
#include "app/start_up.h"
#include "search/hit_table.h"
#include "search/search_run.h"

#include <QLocale>
#include <QMainWindow>
#include <QSize>

#include <functional>
#include <optional>

namespace quorvin {

/// The main window: it shows what start-up tells it, and hands over what the user does.
/// Closing it during a run ends the run at its next yield; the window must live until the handler that
/// started the run has returned.
class SearchForm : public QMainWindow, public StartUpView, public ShutdownView {
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

  /// Runs a local list refresh to its end, with `ReScan` disabled and the mouse pointer showing work; events
  /// run meanwhile. While one is running, another follows it (unless the program is closing by then), and the
  /// call returns at once.
  void startRefresh();

  /// What shows the picture of a hit; without one a message says that there is none.
  void setPreviewOpener(PreviewOpener opener) { hitActions_.setPreviewOpener(std::move(opener)); }

  const SendTimer& SndQTime() { return network_.peers().SndQTime(); }

  SearchFormNetwork& network() { return network_; }

  /// What start-up unpacks the main data file with.
  ArchiveExtraction& dataFileExtraction() { return network_.dataFileExtraction(); }

  /// The `Progress` window, made when there is none.
  Progress& progress() { return refreshDisplay_.progress(); }

  const SearchFormControls& controls() const { return controls_; }
  const ItemMenu& itemMenu() const { return hitActions_.itemMenu(); }
  const SearchFormMenus& menus() const { return menus_; }

  // For start-up.
  void processEvents() override;
  void setVersionCaption(const QString& caption) override;
  void setWebUpdateEnabled(bool enabled) override;
  float placement(PlacementKey key) const override;
  void setPlacement(PlacementKey key, float twips) override;

  // For shutdown.
  bool isMinimized() const override { return QMainWindow::isMinimized(); }
  void unloadOtherWindows() override;
  void enableSndQTime() override;

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

  void takeInitialPlace();
  void connectControls();
  void connectMenus();
  bool Form_Unload();
  void leave();
  void Find_Click();
  void WebUpdate_Click();
  void ReScan_Click();
  void refreshOnce();
  void stopRun();
  void layOut();
  bool isRestored(const QEvent& event) const;
  void limitSize();
  void settleOuterSize();
  void moveOntoScreen();

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
  RefreshDisplay refreshDisplay_;
  SearchFormWindows windows_;
  SearchFormNetwork network_;
  std::function<void()> unloadHandler_;
  bool endRequested_ = false;
  /// Wished for while a refresh was running.
  bool refreshAgain_ = false;
  /// The outer size asked for before the window had a frame.
  std::optional<QSize> outerSizeWished_;
};

}  // namespace quorvin
