// SPDX-License-Identifier: GPL-2.0-or-later

// The first minutes of somebody who has just installed the program: from an empty home to a file that is
// found, by the mouse, with nothing but what the windows say.
#include "accessibility/accessible_bus.h"
#include "accessibility/test_desktop.h"
#include "support/eventually.h"
#include "support/temporary_folder.h"

#include <QProcess>
#include <QStringList>
#include <gtest/gtest.h>

#include <optional>

namespace quorvin::test {

namespace {

const QString kMainWindow = QStringLiteral("Quorvin Utility");
const QString kEditor = QStringLiteral("Local File Search Locations");
const QString kPicker = QStringLiteral("Choose Folders to Catalogue");
const QString kButton = QStringLiteral("push button");
const QString kFolder = QStringLiteral("tree item");

class FirstMinutes : public testing::Test {
 protected:
  FirstMinutes() {
    home_.writeFile(QStringLiteral("Music/Northern Harbour/live at dawn.mp3"), "x");
    home_.writeFile(QStringLiteral("Music/Northern Harbour/evening.mp3"), "x");
    home_.writeFile(QStringLiteral("Films/harbour lights.avi"), "x");
    QProcessEnvironment environment = desktop_.environment();
    environment.insert(QStringLiteral("HOME"), home_.path());
    program_.setProcessEnvironment(environment);
    program_.setWorkingDirectory(home_.path());
    program_.setProcessChannelMode(QProcess::ForwardedChannels);
    program_.start(QStringLiteral(QUORVIN_PROGRAM), QStringList());
  }
  ~FirstMinutes() override { endProcess(program_); }

  bool control(const QStringList& arguments) const {
    QProcess process;
    process.setProcessEnvironment(desktop_.environment());
    process.start(QStringLiteral(QUORVIN_XDOTOOL), arguments);
    return process.waitForFinished() && process.exitCode() == 0;
  }

  std::vector<BusNode> windows() const {
    for (const BusNode& program : bus_.programs()) {
      if (program.name == u"quorvin") return bus_.children(program);
    }
    return {};
  }
  /// What is shown under this name in the window of that title; nothing where it is not there.
  std::optional<BusNode> find(const QString& title, const QString& role, const QString& name) const {
    for (const BusNode& window : windows()) {
      if (window.name != title || !window.isShowing) continue;
      for (const BusNode& node : bus_.everythingBelow(window)) {
        if (node.role == role && node.name == name && node.isShowing) return node;
      }
    }
    return std::nullopt;
  }
  bool comes(const QString& title, const QString& role, const QString& name) const {
    return eventually([&] { return find(title, role, name).has_value(); });
  }
  bool goes(const QString& title) const {
    return eventually([&] {
      for (const BusNode& window : windows()) {
        if (window.name == title && window.isShowing) return false;
      }
      return true;
    });
  }

  /// A click of a person, who sees the thing and waits until it has come to rest.
  void click(const QString& title, const QString& role, const char* name, const QString& heldKey = {}) {
    if (HasFatalFailure()) return;
    const QString wanted = QString::fromLatin1(name);
    constexpr int kLooksAtRest = 8;
    QRect place;
    int looks = 0;
    ASSERT_TRUE(eventually([&] {
      const auto node = find(title, role, wanted);
      const QRect before = place;
      place = node ? bus_.place(*node) : QRect();
      looks = !place.isEmpty() && place == before ? looks + 1 : 0;
      return looks == kLooksAtRest;
    })) << "no "
        << name << " in " << title.toStdString();
    const QPoint middle = place.center();
    QStringList does = {QStringLiteral("mousemove"), QString::number(middle.x()),
                        QString::number(middle.y())};
    if (!heldKey.isEmpty()) does += {QStringLiteral("keydown"), heldKey};
    does += {QStringLiteral("click"), QStringLiteral("1")};
    if (!heldKey.isEmpty()) does += {QStringLiteral("keyup"), heldKey};
    ASSERT_TRUE(control(does)) << name;
    ++clicks_;
  }
  void clickButton(const QString& title, const char* name) { click(title, kButton, name); }

  void catalogueTwoAtOnce(const char* button) {
    clickButton(kMainWindow, "Catalogue folders of your own");
    clickButton(kEditor, button);
    ASSERT_TRUE(comes(kPicker, kFolder, QStringLiteral("Films")));
    click(kPicker, kFolder, "Music");
    click(kPicker, kFolder, "Films", QStringLiteral("ctrl"));
    clickButton(kPicker, "Choose");
    ASSERT_TRUE(goes(kPicker));
  }

  /// From the folders in the editor's list on.
  void saveRescanAndFind() {
    const QString label = QStringLiteral("label");
    clickButton(kEditor, "Save");
    ASSERT_TRUE(comes(kMainWindow, label, QStringLiteral("Rescan Local Search Locations?")));
    clickButton(kMainWindow, "Yes");
    ASSERT_TRUE(goes(kEditor));
    EXPECT_TRUE(comes(kMainWindow, label, QStringLiteral("2 listings, 3 entries, 3 new, 0 gone")));
    ASSERT_TRUE(control({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("4"),
                         QStringLiteral("live harbour")}));
    ASSERT_TRUE(control({QStringLiteral("key"), QStringLiteral("Return")}));
    EXPECT_TRUE(comes(kMainWindow, label, QStringLiteral("1 hit")));
    bool isFound = false;
    for (const BusNode& window : windows()) {
      for (const BusNode& node : bus_.everythingBelow(window)) {
        isFound = isFound || (node.role == u"list item" && node.name.contains(u"live at dawn.mp3"));
      }
    }
    EXPECT_TRUE(isFound);
  }

  TemporaryFolder home_;
  TestDesktop desktop_;
  AccessibleBus bus_{desktop_.accessibilityBus()};
  QProcess program_;
  int clicks_ = 0;
};

TEST_F(FirstMinutes, TwoFoldersAreCataloguedAndAFileIsFoundWithSevenClicks) {
  catalogueTwoAtOnce("Browse for a File Location Path");
  saveRescanAndFind();
  EXPECT_EQ(clicks_, 7);
}

TEST_F(FirstMinutes, AddFoldersTakesSevenClicksToo) {
  catalogueTwoAtOnce("Add Folders...");
  saveRescanAndFind();
  EXPECT_EQ(clicks_, 7);
}

/// By somebody who does not know that several can be chosen. The second time the dialog starts where the
/// first folder is.
TEST_F(FirstMinutes, FoldersThatAreChosenOneAtATimeTakeNineClicks) {
  clickButton(kMainWindow, "Catalogue folders of your own");
  for (const char* folder : {"Music", "Films"}) {
    clickButton(kEditor, "Add Folders...");
    ASSERT_TRUE(comes(kPicker, kFolder, QStringLiteral("Films")));
    click(kPicker, kFolder, folder);
    clickButton(kPicker, "Choose");
    ASSERT_TRUE(goes(kPicker));
  }
  saveRescanAndFind();
  EXPECT_EQ(clicks_, 9);
}

}  // namespace

}  // namespace quorvin::test
