#include "app/search_form_controls.h"

#include "app/search_form_view.h"

#include <QDate>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeySequence>
#include <QString>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace quorvin {

namespace {

constexpr char16_t kInitialMatch[] = u"50";

QLabel* makeCaption(QWidget* parent, const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text, parent);
  label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label->setBuddy(buddy);
  return label;
}

/// A label that is written often: plain text needs no look at what it holds.
QLabel* makeValue(QWidget* parent, const QString& name, const QString& text, const QString& meaning) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label->setAccessibleDescription(meaning);
  return label;
}

SearchTextEdit* makeSearchStr(QWidget* parent) {
  auto* edit = new SearchTextEdit(parent);
  edit->setObjectName(QStringLiteral("SearchStr"));
  edit->setAccessibleName(QStringLiteral("Search text"));
  edit->setPlaceholderText(QStringLiteral("Words from the name or folder, for example: rock live"));
  return edit;
}

QLineEdit* makeDesMatch(QWidget* parent) {
  const QString meaning = QStringLiteral("Entries that contain more than this share of the words are shown");
  auto* edit = new QLineEdit(QString::fromUtf16(kInitialMatch), parent);
  edit->setObjectName(QStringLiteral("DesMatch"));
  edit->setAccessibleName(QStringLiteral("Desired match in percent"));
  edit->setAccessibleDescription(meaning);
  edit->setToolTip(meaning);
  return edit;
}

QPushButton* makeButton(QWidget* parent, const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  return button;
}

QMenu* addMenu(QMenuBar* bar, const QString& name, const QString& caption) {
  QMenu* menu = bar->addMenu(caption);
  menu->setObjectName(name);
  menu->setAccessibleName(QString(caption).remove(u'&'));
  return menu;
}

QAction* addItem(QMenu* menu, const QString& name, const QString& caption) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  return item;
}

/// Those of the View menu that concern the search text.
void addSearchItems(SearchFormMenus& menus) {
  menus.ViewMenu->addSeparator();
  menus.SearchWhileTyping =
      addItem(menus.ViewMenu, QStringLiteral("SearchWhileTyping"), QStringLiteral("Search While &Typing"));
  menus.SearchWhileTyping->setCheckable(true);
  menus.KeepSearchHistory =
      addItem(menus.ViewMenu, QStringLiteral("KeepSearchHistory"), QStringLiteral("&Keep Search History"));
  menus.KeepSearchHistory->setCheckable(true);
  menus.ClearSearchHistory =
      addItem(menus.ViewMenu, QStringLiteral("ClearSearchHistory"), QStringLiteral("Clear Search &History"));
}

/// Room, in twips, for the scroll bar and the frame of the hit list.
constexpr double kBesideColumns = 340;
constexpr double kVolumeShare = 16;
constexpr double kFolderShare = 22;
constexpr double kNameShare = 62;

constexpr int kInitialRows = 22;
constexpr int kInitialCharacters = 150;

/// The distances of the layout follow the font, so that they grow with it.
struct Distances {
  explicit Distances(const QFontMetrics& metrics)
      : margin(metrics.height() * 3 / 4),
        besideCaption(metrics.height() / 2),
        betweenGroups(metrics.height() * 5 / 4) {}
  int margin;
  int besideCaption;
  int betweenGroups;
};

int widthOf(const QWidget* widget) {
  return widget->sizeHint().width();
}

/// The width that a label or a button needs for the widest of the texts that it may carry.
template <typename TextWidget>
int widthFor(TextWidget* widget, std::initializer_list<QString> texts) {
  const QString shown = widget->text();
  int width = 0;
  for (const QString& text : texts) {
    widget->setText(text);
    width = std::max(width, widthOf(widget));
  }
  widget->setText(shown);
  return width;
}

/// The width of an edit that shows `text` whole, with the frame and margins of its style.
int editWidth(const QLineEdit* edit, const QString& text) {
  // The size hint is for this many times the letter x.
  constexpr int kHintCharacters = 17;
  const QFontMetrics metrics = edit->fontMetrics();
  const int aroundText = widthOf(edit) - metrics.horizontalAdvance(u'x') * kHintCharacters;
  return metrics.horizontalAdvance(text) + std::max(aroundText, metrics.height());
}

/// Puts one control after the other from left to right, all of the same height.
class Row {
 public:
  Row(int left, int top, int height) : x_(left), top_(top), height_(height) {}
  int next() const { return x_; }
  void put(QWidget* widget, int width) {
    widget->setGeometry(x_, top_, width, height_);
    x_ += width;
  }
  void skip(int width) { x_ += width; }

