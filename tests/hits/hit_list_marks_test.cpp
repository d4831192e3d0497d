// SPDX-License-Identifier: GPL-2.0-or-later

// The marks that tell the kinds of source apart without their colours.
#include "hits/hit_list_delegate.h"
#include "hits/painted_list.h"
#include "hits/scan_into.h"
#include "support/listing_lines.h"

#include <QHeaderView>

namespace quorvin::test {

namespace {

/// A list of one row.
class RowMarks : public testing::Test {
 protected:
  void list(SourceKind kind) {
    model_.clear();
    scanInto(table_, kind, blockHead("D", "\\F\\") + "song\r\n", QStringLiteral("song"));
    model_.hitsArrived();
    palette_.setColor(QPalette::Base, kLight);
    palette_.setColor(QPalette::AlternateBase, kLight);
    palette_.setColor(QPalette::Highlight, QColor(0, 90, 160));
    palette_.setColor(QPalette::HighlightedText, Qt::white);
    view_.setPalette(palette_);
    show(view_, model_);
    view_.setCurrentIndex({});
    view_.clearSelection();
  }
  /// The part of the row where its mark should be: at the left, or at the right.
  QImage place(bool isAtRight = false) {
    const QFontMetrics metrics = view_.fontMetrics();
    QRect start = view_.rowRect(0);
    start.setWidth(HitListDelegate::markWidth(metrics) + metrics.horizontalAdvance(u' '));
    if (isAtRight) start.moveRight(view_.viewport()->width() - 1);
    return view_.viewport()->grab(start).toImage();
  }
  /// Which pixels there are no background, whatever their colour.
  static QString shape(const QImage& picture) {
    QString rows;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const bool isInk = contrast(picture.pixelColor(x, y), picture.pixelColor(0, 0)) > 1.6;
        rows += isInk ? u'#' : u'.';
      }
      rows += u'\n';
    }
    return rows;
  }

  QPalette palette_;
  HitTable table_;
  HitListModel model_{table_, QLocale::c()};
  HitListView view_;
};

TEST_F(RowMarks, DifferInShapeAndAreInTheColourOfTheirKind) {
  QStringList shapes;
  for (const SourceKind kind : {SourceKind::Online, SourceKind::MainDataFile, SourceKind::Offline}) {
    list(kind);
    EXPECT_TRUE(holds(place(), readableOn(QColor(QRgb{rowColour(kind)}), kLight)));
    shapes += shape(place());
    EXPECT_GT(shapes.last().count(u'#'), 20) << shapes.last().toStdString();
  }
  EXPECT_EQ(shapes.removeDuplicates(), 0) << shapes.join(u'\n').toStdString();
}

TEST_F(RowMarks, AreLighterOnADarkBackground) {
  list(SourceKind::Online);
  palette_.setColor(QPalette::Base, kDark);
  view_.setPalette(palette_);
  EXPECT_TRUE(holds(place(), readableOn(QColor(0, 0, 255), kDark)));
}

TEST_F(RowMarks, AreInTheColourOfTheTextInASelectedRow) {
  list(SourceKind::Online);
  const QString before = shape(place());
  view_.selectionModel()->select(model_.index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
  EXPECT_TRUE(holds(place(), Qt::white));
  EXPECT_FALSE(holds(place(), QColor(0, 0, 255)));
  EXPECT_EQ(shape(place()), before);
}

TEST_F(RowMarks, StartTheRowWhicheverColumnIsTheFirst) {
  list(SourceKind::Offline);
  const QString before = shape(place());
  EXPECT_GT(before.count(u'#'), 10) << before.toStdString();
  view_.columns().take(QStringLiteral("-Match,Date,Volume,Folder,Name,Size"));
  EXPECT_EQ(shape(place()), before);
  view_.columns().take(QStringLiteral("Name,Match,Date,Volume,Folder,Size"));
  EXPECT_EQ(shape(place()), before);
}

TEST_F(RowMarks, AreAtTheRightWhereRowsStartThere) {
  list(SourceKind::MainDataFile);
  const QString before = shape(place());
  view_.setLayoutDirection(Qt::RightToLeft);
  view_.resize(view_.header()->length(), view_.height());
  QCoreApplication::processEvents();
  const QColor red(235, 0, 0);
  EXPECT_TRUE(holds(place(true), red));
  EXPECT_EQ(shape(place(true)).count(u'#'), before.count(u'#'));
}

TEST_F(RowMarks, HaveRoomInAColumnThatIsFitted) {
  const auto hint = [this](HitColumn column) {
    return static_cast<const QAbstractItemView&>(view_).sizeHintForColumn(static_cast<int>(column));
  };
  list(SourceKind::Online);
  const int volumeAsSecond = hint(HitColumn::Volume);
  view_.columns().take(QStringLiteral("Volume,Match,Folder,Name,Size,Date"));
  EXPECT_EQ(hint(HitColumn::Volume), volumeAsSecond + HitListDelegate::markWidth(view_.fontMetrics()));
}

}  // namespace

}  // namespace quorvin::test
