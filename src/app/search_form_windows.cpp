// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_windows.h"

#include "app/fault_report.h"
#include "app/version.h"
#include "help/help_files.h"
#include "platform/standard_folders.h"
#include "search/entry_count.h"
#include "texts/texts.h"

#include <QScopeGuard>
#include <QSysInfo>

#include <utility>

namespace quorvin {

namespace {

OptionsConditions optionsConditions(const QLocale& locale) {
  OptionsConditions conditions;
  conditions.locale = locale;
  conditions.programFolder = [] { return programFolder(); };
  return conditions;
}

ProductFacts productFacts() {
  const ProgramVersion version = programVersion();
  return {applicationTitle(),
          version.majorNumber,
          version.minorNumber,
          version.revision,
          applicationDescription(),
          Texts::tr("%1, with Qt %2").arg(QSysInfo::prettyProductName(), QString::fromLatin1(qVersion()))};
}

/// So many that drives which do not answer leave some for the others.
constexpr int kLookers = 8;

PreviewFaultReport previewReport(MessageBoxes& messages) {
  return [&messages](const QString& path, const RuntimeFault& fault) {
    messages.inform(faultReport(fault, Texts::tr("loading the picture %1").arg(path)));
  };
}

}  // namespace

SearchFormWindows::SearchFormWindows(ProgramState& state, MessageBoxes& messages,
                                     const SearchFormMenus& menus, WindowRequests requests, QWidget& owner,
                                     const QLocale& locale, FilePicker* picker)
    : menus_(menus),
      owner_(owner),
      lookers_(kLookers),
      sourceEditing_{state, messages, picker ? *picker : systemPicker_,
                     std::move(requests.refreshLocalLists)},
      optionsEditing_{state, messages, picker ? *picker : systemPicker_, optionsConditions(locale)},
      restoreListing_(std::move(requests.restoreListing)),
      showFile_(std::move(requests.showFile)),
      addListings_(std::move(requests.addListings)),
      searchListed_(std::move(requests.searchListed)),
      locale_(locale),
      preview_(&owner, usualMetafileChild(), previewReport(messages)) {
  sourceEditing_.lookers = &lookers_.pool();
  sourceEditing_.locale = locale;
  sourceEditing_.countEntries = [cache = userCacheFolder(), locale](const QString& listing) {
    return quickEntryCount(listing, cache, locale);
  };
}

SearchFormWindows::~SearchFormWindows() = default;

void SearchFormWindows::AddLocal_Click() {
  LocMode_ = QString::fromUtf16(kOnlineMode);
  const auto enableBoth = [this](bool enabled) {
    menus_.AddLocal->setEnabled(enabled);
    menus_.EditOffline->setEnabled(enabled);
  };
  enableBoth(false);
  const auto afterwards = qScopeGuard([&enableBoth] { enableBoth(true); });
  LocalLoc dialog(sourceEditing_, LocMode_, &owner_);
  showSources(dialog);
}

void SearchFormWindows::EditOffline_Click() {
  LocalLoc dialog(sourceEditing_, LocMode_, &owner_);
  dialog.arrangeForOffline();
  LocMode_ = QString::fromUtf16(kOfflineMode);
  showSources(dialog);
}

void SearchFormWindows::showSources(LocalLoc& dialog) {
  sources_ = &dialog;
  dialog.exec();
  // A dialog that closes right after a message above it may leave the desktop without an active window.
  if (owner_.isVisible()) owner_.activateWindow();
}

void SearchFormWindows::OptionsMenu_Click() {
  ListOptions dialog(optionsEditing_, &owner_);
  options_ = &dialog;
  dialog.exec();
}

void SearchFormWindows::ListingHistory_Click() {
  const ListingHistory history(sourceEditing_.state.LocalFolder);
  const auto compare = [this](const QString& listing, int number) { compareWith(listing, number); };
  HistoryWindow window(history, locale_, restoreListing_, compare, &owner_);
  history_ = &window;
  window.exec();
}

void SearchFormWindows::Copies_Click() {
  CopiesWindow window({sourceEditing_.state, lookers_.pool(), locale_, showFile_}, &owner_);
  copies_ = &window;
  window.exec();
}

void SearchFormWindows::Compare_Click() {
  CompareWindow window({sourceEditing_.state, lookers_.pool(), locale_, showFile_}, &owner_);
  compare_ = &window;
  window.exec();
}

void SearchFormWindows::Volumes_Click() {
  VolumesWindow window({sourceEditing_.state, lookers_.pool(), locale_, showFile_, searchListed_}, &owner_);
  volumes_ = &window;
  window.exec();
}

/// Over the window that shows the versions.
void SearchFormWindows::compareWith(const QString& listing, int number) {
  CompareWindow window({sourceEditing_.state, lookers_.pool(), locale_, showFile_}, history_);
  window.chooseVersion(listing, number);
  compare_ = &window;
  window.exec();
}

void SearchFormWindows::FetchPlan_Click(const HitTable& hits, const std::vector<int>& rows) {
  if (rows.empty()) return;
  const auto saveFile = [this](const QString& title, const QString& name) {
    return picker().saveFile({title, name, {}, {Texts::tr("All files (*)")}});
  };
  const auto pickFolder = [this] {
    FileQuestion question;
    return picker().pickFolder(question);
  };
  const auto wanted = [&hits, &rows] { return wantedRows(hits, rows); };
  FetchWindow window(
      {sourceEditing_.state, wanted, lookers_.pool(), locale_, showFile_, saveFile, pickFolder}, &owner_);
  fetch_ = &window;
  window.exec();
}

void SearchFormWindows::Import_Click() {
  const auto pickLists = [this] { return picker().openFiles({}); };
  const auto pickFolder = [this](const QString& folder) {
    FileQuestion question;
    question.initialFolder = folder;
    return picker().pickFolder(question);
  };
  const ProgramState& state = sourceEditing_.state;
  ImportWindowParts parts{lookers_.pool(), state.LocalFolder, ownFileCheck(state),
                          pickLists,       pickFolder,        addListings_};
  ImportWindow window(std::move(parts), &owner_);
  import_ = &window;
  window.exec();
}

void SearchFormWindows::AboutMenu_Click() {
  frmSplash splash(productFacts(), &owner_);
  splash_ = &splash;
  splash.exec();
}

void SearchFormWindows::HlpGen_Click() {
  showHelp(QStringLiteral("genhelp.htm"));
}

void SearchFormWindows::RelInfo_Click() {
  showHelp(QStringLiteral("relinfo.htm"));
}

void SearchFormWindows::showHelp(const QString& pageName) {
  if (!browser_) browser_ = std::make_unique<frmBrowser>(helpFolder(), transfer_);
  browser_->showHelp(helpPageAddress(pageName));
}

void SearchFormWindows::unloadOptions() {
  if (options_) options_->reject();
}

void SearchFormWindows::unloadSources() {
  if (sources_) sources_->reject();
}

void SearchFormWindows::unloadDialogs() {
  if (splash_) splash_->reject();
  unloadOptions();
  unloadSources();
}

void SearchFormWindows::unloadCatalogueWindows() {
  // It may stand over the history.
  if (compare_) compare_->reject();
  if (history_) history_->reject();
  if (copies_) copies_->reject();
  if (volumes_) volumes_->reject();
  if (import_) import_->reject();
  if (fetch_) fetch_->reject();
}

void SearchFormWindows::unloadBrowser() {
  if (browser_) browser_->close();
  help_.unload();
}

}  // namespace quorvin