 private:
  int x_;
  int top_;
  int height_;
};

int toPixels(double twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

double toTwips(int pixels) {
  return static_cast<double>(pixels) * kTwipsPerPixel;
}

QHeaderView* columnsOf(const SearchFormControls& controls) {
  return controls.HitList->header();
}

/// Rounded up: a cell that is too narrow by a part of a pixel cuts its text.
int widestDate(const QFont& font, const QLocale& locale) {
  const QFontMetricsF metrics(font);
  qreal width = 0;
  for (QDate day(2020, 1, 1); day.year() == 2020; day = day.addDays(1)) {
    const QString text = shortMonthDateText(dateValueOf(day.startOfDay()), locale);
    width = std::max({width, metrics.horizontalAdvance(text), metrics.boundingRect(text).width()});
  }
  return static_cast<int>(std::ceil(width)) + 1;
}

/// The columns "Volume", "Folder" and "Name" share what the others leave, as far as the user sees them and
/// has not set their widths.
void stretchColumns(HitListColumns& columns, int width) {
  const auto twipsOf = [&](HitColumn column) { return toTwips(columns.width(column)); };
  const ColumnDivision division = divideColumns(toTwips(width), twipsOf(HitColumn::Match),
                                                twipsOf(HitColumn::Size), twipsOf(HitColumn::Date));
  const std::pair<HitColumn, double> shares[] = {{HitColumn::Volume, division.volume},
                                                 {HitColumn::Folder, division.folder},
                                                 {HitColumn::Name, division.name}};
  double whole = 0;
  double divided = 0;
  double taken = 0;
  for (const auto& [column, share] : shares) {
    const bool isDivided = columns.isVisible(column) && columns.hasUsualWidth(column);
    whole += share;
    (isDivided ? divided : taken) += isDivided ? share : twipsOf(column);
  }
  const double factor = divided > 0 ? (whole - taken) / divided : 0;
  for (const auto& [column, share] : shares) {
    columns.setUsualWidth(column, std::max(0, toPixels(share * factor)));
  }
}

}  // namespace

SearchFormControls makeControls(QWidget* parent, QAbstractItemModel& rows) {
  SearchFormControls made{};
  made.MenuLine = new QFrame(parent);
  made.MenuLine->setObjectName(QStringLiteral("MenuLine"));
  made.MenuLine->setAccessibleName(QStringLiteral("Line below the menu"));
  made.MenuLine->setFrameStyle(QFrame::HLine | QFrame::Sunken);

  // In tab order.
  made.SearchStr = makeSearchStr(parent);
  made.DesMatch = makeDesMatch(parent);
  made.Find = makeButton(parent, QStringLiteral("Find"), QStringLiteral("Find"));
  made.Find->setDefault(true);
  made.WebUpdate = makeButton(parent, QStringLiteral("WebUpdate"), QStringLiteral("Web Update?"));
  made.WebUpdate->setEnabled(false);
  made.HitList = new HitListView(parent);
  made.HitList->setModel(&rows);
  made.HitList->setObjectName(QStringLiteral("HitList"));
  made.HitList->setAccessibleName(QStringLiteral("Hits"));
  made.FilterStr = new QLineEdit(parent);
  made.FilterStr->setObjectName(QStringLiteral("FilterStr"));
  made.FilterStr->setAccessibleName(QStringLiteral("Filter"));
  made.FilterStr->setAccessibleDescription(
      QStringLiteral("Only hits with all of these words in the name or folder are shown"));
  made.FilterStr->setPlaceholderText(QStringLiteral("Words that the name or folder must have"));

  made.searchLabel = makeCaption(parent, QStringLiteral("&Search for:"), made.SearchStr);
  made.matchLabel = makeCaption(parent, QStringLiteral("&Match %:"), made.DesMatch);
  made.lblFound = makeValue(parent, QStringLiteral("lblFound"), QStringLiteral("0"),
                            QStringLiteral("Number of entries found"));
  made.lblSearched = makeValue(parent, QStringLiteral("lblSearched"), QStringLiteral("0"),
                               QStringLiteral("Number of entries searched"));
  // Screen readers read a caption before what it belongs to, a bare number otherwise.
  made.foundLabel = makeCaption(parent, QStringLiteral("Found:"), made.lblFound);
  made.searchedLabel = makeCaption(parent, QStringLiteral("Searched:"), made.lblSearched);
  made.lblVer = makeValue(parent, QStringLiteral("lblVer"), QString(), QStringLiteral("Program version"));
  made.lblVer->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  made.lblVer->setForegroundRole(QPalette::PlaceholderText);
  made.filterLabel = makeCaption(parent, QStringLiteral("Fi&lter:"), made.FilterStr);
  made.lblShown =
      makeValue(parent, QStringLiteral("lblShown"), QString(), QStringLiteral("Number of hits shown"));
  for (QWidget* widget : {static_cast<QWidget*>(made.filterLabel), static_cast<QWidget*>(made.FilterStr),
                          static_cast<QWidget*>(made.lblShown)}) {
    widget->hide();
  }
  return made;
}

