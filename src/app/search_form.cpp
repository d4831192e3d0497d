#include "app/search_form.h"

#include "app/fault_report.h"
#include "app/version.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QShortcut>
#include <QTimer>
#include <QWindowStateChangeEvent>

namespace quorvin {

SearchForm::SearchForm(ProgramState& state, MessageBoxes& messages, Shell& shell, const QLocale& locale,
                       SegmentStore* segments, FilePicker* picker)
    : state_(state),
      messages_(messages),
      locale_(locale),
      rows_(hits_, locale),
      controls_(makeControls(new QWidget(this))),
      menus_(makeMenus(menuBar())),
      display_(controls_, rows_),
      runMessages_(*this),
      searchRun_({state, runMessages_, locale, &hits_, segments, &display_,
                  [this] { return jobs_.work().isClosing(); }}),
      hitActions_(*controls_.HitList, hits_, state, shell, messages, locale),
      jobs_(state, runMessages_, *this, controls_, menus_, locale),
      windows_(
          state, messages, menus_, [this] { jobs_.startRefresh(); }, *this, locale, picker),
      frame_(*this, controls_, display_, jobs_, windows_) {
  setObjectName(QStringLiteral("SearchForm"));
  setWindowTitle(applicationTitle());
  setCentralWidget(controls_.HitList->parentWidget());
  centralWidget()->installEventFilter(this);
  controls_.HitList->setModel(&rows_);
  controls_.lblVer->setText(versionCaption());
  placeControls(controls_);
  setInitialColumnWidths(controls_, locale);
  frame_.takeInitialPlace();
  connectControls();
  connectMenus();
  setPreviewOpener(
      [this](const QString& folder, const QString& name) { windows_.PreviewImage(folder + name); });
  jobs_.peers().SndQTime().setQuit([this] { leave(); });
  controls_.SearchStr->setFocus();
  sourcesChanged();
}

void SearchForm::connectControls() {
  connect(controls_.Find, &QPushButton::clicked, this, &SearchForm::Find_Click);
  connect(controls_.SearchStr, &QLineEdit::returnPressed, controls_.Find, &QPushButton::click);
  connect(controls_.DesMatch, &QLineEdit::returnPressed, controls_.Find, &QPushButton::click);
  connect(controls_.WebUpdate, &QPushButton::clicked, this, [this] { jobs_.WebUpdate_Click(); });

  auto* stop = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(stop, &QShortcut::activated, this, &SearchForm::stopRun);
  auto* goToSearch = new QShortcut(QKeySequence(QKeySequence::Find), this);
  connect(goToSearch, &QShortcut::activated, this, [this] {
    controls_.SearchStr->setFocus(Qt::ShortcutFocusReason);
    controls_.SearchStr->selectAll();
  });
}

void SearchForm::connectMenus() {
  const auto handle = [this](const QAction* item, const QString& doing, auto handler) {
    connect(item, &QAction::triggered, this, [=, this] {
      reportFaults(messages_, doing, handler);
      sourcesChanged();
    });
  };
  handle(menus_.AddLocal, QStringLiteral("editing the local folders"), [this] { windows_.AddLocal_Click(); });
  handle(menus_.EditOffline, QStringLiteral("editing the offline lists"),
         [this] { windows_.EditOffline_Click(); });
  handle(menus_.ReScan, QStringLiteral("refreshing the local lists"), [this] { jobs_.startRefresh(); });
  handle(menus_.OptionsMenu, QStringLiteral("editing the options"), [this] { windows_.OptionsMenu_Click(); });
  handle(menus_.ShareLists, QStringLiteral("sharing lists"),
         [this] { jobs_.ShareLists_Click(menus_.ShareLists->isChecked()); });
  handle(menus_.GetLists, QStringLiteral("getting lists from a peer"), [this] { jobs_.GetLists_Click(); });
  connect(&jobs_.peers(), &PeerExchange::offlineSourcesAdded, this, &SearchForm::sourcesChanged);
  handle(menus_.HlpGen, QStringLiteral("opening the help"), [this] { windows_.HlpGen_Click(); });
  handle(menus_.RelInfo, QStringLiteral("opening the help"), [this] { windows_.RelInfo_Click(); });
  handle(menus_.AboutMenu, QStringLiteral("showing the about window"),
         [this] { windows_.AboutMenu_Click(); });
  connect(menus_.MenuQuit, &QAction::triggered, this, &SearchForm::close);
}

void SearchForm::sourcesChanged() {
  const bool hasSources =
      state_.OnlineSourceCount > 0 || state_.OfflineSourceCount > 0 || !state_.TextFile.isEmpty();
  if (hasSources) {
    controls_.HitList->setEmptyText({});
    return;
  }
  controls_.HitList->setEmptyText(
      QStringLiteral("There is nothing to search yet.\n\n"
                     "File, Add/Edit Local Folder To Search List: catalogue folders of your own.\n"
                     "File, Add/Edit Offline List files: search listings that you have."));
}

void SearchForm::Find_Click() {
  const auto search = [this] {
    const QString searchText = controls_.SearchStr->text();
    reportFaults(runMessages_, QStringLiteral("searching for \"%1\"").arg(searchText),
                 [&] { searchRun_.Find_Click(searchText, controls_.DesMatch->text()); });
  };
  // A press during a search is the request to stop it.
  if (jobs_.work().run(JobKind::Search, [&search](Job&) { search(); }) == Answer::Stops) search();
}

void SearchForm::stopRun() {
  if (searchRun_.isRunning()) controls_.Find->click();
}

bool SearchForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched != centralWidget()) return QMainWindow::eventFilter(watched, event);
  if (event->type() == QEvent::Resize && !isMinimized()) layOut();
  // The window system has given the window its frame by the time it is painted.
  if (event->type() == QEvent::Paint && frame_.isUnsettled()) {
    QTimer::singleShot(0, this, [this] { frame_.settleOuterSize(); });
  }
  return QMainWindow::eventFilter(watched, event);
}

