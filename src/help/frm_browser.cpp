// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/frm_browser.h"

#include "texts/texts.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>

namespace quorvin {

namespace {

constexpr char kCaption[] = QT_TRANSLATE_NOOP("Texts", "Quorvin Utility Help");
constexpr char16_t kHomePage[] = u"genhelp.htm";
constexpr char16_t kSearchPage[] = u"index.htm";

/// Loads that are done within one tick show no sign of being busy, so that help pages do not flicker.
constexpr int kTimerMilliseconds = 100;

/// What the menu calls the page.
QString titleOf(const QString& address) {
  if (address.endsWith(QStringLiteral("relinfo.htm"))) return Texts::tr("Release Information");
  if (address.endsWith(QString::fromUtf16(kHomePage))) return Texts::tr("Program Usage");
  return address;
}

QSize initialSize(const QWidget& window) {
  constexpr int kCharacters = 145;
  constexpr int kLines = 48;
  const QFontMetrics metrics = window.fontMetrics();
  const QSize wanted(metrics.averageCharWidth() * kCharacters, metrics.lineSpacing() * kLines);
  return wanted.boundedTo(window.screen()->availableGeometry().size() * 9 / 10);
}

}  // namespace

frmBrowser::frmBrowser(const QString& helpFolder, PageTransfer& transfer, QWidget* parent)
    : QWidget(parent, Qt::Window),
      loader_(helpFolder, transfer, pageDisplay()),
      controls_(makeBrowserControls(this, loader_.files())) {
  setObjectName(QStringLiteral("frmBrowser"));
  setWindowTitle(Texts::tr(kCaption));
  timTimer_.setObjectName(QStringLiteral("timTimer"));
  timTimer_.setInterval(kTimerMilliseconds);
  controls_.inner->installEventFilter(this);
  // The box has the focus, not the edit in it.
  controls_.cboAddress->installEventFilter(this);
  resize(initialSize(*this));
  connectControls();
  addKeys();
  updateButtons();
}

frmBrowser::~frmBrowser() {
  loader_.reset();
}

void frmBrowser::connectControls() {
  for (int number = 0; number < kBrowserButtons; ++number) {
    const auto button = static_cast<BrowserButton>(number);
    connect(controls_.button(button), &QAction::triggered, this,
            [this, button] { tbToolBar_ButtonClick(button); });
  }
  const auto pressOnWish = [this](void (HelpView::*wish)(), BrowserButton button) {
    connect(controls_.brwWebBrowser, wish, this, [this, button] { controls_.button(button)->trigger(); });
  };
  pressOnWish(&HelpView::backWished, BrowserButton::Back);
  pressOnWish(&HelpView::forwardWished, BrowserButton::Forward);
  pressOnWish(&HelpView::homeWished, BrowserButton::Home);
  pressOnWish(&HelpView::reloadWished, BrowserButton::Refresh);
  connect(controls_.brwWebBrowser, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    timTimer_.start();
    loader_.follow(link);
    updateButtons();
  });
  connect(controls_.brwWebBrowser, &QTextBrowser::highlighted, this, [this](const QUrl& link) {
    if (!loader_.isBusy() && !isPageWaiting()) controls_.lblStatus->setText(link.toString());
  });
  connect(controls_.OpenNow, &QPushButton::clicked, this, &frmBrowser::openWaitingPage);
  connect(controls_.cboAddress, &QComboBox::activated, this, &frmBrowser::cboAddress_Click);
  connect(&timTimer_, &QTimer::timeout, this, &frmBrowser::timTimer_Timer);
}

void frmBrowser::addKeys() {
  const auto onKeys = [this](const char* keys, auto action) {
    auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(keys)), this);
    connect(shortcut, &QShortcut::activated, this, action);
  };
  onKeys("Esc", [this] { escape(); });
  onKeys("Ctrl+F", [this] { controls_.findBar->open(); });
  onKeys("F3", [this] { controls_.findBar->findNext(); });
  onKeys("Shift+F3", [this] { controls_.findBar->findPrevious(); });
  onKeys("Ctrl+L", [this] {
    controls_.cboAddress->setFocus(Qt::ShortcutFocusReason);
    controls_.cboAddress->lineEdit()->selectAll();
  });
  onKeys("Ctrl+W", [this] { close(); });
}

