#include "editors/local_loc_layout.h"

#include <QFontMetrics>
#include <QHeaderView>

#include <algorithm>
#include <initializer_list>

namespace quorvin {

namespace {

constexpr int kLeastListCharacters = 46;
constexpr int kInitialListCharacters = 84;
constexpr int kDescriptionCharacters = 18;
constexpr int kInitialRows = 16;

/// The distances of the layout follow the font, so that they grow with it.
struct Distances {
  explicit Distances(const QFontMetrics& metrics)
      : margin(metrics.height() * 3 / 4),
        between(metrics.height() / 2),
        besideLabel(metrics.height() / 4),
        betweenGroups(metrics.height()) {}
  int margin;
  int between;
  int besideLabel;
  int betweenGroups;
};

int widestOf(std::initializer_list<const QWidget*> widgets) {
  int width = 0;
  for (const QWidget* widget : widgets) width = std::max(width, widget->sizeHint().width());
  return width;
}

int tallestOf(std::initializer_list<const QWidget*> widgets) {
  int height = 0;
  for (const QWidget* widget : widgets) height = std::max(height, widget->sizeHint().height());
  return height;
}

int characters(const QWidget* widget, int count) {
  return widget->fontMetrics().averageCharWidth() * count;
}

void moveBy(std::initializer_list<QWidget*> widgets, int right, int down) {
  for (QWidget* widget : widgets) widget->move(widget->x() + right, widget->y() + down);
}

void growBy(QWidget* widget, int wider, int taller) {
  widget->resize(widget->width() + wider, widget->height() + taller);
}

}  // namespace

QSize placeLocalLocControls(const LocalLocControls& controls) {
  const Distances distances(controls.Online->fontMetrics());
  const int buttonHeight = controls.LocAdd->sizeHint().height();
  const int boxHeight = tallestOf({controls.LocAdd, controls.Desc});
  const int labelHeight = controls.Label1->sizeHint().height();
  const int left = distances.margin;

  // The list with the buttons for it in a column at its right.
  const int listWidth = characters(controls.Online, kLeastListCharacters);
  const int listRight = left + listWidth;
  const int sideLeft = listRight + distances.between;
  const int sideWidth =
      widestOf({controls.MvUp, controls.MvDn, controls.LocDel, controls.LocAdd}) + distances.between;
  const int listTop = distances.margin;
  int y = listTop;
  for (QPushButton* button : {controls.MvUp, controls.MvDn, controls.LocDel}) {
    button->setGeometry(sideLeft, y, sideWidth, buttonHeight);
    y += buttonHeight + distances.between;
  }
  controls.Online->setGeometry(left, listTop, listWidth, y - distances.between - listTop);
  controls.Online->header()->resizeSection(0, characters(controls.Online, kDescriptionCharacters));

  // The boxes for a new entry, under their labels; the browse button ends where the list ends.
  y = controls.Online->geometry().bottom() + 1 + distances.betweenGroups;
  const int descriptionWidth = characters(controls.Desc, kDescriptionCharacters);
  const int pathLeft = left + descriptionWidth + distances.between;
  controls.Label1->setGeometry(left, y, descriptionWidth, labelHeight);
  controls.Label2->setGeometry(pathLeft, y, controls.Label2->sizeHint().width(), labelHeight);
  y += labelHeight + distances.besideLabel;
  const int browseWidth = boxHeight * 5 / 4;
  const int browseLeft = listRight - browseWidth;
  controls.Desc->setGeometry(left, y, descriptionWidth, boxHeight);
  controls.LocalDataFolder->setGeometry(pathLeft, y, browseLeft - distances.besideLabel - pathLeft,
                                        boxHeight);
  controls.GetListName->setGeometry(browseLeft, y, browseWidth, boxHeight);
  controls.LocAdd->setGeometry(sideLeft, y, sideWidth, boxHeight);

  // The ways out, at the right; both buttons to save have the same place, one of them is shown.
  y += boxHeight + distances.betweenGroups;
  const int wayOutWidth = widestOf({controls.OK, controls.SaveOffLine, controls.Cancel});
  const int cancelLeft = sideLeft + sideWidth - wayOutWidth;
  const int saveLeft = cancelLeft - distances.between - wayOutWidth;
  controls.OK->setGeometry(saveLeft, y, wayOutWidth, buttonHeight);
  controls.SaveOffLine->setGeometry(saveLeft, y, wayOutWidth, buttonHeight);
  controls.Cancel->setGeometry(cancelLeft, y, wayOutWidth, buttonHeight);
  return {sideLeft + sideWidth + distances.margin, y + buttonHeight + distances.margin};
}

QSize initialLocalLocSize(const LocalLocControls& controls, QSize least) {
  const int listWidth = characters(controls.Online, kInitialListCharacters);
  const int rowHeight = controls.Online->fontMetrics().height() * 5 / 4;
  const int listHeight = controls.Online->header()->sizeHint().height() + rowHeight * kInitialRows;
  const QSize growth(listWidth - controls.Online->width(), listHeight - controls.Online->height());
  return least + growth.expandedTo({0, 0});
}

void stretchLocalLocControls(const LocalLocControls& controls, QSize growth) {
  const int wider = growth.width();
  const int taller = growth.height();
  growBy(controls.Online, wider, taller);
  moveBy({controls.MvUp, controls.MvDn, controls.LocDel}, wider, 0);
  moveBy({controls.Label1, controls.Desc, controls.Label2, controls.LocalDataFolder}, 0, taller);
  growBy(controls.LocalDataFolder, wider, 0);
  moveBy({controls.GetListName, controls.LocAdd, controls.OK, controls.SaveOffLine, controls.Cancel}, wider,
         taller);
}

void widenPathOverDescription(const LocalLocControls& controls) {
  QLineEdit* path = controls.LocalDataFolder;
  growBy(path, path->x() - controls.Desc->x(), 0);
  controls.Label2->move(controls.Label1->x(), controls.Label2->y());
  path->move(controls.Desc->x(), path->y());
}

}  // namespace quorvin