void SearchForm::layOut() {
  frame_.limitSize();
  stretchControls(controls_, centralWidget()->size());
}

void SearchForm::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // One that comes back in the size that it had is not resized by the window system.
  if (isRestored(*event)) layOut();
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  if (!centralWidget()) return;
  placeControls(controls_);
  layOut();
}

/// Whether the window was minimized until now.
bool SearchForm::isRestored(const QEvent& event) const {
  if (event.type() != QEvent::WindowStateChange || isMinimized()) return false;
  return static_cast<const QWindowStateChangeEvent&>(event).oldState().testFlag(Qt::WindowMinimized);
}

void SearchForm::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous()) frame_.moveOntoScreen();
}

void SearchForm::closeEvent(QCloseEvent* event) {
  event->setAccepted(Form_Unload());
}

/// False where the program could not save everything: then the window stays, with all that it has.
bool SearchForm::Form_Unload() {
  bool isThrough = !unloadHandler_;
  reportFaults(messages_, QStringLiteral("saving. The program stays open; close it again to leave"), [&] {
    if (unloadHandler_) unloadHandler_();
    isThrough = true;
  });
  return isThrough;
}

/// Once nothing runs any more: the end of the program.
void SearchForm::leave() {
  hasLeft_ = true;
  frame_.unloadOtherWindows();
  close();
  QCoreApplication::quit();
}

void SearchForm::RunMessages::inform(const QString& text) {
  form_.display_.show();
  if (!form_.jobs_.work().isClosing()) form_.messages_.inform(text);
}

bool SearchForm::RunMessages::askYesNo(const QString& text) {
  form_.display_.show();
  return !form_.jobs_.work().isClosing() && form_.messages_.askYesNo(text);
}

FaultAnswer SearchForm::RunMessages::askAbortRetryIgnore(const QString& text) {
  form_.display_.show();
  return form_.jobs_.work().isClosing() ? FaultAnswer::Abort : form_.messages_.askAbortRetryIgnore(text);
}

}  // namespace quorvin
