// SPDX-License-Identifier: GPL-2.0-or-later

// The source editor by keys alone.
#include "editors/local_loc_fixture.h"

namespace quorvin::test {

namespace {

class EditorKeys : public LocalLocTest {
 protected:
  EditorKeys() { haveOnline(threeFolders()); }

  /// Presses a key where the keyboard is.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(dialog().focusWidget(), key, modifiers);
  }
};

TEST_F(EditorKeys, TheDescriptionIsTypedFirst) {
  EXPECT_EQ(dialog().focusWidget(), controls().Desc);
  EXPECT_EQ(controls().Desc->selectedText(), QStringLiteral("Online"));
}

TEST_F(EditorKeys, TabLeadsThroughTheControlsInReadingOrder) {
  std::vector<QString> names;
  select(1);
  controls().Online->setFocus();
  for (int tab = 0; tab < 11; ++tab) {
    names.push_back(dialog().focusWidget()->objectName());
    press(Qt::Key_Tab);
  }
  EXPECT_EQ(names,
            (std::vector{QStringLiteral("Online"), QStringLiteral("MvUp"), QStringLiteral("MvDn"),
                         QStringLiteral("LocDel"), QStringLiteral("Desc"), QStringLiteral("LocalDataFolder"),
                         QStringLiteral("GetListName"), QStringLiteral("LocAdd"),
                         QStringLiteral("AddSources"), QStringLiteral("OK"), QStringLiteral("Cancel")}));
}

TEST_F(EditorKeys, EnterInEitherBoxAddsOnce) {
  type(controls().LocalDataFolder, QStringLiteral("C:\\"));
  press(Qt::Key_Return);
  EXPECT_EQ(edited().size(), 4U);
  type(controls().Desc, QStringLiteral("Music CDs"));
  press(Qt::Key_Enter);
  ASSERT_EQ(edited().size(), 5U);
  EXPECT_EQ(edited()[4], (SourceEntry{QStringLiteral("Music CDs"), QStringLiteral("C:\\")}));
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(EditorKeys, EnterInTheListDoesNothing) {
  type(controls().LocalDataFolder, QStringLiteral("C:\\"));
  select(1);
  press(Qt::Key_Return);
  press(Qt::Key_Enter);
  EXPECT_EQ(edited(), threeFolders());
  EXPECT_TRUE(dialog().isVisible());
}

TEST_F(EditorKeys, EnterOnAButtonPressesThatButton) {
  controls().Cancel->setFocus();
  press(Qt::Key_Return);
  EXPECT_FALSE(dialog().isVisible());
}

TEST_F(EditorKeys, TheOnlyEntryIsSelectedByTheKeysThatLeadToIt) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End}) {
    haveOnline({threeFolders()[0]});
    LocalLoc other(editing(), LocMode_, nullptr);
    showAndActivate(other);
    other.controls().Online->setFocus(Qt::TabFocusReason);
    QTest::keyClick(other.controls().Online, key);
    EXPECT_EQ(other.controls().Online->selectedRows(), std::vector{0}) << key;
  }
}

TEST_F(EditorKeys, EnterAfterAPickAddsWhatWasPicked) {
  picker_.pick = QStringLiteral("D:\\Films");
  controls().GetListName->setFocus();
  press(Qt::Key_Space);
  press(Qt::Key_Return);
  EXPECT_EQ(picker_.askedForFolder.size(), 1U);
  ASSERT_EQ(edited().size(), 4U);
  EXPECT_EQ(edited()[3], (SourceEntry{QStringLiteral("Films"), QStringLiteral("D:\\Films\\")}));
}

TEST_F(EditorKeys, MoveAndDeleteCanBePressedOnlyWhileAnEntryIsSelected) {
  const auto enabled = [this] {
    const LocalLocControls& all = controls();
    return std::vector{all.MvUp->isEnabled(), all.MvDn->isEnabled(), all.LocDel->isEnabled()};
  };
  EXPECT_EQ(enabled(), (std::vector{false, false, false}));
  select(1);
  EXPECT_EQ(enabled(), (std::vector{true, true, true}));
  controls().LocDel->setFocus();
  press(Qt::Key_Space);
  controls().Online->clearSelection();
  EXPECT_EQ(enabled(), (std::vector{false, false, false}));
  EXPECT_EQ(dialog().focusWidget(), controls().Online) << "the keyboard is somewhere";
}

TEST_F(EditorKeys, DeleteInTheListDeletesTheSelectedEntry) {
  select(3);
  press(Qt::Key_Delete);
  EXPECT_EQ(edited(), (Entries{threeFolders()[0], threeFolders()[1]}));
  EXPECT_EQ(selected(), 2);
}

TEST_F(EditorKeys, DeleteInTheListDeletesAllSelectedEntries) {
  select(2);
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_Delete);
  EXPECT_EQ(edited(), Entries{threeFolders()[0]});
  EXPECT_EQ(selected(), 1);
}

TEST_F(EditorKeys, AWholeListIsEmptiedByTwoKeys) {
  Entries full;
  for (int i = 0; i < 2000; ++i) full.push_back({QStringLiteral("Offline"), QString::number(100 + i)});
  haveOnline(full);
  select(1);
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  EXPECT_EQ(edited(), Entries());
}

TEST_F(EditorKeys, AltWithUpAndDownMovesAllSelectedEntriesTogether) {
  const Entries three = threeFolders();
  select(2);
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(edited(), (Entries{three[1], three[2], three[0]}));
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(edited(), (Entries{three[1], three[2], three[0]}));
  EXPECT_EQ(controls().Online->selectedRows(), (std::vector{0, 1}));
  press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(edited(), three);
  press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(edited(), three);
  EXPECT_EQ(controls().Online->selectedRows(), (std::vector{1, 2}));
}

TEST_F(EditorKeys, DeleteInABoxDeletesCharacters) {
  select(3);
  controls().Desc->setFocus();
  controls().Desc->setCursorPosition(0);
  press(Qt::Key_Delete);
  EXPECT_EQ(controls().Desc->text(), QStringLiteral("nline"));
  EXPECT_EQ(edited(), threeFolders());
}

TEST_F(EditorKeys, AltWithUpAndDownMovesTheSelectedEntry) {
  select(3);
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(edited(), (Entries{threeFolders()[0], threeFolders()[2], threeFolders()[1]}));
  EXPECT_EQ(selected(), 2);
  press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(edited(), threeFolders());
  EXPECT_EQ(selected(), 3);
}

TEST_F(EditorKeys, AltWithUpWorksWhileABoxHasTheKeyboard) {
  select(2);
  controls().LocalDataFolder->setFocus();
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(edited()[0], threeFolders()[1]);
}

TEST_F(EditorKeys, EscapeCancelsFromEverywhere) {
  for (QWidget* place : {static_cast<QWidget*>(controls().Online), static_cast<QWidget*>(controls().Desc),
                         static_cast<QWidget*>(controls().LocalDataFolder)}) {
    showAndActivate(dialog());
    place->setFocus();
    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog().isVisible());
  }
  EXPECT_EQ(online(), threeFolders());
  EXPECT_TRUE(messages_.asked.empty());
}

}  // namespace

}  // namespace quorvin::test