SearchFormMenus makeMenus(QMenuBar* bar) {
  SearchFormMenus made{};
  bar->setAccessibleName(QStringLiteral("Main menu"));
  made.FileMenu = addMenu(bar, QStringLiteral("FileMenu"), QStringLiteral("&File"));
  made.AddLocal = addItem(made.FileMenu, QStringLiteral("AddLocal"),
                          QStringLiteral("&Add/Edit Local Folder To Search List"));
  made.EditOffline =
      addItem(made.FileMenu, QStringLiteral("EditOffline"), QStringLiteral("Add/Edit Offline List files"));
  made.ReScan =
      addItem(made.FileMenu, QStringLiteral("ReScan"), QStringLiteral("Rescan Local Search Folders"));
  made.ListingHistory =
      addItem(made.FileMenu, QStringLiteral("ListingHistory"), QStringLiteral("Listing &History..."));
  made.ExportHits = addItem(made.FileMenu, QStringLiteral("ExportHits"), QStringLiteral("&Export Hits..."));
  made.OptionsMenu = addItem(made.FileMenu, QStringLiteral("OptionsMenu"), QStringLiteral("&Options"));
  made.MenuQuit = addItem(made.FileMenu, QStringLiteral("MenuQuit"), QStringLiteral("&Quit"));
  // Spelled out: without a desktop environment the standard key for quitting is bound to nothing.
  made.MenuQuit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

  made.ViewMenu = addMenu(bar, QStringLiteral("ViewMenu"), QStringLiteral("&View"));
  addViewItems(made);
  made.HitsMenu = addMenu(bar, QStringLiteral("HitsMenu"), QStringLiteral("H&its"));
  addSearchItems(made);

  made.PeersMenu = addMenu(bar, QStringLiteral("PeersMenu"), QStringLiteral("&Peers"));
  made.ShareLists = addItem(made.PeersMenu, QStringLiteral("ShareLists"), QStringLiteral("&Share My Lists"));
  made.ShareLists->setCheckable(true);
  made.GetLists =
      addItem(made.PeersMenu, QStringLiteral("GetLists"), QStringLiteral("&Get Lists From Peer..."));

  made.HlpMnu = addMenu(bar, QStringLiteral("HlpMnu"), QStringLiteral("&Help"));
  made.HlpGen = addItem(made.HlpMnu, QStringLiteral("HlpGen"), QStringLiteral("Program &Usage"));
  made.RelInfo = addItem(made.HlpMnu, QStringLiteral("RelInfo"), QStringLiteral("&Release Information"));
  made.AboutMenu = addItem(made.HlpMnu, QStringLiteral("AboutMenu"), QStringLiteral("&About"));
  return made;
}

ColumnDivision divideColumns(double width, double match, double size, double date) {
  const double rest = std::nearbyint(width - std::nearbyint(match) - std::nearbyint(size) -
                                     std::nearbyint(date) - kBesideColumns);
  return {kVolumeShare * rest / 100, kFolderShare * rest / 100, kNameShare * rest / 100};
}

