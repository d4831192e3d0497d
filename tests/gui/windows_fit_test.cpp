// Every window on a small screen, with large letters, and where people write from right to left: it fits the
// screen, nothing of it is outside, and no caption is cut.
#include "editors/dialog_driving.h"
#include "editors/list_options.h"
#include "editors/local_loc.h"
#include "gui/search_form_fixture.h"
#include "help/frm_browser.h"
#include "help/frm_splash.h"
#include "history/history_window.h"
#include "peers/client/peer_progress.h"
#include "preview/image_preview.h"
#include "preview/res_win.h"

#include <QAbstractScrollArea>
#include <QScreen>
#include <QToolButton>

namespace quorvin::test {

namespace {

struct Setting {
  const char* name;
  int largerByPoints;
  Qt::LayoutDirection direction;
};

void PrintTo(const Setting& setting, std::ostream* out) {
  *out << setting.name;
}

QString described(const QWidget* widget) {
  const QString name = widget->objectName();
  return QString::fromLatin1(widget->metaObject()->className()) + u' ' + name;
}

/// What scrolls may be larger than what is seen of it.
bool scrolls(const QWidget* widget) {
  const auto* area = widget->parentWidget()
                         ? qobject_cast<const QAbstractScrollArea*>(widget->parentWidget()->parentWidget())
                         : nullptr;
  return area && area->viewport() == widget->parentWidget();
}

int textWidth(const QWidget* widget, const QString& text) {
  return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/// Whether the text of a label or a button is wider than its place.
bool isCut(const QWidget* widget) {
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    if (label->wordWrap() || !label->toolTip().isEmpty())
      return label->height() < label->heightForWidth(label->width());
    return label->textFormat() != Qt::RichText && textWidth(label, label->text()) > label->width();
  }
  if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
    return textWidth(button, button->text()) > button->width() - 4;
  }
  return false;
}

/// A window may be of any size that the screen has; what is in it is what counts.
void expectFits(const QWidget& window) {
  const QSize screen = window.screen()->availableGeometry().size();
  EXPECT_LE(window.width(), screen.width()) << described(&window).toStdString();
  EXPECT_LE(window.height(), screen.height()) << described(&window).toStdString();
  int looked = 0;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &window || scrolls(widget)) continue;
    ++looked;
    EXPECT_TRUE(widget->geometry().isEmpty() || widget->parentWidget()->rect().contains(widget->geometry()))
        << described(widget).toStdString() << " in " << described(widget->parentWidget()).toStdString();
    EXPECT_FALSE(isCut(widget)) << described(widget).toStdString();
  }
  EXPECT_GT(looked, 0) << described(&window).toStdString();
}

class WindowsFit : public SearchFormTest, public testing::WithParamInterface<Setting> {
 protected:
  WindowsFit() : fontBefore_(QApplication::font()) {
    QFont font = fontBefore_;
    font.setPointSize(font.pointSize() + GetParam().largerByPoints);
    QApplication::setFont(font);
    QApplication::setLayoutDirection(GetParam().direction);
    addOnlineSource(QStringLiteral("Music"), listingOf("MUSIC", 30, "song"));
  }
  ~WindowsFit() override {
    QApplication::setFont(fontBefore_);
    QApplication::setLayoutDirection(Qt::LeftToRight);
  }

  static void expectShownFits(QWidget& window) {
    showAndActivate(window);
    QTest::qWait(0);
    expectFits(window);
  }
  void expectDialogFits(QAction* opens) {
    EXPECT_TRUE(duringModal<QDialog>([opens] { opens->trigger(); },
                                     [](QDialog& dialog) {
                                       QTest::qWait(0);
                                       expectFits(dialog);
                                     }));
  }

 private:
  QFont fontBefore_;
};

TEST_P(WindowsFit, TheMainWindowDoes) {
  form();
  find(QStringLiteral("song"));
  expectFits(form());
  EXPECT_LE(controls().lblVer->x() + controls().lblVer->width(), form().centralWidget()->width());
}

TEST_P(WindowsFit, TheEditorsDo) {
  expectDialogFits(form().menus().AddLocal);
  expectDialogFits(form().menus().EditOffline);
}

TEST_P(WindowsFit, OptionsHistoryAndAboutDo) {
  expectDialogFits(form().menus().OptionsMenu);
  expectDialogFits(form().menus().ListingHistory);
  expectDialogFits(form().menus().AboutMenu);
}

