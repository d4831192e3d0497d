// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form.h"

#include "app/fault_report.h"
#include "app/status_texts.h"
#include "app/version.h"
#include "app/window_place.h"
#include "texts/texts.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QString>
#include <QTimer>
#include <QWindowStateChangeEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace quorvin {
namespace {

/// Settings may hold anything; further out than this no window can be.
constexpr float kFarthestPixel = 32767;

/// A window that is minimized or behind others may not be painted at all.
constexpr std::chrono::seconds kLongestUnpainted{5};

int toPixels(float twips) {
  return static_cast<int>(std::lround(std::clamp(twips / kTwipsPerPixel, -kFarthestPixel, kFarthestPixel)));
}

/// The usable areas of the screens, that of the primary one first.
QList<QRect> usableScreens() {
  QList<QRect> areas;
  for (const QScreen* screen : QGuiApplication::screens()) areas.append(screen->availableGeometry());
  return areas;
}

/// As wide as the widest and as high as the highest screen.
QSize largestScreen() {
  QSize largest;
  for (const QRect& area : usableScreens()) largest = largest.expandedTo(area.size());
  return largest.isEmpty() ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : largest;
}

}  // namespace

SearchForm::SearchForm(ProgramState& state, MessageBoxes& messages, Shell& shell, const QLocale& locale,
                       SegmentStore* segments, FilePicker* picker)
    : state_(state),
      messages_(messages),
      locale_(locale),
      rows_(hits_, locale),
      controls_(makeControls(new QWidget(this), rows_)),
      menus_(makeMenus(menuBar())),
      status_(*this, locale),
      display_(controls_, rows_, status_, locale),
      runMessages_(messages, display_, [this] { return jobs_.work().isClosing(); }),
      hitActions_(*controls_.HitList, *menus_.HitsMenu, rows_, state, shell, messages, locale),
      copy_({*controls_.HitList, hits_, state, runMessages_, status_, locale}, hitActions_.itemMenu()),
      view_(controls_, menus_, rows_, locale),
      jobs_(state, runMessages_, *this, controls_, menus_, locale, status_),
      search_(
          {state, runMessages_, hits_, segments, display_, status_, controls_, menus_, jobs_.work(), locale}),
      windows_(state, messages, menus_,
               {[this] { rescan(); }, std::bind_front(&SearchFormWork::restoreListing, &jobs_),
                [this](const HitRow& file) { return hitActions_.showInFolder(file); },
                [this](const QStringList& listings) { return sources_->addOfflineLists(listings); },
                std::bind_front(&SearchForm::searchListed, this)},
               *this, locale, picker),
      export_(
          {state, runMessages_, jobs_.work(), windows_.picker(), hits_, *controls_.HitList, status_, locale}),
      frame_(*this, controls_, display_, jobs_, windows_) {
  setObjectName(QStringLiteral("SearchForm"));
  setWindowTitle(applicationTitle());
  setCentralWidget(controls_.HitList->parentWidget());
  centralWidget()->installEventFilter(this);
  selectionSize_.emplace(*controls_.HitList->selectionModel(), [this](int row) { return rows_.size(row); });
  controls_.lblVer->setText(versionCaption());
  placeControls(controls_);
  setInitialColumnWidths(controls_, locale);
  frame_.takeInitialPlace();
  connectControls();
  connectMenus();
  setPreviewOpener(
      [this](const QString& folder, const QString& name) { windows_.PreviewImage(folder + name); });
  rows_.setNotes(notes_);
  sources_.emplace(
      state_, messages_, *this, controls_, menus_, [this] { rescan(); }, [this] { sourcesChanged(); });
  jobs_.setNotify([&shell](const QString& text) { shell.notify(Texts::tr("The rescan has ended"), text); });
  jobs_.peers().SndQTime().setQuit([this] { leave(); });
  controls_.SearchStr->setFocus();
  sourcesChanged();
}

