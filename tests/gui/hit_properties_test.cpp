// SPDX-License-Identifier: GPL-2.0-or-later

// The window with everything that is known of a hit, as it is opened from the list.
#include "hits/hit_properties.h"

#include "gui/keys.h"
#include "gui/window_hits_fixture.h"

namespace quorvin::test {

namespace {

class HitPropertiesWindow : public WindowHits {
 protected:
  static QString value(const HitProperties& window, const char* name) {
    const auto* box = window.findChild<QLineEdit*>(QString::fromLatin1(name));
    return box ? box->text() : QStringLiteral("(no such value)");
  }
};

TEST_F(HitPropertiesWindow, PropertiesShowEveryValueAndCopyThemAll) {
  showFiles({QStringLiteral("song 1.txt"), QStringLiteral("song 2.txt")});
  click(1);
  inDialog<HitProperties>([] { press(Qt::Key_Return, Qt::AltModifier); },
                          [this](HitProperties& window) {
                            EXPECT_EQ(window.windowTitle(), QStringLiteral("Properties of song 2.txt"));
                            EXPECT_EQ(value(window, "Match"), QStringLiteral("100%"));
                            EXPECT_EQ(value(window, "Words"), QStringLiteral("1 of 1 word"));
                            EXPECT_EQ(value(window, "Volume"), QStringLiteral("Music"));
                            EXPECT_EQ(value(window, "Folder"), QString::fromUtf8(listed(files_.path())));
                            EXPECT_EQ(value(window, "Name"), QStringLiteral("song 2.txt"));
                            EXPECT_EQ(value(window, "Size"), QStringLiteral("0.00mb"));
                            EXPECT_EQ(value(window, "Bytes"), QStringLiteral("1,024"));
                            EXPECT_EQ(value(window, "Date"), QStringLiteral("Jan, 15 04"));
                            EXPECT_EQ(value(window, "Moment"), QStringLiteral("1/15/2004 10:20:30 AM"));
                            EXPECT_EQ(value(window, "Source"), QStringLiteral("Folder of your own"));
                            EXPECT_EQ(value(window, "Listing"), folder_.pathOf(QStringLiteral("Music.txt")));
                            EXPECT_TRUE(eventually([&] { return value(window, "Line") == u"6"; }))
                                << value(window, "Line").toStdString();
                            EXPECT_EQ(value(window, "Path"), files_.pathOf(QStringLiteral("song 2.txt")));
                            EXPECT_EQ(value(window, "State"), QStringLiteral("Is there"));
                            EXPECT_EQ(focusName(), QStringLiteral("CloseButton"));
                            tabTo("CopyAll");
                            press(Qt::Key_Space);
                            press(Qt::Key_Escape);
                          });
  EXPECT_TRUE(
      clipboard().startsWith(QStringLiteral("Match: 100%\nWords found: 1 of 1 word\nVolume: Music\n")))
      << clipboard().toStdString();
  EXPECT_TRUE(clipboard().contains(QStringLiteral("\nLine in the listing: 6\n")));
}

TEST_F(HitPropertiesWindow, PropertiesOfAFarHitSayThatItsFileIsNotThere) {
  setMainDataFile(listingOf("DISK_7", 1, "tune"));
  find(QStringLiteral("tune"));
  click(0);
  inDialog<HitProperties>([] { press(Qt::Key_Return, Qt::AltModifier); },
                          [](HitProperties& window) {
                            EXPECT_EQ(value(window, "Source"), QStringLiteral("Main data file"));
                            EXPECT_EQ(value(window, "Path"),
                                      QStringLiteral("Not known: only folders of your own can be reached"));
                            EXPECT_EQ(value(window, "State"),
                                      QStringLiteral("Not found on a connected drive"));
                            press(Qt::Key_Escape);
                          });
}

TEST_F(HitPropertiesWindow, HasTheNoteOnTheVolumeAndSoHasTheTooltip) {
  showFiles({QStringLiteral("song.txt")});
  VolumeNotes(folder_.path())
      .set(folder_.pathOf(QStringLiteral("Music.txt")), QStringLiteral("Music"), QStringLiteral("blue box"));
  click(0);
  inDialog<HitProperties>([] { press(Qt::Key_Return, Qt::AltModifier); },
                          [](HitProperties& window) {
                            EXPECT_EQ(value(window, "Note"), QStringLiteral("blue box"));
                            press(Qt::Key_Escape);
                          });
  const QAbstractItemModel& rows = *list()->model();
  EXPECT_TRUE(rows.index(0, 0).data(Qt::ToolTipRole).toString().endsWith(QStringLiteral("\nNote: blue box")));
}

TEST_F(HitPropertiesWindow, ShowsALongPathWhole) {
  const QString name = QStringLiteral("a song with so long a name that it goes on.txt");
  showFiles({name});
  click(0);
  inDialog<HitProperties>([] { press(Qt::Key_Return, Qt::AltModifier); },
                          [](HitProperties& window) {
                            const auto* path = window.findChild<QLineEdit*>(QStringLiteral("Path"));
                            ASSERT_NE(path, nullptr);
                            EXPECT_LT(path->fontMetrics().horizontalAdvance(path->text()), path->width());
                            EXPECT_LE(window.width(), window.screen()->availableGeometry().width());
                            press(Qt::Key_Escape);
                          });
}

}  // namespace

}  // namespace quorvin::test
