// SPDX-License-Identifier: GPL-2.0-or-later

// The colours in which rows are drawn on light and dark backgrounds.
#include "hits/hit_list_delegate.h"

#include "hits/painted_list.h"
#include "hits/scan_into.h"
#include "support/listing_lines.h"

#include <QHeaderView>
#include <QStandardItemModel>

namespace quorvin::test {

namespace {

class RowColours : public testing::TestWithParam<SourceKind> {
 protected:
  static QColor ofKind() { return QColor(QRgb{rowColour(GetParam())}); }
};

/// The shades on white and on the stripes of usual light lists.
QColor shadeOnWhite(const QColor& ofKind) {
  if (ofKind == QColor(255, 0, 0)) return {235, 0, 0};
  return ofKind == QColor(255, 127, 0) ? QColor(184, 91, 0) : ofKind;
}
QColor shadeOnStripes(const QColor& ofKind) {
  if (ofKind == QColor(255, 0, 0)) return {230, 0, 0};
  return ofKind == QColor(255, 127, 0) ? QColor(179, 89, 0) : ofKind;
}
const QColor kStripes(247, 247, 247);

TEST_P(RowColours, AreDarkenedOnALightBackgroundOnlyWhereTheyCannotBeRead) {
  EXPECT_EQ(readableOn(ofKind(), kLight).rgb(), shadeOnWhite(ofKind()).rgb());
  EXPECT_EQ(readableOn(ofKind(), kStripes).rgb(), shadeOnStripes(ofKind()).rgb());
}

TEST_P(RowColours, KeepTheirHueAndCanBeReadOnALightBackground) {
  for (const QColor& background : {kLight, kStripes}) {
    const QColor drawn = readableOn(ofKind(), background);
    EXPECT_LE(std::abs(drawn.hslHue() - ofKind().hslHue()), 1);
    EXPECT_GE(contrast(drawn, background), 4.5);
  }
}

TEST_P(RowColours, KeepTheirHueAndCanBeReadOnADarkBackground) {
  const QColor drawn = readableOn(ofKind(), kDark);
  EXPECT_LE(std::abs(drawn.hslHue() - ofKind().hslHue()), 1);
  EXPECT_GE((luminance(drawn) + 0.05) / (luminance(kDark) + 0.05), 4.5);
}

TEST_P(RowColours, CanBeReadOnEveryBackground) {
  for (int grey = 0; grey < 256; ++grey) {
    const QColor background(grey, grey, grey);
    EXPECT_GE(contrast(readableOn(ofKind(), background), background), 4.5) << grey;
  }
}

struct Selection {
  const char* palette;
  QColor background;
  QColor text;
};

void PrintTo(const Selection& selection, std::ostream* out) {
  *out << selection.palette;
}

class SelectedRow : public testing::TestWithParam<Selection> {
 protected:
  static QColor background() {
    QStyleOptionViewItem option;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.palette.setColor(QPalette::Highlight, GetParam().background);
    option.palette.setColor(QPalette::HighlightedText, GetParam().text);
    return HitListDelegate::selectionBrush(option).color();
  }
};

TEST_P(SelectedRow, HasABackgroundOfThePalettesHueOnWhichItsTextCanBeRead) {
  EXPECT_GE(contrast(background(), GetParam().text), 4.5);
  EXPECT_LE(std::abs(background().hslHue() - GetParam().background.hslHue()), 1);
}

TEST_P(SelectedRow, HasThePalettesBackgroundWhereTextCanBeReadOnThat) {
  if (contrast(GetParam().background, GetParam().text) < 4.5) {
    EXPECT_NE(background(), GetParam().background);
  } else {
    EXPECT_EQ(background(), GetParam().background);
  }
}

INSTANTIATE_TEST_SUITE_P(
    OfPalettes, SelectedRow,
    testing::Values(Selection{"light", QColor(48, 140, 198), Qt::white},
                    Selection{"dark", QColor(61, 174, 233), QColor(252, 252, 252)},
                    Selection{"accented", QColor(233, 84, 32), Qt::white},
                    Selection{"pale", QColor(200, 220, 240), QColor(90, 90, 90)},
                    Selection{"high contrast", QColor(255, 255, 0), Qt::black},
                    Selection{"high contrast inverted", QColor(26, 235, 255), Qt::black},
                    Selection{"without a hue", QColor(128, 128, 128), QColor(160, 160, 160)}),
    [](const auto& info) { return QString::fromLatin1(info.param.palette).remove(u' ').toStdString(); });

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
    const auto [darker, lighter] = std::minmax({luminance(drawn), luminance(QColor(grey, grey, grey))});
    EXPECT_GE((lighter + 0.05) / (darker + 0.05), 4.5) << grey;
  }
}

