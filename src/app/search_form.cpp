#include "app/search_form.h"

#include "app/fault_report.h"
#include "app/version.h"
#include "index/local_list_refresh.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QScopeGuard>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QWindowStateChangeEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvin {

namespace {

/// Settings may hold anything; further out than this no window can be.
constexpr float kFarthestPixel = 32767;

int toPixels(float twips) {
  const float pixels = twips / static_cast<float>(kTwipsPerPixel);
  return static_cast<int>(std::lround(std::clamp(pixels, -kFarthestPixel, kFarthestPixel)));
}

float toTwips(int pixels) {
  return static_cast<float>(pixels * kTwipsPerPixel);
}

}  // namespace

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
      searchRun_(
          {state, runMessages_, locale, &hits_, segments, &display_, [this] { return endRequested_; }}),
      hitActions_(*controls_.HitList, hits_, state, shell, messages, locale),
      refreshDisplay_(state, *this, locale),
      windows_(
          state, messages, menus_, [this] { startRefresh(); }, *this, locale, picker),
      network_(state, runMessages_,
               {*this, *controls_.WebUpdate, [this]() -> Progress& { return refreshDisplay_.progress(); },
                [this] { return endRequested_; }},
               menus_, locale, [this] { return searchRun_.isRunning() || state_.RescanRunning; }) {
  setObjectName(QStringLiteral("SearchForm"));
  setWindowTitle(applicationTitle());
  setCentralWidget(controls_.HitList->parentWidget());
  centralWidget()->installEventFilter(this);
  controls_.HitList->setModel(&rows_);
  controls_.lblVer->setText(versionCaption());
  placeControls(controls_);
  setInitialColumnWidths(controls_, locale);
  takeInitialPlace();
  connectControls();
  connectMenus();
  setPreviewOpener(
      [this](const QString& folder, const QString& name) { windows_.PreviewImage(folder + name); });
  network_.peers().SndQTime().setQuit([this] { leave(); });
  controls_.SearchStr->setFocus();
  sourcesChanged();
}

/// In the middle of the screen, as large as the controls and a good number of rows ask for.
void SearchForm::takeInitialPlace() {
  limitSize();
  const QRect available = screen()->availableGeometry();
  const QSize wanted = initialInnerSize(controls_) + QSize(0, menuBar()->sizeHint().height());
  resize(wanted.boundedTo(available.size()));
  move(available.center() - rect().center());
}

void SearchForm::connectControls() {
  connect(controls_.Find, &QPushButton::clicked, this, &SearchForm::Find_Click);
  connect(controls_.SearchStr, &QLineEdit::returnPressed, controls_.Find, &QPushButton::click);
  connect(controls_.DesMatch, &QLineEdit::returnPressed, controls_.Find, &QPushButton::click);
  connect(controls_.WebUpdate, &QPushButton::clicked, this, &SearchForm::WebUpdate_Click);

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
  handle(menus_.ReScan, QStringLiteral("refreshing the local lists"), [this] { ReScan_Click(); });
  handle(menus_.OptionsMenu, QStringLiteral("editing the options"), [this] { windows_.OptionsMenu_Click(); });
  handle(menus_.ShareLists, QStringLiteral("sharing lists"),
         [this] { network_.ShareLists_Click(menus_.ShareLists->isChecked()); });
  handle(menus_.GetLists, QStringLiteral("getting lists from a peer"), [this] { network_.GetLists_Click(); });
  connect(&network_.peers(), &PeerExchange::offlineSourcesAdded, this, &SearchForm::sourcesChanged);
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
  const QString searchText = controls_.SearchStr->text();
  reportFaults(runMessages_, QStringLiteral("searching for \"%1\"").arg(searchText),
               [&] { searchRun_.Find_Click(searchText, controls_.DesMatch->text()); });
}

void SearchForm::WebUpdate_Click() {
  reportFaults(runMessages_, QStringLiteral("updating from the web"), [this] { network_.WebUpdate_Click(); });
}

void SearchForm::ReScan_Click() {
  startRefresh();
}

void SearchForm::startRefresh() {
  refreshAgain_ = true;
  if (!menus_.ReScan->isEnabled()) return;
  menus_.ReScan->setEnabled(false);
  const auto afterwards = qScopeGuard([this] { menus_.ReScan->setEnabled(true); });
  while (std::exchange(refreshAgain_, false) && !state_.ShuttingDown) refreshOnce();
}

