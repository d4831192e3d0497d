// SPDX-License-Identifier: GPL-2.0-or-later

// The measures of the help browser, and what its parts are called.
#include "help/frm_browser_fixture.h"

#include <QImage>
#include <QScrollBar>

namespace quorvin::test {
namespace {

using FrmBrowserLayout = FrmBrowserTest;

TEST(BrowserMeasures, HundredTwipsAreTakenOffToTheNearestPixel) {
  // 300 pixels are 4500 twips; 4400 twips are 293.3 pixels.
  EXPECT_EQ(addressWidth(300), 293);
  EXPECT_EQ(pagesSize(QSize(300, 200)), QSize(293, 193));
}

TEST(BrowserMeasures, NothingGetsNegative) {
  EXPECT_EQ(addressWidth(6), 0);
  EXPECT_EQ(pagesSize(QSize(0, 0)), QSize(0, 0));
}

TEST(BrowserMeasures, FiftyTwipsAreThreePixelsAndFifteenAreOne) {
  EXPECT_EQ(pixelsOfTwips(kAddressLeft), 3);
  EXPECT_EQ(pixelsOfTwips(kBelowAddressLabel), 1);
}

TEST_F(FrmBrowserLayout, AddressAndPagesFollowTheInnerSize) {
  show();
  for (const QSize size : {QSize(700, 500), QSize(1100, 800), QSize(400, 350)}) {
    window().resize(size);
    QApplication::processEvents();
    const QSize inner = controls().inner->size();
    EXPECT_EQ(inner.width(), size.width());
    EXPECT_EQ(box().width(), inner.width() - 7);
    EXPECT_EQ(view().size(), QSize(inner.width() - 7, inner.height() - 7));
  }
}

TEST_F(FrmBrowserLayout, AddressStandsBelowItsLabelFromFiftyTwipsOn) {
  show();
  EXPECT_EQ(box().x(), 3);
  EXPECT_EQ(box().y(), controls().lblAddress->y() + controls().lblAddress->height() + 1);
}

TEST_F(FrmBrowserLayout, NothingOverlaps) {
  show();
  const auto bottomOf = [](const QWidget* widget) { return widget->geometry().bottom(); };
  EXPECT_LT(bottomOf(controls().tbToolBar), controls().picAddress->y());
  EXPECT_LE(bottomOf(&box()), controls().picAddress->height() - 1);
  EXPECT_LT(bottomOf(controls().picAddress), controls().inner->y());
  EXPECT_LT(bottomOf(controls().inner), controls().statusRow->y());
  EXPECT_EQ(bottomOf(controls().statusRow), window().height() - 1);
}

TEST_F(FrmBrowserLayout, WindowAndControlsCarryTheirNamesAndCaptions) {
  EXPECT_EQ(window().windowTitle(), QStringLiteral("Quorvin Utility Help"));
  EXPECT_EQ(window().objectName(), QStringLiteral("frmBrowser"));
  EXPECT_EQ(controls().lblAddress->text(), QStringLiteral("&Address:"));
  EXPECT_EQ(controls().lblAddress->buddy(), &box());
  for (const char* name : {"tbToolBar", "picAddress", "lblAddress", "cboAddress", "brwWebBrowser"}) {
    EXPECT_NE(window().findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;
  }
}

TEST_F(FrmBrowserLayout, ToolbarHasItsSixButtonsInOrder) {
  QStringList keys;
  for (const QAction* action : controls().tbToolBar->actions()) keys.append(action->objectName());
  EXPECT_EQ(keys.join(u' '), QStringLiteral("Back Forward Refresh Home Search Stop"));
}

TEST_F(FrmBrowserLayout, EveryButtonHasAnIconAToolTipWithItsKeysAndAName) {
  for (QAction* action : controls().tbToolBar->actions()) {
    const QWidget* widget = controls().tbToolBar->widgetForAction(action);
    EXPECT_FALSE(action->icon().isNull());
    EXPECT_EQ(widget->accessibleName(), action->objectName());
    EXPECT_TRUE(action->toolTip().endsWith(u')')) << action->toolTip().toStdString();
    EXPECT_EQ(widget->focusPolicy(), Qt::TabFocus);
  }
}

TEST_F(FrmBrowserLayout, EveryIconShowsSomethingInTheColourOfTheWindow) {
  const QColor colour = controls().tbToolBar->palette().color(QPalette::Active, QPalette::ButtonText);
  for (const QAction* action : controls().tbToolBar->actions()) {
    const QImage image = action->icon().pixmap(24, 24, QIcon::Normal).toImage();
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) drawn += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    EXPECT_GT(drawn, 20) << action->objectName().toStdString();
  }
}

TEST_F(FrmBrowserLayout, PicturesWiderThanTheWindowAreMadeToFit) {
  QImage wide(3000, 300, QImage::Format_RGB32);
  wide.fill(Qt::red);
  ASSERT_TRUE(wide.save(pathOf("wide.png")));
  folder_.writeFile(QStringLiteral("picture.htm"), "<p><img src='wide.png'></p>");
  show("picture.htm");
  for (const int width : {500, 900}) {
    window().resize(width, 500);
    QApplication::processEvents();
    const int shownWidth = static_cast<int>(view().document()->size().width());
    EXPECT_LE(shownWidth, view().viewport()->width());
    EXPECT_EQ(view().horizontalScrollBar()->maximum(), 0);
  }
}

}  // namespace
}  // namespace quorvin::test