void SearchForm::connectControls() {
  connect(controls_.Find, &QPushButton::clicked, &search_, &SearchFormRun::Find_Click);
  connect(controls_.SearchStr, &QLineEdit::returnPressed, &search_, &SearchFormRun::enter);
  connect(controls_.DesMatch, &QLineEdit::returnPressed, &search_, &SearchFormRun::enter);
  for (QLineEdit* field : {static_cast<QLineEdit*>(controls_.SearchStr), controls_.DesMatch}) {
    connect(field, &QLineEdit::textEdited, &search_, &SearchFormRun::fieldEdited);
  }
  search_.setParent(this);
  connect(&search_, &SearchFormRun::confirmed, &view_, &SearchFormView::keepSearch);
  connect(&search_, &SearchFormRun::ended, this, &SearchForm::showEmptyText);
  connect(controls_.WebUpdate, &QPushButton::clicked, this, [this] { jobs_.WebUpdate_Click(); });
  connect(&rows_.order(), &RowOrder::countChanged, this, &SearchForm::showEmptyText);
  connect(&rows_.order(), &RowOrder::orderChanged, this, [this] { status_.setOrder(rows_.order().note()); });
  connect(&view_, &SearchFormView::selectionLetGo, this,
          [this](std::int64_t hits) { status_.setNote(letGoText(hits, locale_)); });
  connect(&hitActions_, &SearchFormHits::noted, this, [this](const QString& note) { status_.setNote(note); });
  connect(&*selectionSize_, &SelectionSize::changed, this,
          [this] { status_.setSelected(selectionSize_->rows(), selectionSize_->bytes()); });
  auto* stop = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(stop, &QShortcut::activated, this, [this] {
    if (copy_.stop() || export_.stop()) return;
    if (!view_.stop(search_.isRunning())) search_.stop();
  });
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
  handle(menus_.AddLocal, Texts::tr("editing the local folders"), [this] { windows_.AddLocal_Click(); });
  handle(menus_.EditOffline, Texts::tr("editing the offline lists"),
         [this] { windows_.EditOffline_Click(); });
  handle(menus_.ReScan, Texts::tr("refreshing the local lists"), [this] { jobs_.startRefresh(); });
  handle(menus_.ListingHistory, Texts::tr("showing the listing history"),
         [this] { windows_.ListingHistory_Click(); });
  handle(hitActions_.itemMenu().FetchPlan, Texts::tr("planning what to fetch"),
         [this] { windows_.FetchPlan_Click(hits_, hitActions_.rowsToFetch()); });
  handle(menus_.Copies, Texts::tr("looking for copies"), [this] { windows_.Copies_Click(); });
  handle(menus_.Compare, Texts::tr("comparing"), [this] { windows_.Compare_Click(); });
  handle(menus_.Volumes, Texts::tr("looking at volumes"), [this] { windows_.Volumes_Click(); });
  handle(menus_.Import, Texts::tr("importing lists"), [this] { windows_.Import_Click(); });
  handle(menus_.ExportHits, Texts::tr("exporting hits"), [this] { export_.ExportHits_Click(); });
  handle(hitActions_.itemMenu().ExportSelected, Texts::tr("exporting hits"),
         [this] { export_.ExportSelected_Click(); });
  handle(menus_.OptionsMenu, Texts::tr("editing the options"), [this] { windows_.OptionsMenu_Click(); });
  handle(menus_.ShareLists, Texts::tr("sharing lists"),
         [this] { jobs_.ShareLists_Click(menus_.ShareLists->isChecked()); });
  handle(menus_.GetLists, Texts::tr("getting lists from a peer"), [this] { jobs_.GetLists_Click(); });
  connect(&jobs_.peers(), &PeerExchange::offlineSourcesAdded, this, &SearchForm::sourcesChanged);
  handle(menus_.HlpGen, Texts::tr("opening the help"), [this] { windows_.HlpGen_Click(); });
  handle(menus_.RelInfo, Texts::tr("opening the help"), [this] { windows_.RelInfo_Click(); });
  handle(menus_.AboutMenu, Texts::tr("showing the about window"), [this] { windows_.AboutMenu_Click(); });
  connect(menus_.MenuQuit, &QAction::triggered, this, &SearchForm::close);
}

