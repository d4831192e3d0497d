// SPDX-License-Identifier: GPL-2.0-or-later

// The real program on a desktop of the test's own, used over the accessibility bus alone.
#pragma once

#include "accessibility/accessible_bus.h"
#include "accessibility/test_desktop.h"
#include "support/eventually.h"
#include "support/listing_lines.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QStringList>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace quorvin::test {

/// Whether what has this role only holds other things, or parts them, so that nothing is read for itself.
inline bool onlyHoldsOrParts(const BusNode& node) {
  return node.role == u"filler" || node.role == u"panel" || node.role == u"separator";
}

/// For messages and comparisons: "push button: Find"; what belongs to a label has it in front: "text: Match
/// %: Desired match in percent".
inline QString asLine(const BusNode& node) {
  return node.role + QStringLiteral(": ") + (node.label.isEmpty() ? QString() : node.label + u' ') +
         node.name;
}

/// A program that a test starts when its files are there.
class ProgramOnBus : public testing::Test {
 protected:
  ~ProgramOnBus() override { endProcess(program_); }

  /// Starts it in the test's folder.
  void start(const QProcessEnvironment& environment) {
    program_.setProcessEnvironment(environment);
    program_.setWorkingDirectory(folder_.path());
    program_.setProcessChannelMode(QProcess::ForwardedChannels);
    program_.start(QStringLiteral(QUORVIN_PROGRAM), QStringList());
    ASSERT_TRUE(shown(QStringLiteral("frame"), QStringLiteral("Quorvin Utility")));
  }

  std::vector<BusNode> windows() {
    for (const BusNode& program : bus_.programs()) {
      if (program.name == u"quorvin") return bus_.children(program);
    }
    return {};
  }
  /// The window with this title as soon as it is on the screen; nothing when it does not come.
  std::optional<BusNode> shown(const QString& role, const QString& title) {
    std::optional<BusNode> window;
    (void)eventually([&] { return (window = findShown(windows(), role, title)).has_value(); });
    return window;
  }
  bool isGone(const BusNode& window) {
    return eventually([&] { return !findShown(windows(), window.role, window.name); });
  }
  std::optional<BusNode> control(const BusNode& window, const QString& role, const QString& name) {
    const std::vector<BusNode> nodes = bus_.everythingBelow(window);
    const auto found = std::find_if(nodes.begin(), nodes.end(), [&](const BusNode& node) {
      return node.role == role && node.name == name;
    });
    return found == nodes.end() ? std::nullopt : std::optional(*found);
  }
  void press(const BusNode& window, const QString& role, const QString& name) {
    const auto found = control(window, role, name);
    ASSERT_TRUE(found) << "no " << role.toStdString() << ' ' << name.toStdString() << " in "
                       << window.name.toStdString();
    bus_.press(*found);
  }
  void pressButton(const BusNode& window, const char* name) {
    press(window, QStringLiteral("push button"), QString::fromLatin1(name));
  }
  void chooseFromMenu(const char* item) {
    const auto main = shown(QStringLiteral("frame"), QStringLiteral("Quorvin Utility"));
    ASSERT_TRUE(main);
    press(*main, QStringLiteral("menu item"), QString::fromLatin1(item));
  }

  /// What of a window is on the screen and says something, line by line.
  QStringList linesOf(const BusNode& window) {
    QStringList lines;
    for (const BusNode& node : bus_.everythingBelow(window)) {
      if (node.isShowing && !onlyHoldsOrParts(node)) lines.append(asLine(node));
    }
    return lines;
  }
  /// Walks the whole tree of the program, what is hidden included.
  void expectEveryControlNamed() {
    int walked = 0;
    for (const BusNode& window : windows()) {
      EXPECT_FALSE(window.name.isEmpty()) << "a window without a name: " << window.path.toStdString();
      for (const BusNode& node : bus_.everythingBelow(window)) {
        ++walked;
        // A line of text that is empty at present is no control.
        const bool mayBeSilent = onlyHoldsOrParts(node) || node.role == u"label";
        EXPECT_TRUE(mayBeSilent || !node.name.isEmpty() || !node.label.isEmpty())
            << "a control without a name: " << node.role.toStdString() << " in " << window.name.toStdString();
      }
    }
    EXPECT_GT(walked, 25) << "the main window alone holds more";
  }

  TemporaryFolder folder_;
  TestDesktop desktop_;
  AccessibleBus bus_{desktop_.accessibilityBus()};

 private:
  static std::optional<BusNode> findShown(const std::vector<BusNode>& nodes, const QString& role,
                                          const QString& name) {
    for (const BusNode& node : nodes) {
      if (node.isShowing && node.role == role && node.name == name) return node;
    }
    return std::nullopt;
  }

  QProcess program_;
};

class RunningProgram : public ProgramOnBus {
 protected:
  /// The program finds a listing, an online source whose folder is gone, and the settings for both.
  void SetUp() override {
    folder_.writeFile(QStringLiteral("defaults.txt"),
                      folder_.path().toLocal8Bit() + "\r\nmain.lst\r\nmain.zip\r\nhost.invalid\r\n");
    folder_.writeFile(QStringLiteral("main.lst"),
                      blockHead("DISK", "\\Music\\") + entryLine("one tune.mp3", "131,072"));
    folder_.writeFile(QStringLiteral("Films.txt"), "");
    folder_.writeFile(QStringLiteral("Locations.txt"),
                      "\"Films\",\"" + folder_.pathOf(QStringLiteral("gone/")).toLocal8Bit() + "\"\r\n");
    start(desktop_.environment());
  }
};

}  // namespace quorvin::test