TEST_P(RowColours, AreThoseOfTheirBackgroundOnEverySecondRow) {
  QPalette palette;
  palette.setColor(QPalette::Base, kLight);
  palette.setColor(QPalette::AlternateBase, kStripes);
  const DrawnColour drawn;
  EXPECT_EQ(drawn.of(ofKind(), palette, false).rgb(), shadeOnWhite(ofKind()).rgb());
  EXPECT_EQ(drawn.of(ofKind(), palette, true).rgb(), shadeOnStripes(ofKind()).rgb());
}

TEST_P(RowColours, FollowAChangeOfThePalette) {
  QPalette palette;
  palette.setColor(QPalette::Base, kLight);
  const DrawnColour drawn;
  drawn.of(ofKind(), palette, false);
  palette.setColor(QPalette::Base, kDark);
  EXPECT_EQ(drawn.of(ofKind(), palette, false), readableOn(ofKind(), kDark));
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
  EXPECT_TRUE(holds(paint(paletteOn(kLight), false), shadeOnWhite(ofKind())));
  EXPECT_EQ(model_.index(0, 0).data(Qt::ForegroundRole).value<QColor>(), ofKind()) << "itself as it is";
}

TEST_P(PaintedRow, IsDrawnInAShadeThatCanBeReadOnWhite) {
  const QColor unreadable(255, 127, 0);
  EXPECT_FALSE(holds(paint(paletteOn(kLight), false), unreadable));
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

TEST_F(FoundWords, AreDrawnAsInOtherDirectionsWherePeopleReadFromRightToLeft) {
  // How many pixels of each column of the name are no background, from its first to its last letter.
  const auto columnsWithInk = [this](bool isMirrored) {
    view_.setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    QCoreApplication::processEvents();
    const int name = static_cast<int>(HitColumn::Name);
    QRect cell = view_.rowRect(0);
    cell.setLeft(view_.header()->sectionViewportPosition(name));
    cell.setWidth(view_.header()->sectionSize(name));
    const QImage picture = view_.viewport()->grab(cell).toImage();
    QString inked;
    for (int x = 0; x < picture.width(); ++x) {
      int ink = 0;
      for (int y = 0; y < picture.height(); ++y) ink += picture.pixelColor(x, y) == kLight ? 0 : 1;
      inked += QChar(static_cast<char16_t>(u'0' + ink));
    }
    while (inked.startsWith(u'0')) inked.remove(0, 1);
    while (inked.endsWith(u'0')) inked.chop(1);
    return inked;
  };
  for (const bool knowsWords : {false, true}) {
    model_.clear(knowsWords ? SearchQuery(QStringLiteral("live song"), 40) : SearchQuery());
    scanInto(table_, SourceKind::Online, blockHead("D", "\\Live\\") + "03 - A song.mp3\r\n",
             QStringLiteral("live song"));
    model_.hitsArrived();
    QPalette palette;
    palette.setColor(QPalette::Base, kLight);
    palette.setColor(QPalette::AlternateBase, kLight);
    view_.setPalette(palette);
    show(view_, model_);
    view_.setCurrentIndex({});
    view_.clearSelection();
    // The dash behind the number, a line of one pixel, tells where the number is.
    const QString dash = QStringLiteral("1111");
    const qsizetype usual = columnsWithInk(false).indexOf(dash);
    EXPECT_GT(usual, 0);
    EXPECT_NEAR(static_cast<double>(columnsWithInk(true).indexOf(dash)), static_cast<double>(usual), 2)
        << knowsWords;
    view_.setLayoutDirection(Qt::LeftToRight);
  }
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
