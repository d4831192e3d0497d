// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/search_form_controls.h"
#include "hits/hit_list_delegate.h"
#include "search/hit_table.h"
#include "texts/texts.h"

#include <QDate>
#include <QFontMetrics>
#include <QHeaderView>
#include <QScreen>
#include <QString>
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
  int bottom() const { return top_ + height_; }
  /// Goes on in a row below, by `distance`, where `width` more would leave the room up to `right`.
  void breakBefore(int width, int right, int left, int distance) {
    if (x_ + width <= right) return;
    x_ = left;
    top_ += height_ + distance;
  }
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

QHeaderView* columnsOf(const SearchFormControls& controls) {
  return controls.HitList->header();
}

/// Rounded up: a cell that is too narrow by a part of a pixel cuts its text.
int widestDate(const QFont& font, const QLocale& locale) {
  const QFontMetricsF metrics(font);
  const auto widthOn = [&](QDate day) {
    // Where summer time begins at midnight, that day has none.
    const QString text = shortMonthDateText(dateValueOf(QDateTime(day, QTime(12, 0))), locale);
    return std::max(metrics.horizontalAdvance(text), metrics.boundingRect(text).width());
  };
  // The names of the months differ far more than the days do: the days of all months would take longer than
  // all the rest of the list.
  QDate widest(2020, 1, 28);
  for (QDate day = widest; day.year() == 2020; day = day.addMonths(1)) {
    if (widthOn(day) > widthOn(widest)) widest = day;
  }
  qreal width = 0;
  for (int day = 1; day <= widest.daysInMonth(); ++day) {
    width = std::max(width, widthOn(QDate(2020, widest.month(), day)));
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

/// Where the desktop is written from right to left, what is at the left for a window of that inner width goes
/// to the right, and what is at the right to the left.
void mirror(std::initializer_list<QWidget*> widgets, int width) {
  if (width == 0) return;
  for (QWidget* widget : widgets) {
    widget->setGeometry(
        QStyle::visualRect(widget->layoutDirection(), QRect(0, 0, width, 1), widget->geometry()));
  }
}

/// All but those that reach from edge to edge, and the filter's.
void mirrorControls(const SearchFormControls& controls, int width) {
  mirror({controls.searchLabel, controls.SearchStr, controls.matchLabel, controls.DesMatch, controls.Find,
          controls.foundLabel, controls.lblFound, controls.searchedLabel, controls.lblSearched,
          controls.WebUpdate, controls.lblVer},
         width);
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
  second.put(controls.Find, widthFor(controls.Find, {Texts::tr("Find"), Texts::tr("Stop")}));
  // With large letters, or on a small screen, there is not room for all in one row.
  const int right = controls.HitList->screen()->availableGeometry().width() - distances.margin;
  const auto keepTogether = [&](const QWidget* one, int other) {
    const int width = widthOf(one) + distances.besideCaption + other;
    second.breakBefore(width, right, distances.margin, distances.besideCaption);
  };
  second.skip(distances.betweenGroups);
  keepTogether(controls.foundLabel, countWidth);
  second.put(controls.foundLabel, widthOf(controls.foundLabel));
  second.skip(distances.besideCaption);
  second.put(controls.lblFound, countWidth);
  second.skip(distances.besideCaption);
  keepTogether(controls.searchedLabel, countWidth);
  second.put(controls.searchedLabel, widthOf(controls.searchedLabel));
  second.skip(distances.besideCaption);
  second.put(controls.lblSearched, countWidth);
  second.skip(distances.betweenGroups);
  keepTogether(controls.WebUpdate, widthOf(controls.lblVer) + distances.margin);
  second.put(controls.WebUpdate, widthOf(controls.WebUpdate));
  second.skip(distances.besideCaption);
  second.put(controls.lblVer, 0);
  controls.lblVer->setIndent(distances.margin);

  controls.HitList->move(0, second.bottom() + distances.margin);
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
  makeAtLeast(HitColumn::Match,
              metrics.horizontalAdvance(QStringLiteral("100%")) + HitListDelegate::markWidth(metrics));
  makeAtLeast(HitColumn::Size, metrics.horizontalAdvance(QStringLiteral("00000.00mb")));
  makeAtLeast(HitColumn::Date, widestDate(controls.HitList->font(), locale));
}

QSize initialInnerSize(const SearchFormControls& controls) {
  const QFontMetrics metrics = controls.HitList->fontMetrics();
  const auto rightOf = [](const QWidget* widget) { return widget->x() + widget->width(); };
  const int forControls = std::max({controls.lblVer->x() + widthOf(controls.lblVer), rightOf(controls.Find),
                                    rightOf(controls.lblFound), rightOf(controls.lblSearched)}) +
                          metrics.height();
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
  mirror({controls.filterLabel, controls.FilterStr, controls.lblShown}, inner.width());
  return height + 2 * distances.besideCaption;
}

void stretchControls(const SearchFormControls& controls, QSize inner) {
  // The line always has the width for which the controls are placed now; none while they have not been.
  mirrorControls(controls, controls.MenuLine->width());
  const auto stretch = [&](QWidget* widget) {
    widget->resize(std::max(0, inner.width() - widget->x()), widget->height());
  };
  stretch(controls.SearchStr);
  stretch(controls.lblVer);
  controls.MenuLine->setGeometry(0, controls.MenuLine->y(), inner.width(), controls.MenuLine->height());
  const int filterHeight = placeFilter(controls, inner);
  controls.HitList->resize(std::max(0, inner.width() - controls.HitList->x()),
                           std::max(0, inner.height() - filterHeight - controls.HitList->y()));
  mirrorControls(controls, inner.width());
  stretchColumns(controls.HitList->columns(), inner.width());
}

}  // namespace quorvin