void frmBrowser::showHelp(const QString& startingAddress) {
  StartingAddress = startingAddress;
  if (loaded_) tellWaitingPage();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void frmBrowser::tellWaitingPage() {
  const bool waits = StartingAddress != controls_.cboAddress->currentText();
  controls_.OpenNow->setVisible(waits);
  if (!waits) return controls_.lblStatus->clear();
  controls_.lblStatus->setText(
      Texts::tr("%1 opens after this window is closed.").arg(titleOf(StartingAddress)));
}

void frmBrowser::openWaitingPage() {
  controls_.OpenNow->hide();
  controls_.lblStatus->clear();
  controls_.brwWebBrowser->setFocus();
  timTimer_.start();
  loader_.open(StartingAddress);
  updateButtons();
}

void frmBrowser::Form_Load() {
  controls_.tbToolBar->update();
  Form_Resize();
  controls_.brwWebBrowser->setFocus();
  if (StartingAddress.isEmpty()) return;
  addressList_.visit(StartingAddress);
  refillAddresses(StartingAddress);
  timTimer_.start();
  loader_.open(StartingAddress);
  updateButtons();
}

void frmBrowser::Form_Resize() {
  layOutBrowser(controls_);
}

PageDisplay frmBrowser::pageDisplay() {
  return {[this](const Page& page, int position) {
            controls_.brwWebBrowser->showPage(page);
            if (position > 0) controls_.brwWebBrowser->goTo(position);
          },
          [this](const QString& fragment) { controls_.brwWebBrowser->showPlace(fragment); },
          [this] { return controls_.brwWebBrowser->position(); },
          [this](const QString& address) { navigationFinished(address); }};
}

void frmBrowser::navigationFinished(const QString& address) {
  addressList_.visit(address);
  refillAddresses(address);
  updateButtons();
}

void frmBrowser::refillAddresses(const QString& current) {
  const QScopedValueRollback<bool> lock(addressLock_, true);
  controls_.cboAddress->clear();
  controls_.cboAddress->addItems(addressList_.addresses());
  controls_.cboAddress->setCurrentIndex(
      controls_.cboAddress->findText(current, Qt::MatchExactly | Qt::MatchCaseSensitive));
  controls_.cboAddress->lineEdit()->setCursorPosition(0);
}

void frmBrowser::cboAddress_Click() {
  if (addressLock_) return;
  timTimer_.start();
  loader_.open(controls_.cboAddress->currentText());
  updateButtons();
}

bool frmBrowser::cboAddress_KeyPress(int key) {
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  cboAddress_Click();
  return true;
}

void frmBrowser::timTimer_Timer() {
  if (!loader_.isBusy()) timTimer_.stop();
  showBusy();
}

void frmBrowser::tbToolBar_ButtonClick(BrowserButton button) {
  timTimer_.start();
  switch (button) {
    case BrowserButton::Back:
      loader_.goBack();
      break;
    case BrowserButton::Forward:
      loader_.goForward();
      break;
    case BrowserButton::Refresh:
      loader_.reload();
      break;
    case BrowserButton::Home:
      loader_.open(loader_.files().addressOf(QString::fromUtf16(kHomePage)));
      break;
    case BrowserButton::Search:
      loader_.open(loader_.files().addressOf(QString::fromUtf16(kSearchPage)));
      controls_.findBar->open();
      break;
    case BrowserButton::Stop:
      stopLoading();
      break;
  }
  updateButtons();
}

void frmBrowser::stopLoading() {
  timTimer_.stop();
  loader_.stop();
  showBusy();
}

void frmBrowser::escape() {
  if (loader_.isBusy()) {
    controls_.button(BrowserButton::Stop)->trigger();
  } else if (controls_.findBar->isVisible()) {
    controls_.findBar->dismiss();
  }
}

void frmBrowser::updateButtons() {
  controls_.button(BrowserButton::Back)->setEnabled(loader_.canGoBack());
  controls_.button(BrowserButton::Forward)->setEnabled(loader_.canGoForward());
  controls_.button(BrowserButton::Stop)->setEnabled(loader_.isBusy());
}

void frmBrowser::showBusy() {
  const bool busy = loader_.isBusy();
  const bool shown = controls_.loadBar->isVisibleTo(this);
  if (busy) {
    controls_.lblStatus->setText(Texts::tr("Loading %1 (Esc stops)").arg(loader_.loadingAddress()));
    controls_.brwWebBrowser->viewport()->setCursor(Qt::BusyCursor);
  } else if (shown) {
    controls_.lblStatus->clear();
    if (isPageWaiting()) tellWaitingPage();
    controls_.brwWebBrowser->viewport()->unsetCursor();
  }
  controls_.loadBar->setVisible(busy);
}

bool frmBrowser::eventFilter(QObject* watched, QEvent* event) {
  if (watched == controls_.inner && event->type() == QEvent::Resize) Form_Resize();
  if (watched == controls_.cboAddress && event->type() == QEvent::KeyPress) {
    return cboAddress_KeyPress(static_cast<QKeyEvent*>(event)->key());
  }
  return QWidget::eventFilter(watched, event);
}

void frmBrowser::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (loaded_) return;
  loaded_ = true;
  Form_Load();
}

/// Unloads the window: the next time it is shown it knows nothing of this time.
void frmBrowser::closeEvent(QCloseEvent* event) {
  event->accept();
  loaded_ = false;
  controls_.OpenNow->hide();
  controls_.lblStatus->clear();
  timTimer_.stop();
  loader_.reset();
  showBusy();
  addressList_.clear();
  refillAddresses({});
  controls_.cboAddress->clearEditText();
  controls_.brwWebBrowser->showNothing();
  controls_.findBar->hide();
  updateButtons();
}

void frmBrowser::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) drawIcons(controls_, palette());
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Form_Resize();
}

}  // namespace quorvin
