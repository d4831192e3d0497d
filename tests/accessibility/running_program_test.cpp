// SPDX-License-Identifier: GPL-2.0-or-later

// The running program as a screen reader hears it over the accessibility bus.
#include "accessibility/running_program_fixture.h"
#include "support/eventually.h"

namespace quorvin::test {

namespace {

TEST_F(RunningProgram, TheMainWindowIsReadAndSearchedOverTheBus) {
  const auto window = shown(QStringLiteral("frame"), QStringLiteral("Quorvin Utility"));
  ASSERT_TRUE(window);
  const auto searchText = control(*window, QStringLiteral("text"), QStringLiteral("Search text"));
  ASSERT_TRUE(searchText);
  ASSERT_TRUE(bus_.write(*searchText, QStringLiteral("tune")));
  pressButton(*window, "Find");
  ASSERT_TRUE(eventually([&] { return linesOf(*window).contains(QStringLiteral("label: Found: 1")); }));
  EXPECT_EQ(linesOf(*window).join(u'\n').toStdString(),
            "frame: Line below the menu\n"
            "text: Search for: Search text\n"
            "push button: Earlier searches\n"
            "text: Match %: Desired match in percent\n"
            "push button: Find\n"
            "push button: Web Update?\n"
            "list: Hits\n"
            "list item: Match 100%, Volume DISK, Folder \\Music\\, Name one tune.mp3, Size 0.13mb, Date Jan, "
            "15 04\n"
            "label: Search for:\n"
            "label: Match %:\n"
            "label: Found: 1\n"
            "label: Searched: 1\n"
            "label: Found:\n"
            "label: Searched:\n"
            "label: Ver:2.5(64)\n"
            "menu bar: Main menu\n"
            "menu item: File\n"
            "menu item: View\n"
            "menu item: Hits\n"
            "menu item: Peers\n"
            "menu item: Help\n"
            "status bar: Status\n"
            "label: 1 hit");
  expectEveryControlNamed();
}

struct DialogOfMenu {
  const char* item;
  const char* title;
  const char* closingButton;
  const char* aLine;
};

TEST_F(RunningProgram, EveryDialogOfTheMenusIsOpenedReadAndClosedOverTheBus) {
  for (const DialogOfMenu& dialog : {
           DialogOfMenu{"Add/Edit Local Folder To Search List", "Local File Search Locations", "Cancel",
                        "push button: Browse for a File Location Path"},
           DialogOfMenu{"Add/Edit Offline List files", "Offline Search List files", "Cancel",
                        "text: Path to List file Path to List file"},
           DialogOfMenu{"Options", "Options", "Cancel", "text: First Run Date: First Run Date"},
           DialogOfMenu{"Get Lists From Peer...", "Get Lists From Peer", "Cancel", "push button: OK"},
           DialogOfMenu{"About", "About Quorvin Utility", "Close", "label: Version 2.5.64"},
       }) {
    SCOPED_TRACE(dialog.title);
    chooseFromMenu(dialog.item);
    const auto window = shown(QStringLiteral("dialog"), QString::fromLatin1(dialog.title));
    ASSERT_TRUE(window);
    EXPECT_TRUE(linesOf(*window).contains(QString::fromLatin1(dialog.aLine)))
        << linesOf(*window).join(u'\n').toStdString();
    expectEveryControlNamed();
    pressButton(*window, dialog.closingButton);
    EXPECT_TRUE(isGone(*window));
  }
}

TEST_F(RunningProgram, AMessageIsReadWithItsKindAndAnswered) {
  chooseFromMenu("Add/Edit Local Folder To Search List");
  const auto editor = shown(QStringLiteral("dialog"), QStringLiteral("Local File Search Locations"));
  ASSERT_TRUE(editor);
  pressButton(*editor, "Add");
  const auto message = shown(QStringLiteral("alert message"), QStringLiteral("Quorvin Utility"));
  ASSERT_TRUE(message);
  EXPECT_EQ(linesOf(*message).join(u'\n').toStdString(),
            "graphic: Information\n"
            "label: The Path must be at lease 3 characters long. (ex: C:\\)\n"
            "push button: OK");
  expectEveryControlNamed();
  pressButton(*message, "OK");
  EXPECT_TRUE(isGone(*message));
  pressButton(*editor, "Cancel");
  EXPECT_TRUE(isGone(*editor));
}

TEST_F(RunningProgram, TheResultsOfARescanAreReadAndClosed) {
  chooseFromMenu("Rescan Local Search Folders");
  const auto results = shown(QStringLiteral("dialog"), QStringLiteral("Results"));
  ASSERT_TRUE(results);
  EXPECT_TRUE(control(*results, QStringLiteral("text"), QStringLiteral("Results")));
  expectEveryControlNamed();
  pressButton(*results, "Close");
  EXPECT_TRUE(isGone(*results));
}

TEST_F(RunningProgram, TheHelpIsReadWithItsRowForFinding) {
  chooseFromMenu("Program Usage");
  const auto help = shown(QStringLiteral("frame"), QStringLiteral("Quorvin Utility Help"));
  ASSERT_TRUE(help);
  EXPECT_FALSE(control(*help, QStringLiteral("text"), QStringLiteral("Find on this page"))->isShowing);
  pressButton(*help, "Search");
  EXPECT_TRUE(eventually([&] {
    return control(*help, QStringLiteral("text"), QStringLiteral("Find on this page"))->isShowing;
  }));
  for (const char* button :
       {"Back", "Forward", "Refresh", "Home", "Search", "Stop", "Previous", "Next", "Close"}) {
    EXPECT_TRUE(control(*help, QStringLiteral("push button"), QString::fromLatin1(button))) << button;
  }
  expectEveryControlNamed();
}

}  // namespace

}  // namespace quorvin::test