void SearchForm::refreshOnce() {
  refreshDisplay_.setBusyPointer();
  reportFaults(runMessages_, QStringLiteral("refreshing the local lists"), [&] {
    quorvin::refreshLocalLists(state_, refreshDisplay_, runMessages_, locale_, versionCaption());
  });
  refreshDisplay_.setDefaultPointer();
  network_.peers().sharing().sourcesRefreshed();
}

void SearchForm::stopRun() {
  if (searchRun_.isRunning()) controls_.Find->click();
}

void SearchForm::processEvents() {
  display_.processEvents();
}

void SearchForm::setVersionCaption(const QString& caption) {
  controls_.lblVer->setText(caption);
}

void SearchForm::setWebUpdateEnabled(bool enabled) {
  controls_.WebUpdate->setEnabled(enabled);
}

float SearchForm::placement(PlacementKey key) const {
  const QRect outer = frameGeometry();
  switch (key) {
    case PlacementKey::Top:
      return toTwips(outer.top());
    case PlacementKey::Left:
      return toTwips(outer.left());
    case PlacementKey::Width:
      return toTwips(outer.width());
    case PlacementKey::Height:
      return toTwips(outer.height());
  }
  return 0;
}

void SearchForm::setPlacement(PlacementKey key, float twips) {
  const int pixels = toPixels(twips);
  const QSize frame = frameGeometry().size() - size();
  switch (key) {
    case PlacementKey::Top:
      move(x(), pixels);
      break;
    case PlacementKey::Left:
      move(pixels, y());
      break;
    case PlacementKey::Width:
      resize(pixels - frame.width(), height());
      break;
    case PlacementKey::Height:
      resize(width(), pixels - frame.height());
      break;
  }
  if (!isVisible()) outerSizeWished_ = frameGeometry().size();
}

bool SearchForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched != centralWidget()) return QMainWindow::eventFilter(watched, event);
  if (event->type() == QEvent::Resize && !isMinimized()) layOut();
  // The window system has given the window its frame by the time it is painted.
  if (event->type() == QEvent::Paint && outerSizeWished_) {
    QTimer::singleShot(0, this, &SearchForm::settleOuterSize);
  }
  return QMainWindow::eventFilter(watched, event);
}

void SearchForm::layOut() {
  limitSize();
  stretchControls(controls_, centralWidget()->size());
}

/// The least size holds for the outer measures; it is kept as a limit, so that the window cannot be dragged
/// smaller in the first place.
void SearchForm::limitSize() {
  const QSize frame = frameGeometry().size() - size();
  setMinimumSize(QSize(kLeastOuterWidth, kLeastOuterHeight) / kTwipsPerPixel - frame);
}

/// A size set before the window had a frame was meant to include it; without this the window would grow by
/// its frame at each start.
void SearchForm::settleOuterSize() {
  if (!outerSizeWished_) return;
  const QSize wished = *outerSizeWished_;
  outerSizeWished_.reset();
  limitSize();
  if (size() == wished) resize(wished - (frameGeometry().size() - size()));
}

/// A place that was saved on a screen which is gone would hide the window.
void SearchForm::moveOntoScreen() {
  const QRect outer = frameGeometry();
  const QList<QScreen*> screens = QGuiApplication::screens();
  const bool canBeSeen = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    return screen->availableGeometry().intersects(outer);
  });
  if (canBeSeen || screens.isEmpty()) return;
  move(QGuiApplication::primaryScreen()->availableGeometry().topLeft());
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
  if (!event->spontaneous()) moveOntoScreen();
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
  if (isThrough) endRequested_ = true;
  return isThrough;
}

void SearchForm::unloadOtherWindows() {
  windows_.unloadSplash();
  windows_.unloadOptions();
  windows_.unloadSources();
  refreshDisplay_.close();
  windows_.unloadPreview();
  windows_.unloadBrowser();
  network_.unload();
}

void SearchForm::enableSndQTime() {
  network_.peers().SndQTime().enable();
}

/// Once nothing runs any more: the end of the program.
void SearchForm::leave() {
  unloadOtherWindows();
  close();
  QCoreApplication::quit();
}

void SearchForm::RunMessages::inform(const QString& text) {
  form_.display_.show();
  if (!form_.endRequested_) form_.messages_.inform(text);
}

bool SearchForm::RunMessages::askYesNo(const QString& text) {
  form_.display_.show();
  return !form_.endRequested_ && form_.messages_.askYesNo(text);
}

FaultAnswer SearchForm::RunMessages::askAbortRetryIgnore(const QString& text) {
  form_.display_.show();
  return form_.endRequested_ ? FaultAnswer::Abort : form_.messages_.askAbortRetryIgnore(text);
}

}  // namespace quorvin
