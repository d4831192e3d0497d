// SPDX-License-Identifier: GPL-2.0-or-later

// The space map, as a person comes to it and uses it.
#include "catalogue/volumes/space_window.h"

#include "catalogue/volumes/volumes_window.h"
#include "editors/dialog_driving.h"
#include "gui/keys.h"
#include "gui/search_form_fixture.h"
#include "support/waiting_threads.h"

#include <QAccessible>
#include <QImage>

namespace quorvin::test {

namespace {

class ShownSpace : public SearchFormTest {
 protected:
  ShownSpace() {
    addOfflineSource(QStringLiteral("cd1.txt"),
                     blockHead("CD 1", "\\Films\\") + entryLine("harbour.avi", "600,000,000") +
                         blockHead("CD 1", "\\Films\\Old\\") +
                         entryLine("old.avi", "200,000,000", "5/1/1990 8:00:00 AM") +
                         blockHead("CD 1", "\\Music\\Live\\") + entryLine("song.mp3", "150,000,000") +
                         blockHead("CD 1", "\\") + entryLine("notes.txt", "50,000,000"));
    addOfflineSource(QStringLiteral("cd2.txt"),
                     blockHead("CD 2", "\\<b>\\") + entryLine("a.zip", "1,000") + "no size.txt\r\n");
  }

  SpaceWindowParts parts(QThreadPool& threads, const QString& listing = {}, const QString& volume = {}) {
    return {state_,
            threads,
            QLocale(QLocale::English, QLocale::UnitedStates),
            [this](const QString& folder) { searched_.push_back(folder.toStdString()); },
            listing.isEmpty() ? QString() : folder_.pathOf(listing),
            volume};
  }

  static SpaceMap& mapOf(const SpaceWindow& window) {
    return *window.findChild<SpaceMap*>(QStringLiteral("Map"));
  }
  static std::string labelOf(const SpaceWindow& window, const char* name) {
    return window.findChild<QLabel*>(QString::fromLatin1(name))->text().toStdString();
  }
  static void waitForMap(const SpaceWindow& window) { EXPECT_EVENTUALLY(mapOf(window).count() > 0); }
  /// The rectangles, as they are read.
  static std::vector<std::string> cellsOf(const SpaceMap& map) {
    std::vector<std::string> texts;
    for (int cell = 0; cell < map.count(); ++cell) texts.push_back(map.textOf(cell).toStdString());
    return texts;
  }
  static std::string current(const SpaceMap& map) { return map.titleOf(map.current()).toStdString(); }
  static QColor colourAt(SpaceMap& map, int cell) {
    const QRect place = map.placeOf(cell);
    return QColor(map.grab().toImage().pixel(place.center() + QPoint(0, place.height() / 4)));
  }