TEST_P(WindowsFit, TheHelpDoes) {
  form().menus().HlpGen->trigger();
  QWidget* help = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && qobject_cast<frmBrowser*>(window)) help = window;
  }
  ASSERT_NE(help, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(help));
  expectFits(*help);
}

TEST_P(WindowsFit, ProgressAndResultsDo) {
  form().progress().begin();
  QTest::qWait(0);
  expectFits(form().progress());
  PeerProgress peers(QLocale::c());
  peers.begin(QStringLiteral("host"));
  QTest::qWait(0);
  expectFits(peers);
  ResWin results;
  results.setText(QStringLiteral("/m/a File not found"));
  expectShownFits(results);
}

TEST_P(WindowsFit, ThePreviewDoes) {
  QThreadPool pool;
  ImgPre window(pool, nullptr);
  expectShownFits(window);
  ImgPreLoading loading(QStringLiteral("/music/cover.bmp"), nullptr);
  expectShownFits(loading);
}

INSTANTIATE_TEST_SUITE_P(Settings, WindowsFit,
                         testing::Values(Setting{"usual", 0, Qt::LeftToRight},
                                         Setting{"large letters", 12, Qt::LeftToRight},
                                         Setting{"right to left", 0, Qt::RightToLeft},
                                         Setting{"large letters from right to left", 12, Qt::RightToLeft}));

/// Where people write from right to left.
class MirroredWindows : public SearchFormTest {
 protected:
  MirroredWindows() { QApplication::setLayoutDirection(Qt::RightToLeft); }
  ~MirroredWindows() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

TEST_F(MirroredWindows, TheMainWindowIsTheMirrorImage) {
  form();
  for (const int width : {790, 900, 820}) {
    form().resize(width, 500);
    QTest::qWait(0);
    EXPECT_EQ(controls().SearchStr->x(), 0);
    EXPECT_EQ(controls().lblVer->x(), 0);
    EXPECT_EQ(controls().MenuLine->geometry().left(), 0);
    EXPECT_EQ(controls().HitList->geometry().left(), 0);
    EXPECT_EQ(controls().HitList->width(), width);
    EXPECT_GT(controls().searchLabel->x(), controls().SearchStr->geometry().right());
    EXPECT_LT(controls().searchLabel->geometry().right(), width);
    EXPECT_GT(controls().DesMatch->x(), controls().Find->geometry().right());
    EXPECT_GT(controls().Find->x(), controls().foundLabel->geometry().right());
    EXPECT_GT(controls().foundLabel->x(), controls().lblFound->geometry().right());
  }
}

TEST_F(MirroredWindows, TheEditorIsTheMirrorImage) {
  form();
  EXPECT_TRUE(duringModal<LocalLoc>([this] { form().menus().AddLocal->trigger(); },
                                    [](LocalLoc& dialog) {
                                      const LocalLocControls& all = dialog.controls();
                                      for (const int wider : {0, 100, -50}) {
                                        dialog.resize(dialog.width() + wider, dialog.height());
                                        QTest::qWait(0);
                                        EXPECT_GT(all.Online->x(), all.MvUp->geometry().right());
                                        EXPECT_EQ(all.Desc->geometry().right(),
                                                  all.Online->geometry().right());
                                        EXPECT_LT(all.LocalDataFolder->geometry().right(), all.Desc->x());
                                        EXPECT_EQ(all.GetListName->x(), all.Online->x());
                                        EXPECT_EQ(all.Cancel->x(), all.LocAdd->x());
                                        EXPECT_GT(all.OK->x(), all.Cancel->geometry().right());
                                      }
                                    }));
  EXPECT_TRUE(duringModal<LocalLoc>(
      [this] { form().menus().EditOffline->trigger(); },
      [](LocalLoc& dialog) {
        const LocalLocControls& all = dialog.controls();
        EXPECT_EQ(all.LocalDataFolder->geometry().right(), all.Online->geometry().right());
        EXPECT_EQ(all.Label2->geometry().right(), all.Online->geometry().right());
        EXPECT_GT(all.LocalDataFolder->x(), all.GetListName->geometry().right());
      }));
}

}  // namespace

}  // namespace quorvin::test
