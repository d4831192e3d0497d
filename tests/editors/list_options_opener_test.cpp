// Opening the options dialog from the main window.
#include "editors/list_options_opener.h"

#include "editors/list_options_fixture.h"

#include <QMainWindow>

namespace quorvin::test {

namespace {

class OptionsOpening : public ListOptionsTest {
 protected:
  OptionsOpening() : opener_(editing(), &main_) {}

  void open(const std::function<void(ListOptions&)>& action) {
    EXPECT_TRUE(duringModal<ListOptions>([this] { opener_.OptionsMenu_Click(); }, action));
  }

  QMainWindow main_;
  ListOptionsOpener opener_;
};

TEST_F(OptionsOpening, IsModalOverTheMainWindow) {
  open([this](ListOptions& dialog) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.parentWidget(), &main_);
  });
}

TEST_F(OptionsOpening, EveryOpeningShowsTheSettingsAsTheyAre) {
  open([](ListOptions& dialog) {
    type(dialog.controls().Nic, QStringLiteral("bob"));
    click(dialog.controls().CancelButton);
  });
  state_.WebServer = QStringLiteral("tapes.example");
  open([](ListOptions& dialog) {
    EXPECT_EQ(dialog.controls().Nic->text(), QStringLiteral("ann"));
    EXPECT_EQ(dialog.controls().Server->text(), QStringLiteral("tapes.example"));
  });
}

TEST_F(OptionsOpening, UnloadingClosesWithoutStoring) {
  open([this](ListOptions& dialog) {
    type(dialog.controls().Nic, QStringLiteral("bob"));
    opener_.unload();
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(state_.NickName, QStringLiteral("ann"));
  opener_.unload();
}

}  // namespace

}  // namespace quorvin::test