void SearchForm::sourcesChanged() {
  if (sourcesHandler_) sourcesHandler_();
  sources_->showOffers();
  showEmptyText();
}

void SearchForm::showEmptyText() {
  if (rows_.order().isFiltered() && rows_.order().knownRows() > 0) {
    controls_.HitList->setEmptyText(
        Texts::tr("No hit has these words.\n\nEsc closes the filter and shows all hits."));
    return;
  }
  if (state_.hasSources()) {
    controls_.HitList->setEmptyText(search_.emptyText());
    return;
  }
  controls_.HitList->setEmptyText(Texts::tr("There is nothing to search yet."));
}

bool SearchForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched != centralWidget()) return QMainWindow::eventFilter(watched, event);
  if (event->type() == QEvent::Resize && !isMinimized()) layOut();
  if (event->type() == QEvent::Paint) {
    // The window system has given the window its frame by now.
    if (frame_.isUnsettled()) QTimer::singleShot(0, this, [this] { frame_.settleOuterSize(); });
    frame_.painted();
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
  if (event->isAccepted()) copy_.drop();
}

void SearchForm::comeForward(const QString& activationToken) {
  // Wayland's plugin takes the token from there when it asks for the focus.
  if (!activationToken.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
  if (isVisible()) setWindowState(windowState() & ~Qt::WindowMinimized);
  QWidget* dialog = QApplication::activeModalWidget();
  QWidget& front = dialog ? *dialog : *this;
  front.raise();
  front.activateWindow();
}

void SearchForm::closeUnasked() {
  if (!close()) close();
  const QWidget* last = nullptr;
  for (QWidget* open; (open = QApplication::activeModalWidget()) != last; last = open) {
    if (auto* dialog = qobject_cast<QDialog*>(open)) dialog->reject();
  }
}

/// False where the program could not save everything: then the window stays, with all that it has.
bool SearchForm::Form_Unload() {
  bool isThrough = !unloadHandler_;
  reportFaults(messages_, Texts::tr("saving. The program stays open; close it again to leave"), [&] {
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
  // The toolkit asks every window that can be seen before it quits, and one that refuses would keep the
  // program running for good, without its main window and without the timer.
  for (QWidget* window : QApplication::topLevelWidgets()) window->hide();
  QCoreApplication::quit();
}

SearchFormFrame::SearchFormFrame(QMainWindow& window, const SearchFormControls& controls,
                                 SearchFormDisplay& display, SearchFormWork& jobs, SearchFormWindows& windows)
    : window_(window),
      controls_(controls),
      display_(display),
      jobs_(jobs),
      windows_(windows),
      untilSeen_(*new QTimer(&window)) {
  untilSeen_.setObjectName(QStringLiteral("untilSeen"));
  untilSeen_.setSingleShot(true);
  QObject::connect(&untilSeen_, &QTimer::timeout, &window_, [this] { painted(); });
}

void SearchFormFrame::takeInitialPlace() {
  limitSize();
  const QRect available = window_.screen()->availableGeometry();
  const QSize wanted = initialInnerSize(controls_) + QSize(0, window_.menuBar()->sizeHint().height()) +
                       QSize(0, window_.statusBar()->sizeHint().height());
  window_.resize(wanted.boundedTo(available.size()));
  window_.move(available.center() - window_.rect().center());
}

void SearchFormFrame::limitSize() {
  window_.setMinimumSize(QSize(kLeastOuterWidth, kLeastOuterHeight) / kTwipsPerPixel - frameSize());
}

void SearchFormFrame::settleOuterSize() {
  if (!outerSizeWished_) return;
  const QSize wished = *outerSizeWished_;
  outerSizeWished_.reset();
  limitSize();
  if (window_.size() == wished) window_.resize(wished - frameSize());
}

void SearchFormFrame::moveOntoScreen() {
  if (window_.isMaximized()) return;
  const QRect outer = window_.frameGeometry();
  const QRect place = placeOnScreens(outer, usableScreens());
  if (place.topLeft() != outer.topLeft()) window_.move(place.topLeft());
  if (place.size() == outer.size()) return;
  window_.resize(place.size() - frameSize());
  if (outerSizeWished_) outerSizeWished_ = place.size();
}

QString SearchFormFrame::maximizedFrom() const {
  if (!window_.isMaximized()) return {};
  const QRect inner = window_.normalGeometry();
  if (inner == maximizedPlace_) return maximizedText_;
  const QPoint place = inner.topLeft() - (window_.geometry().topLeft() - window_.frameGeometry().topLeft());
  return QStringLiteral("%1 %2 %3 %4").arg(place.x()).arg(place.y()).arg(inner.width()).arg(inner.height());
}

void SearchFormFrame::restoreMaximized(const QString& text) {
  if (text.isEmpty()) return;
  const QStringList numbers = text.split(u' ');
  const auto number = [&](qsizetype index) { return numbers.value(index).toInt(); };
  const QSize inner = QSize(number(2), number(3)).boundedTo(largestScreen());
  if (!window_.isVisible() && inner.isValid() && !inner.isEmpty()) {
    outerSizeWished_.reset();
    window_.move(number(0), number(1));
    window_.resize(inner);
    moveOntoScreen();
  }
  maximizedText_ = text;
  maximizedPlace_ = window_.geometry();
  window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
}

float SearchFormFrame::placement(PlacementKey key) const {
  const QRect outer = window_.frameGeometry();
  switch (key) {
    case PlacementKey::Top:
      return static_cast<float>(toTwips(outer.top()));
    case PlacementKey::Left:
      return static_cast<float>(toTwips(outer.left()));
    case PlacementKey::Width:
      return static_cast<float>(toTwips(outer.width()));
    case PlacementKey::Height:
      return static_cast<float>(toTwips(outer.height()));
  }
  return 0;
}

void SearchFormFrame::setPlacement(PlacementKey key, float twips) {
  const int pixels = toPixels(twips);
  const QSize frame = frameSize();
  switch (key) {
    case PlacementKey::Top:
      window_.move(window_.x(), pixels);
      break;
    case PlacementKey::Left:
      window_.move(pixels, window_.y());
      break;
    // A larger one would take memory for pixels that nobody can see.
    case PlacementKey::Width:
      window_.resize(std::min(pixels, largestScreen().width()) - frame.width(), window_.height());
      break;
    case PlacementKey::Height:
      window_.resize(window_.width(), std::min(pixels, largestScreen().height()) - frame.height());
      break;
  }
  if (!window_.isVisible()) outerSizeWished_ = window_.frameGeometry().size();
}

void SearchFormFrame::whenPainted(std::function<void()> action) {
  if (wasPainted_) {
    QTimer::singleShot(0, &window_, std::move(action));
    return;
  }
  if (afterPainting_.empty()) untilSeen_.start(kLongestUnpainted);
  afterPainting_.push_back(std::move(action));
}

void SearchFormFrame::painted() {
  if (std::exchange(wasPainted_, true)) return;
  untilSeen_.stop();
  for (std::function<void()>& action : std::exchange(afterPainting_, {})) {
    QTimer::singleShot(0, &window_, std::move(action));
  }
}

void SearchFormFrame::unloadOtherWindows() {
  windows_.unloadDialogs();
  jobs_.progress().hide();
  windows_.unloadPreview();
  windows_.unloadBrowser();
  windows_.unloadCatalogueWindows();
  jobs_.unload();
}

}  // namespace quorvin
