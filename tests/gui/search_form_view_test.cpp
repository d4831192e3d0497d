// The View menu of the main window.
#include "gui/keys.h"
#include "gui/search_form_fixture.h"

#include <QHeaderView>

namespace quorvin::test {

namespace {

class ViewMenu : public SearchFormTest {
 protected:
  std::vector<int> columnWidths() {
    std::vector<int> widths;
    for (int column = 0; column < kHitColumnCount; ++column) {
      widths.push_back(controls().HitList->header()->sectionSize(column));
    }
    return widths;
  }
};

TEST_F(ViewMenu, ResetColumnsGivesEachColumnTheWidthThatItHadAtFirst) {
  form();
  const std::vector<int> atFirst = columnWidths();
  controls().HitList->header()->resizeSection(0, 200);
  controls().HitList->header()->resizeSection(3, 20);
  press(Qt::Key_V, Qt::AltModifier);
  press(Qt::Key_R);
  EXPECT_EQ(columnWidths(), atFirst);
}

TEST_F(ViewMenu, SettingsThatTheUserChangesAreReported) {
  int changes = 0;
  form().view().setChangeHandler([&] { ++changes; });
  form().view().change([](ViewSettings& settings) { settings.columns = QStringLiteral("Match 40"); });
  EXPECT_EQ(changes, 1);
  form().view().change([](ViewSettings& settings) { settings.columns = QStringLiteral("Match 40"); });
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(form().view().settings().columns, QStringLiteral("Match 40"));
}

}  // namespace

}  // namespace quorvin::test
