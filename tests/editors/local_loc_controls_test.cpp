// SPDX-License-Identifier: GPL-2.0-or-later

// The layout of the source editor.
#include "editors/local_loc_fixture.h"

#include <QHeaderView>

namespace quorvin::test {

namespace {

using EditorLayout = LocalLocTest;

int rightOf(const QWidget* widget) {
  return widget->x() + widget->width();
}
int bottomOf(const QWidget* widget) {
  return widget->y() + widget->height();
}

TEST_F(EditorLayout, EdgesAreAligned) {
  const LocalLocControls& all = controls();
  for (const QWidget* left : {static_cast<QWidget*>(all.Label1), static_cast<QWidget*>(all.Desc)}) {
    EXPECT_EQ(left->x(), all.Online->x());
  }
  EXPECT_EQ(all.Label2->x(), all.LocalDataFolder->x());
  EXPECT_EQ(rightOf(all.GetListName), rightOf(all.Online));
  EXPECT_EQ(all.MvUp->y(), all.Online->y());
  for (const QWidget* side : {all.MvDn, all.LocDel, all.LocAdd}) {
    EXPECT_EQ(side->x(), all.MvUp->x());
    EXPECT_EQ(side->width(), all.MvUp->width());
  }
  EXPECT_EQ(rightOf(all.Cancel), rightOf(all.LocAdd));
  for (const QWidget* row : {static_cast<QWidget*>(all.LocalDataFolder),
                             static_cast<QWidget*>(all.GetListName), static_cast<QWidget*>(all.LocAdd)}) {
    EXPECT_EQ(row->y(), all.Desc->y());
    EXPECT_EQ(row->height(), all.Desc->height());
  }
  EXPECT_EQ(all.OK->geometry(), all.SaveOffLine->geometry());
  EXPECT_EQ(all.AddSources->x(), all.Online->x());
  EXPECT_EQ(all.AddSources->y(), all.OK->y());
}

TEST_F(EditorLayout, ResizingStretchesTheListAndThePathBox) {
  const LocalLocControls& all = controls();
  const QSize list = all.Online->size();
  const QRect path = all.LocalDataFolder->geometry();
  const QSize description = all.Desc->size();
  const QPoint cancel = all.Cancel->geometry().bottomRight();
  const QPoint addSources = all.AddSources->pos();
  const QSize before = dialog().size();
  dialog().resize(before + QSize(100, 50));
  EXPECT_EQ(all.Online->size(), list + QSize(100, 50));
  EXPECT_EQ(all.LocalDataFolder->geometry(),
            QRect(path.x(), path.y() + 50, path.width() + 100, path.height()));
  EXPECT_EQ(all.Desc->size(), description);
  EXPECT_EQ(all.Cancel->geometry().bottomRight(), cancel + QPoint(100, 50));
  EXPECT_EQ(all.AddSources->pos(), addSources + QPoint(0, 50));
  dialog().resize(before);
  EXPECT_EQ(all.Online->size(), list);
  EXPECT_EQ(all.LocalDataFolder->geometry(), path);
}

TEST_F(EditorLayout, WideningThePathKeepsItsRightEdge) {
  const LocalLocControls& all = controls();
  const QRect description = all.Desc->geometry();
  const QRect path = all.LocalDataFolder->geometry();
  const int pathLabelTop = all.Label2->y();
  widenPathOverDescription(all);
  EXPECT_EQ(all.LocalDataFolder->geometry(),
            QRect(description.x(), path.y(), path.width() + path.x() - description.x(), path.height()));
  EXPECT_EQ(all.LocalDataFolder->geometry().right(), path.right());
  EXPECT_EQ(all.Label2->pos(), QPoint(all.Label1->x(), pathLabelTop));
}

/// The dialog with a font of so many points, as small as it can be.
class LeastLayout : public LocalLocTest, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    fontBefore_ = QApplication::font();
    QFont font = fontBefore_;
    font.setPointSize(GetParam());
    QApplication::setFont(font);
    dialog().resize(0, 0);
    QTest::qWait(0);
  }
  void TearDown() override { QApplication::setFont(fontBefore_); }

  std::vector<QWidget*> texts() {
    const LocalLocControls& all = controls();
    return {all.Label1, all.Label2, all.MvUp,        all.MvDn,   all.LocDel,
            all.LocAdd, all.OK,     all.SaveOffLine, all.Cancel, all.AddSources};
  }

 private:
  QFont fontBefore_;
};

TEST_P(LeastLayout, ClipsNoText) {
  for (const QWidget* widget : texts()) {
    EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().toStdString();
    EXPECT_GE(widget->height(), widget->sizeHint().height()) << widget->objectName().toStdString();
  }
  EXPECT_GE(controls().Desc->height(), controls().Desc->sizeHint().height());
  // A button's size hint is for a longer text; this one needs room for the dots and a frame.
  EXPECT_GT(controls().GetListName->width(),
            controls().GetListName->fontMetrics().horizontalAdvance(QStringLiteral("...")) + 8);
}

TEST_P(LeastLayout, CoversNoControlAndStaysInside) {
  const LocalLocControls& all = controls();
  EXPECT_GT(all.Label1->y(), bottomOf(all.Online) - 1);
  EXPECT_GE(all.Desc->y(), bottomOf(all.Label1));
  EXPECT_GT(all.LocalDataFolder->x(), rightOf(all.Desc));
  EXPECT_GT(all.LocalDataFolder->width(), all.Desc->width() / 2);
  EXPECT_GT(all.GetListName->x(), rightOf(all.LocalDataFolder));
  EXPECT_GT(all.MvUp->x(), rightOf(all.Online));
  EXPECT_GT(all.OK->y(), bottomOf(all.Desc));
  EXPECT_GT(all.Cancel->x(), rightOf(all.OK));
  EXPECT_GT(all.OK->x(), rightOf(all.AddSources));
  for (const QWidget* widget : texts()) {
    EXPECT_TRUE(dialog().rect().contains(widget->geometry())) << widget->objectName().toStdString();
  }
}

TEST_P(LeastLayout, TheLongPathLabelIsNotClipped) {
  setPathCaption(controls(), QStringLiteral("Path to List file"));
  widenPathOverDescription(controls());
  EXPECT_GE(controls().Label2->width(), controls().Label2->sizeHint().width());
  EXPECT_LT(rightOf(controls().Label2), rightOf(controls().LocalDataFolder));
}

INSTANTIATE_TEST_SUITE_P(AtFontSizes, LeastLayout, testing::Values(6, 9, 12, 24));

}  // namespace

}  // namespace quorvin::test