  std::vector<std::string> searched_;
};

const std::vector<std::string> kPartsOfCd1{
    "Films, 762.94 MB, 80.0%. Mostly Video, 2000\u20132004",
    "Music\\Live, 143.05 MB, 15.0%. Mostly Audio, 2000\u20132004",
    "Files right here, 47.68 MB, 5.0%. Mostly Documents, 2000\u20132004"};

TEST_F(ShownSpace, OfAVolumeShowsItsFoldersWithTheirSizes) {
  QThreadPool threads;
  SpaceWindow window(parts(threads, QStringLiteral("cd1.txt"), QStringLiteral("CD 1")), nullptr);
  showAndActivate(window);
  waitForMap(window);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Space Map of CD 1"));
  EXPECT_EQ(labelOf(window, "Place"), "CD 1: \\ \u2013 4 files, 953.67 MB");
  EXPECT_EQ(cellsOf(mapOf(window)), kPartsOfCd1);
  EXPECT_EQ(labelOf(window, "Status"), kPartsOfCd1[0]);
  EXPECT_FALSE(window.findChild<QPushButton*>(QStringLiteral("Up"))->isEnabled());
  const QRect films = mapOf(window).placeOf(0);
  EXPECT_NEAR(films.width() * films.height(), 0.8 * mapOf(window).width() * mapOf(window).height(),
              2.0 * (films.width() + films.height()));
}

TEST_F(ShownSpace, AClickGoesIntoAFolderAndUpComesBackToIt) {
  QThreadPool threads;
  SpaceWindow window(parts(threads), nullptr);
  showAndActivate(window);
  waitForMap(window);
  SpaceMap& map = mapOf(window);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Space Map"));
  EXPECT_TRUE(labelOf(window, "Place").starts_with("All volumes \u2013 5 files")) << labelOf(window, "Place");
  EXPECT_EQ(map.count(), 1) << "the other one is too small to be seen";
  QTest::mouseClick(&map, Qt::LeftButton, {}, map.placeOf(0).center());
  EXPECT_EQ(cellsOf(map), kPartsOfCd1);
  QTest::mouseClick(&map, Qt::LeftButton, {}, map.placeOf(2).center());
  EXPECT_EQ(current(map), "Files right here") << "there is nothing to go into";
  EXPECT_EQ(cellsOf(map), kPartsOfCd1);
  QTest::mouseClick(&map, Qt::LeftButton, {}, map.placeOf(0).center());
  EXPECT_EQ(cellsOf(map),
            (std::vector<std::string>{"Files right here, 572.20 MB, 75.0%. Mostly Video, 2000\u20132004",
                                      "Old, 190.73 MB, 25.0%. Mostly Video, Up to 1994"}));
  click(window.findChild<QPushButton*>(QStringLiteral("Up")));
  EXPECT_EQ(current(map), "Films");
  click(window.findChild<QPushButton*>(QStringLiteral("Up")));
  EXPECT_EQ(current(map), "CD 1");
  EXPECT_FALSE(window.findChild<QPushButton*>(QStringLiteral("Up"))->isEnabled());
}

TEST_F(ShownSpace, CanBeUsedByKeysAlone) {
  QThreadPool threads;
  SpaceWindow window(parts(threads, QStringLiteral("cd1.txt"), QStringLiteral("CD 1")), nullptr);
  showAndActivate(window);
  waitForMap(window);
  SpaceMap& map = mapOf(window);
  EXPECT_EQ(tabStops().toStdString(), "Map ReadAgain close Colours");
  EXPECT_EQ(current(map), "Films");
  press(Qt::Key_Right);
  EXPECT_EQ(current(map), "Music\\Live");
  press(Qt::Key_Down);
  EXPECT_EQ(current(map), "Files right here");
  press(Qt::Key_Down);
  EXPECT_EQ(current(map), "Files right here");
  press(Qt::Key_Home);
  press(Qt::Key_Return);
  EXPECT_EQ(map.count(), 2);
  press(Qt::Key_End);
  EXPECT_EQ(current(map), "Old");
  press(Qt::Key_Backspace);
  EXPECT_EQ(current(map), "Films");
  press(Qt::Key_Backspace);
  EXPECT_EQ(current(map), "Films") << "there is nothing above";
  press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(searched_, std::vector<std::string>{"\\Films\\"});
  EXPECT_FALSE(window.isVisible());
}

TEST_F(ShownSpace, EnterSearchesWhereThereIsNothingToGoInto) {
  QThreadPool threads;
  SpaceWindow window(parts(threads, QStringLiteral("cd1.txt"), QStringLiteral("CD 1")), nullptr);
  showAndActivate(window);
  waitForMap(window);
  press(Qt::Key_Right);
  press(Qt::Key_Return);
  EXPECT_EQ(searched_, std::vector<std::string>{"\\Music\\Live\\"});
}

TEST_F(ShownSpace, AVolumeAsAWholeHasNoFolderToSearchFor) {
  QThreadPool threads;
  SpaceWindow window(parts(threads), nullptr);
  showAndActivate(window);
  waitForMap(window);
  press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(labelOf(window, "Status"), "A search is for a folder. Choose one in the volume.");
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(searched_, std::vector<std::string>());
}

TEST_F(ShownSpace, ColoursAreByKindOrByYearWithALegend) {
  QThreadPool threads;
  SpaceWindow window(parts(threads, QStringLiteral("cd1.txt"), QStringLiteral("CD 1")), nullptr);
  showAndActivate(window);
  waitForMap(window);
  SpaceMap& map = mapOf(window);
  press(Qt::Key_Return);
  EXPECT_NE(labelOf(window, "Legend").find("Pictures"), std::string::npos);
  EXPECT_EQ(colourAt(map, 0), colourAt(map, 1)) << "both are video";
  window.findChild<QComboBox*>(QStringLiteral("Colours"))->setCurrentIndex(1);
  EXPECT_NE(colourAt(map, 0), colourAt(map, 1)) << "one is old";
  EXPECT_NE(labelOf(window, "Legend").find("1994"), std::string::npos);
  EXPECT_EQ(labelOf(window, "Legend").find("Pictures"), std::string::npos);
}

TEST_F(ShownSpace, IsReadAsAListOfItsRectangles) {
  QThreadPool threads;
  SpaceWindow window(parts(threads, QStringLiteral("cd1.txt"), QStringLiteral("CD 1")), nullptr);
  showAndActivate(window);
  waitForMap(window);
  SpaceMap& map = mapOf(window);
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&map);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->role(), QAccessible::List);
  EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Space map"));
  ASSERT_EQ(list->childCount(), 3);
  QAccessibleInterface* music = list->child(1);
  EXPECT_EQ(music->role(), QAccessible::ListItem);
  EXPECT_EQ(music->text(QAccessible::Name).toStdString(), kPartsOfCd1[1]);
  EXPECT_EQ(list->indexOfChild(music), 1);
  EXPECT_EQ(music->rect().size(), map.placeOf(1).size());
  const QPoint centre = map.mapToGlobal(map.placeOf(1).center());
  EXPECT_EQ(list->childAt(centre.x(), centre.y()), music);
  EXPECT_FALSE(music->state().focused);
  press(Qt::Key_Right);
  EXPECT_TRUE(music->state().focused);
  EXPECT_EQ(list->focusChild(), music);
  press(Qt::Key_Home);
  press(Qt::Key_Return);
  EXPECT_EQ(list->childCount(), 2);
  EXPECT_EQ(list->child(1)->text(QAccessible::Name).toStdString(),
            "Old, 190.73 MB, 25.0%. Mostly Video, Up to 1994");
}

