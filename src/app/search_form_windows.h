// SPDX-License-Identifier: GPL-2.0-or-later

// The windows that the main window's menus open.
#pragma once

#include "app/search_form_controls.h"
#include "app/search_form_help.h"
#include "catalogue/compare_window.h"
#include "catalogue/copies_window.h"
#include "catalogue/fetch/fetch_window.h"
#include "catalogue/import/import_window.h"
#include "catalogue/volumes/volumes_window.h"
#include "editors/list_options.h"
#include "editors/local_loc.h"
#include "files/drive_threads.h"
#include "help/frm_browser.h"
#include "help/frm_splash.h"
#include "help/page_transfer.h"
#include "history/history_window.h"
#include "platform/message_box.h"
#include "preview/image_preview.h"
#include "state/program_state.h"

#include <QLocale>
#include <QPointer>
#include <QString>
#include <QThreadPool>
#include <QWidget>

#include <functional>
#include <memory>

namespace quorvin {

/// What the windows ask the main window to do.
struct WindowRequests {
  /// What the source editor runs when the user wants a rescan (see SourceEditing).
  std::function<void()> refreshLocalLists;
  HistoryWindow::Restore restoreListing;
  /// Shows a file in its folder; see CopiesWindowParts.
  std::function<bool(const HitRow& file)> showFile;
  /// Adds listings to the offline sources; see ImportWindowParts.
  std::function<QString(const QStringList& listings)> addListings;
  /// Searches in a folder, as listed; see SpaceWindowParts.
  std::function<void(const QString& folder)> searchListed = {};
};

/// Opens the editors, the options, the about window and the help browser, each above the main window, and
/// unloads them when the program ends.
class SearchFormWindows {
 public:
  /// Everything must outlive the object; `owner` is the main window. `picker` may be null for the system's
  /// own dialogs.
  SearchFormWindows(ProgramState& state, MessageBoxes& messages, const SearchFormMenus& menus,
                    WindowRequests requests, QWidget& owner, const QLocale& locale, FilePicker* picker);
  ~SearchFormWindows();

  // The handlers of the menu items. Those of the dialogs return when the dialog has been closed.

  /// Edits the online sources, with the menu items `AddLocal` and `EditOffline` disabled meanwhile. Returns
  /// when the rescan, if one was wanted, has ended too.
  void AddLocal_Click();
  /// Edits the offline sources.
  void EditOffline_Click();
  /// Shows the earlier versions of the listings.
  void ListingHistory_Click();
  /// Shows which files are there more than once, and which on one volume only.
  void Copies_Click();
  /// Shows what differs between two listings, versions or folders.
  void Compare_Click();
  /// Shows what is on each volume, and where it is kept.
  void Volumes_Click();
  /// Shows which volumes to fetch for hits; nothing for none.
  void FetchPlan_Click(const HitTable& hits, const std::vector<int>& rows);
  /// Turns lists of other programs into listings.
  void Import_Click();
  void OptionsMenu_Click();
  void AboutMenu_Click();
  void HlpGen_Click();
  void RelInfo_Click();

  /// What asks for files.
  FilePicker& picker() { return sourceEditing_.picker; }

  /// Loads a picture and shows it; returns at once.
  void PreviewImage(const QString& path) { preview_.PreviewImage(path); }

  /// The mode of the source editor's last opening; empty before the first.
  const QString& LocMode() const { return LocMode_; }

  // Unloading, without saving; each does nothing where the window is not there. The call that opened a dialog
  // returns once the dialog's own events have ended.
  void unloadOptions();
  void unloadSources();
  void unloadPreview() { preview_.unload(); }
  void unloadBrowser();
  /// The about window, the options and the source editor, in this order.
  void unloadDialogs();
  /// The windows about listings: comparison, history, copies, volumes, import.
  void unloadCatalogueWindows();

 private:
  void showSources(LocalLoc& dialog);
  void showHelp(const QString& pageName);
  void compareWith(const QString& listing, int number);

  const SearchFormMenus& menus_;
  QWidget& owner_;
  DialogFilePicker systemPicker_;
  DriveThreads lookers_;
  SourceEditing sourceEditing_;
  OptionsEditing optionsEditing_;
  HistoryWindow::Restore restoreListing_;
  std::function<bool(const HitRow& file)> showFile_;
  std::function<QString(const QStringList& listings)> addListings_;
  std::function<void(const QString& folder)> searchListed_;
  QLocale locale_;
  QString LocMode_;
  QPointer<LocalLoc> sources_;
  QPointer<ListOptions> options_;
  QPointer<HistoryWindow> history_;
  QPointer<CopiesWindow> copies_;
  QPointer<CompareWindow> compare_;
  QPointer<VolumesWindow> volumes_;
  QPointer<ImportWindow> import_;
  QPointer<FetchWindow> fetch_;
  QPointer<frmSplash> splash_;
  ImagePreview preview_;
  NetworkPageTransfer transfer_;
  /// A separate window beside the main one, so it is not the main window's child.
  std::unique_ptr<frmBrowser> browser_;
  SearchFormHelp help_;
};

}  // namespace quorvin
