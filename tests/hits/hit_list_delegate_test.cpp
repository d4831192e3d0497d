// The colours in which rows are drawn on light and dark backgrounds.
#include "hits/hit_list_delegate.h"

#include "hits/hit_list.h"
#include "hits/hit_list_model.h"
#include "hits/scan_into.h"
#include "support/listing_lines.h"

#include <QHeaderView>
#include <QImage>
#include <QStandardItemModel>
#include <QTest>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace quorvin::test {

namespace {

const QColor kLight(255, 255, 255);
const QColor kDark(30, 30, 30);

double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

class RowColours : public testing::TestWithParam<SourceKind> {
 protected:
  static QColor ofKind() { return QColor(QRgb{rowColour(GetParam())}); }
};

TEST_P(RowColours, AreExactOnALightBackground) {
  EXPECT_EQ(readableOn(ofKind(), kLight), ofKind());
}

TEST_P(RowColours, KeepTheirHueAndCanBeReadOnADarkBackground) {
  const QColor drawn = readableOn(ofKind(), kDark);
  EXPECT_LE(std::abs(drawn.hslHue() - ofKind().hslHue()), 1);
  EXPECT_GE((luminance(drawn) + 0.05) / (luminance(kDark) + 0.05), 4.5);
}

/// The colour in which the delegate draws a row of this kind.
class DrawnColour : public HitListDelegate {
 public:
  QColor of(const QColor& kind, const QPalette& palette, bool isAlternate) const {
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), kind, Qt::ForegroundRole);
    QStyleOptionViewItem option;
    option.palette = palette;
    option.features.setFlag(QStyleOptionViewItem::Alternate, isAlternate);
    initStyleOption(&option, model.index(0, 0));
    return option.palette.color(QPalette::Text);
  }
};

TEST_P(RowColours, CanBeReadOnEverySecondRowOfADarkPaletteHoweverLightThatIs) {
  for (int grey = 0; grey < 256; ++grey) {
    QPalette palette;
    palette.setColor(QPalette::Base, kDark);
    palette.setColor(QPalette::AlternateBase, QColor(grey, grey, grey));
    const QColor drawn = DrawnColour().of(ofKind(), palette, true);
    const auto [darker, lighter] = std::minmax(luminance(drawn), luminance(QColor(grey, grey, grey)));
    EXPECT_GE((lighter + 0.05) / (darker + 0.05), 4.5) << grey;
  }
}

TEST_P(RowColours, AreExactOnEverySecondRowOfALightPalette) {
  QPalette palette;
  palette.setColor(QPalette::Base, kLight);
  palette.setColor(QPalette::AlternateBase, QColor(245, 245, 245));
  EXPECT_EQ(DrawnColour().of(ofKind(), palette, true), ofKind());
}

/// Whether anything in the picture is drawn about in `colour`; text is smoothed against its background.
bool holds(const QImage& picture, const QColor& colour) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor pixel = picture.pixelColor(x, y);
      const int distance = std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                           std::abs(pixel.blue() - colour.blue());
      if (distance < 40) return true;
    }
  }
  return false;
}

void show(HitListView& view, HitListModel& model) {
  view.setModel(&model);
  view.resize(700, 100);
  view.show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
}

