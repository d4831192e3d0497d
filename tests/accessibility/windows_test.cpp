#include "accessibility/readings.h"
#include "app/widget_message_boxes.h"
#include "editors/dialog_driving.h"
#include "editors/list_options.h"
#include "editors/local_loc.h"
#include "gui/search_form_fixture.h"
#include "help/frm_browser.h"
#include "help/frm_splash.h"
#include "net/peer_progress.h"
#include "preview/img_pre.h"
#include "preview/img_pre_loading.h"
#include "preview/res_win.h"
#include <QInputDialog>
#include <QMessageBox>
#include <iostream>

namespace quorvin::test {
namespace {
class P : public SearchFormTest {
 protected:
  static void dump(QWidget& w) {
    std::cout << "== " << w.objectName().toStdString() << "\n";
    for (auto& r : readingsOf(w)) std::cout << (r.isVisible ? "  " : " h ") << toText(r) << "\n";
  }
};
TEST_F(P, Dump) {
  addOnlineSource(QStringLiteral("disk"), listingOf("DISK", 2, "tune"));
  find(QStringLiteral("tune"));
  dump(form());
  auto m = [&](QAction* a) { EXPECT_TRUE(duringModal<QDialog>([=] { a->trigger(); }, [](QDialog& d) { dump(d); })); };
  m(form().menus().AddLocal);
  m(form().menus().EditOffline);
  m(form().menus().OptionsMenu);
  m(form().menus().AboutMenu);
  m(form().menus().GetLists);
  form().menus().HlpGen->trigger();
  for (auto* w : QApplication::topLevelWidgets()) if (auto* b = qobject_cast<frmBrowser*>(w)) { b->controls().findBar->open(); dump(*b); b->close(); }
  form().progress().begin(); dump(form().progress());
  PeerProgress p{QLocale::c()}; p.begin(QStringLiteral("x")); dump(p);
  ResWin r; r.setText(QStringLiteral("log")); r.show(); dump(r);
  QThreadPool pool; ImgPre i(pool, nullptr); i.show(); dump(i);
  ImgPreLoading l(QStringLiteral("/x/a.bmp"), nullptr); l.show(); dump(l);
  WidgetMessageBoxes b;
  EXPECT_TRUE(duringModal<QDialog>([&] { b.inform(QStringLiteral("Hello")); }, [](QDialog& d) { dump(d); }));
  EXPECT_TRUE(duringModal<QDialog>([&] { b.askYesNo(QStringLiteral("Hello")); }, [](QDialog& d) { dump(d); }));
  EXPECT_TRUE(duringModal<QDialog>([&] { b.askAbortRetryIgnore(QStringLiteral("Hello")); }, [](QDialog& d) { dump(d); }));
}
}
}
