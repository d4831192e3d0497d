// SPDX-License-Identifier: GPL-2.0-or-later
#include "help/frm_browser_controls.h"

#include "texts/texts.h"

#include <QAbstractItemView>
#include <QFile>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QToolButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace quorvin {

namespace {

constexpr int kIconSide = 24;

/// The colour that the drawings have in their files.
constexpr char kDrawnColour[] = "#000000";

QByteArray drawing(const QString& key, const QColor& colour) {
  QFile file(QStringLiteral(":/quorvin/help/%1.svg").arg(key.toLower()));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().replace(kDrawnColour, colour.name().toLatin1());
}

void addDrawing(QIcon& icon, QIcon::Mode mode, const QByteArray& drawing) {
  QSvgRenderer renderer(drawing);
  for (const int scale : {1, 2, 3}) {
    QPixmap pixmap(QSize(kIconSide, kIconSide) * scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(scale);
    icon.addPixmap(pixmap, mode);
  }
}

struct ButtonLook {
  /// What it is called among the controls.
  QString name;
  QString caption;
  QString meaning;
  QString keys;
  QList<QKeySequence> shortcuts;
};

QList<QKeySequence> keysFor(std::initializer_list<const char*> texts) {
  QList<QKeySequence> keys;
  for (const char* text : texts) keys.append(QKeySequence(QString::fromLatin1(text)));
  return keys;
}

/// The keys are spelled out: without a desktop environment some of the standard keys are bound to nothing.
ButtonLook lookOf(BrowserButton button) {
  switch (button) {
    case BrowserButton::Back:
      return {QStringLiteral("Back"), Texts::tr("Back"), Texts::tr("Back"), QStringLiteral("Alt+Left"),
              keysFor({"Alt+Left", "Back"})};
    case BrowserButton::Forward:
      return {QStringLiteral("Forward"), Texts::tr("Forward"), Texts::tr("Forward"),
              QStringLiteral("Alt+Right"), keysFor({"Alt+Right", "Forward"})};
    case BrowserButton::Refresh:
      return {QStringLiteral("Refresh"), Texts::tr("Refresh"), Texts::tr("Refresh"), QStringLiteral("F5"),
              keysFor({"F5", "Ctrl+R"})};
    case BrowserButton::Home:
      return {QStringLiteral("Home"), Texts::tr("Home"), Texts::tr("Home: program usage"),
              QStringLiteral("Alt+Home"), keysFor({"Alt+Home"})};
    case BrowserButton::Search:
      return {QStringLiteral("Search"), Texts::tr("Search"), Texts::tr("Search the index of the help"),
              QStringLiteral("Ctrl+Shift+F"), keysFor({"Ctrl+Shift+F"})};
    case BrowserButton::Stop:
      // Its key is the window's: Esc also closes the row for finding.
      return {
          QStringLiteral("Stop"), Texts::tr("Stop"), Texts::tr("Stop loading"), QStringLiteral("Esc"), {}};
  }
  return {};
}

QAction* addToolbarButton(QToolBar* bar, BrowserButton button) {
  const ButtonLook look = lookOf(button);
  QAction* action = bar->addAction(look.caption);
  action->setObjectName(look.name);
  action->setShortcuts(look.shortcuts);
  action->setToolTip(QStringLiteral("%1 (%2)").arg(look.meaning, look.keys));
  QWidget* widget = bar->widgetForAction(action);
  widget->setObjectName(look.name);
  widget->setAccessibleName(look.caption);
  widget->setFocusPolicy(Qt::TabFocus);
  return action;
}

/// The button that holds the others in a narrow window has neither a caption nor a name.
void nameExtension(const QToolBar& bar) {
  auto* extension = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
  if (extension) extension->setAccessibleName(Texts::tr("More buttons"));
}

void makeToolbar(QWidget* window, BrowserControls& made) {
  made.tbToolBar = new QToolBar(window);
  made.tbToolBar->setObjectName(QStringLiteral("tbToolBar"));
  made.tbToolBar->setAccessibleName(Texts::tr("Help toolbar"));
  nameExtension(*made.tbToolBar);
  for (int button = 0; button < kBrowserButtons; ++button) {
    made.buttons[static_cast<std::size_t>(button)] =
        addToolbarButton(made.tbToolBar, static_cast<BrowserButton>(button));
  }
}

void makeAddressRow(QWidget* window, BrowserControls& made) {
  made.picAddress = new QWidget(window);
  made.picAddress->setObjectName(QStringLiteral("picAddress"));
  made.cboAddress = new QComboBox(made.picAddress);
  made.cboAddress->setObjectName(QStringLiteral("cboAddress"));
  made.cboAddress->setAccessibleName(Texts::tr("Address"));
  made.cboAddress->setEditable(true);
  made.cboAddress->lineEdit()->setAccessibleName(Texts::tr("Address"));
  made.cboAddress->view()->setAccessibleName(Texts::tr("Visited addresses"));
  made.cboAddress->setInsertPolicy(QComboBox::NoInsert);
  made.cboAddress->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  made.cboAddress->setCompleter(nullptr);
  // Leaving the box would otherwise choose the entry that equals what was typed there.
  QObject::disconnect(made.cboAddress->lineEdit(), &QLineEdit::editingFinished, made.cboAddress, nullptr);
  made.lblAddress = new QLabel(Texts::tr("&Address:"), made.picAddress);
  made.lblAddress->setObjectName(QStringLiteral("lblAddress"));
  made.lblAddress->setBuddy(made.cboAddress);
}

/// A button that looks like a link and is one for the keyboard, too.
QPushButton* makeLink(QWidget* parent, const QString& name, const QString& caption) {
  auto* link = new QPushButton(caption, parent);
  link->setObjectName(name);
  link->setFlat(true);
  link->setCursor(Qt::PointingHandCursor);
  QFont underlined = link->font();
  underlined.setUnderline(true);
  link->setFont(underlined);
  QPalette palette = link->palette();
  palette.setColor(QPalette::ButtonText, palette.color(QPalette::Link));
  link->setPalette(palette);
  return link;
}

void makeStatusRow(QWidget* window, BrowserControls& made) {
  made.statusRow = new QWidget(window);
  made.lblStatus = new QLabel(made.statusRow);
  made.lblStatus->setObjectName(QStringLiteral("lblStatus"));
  made.lblStatus->setTextFormat(Qt::PlainText);
  // A long address must not widen the window.
  made.lblStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  made.OpenNow = makeLink(made.statusRow, QStringLiteral("OpenNow"), Texts::tr("&Open it now"));
  made.OpenNow->setFixedHeight(window->fontMetrics().height() + 4);
  made.OpenNow->hide();
  made.loadBar = new QProgressBar(made.statusRow);
  made.loadBar->setObjectName(QStringLiteral("loadBar"));
  made.loadBar->setAccessibleName(Texts::tr("Loading"));
  made.loadBar->setTextVisible(false);
  made.loadBar->setRange(0, 0);
  made.loadBar->setFixedSize(window->fontMetrics().averageCharWidth() * 16, window->fontMetrics().height());
  auto* row = new QHBoxLayout(made.statusRow);
  row->setContentsMargins(pixelsOfTwips(kAddressLeft), 2, pixelsOfTwips(kAddressLeft), 2);
  row->addWidget(made.lblStatus, 1);
  row->addWidget(made.OpenNow);
  row->addWidget(made.loadBar);
  made.loadBar->hide();
  made.statusRow->setFixedHeight(made.loadBar->height() + 6);
}

void placeAddressRow(const BrowserControls& controls) {
  const int left = pixelsOfTwips(kAddressLeft);
  controls.lblAddress->move(left, 0);
  controls.lblAddress->resize(controls.lblAddress->sizeHint());
  const int top = controls.lblAddress->y() + controls.lblAddress->height();
  controls.cboAddress->move(left, top + pixelsOfTwips(kBelowAddressLabel));
  controls.cboAddress->resize(controls.cboAddress->width(), controls.cboAddress->sizeHint().height());
  controls.picAddress->setFixedHeight(controls.cboAddress->geometry().bottom() + 1);
}

}  // namespace

QIcon toolbarIcon(const QString& key, const QColor& colour, const QColor& disabledColour) {
  QIcon icon;
  addDrawing(icon, QIcon::Normal, drawing(key, colour));
  addDrawing(icon, QIcon::Disabled, drawing(key, disabledColour));
  return icon;
}

BrowserControls makeBrowserControls(QWidget* window, const HelpFiles& files) {
  BrowserControls made{};
  makeToolbar(window, made);
  makeAddressRow(window, made);
  made.inner = new QWidget(window);
  made.brwWebBrowser = new HelpView(files, made.inner);
  made.brwWebBrowser->setObjectName(QStringLiteral("brwWebBrowser"));
  made.brwWebBrowser->setAccessibleName(Texts::tr("Page"));
  made.brwWebBrowser->verticalScrollBar()->setAccessibleName(Texts::tr("Scroll the page down"));
  made.brwWebBrowser->horizontalScrollBar()->setAccessibleName(Texts::tr("Scroll the page sideways"));
  made.findBar = new FindBar(*made.brwWebBrowser, window);
  makeStatusRow(window, made);

  auto* rows = new QVBoxLayout(window);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(made.tbToolBar);
  rows->addWidget(made.picAddress);
  rows->addWidget(made.inner, 1);
  rows->addWidget(made.findBar);
  rows->addWidget(made.statusRow);
  placeAddressRow(made);
  drawIcons(made, window->palette());
  return made;
}

void drawIcons(const BrowserControls& controls, const QPalette& palette) {
  const QColor colour = palette.color(QPalette::Active, QPalette::ButtonText);
  const QColor disabled = palette.color(QPalette::Disabled, QPalette::ButtonText);
  for (QAction* action : controls.buttons)
    action->setIcon(toolbarIcon(action->objectName(), colour, disabled));
}

void layOutBrowser(const BrowserControls& controls) {
  placeAddressRow(controls);
  const QSize inner = controls.inner->size();
  controls.cboAddress->resize(addressWidth(inner.width()), controls.cboAddress->height());
  // Above the side at which the address box is read first.
  controls.lblAddress->resize(controls.cboAddress->width(), controls.lblAddress->height());
  const int margin = pixelsOfTwips(kBesidePages / 2);
  controls.brwWebBrowser->setGeometry(QRect(QPoint(margin, margin), pagesSize(inner)));
}

}  // namespace quorvin