void placeControls(const SearchFormControls& controls) {
  const QFontMetrics metrics = controls.HitList->fontMetrics();
  const Distances distances(metrics);
  const int rowHeight = std::max({controls.SearchStr->sizeHint().height(), controls.Find->sizeHint().height(),
                                  controls.WebUpdate->sizeHint().height()});
  const int captionWidth = std::max(widthOf(controls.searchLabel), widthOf(controls.matchLabel));
  const int countWidth = widthFor(controls.lblFound, {QStringLiteral("0,000,000,000")});

  controls.MenuLine->setGeometry(0, 0, 0, controls.MenuLine->sizeHint().height());
  const int firstTop = controls.MenuLine->height() + distances.margin;
  Row first(distances.margin, firstTop, rowHeight);
  first.put(controls.searchLabel, captionWidth);
  first.skip(distances.besideCaption);
  first.put(controls.SearchStr, 0);
  controls.SearchStr->setEdgeMargin(distances.margin);

  const int secondTop = firstTop + rowHeight + distances.besideCaption;
  Row second(distances.margin, secondTop, rowHeight);
  second.put(controls.matchLabel, captionWidth);
  second.skip(distances.besideCaption);
  second.put(controls.DesMatch, editWidth(controls.DesMatch, QStringLiteral("0000")));
  second.skip(distances.besideCaption);
  second.put(controls.Find, widthFor(controls.Find, {QStringLiteral("Find"), QStringLiteral("Stop")}));
  second.skip(distances.betweenGroups);
  second.put(controls.foundLabel, widthOf(controls.foundLabel));
  second.skip(distances.besideCaption);
  second.put(controls.lblFound, countWidth);
  second.skip(distances.besideCaption);
  second.put(controls.searchedLabel, widthOf(controls.searchedLabel));
  second.skip(distances.besideCaption);
  second.put(controls.lblSearched, countWidth);
  second.skip(distances.betweenGroups);
  second.put(controls.WebUpdate, widthOf(controls.WebUpdate));
  second.skip(distances.besideCaption);
  second.put(controls.lblVer, 0);
  controls.lblVer->setIndent(distances.margin);

  controls.HitList->move(0, secondTop + rowHeight + distances.margin);
}

void setInitialColumnWidths(const SearchFormControls& controls, const QLocale& locale) {
  QHeaderView* columns = columnsOf(controls);
  const QFontMetrics metrics = controls.HitList->fontMetrics();
  const int around = 2 * (controls.HitList->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) +
                     metrics.horizontalAdvance(u' ') * 2;
  const auto makeAtLeast = [&](HitColumn column, int textWidth) {
    const int title = columns->sectionSizeHint(static_cast<int>(column));
    controls.HitList->columns().setUsualWidth(column, std::max(title, textWidth + around));
  };
  makeAtLeast(HitColumn::Match, metrics.horizontalAdvance(QStringLiteral("100%")));
  makeAtLeast(HitColumn::Size, metrics.horizontalAdvance(QStringLiteral("00000.00mb")));
  makeAtLeast(HitColumn::Date, widestDate(controls.HitList->font(), locale));
}

QSize initialInnerSize(const SearchFormControls& controls) {
  const QFontMetrics metrics = controls.HitList->fontMetrics();
  const int forControls = controls.lblVer->x() + widthOf(controls.lblVer) + metrics.height();
  const int forList = metrics.averageCharWidth() * kInitialCharacters;
  const int height = controls.HitList->y() + columnsOf(controls)->sizeHint().height() +
                     controls.HitList->rowHeight() * kInitialRows;
  return {std::max(forControls, forList), height};
}

int placeFilter(const SearchFormControls& controls, QSize inner) {
  if (!controls.FilterStr->isVisibleTo(controls.HitList->parentWidget())) return 0;
  const Distances distances(controls.HitList->fontMetrics());
  const int height = controls.FilterStr->sizeHint().height();
  const int captionWidth = widthOf(controls.filterLabel);
  const int countWidth = std::min(widthOf(controls.lblShown), inner.width() / 2);
  Row row(distances.margin, inner.height() - height - distances.besideCaption, height);
  row.put(controls.filterLabel, captionWidth);
  row.skip(distances.besideCaption);
  const int around = distances.besideCaption + distances.margin;
  row.put(controls.FilterStr, std::max(0, inner.width() - row.next() - countWidth - around));
  row.skip(distances.besideCaption);
  row.put(controls.lblShown, countWidth);
  return height + 2 * distances.besideCaption;
}

void stretchControls(const SearchFormControls& controls, QSize inner) {
  const auto stretch = [&](QWidget* widget) {
    widget->resize(std::max(0, inner.width() - widget->x()), widget->height());
  };
  stretch(controls.SearchStr);
  stretch(controls.lblVer);
  controls.MenuLine->setGeometry(0, controls.MenuLine->y(), inner.width(), controls.MenuLine->height());
  const int filterHeight = placeFilter(controls, inner);
  controls.HitList->resize(std::max(0, inner.width() - controls.HitList->x()),
                           std::max(0, inner.height() - filterHeight - controls.HitList->y()));
  stretchColumns(controls.HitList->columns(), inner.width());
}

}  // namespace quorvin
