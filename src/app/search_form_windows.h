// The windows that the main window's menus open.
#pragma once

#include "editors/list_options_opener.h"
#include "editors/local_loc_file_picker.h"
#include "editors/local_loc_opener.h"
#include "help/frm_browser.h"
#include "help/frm_splash.h"
#include "help/network_page_transfer.h"
#include "platform/message_box.h"
#include "preview/image_preview.h"
#include "state/program_state.h"

#include <QLocale>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

namespace quorvin {

/// Opens the editors, the options, the about window and the help browser, each above the main window, and
/// unloads them when the program ends.
class SearchFormWindows {
 public:
  /// Everything must outlive the object; `owner` is the main window. `picker` may be null for the system's
  /// own dialogs.
  SearchFormWindows(ProgramState& state, MessageBoxes& messages, SourceEditorHost& host, QWidget& owner,
                    const QLocale& locale, FilePicker* picker);
  ~SearchFormWindows();

  // The handlers of the menu items. Those of the dialogs return when the dialog has been closed.
  void AddLocal_Click() { sources_.AddLocal_Click(); }
  void EditOffline_Click() { sources_.EditOffline_Click(); }
  void OptionsMenu_Click() { options_.OptionsMenu_Click(); }
  void AboutMenu_Click();
  void HlpGen_Click();
  void RelInfo_Click();

  /// Loads a picture and shows it; returns at once.
  void PreviewImage(const QString& path) { preview_.PreviewImage(path); }

  // Unloading; each does nothing where the window is not there.
  void unloadSplash();
  void unloadOptions() { options_.unload(); }
  void unloadSources() { sources_.unload(); }
  void unloadPreview() { preview_.unload(); }
  void unloadBrowser();

 private:
  void showHelp(const QString& pageName);

  QWidget& owner_;
  DialogFilePicker systemPicker_;
  LocalLocOpener sources_;
  ListOptionsOpener options_;
  ImagePreview preview_;
  QPointer<frmSplash> splash_;
  NetworkPageTransfer transfer_;
  /// A window of its own beside the main one, so it is not the main window's child.
  std::unique_ptr<frmBrowser> browser_;
};

}  // namespace quorvin