QImage pictureOfFirstRow(HitListView& view, HitListModel& model, bool isSelected) {
  show(view, model);
  if (isSelected) {
    view.selectionModel()->select(model.index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  return view.viewport()->grab(view.rowRect(0)).toImage();
}

class PaintedRow : public RowColours {
 protected:
  QImage paint(const QPalette& palette, bool isSelected) {
    scanInto(table_, GetParam(), blockHead("IIIIII", "\\IIIIII\\") + "IIIIIIIII\r\n", QStringLiteral("iii"));
    model_.hitsArrived();
    view_.setPalette(palette);
    return pictureOfFirstRow(view_, model_, isSelected);
  }
  static QPalette paletteOn(const QColor& base) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, base);
    palette.setColor(QPalette::Highlight, QColor(0, 90, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
  }

  HitTable table_;
  HitListModel model_{table_, QLocale::c()};
  HitListView view_;
};

TEST_P(PaintedRow, IsDrawnInTheColourOfItsKind) {
  EXPECT_TRUE(holds(paint(paletteOn(kLight), false), ofKind()));
}

TEST_P(PaintedRow, IsDrawnLighterOnADarkBackground) {
  EXPECT_TRUE(holds(paint(paletteOn(kDark), false), readableOn(ofKind(), kDark)));
}

TEST_P(PaintedRow, IsDrawnAsSelectedTextWhenSelected) {
  const QImage picture = paint(paletteOn(kLight), true);
  EXPECT_TRUE(holds(picture, Qt::white));
  EXPECT_FALSE(holds(picture, ofKind()));
  EXPECT_EQ(picture.pixelColor(picture.width() - 1, picture.height() / 2), QColor(0, 90, 160));
}

class FoundWords : public testing::Test {
 protected:
  /// A picture of the only row, found by the words "live" and "song"; with `words` the model knows them.
  QImage paint(bool knowsWords, bool isSelected = false, const QColor& base = kLight) {
    const QString words = QStringLiteral("live song");
    model_.clear(knowsWords ? SearchQuery(words, 40) : SearchQuery());
    scanInto(table_, SourceKind::Online, blockHead("D", "\\Live\\") + "A song of life.mp3\r\n", words);
    model_.hitsArrived();
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, base);
    palette.setColor(QPalette::Highlight, QColor(0, 90, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    view_.setPalette(palette);
    return pictureOfFirstRow(view_, model_, isSelected);
  }
  /// How far the pixels of a column of the list are from its background, together.
  qint64 ink(const QImage& picture, HitColumn column) {
    const int section = static_cast<int>(column);
    const int left = view_.header()->sectionViewportPosition(section);
    const QColor background = picture.pixelColor(picture.width() - 1, picture.height() / 2);
    qint64 sum = 0;
    for (int x = left; x < left + view_.header()->sectionSize(section); ++x) {
      for (int y = 0; y < picture.height(); ++y) {
        const QColor pixel = picture.pixelColor(x, y);
        sum += std::abs(pixel.red() - background.red()) + std::abs(pixel.green() - background.green()) +
               std::abs(pixel.blue() - background.blue());
      }
    }
    return sum;
  }

  HitTable table_;
  HitListModel model_{table_, QLocale::c()};
  HitListView view_;
};

TEST_F(FoundWords, AreBoldInFolderAndName) {
  const QImage plain = paint(false);
  const QImage marked = paint(true);
  EXPECT_GT(ink(marked, HitColumn::Folder), ink(plain, HitColumn::Folder));
  EXPECT_GT(ink(marked, HitColumn::Name), ink(plain, HitColumn::Name));
  for (const HitColumn column : {HitColumn::Match, HitColumn::Volume, HitColumn::Size, HitColumn::Date}) {
    EXPECT_EQ(ink(marked, column), ink(plain, column)) << static_cast<int>(column);
  }
}

TEST_F(FoundWords, AreInTheColoursOfTheirRow) {
  EXPECT_TRUE(holds(paint(true), QColor(0, 0, 255)));
  EXPECT_TRUE(holds(paint(true, false, kDark), readableOn(QColor(0, 0, 255), kDark)));
  const QImage selected = paint(true, true);
  EXPECT_TRUE(holds(selected, Qt::white));
  EXPECT_FALSE(holds(selected, QColor(0, 0, 255)));
}

TEST_F(FoundWords, HaveRoomInAColumnThatIsFitted) {
  paint(true);
  const auto nameHint = [this] {
    return static_cast<const QAbstractItemView&>(view_).sizeHintForColumn(static_cast<int>(HitColumn::Name));
  };
  const int marked = nameHint();
  paint(false);
  EXPECT_GT(marked, nameHint());
}

TEST_F(FoundWords, AreCountedInTheTooltip) {
  paint(true);
  QStyleOptionViewItem option;
  option.rect = QRect(0, 0, 1000, 20);
  const auto* delegate = qobject_cast<HitListDelegate*>(view_.itemDelegate());
  EXPECT_EQ(delegate->tooltip(option, model_.index(0, static_cast<int>(HitColumn::Name))),
            QStringLiteral("<p style='white-space:pre-wrap'>From the listing of an online source\n"
                           "2 of 2 words</p>"));
}

const auto kKinds = testing::Values(SourceKind::Online, SourceKind::MainDataFile, SourceKind::Offline);
/// Whether the two rows look the same in a column.
bool looksSame(HitListView& view, HitColumn column) {
  const int section = static_cast<int>(column);
  const auto cell = [&](int row) {
    QRect place = view.rowRect(row);
    place.setLeft(view.header()->sectionViewportPosition(section));
    place.setWidth(view.header()->sectionSize(section));
    return view.viewport()->grab(place).toImage();
  };
  return cell(0) == cell(1);
}

TEST(CutFolders, AreToldApartByTheirEnds) {
  const QString words = QStringLiteral("shelf song");
  const QByteArray folder = "\\Box 7\\A shelf with a name that is longer than its column\\";
  HitTable table;
  HitListModel model(table, QLocale::c());
  HitListView view;
  for (const bool knowsWords : {false, true}) {
    model.clear(knowsWords ? SearchQuery(words, 40) : SearchQuery());
    scanInto(table, SourceKind::Online,
             blockHead("D", folder + "North\\") + "song.mp3\r\n" + blockHead("D", folder + "South\\") +
                 "song.mp3\r\n",
             words);
    model.hitsArrived();
    view.setAlternatingRowColors(false);
    show(view, model);
    view.header()->resizeSection(static_cast<int>(HitColumn::Folder), 150);
    ASSERT_EQ(model.rowCount(), 2);
    view.setCurrentIndex({});
    view.clearSelection();
    EXPECT_TRUE(looksSame(view, HitColumn::Name)) << knowsWords;
    EXPECT_FALSE(looksSame(view, HitColumn::Folder)) << knowsWords;
  }
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, RowColours, kKinds);
INSTANTIATE_TEST_SUITE_P(OfEachKind, PaintedRow, kKinds);

}  // namespace

}  // namespace quorvin::test
