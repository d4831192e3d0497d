// SPDX-License-Identifier: GPL-2.0-or-later

// The first steps in an empty window and its editor by keys alone, read over the accessibility bus.
#include "accessibility/keyboard_points.h"

namespace quorvin::test {

namespace {

TEST_F(KeyboardPoints, AnEmptyWindowLeadsToTheEditorsWhoseEditsCanBeTakenBack) {
  const QString music = folder_.makeFolder(text("Music"));
  const QString gone = folder_.pathOf(text("gone/"));
  start(desktop_.environment());
  const QString button = text("push button: Catalogue folders of your own");
  const QString both = QStringLiteral("Music %1 Films %2").arg(music, gone);
  expectAll({
      {"an empty list says why", {}, &KeyboardPoints::aboutList, text("There is nothing to search yet.")},
      {"its button is reached by Tab", {u'>' + button}, &KeyboardPoints::focused, button},
      {"it says where the same is in the menu",
       {},
       &KeyboardPoints::aboutFocused,
       text("File, Add/Edit Local Folder To Search List")},
      {"it opens the editor",
       {text("Return")},
       &KeyboardPoints::frontWindow,
       text("Local File Search Locations")},
      {"a folder is added",
       {text("ctrl+a"), text("'Music"), text("Tab"), text("ctrl+a"), u'\'' + music, text("Return")},
       &KeyboardPoints::entries,
       QStringLiteral("Music %1").arg(music)},
      {"it says that the folder is there",
       {},
       &KeyboardPoints::aboutEntries,
       text("The folder is there. It has no listing yet; a rescan makes it.")},
      {"another one is added",
       {text("shift+Tab"), text("ctrl+a"), text("'Films"), text("Tab"), text("ctrl+a"), u'\'' + gone,
        text("Return")},
       &KeyboardPoints::entries,
       both},
      {"it says that the folder is not there",
       {},
       &KeyboardPoints::aboutEntries,
       text(
           "The folder is there. It has no listing yet; a rescan makes it. | The folder is not there. It has "
           "no listing yet; a rescan makes it.")},
      {"the last edit is taken back",
       {text("Tab"), text("ctrl+z")},
       &KeyboardPoints::entries,
       QStringLiteral("Music %1").arg(music)},
      {"and made again", {text("ctrl+shift+z")}, &KeyboardPoints::entries, both},
      {"Esc leaves the editor", {text("Escape")}, &KeyboardPoints::frontWindow, text("Quorvin Utility")},
      {"with nothing changed", {}, &KeyboardPoints::aboutList, text("There is nothing to search yet.")},
  });
}

}  // namespace

}  // namespace quorvin::test
