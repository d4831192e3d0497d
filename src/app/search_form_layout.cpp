#include "app/search_form_layout.h"

#include "search/hit_table.h"

#include <QDate>
#include <QFontMetrics>
#include <QHeaderView>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace quorvin {

namespace {

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

int sectionOf(HitColumn column) {
  return static_cast<int>(column);
}

int widestDate(const QFontMetrics& metrics, const QLocale& locale) {
  int width = 0;
  for (int month = 1; month <= 12; ++month) {
    const DateValue value = dateValueOf(QDate(2020, month, 28).startOfDay());
    width = std::max(width, metrics.horizontalAdvance(shortMonthDateText(value, locale)));
  }
  return width;
}

}  // namespace

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
  const int countWidth = widthFor(controls.lblFound, {QStringLiteral("0000000000")});

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
    const int section = sectionOf(column);
    columns->resizeSection(section, std::max(columns->sectionSizeHint(section), textWidth + around));
  };
  makeAtLeast(HitColumn::Match, metrics.horizontalAdvance(QStringLiteral("100%")));
  makeAtLeast(HitColumn::Size, metrics.horizontalAdvance(QStringLiteral("00000.00mb")));
  makeAtLeast(HitColumn::Date, widestDate(metrics, locale));
}

QSize initialInnerSize(const SearchFormControls& controls) {
  const QFontMetrics metrics = controls.HitList->fontMetrics();
  const int forControls = controls.lblVer->x() + widthOf(controls.lblVer) + metrics.height();
  const int forList = metrics.averageCharWidth() * kInitialCharacters;
  const int height = controls.HitList->y() + columnsOf(controls)->sizeHint().height() +
                     controls.HitList->rowHeight() * kInitialRows;
  return {std::max(forControls, forList), height};
}

void stretchControls(const SearchFormControls& controls, QSize inner) {
  const auto stretch = [&](QWidget* widget) {
    widget->resize(std::max(0, inner.width() - widget->x()), widget->height());
  };
  stretch(controls.SearchStr);
  stretch(controls.lblVer);
  controls.MenuLine->setGeometry(0, controls.MenuLine->y(), inner.width(), controls.MenuLine->height());
  controls.HitList->resize(std::max(0, inner.width() - controls.HitList->x()),
                           std::max(0, inner.height() - controls.HitList->y()));

  QHeaderView* columns = columnsOf(controls);
  const auto twipsOf = [&](HitColumn column) { return toTwips(columns->sectionSize(sectionOf(column))); };
  const ColumnDivision division = divideColumns(toTwips(inner.width()), twipsOf(HitColumn::Match),
                                                twipsOf(HitColumn::Size), twipsOf(HitColumn::Date));
  columns->resizeSection(sectionOf(HitColumn::Volume), std::max(0, toPixels(division.volume)));
  columns->resizeSection(sectionOf(HitColumn::Folder), std::max(0, toPixels(division.folder)));
  columns->resizeSection(sectionOf(HitColumn::Name), std::max(0, toPixels(division.name)));
}

}  // namespace quorvin