TEST_F(ShownSpace, SearchingBringsTheFilesOfAFolderToTheMainWindow) {
  form();
  EXPECT_TRUE(duringModal<VolumesWindow>([this] { form().menus().Volumes->trigger(); },
                                         [](VolumesWindow& window) {
                                           auto* rows = window.findChild<QTreeView*>(QStringLiteral("Rows"));
                                           EXPECT_EVENTUALLY(rows->model()->rowCount() > 0);
                                           EXPECT_TRUE(duringModal<SpaceWindow>([] { press(Qt::Key_Return); },
                                                                                [](SpaceWindow& map) {
                                                                                  waitForMap(map);
                                                                                  press(Qt::Key_Return,
                                                                                        Qt::ControlModifier);
                                                                                }));
                                           EXPECT_FALSE(window.isVisible());
                                         }));
  EXPECT_EVENTUALLY(controls().HitList->model()->rowCount() == 2);
  EXPECT_EQ(controls().SearchStr->text(), QStringLiteral("Films"));
  EXPECT_EQ(controls().FilterStr->text(), QStringLiteral("\\Films\\"));
}

TEST_F(ShownSpace, WithoutSizesThereIsNothingToShow) {
  state_.OfflineSourceCount = 0;
  addOfflineSource(QStringLiteral("bare.txt"), "no size.txt\r\n");
  QThreadPool threads;
  SpaceWindow window(parts(threads), nullptr);
  showAndActivate(window);
  EXPECT_EVENTUALLY(labelOf(window, "Status") == "There is nothing that takes up space.");
  press(Qt::Key_Return);
  press(Qt::Key_Down);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(ShownSpace, StopDoesNotWaitForADriveThatDoesNotAnswer) {
  WaitingThreads threads;
  SpaceWindow window(parts(threads.pool), nullptr);
  showAndActivate(window);
  click(window.findChild<QPushButton*>(QStringLiteral("ReadAgain")));
  EXPECT_EQ(labelOf(window, "Status"), "Stopped. The map is drawn when everything has been read.");
  threads.letGo();
  click(window.findChild<QPushButton*>(QStringLiteral("ReadAgain")));
  waitForMap(window);
}

}  // namespace

}  // namespace quorvin::test
