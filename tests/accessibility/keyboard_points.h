// SPDX-License-Identifier: GPL-2.0-or-later

// What the program can do, point by point: done by keys alone, and read over the accessibility bus.
#pragma once

#include "accessibility/running_program_fixture.h"

#include <map>
#include <optional>

namespace quorvin::test {

/// For the many texts of points.
inline QString text(const char* latin) {
  return QString::fromLatin1(latin);
}

class KeyboardPoints : public ProgramOnBus {
 public:
  using Reading = QString (KeyboardPoints::*)();

  /// One point: what is done, and what is read of it then. Reading takes the program's time, so it is not
  /// read all the time.
  struct Point {
    const char* what;
    /// As Desktop::press() takes them; one that begins with an apostrophe is typed, and one that begins with
    /// ">" is what Tab is to lead to.
    QStringList keys;
    Reading reading;
    QString said;
  };

  void expectAll(const std::vector<Point>& points) {
    waitUntil(text("for the main window"), [&] { return frontWindow() == u"Quorvin Utility"; });
    for (const Point& point : points) {
      for (const QString& key : point.keys) use(key);
      QString said;
      waitUntil(
          QStringLiteral("to read that %1: %2").arg(text(point.what), point.said),
          [&] {
            said = (this->*point.reading)();
            return said == point.said;
          },
          [&] { return said; });
    }
  }

  void use(const QString& key) {
    if (key.startsWith(u'\'')) return desktop_.screen().type(key.mid(1));
    if (key.startsWith(u'>')) return tabTo(key.mid(1));
    desktop_.screen().press({key});
  }
  void tabTo(const QString& wanted) {
    constexpr int kMostSteps = 20;
    for (int step = 0; step < kMostSteps && focused() != wanted; ++step) {
      const QString before = focused();
      desktop_.screen().press({text("Tab")});
      waitUntil(text("for Tab to leave ") + before, [&] { return focused() != before; });
    }
  }

  // What is read.

  QString status() { return firstOf(node(text("status bar"), text("Status")), text("label")); }
  QString shownCount() {
    BusNode& count = known_[text("count")];
    for (const BusNode& each : count.path.isEmpty() ? everything() : std::vector<BusNode>()) {
      if (each.role == u"label" && each.name.endsWith(u" shown")) count = each;
    }
    return bus_.again(count).name;
  }
  QString rowCount() { return QString::number(bus_.childCount(list())); }
  QString firstRow() { return bus_.child(list(), 0).name; }
  QString lastRow() { return bus_.child(list(), bus_.childCount(list()) - 1).name; }
  QString aboutFirstRow() { return bus_.description(bus_.child(list(), 0)); }
  QString aboutList() { return bus_.description(list()); }
  QString searchText() { return bus_.text(node(text("text"), text("Search text"))); }
  /// The items of the View menu that are checked, but for the columns and what does not change here.
  QString checked() {
    QStringList names;
    for (const BusNode& item : everything()) {
      const bool isOrder = item.name.startsWith(u"Sort by") || item.name == u"Found Order";
      if (item.isChecked && (isOrder || item.name == u"Search While Typing")) names.append(item.name);
    }
    return names.join(u", ");
  }
  QString focused() { return asLine(focus()); }
  QString aboutFocused() { return bus_.description(focus()); }
  QString frontWindow() { return front().name; }
  /// The title of the picture window while it is shown.
  QString shownPreview() {
    for (const BusNode& window : windows()) {
      if (window.isShowing && window.name == u"Image Preview") return window.name;
    }
    return {};
  }
  QString frontLines() { return linesOf(front()).join(u'\n'); }
  /// Of the properties: which words were found, and in which line of the listing.
  QString wordsAndLine() {
    QStringList values;
    for (const char* name : {"Words found", "Line in the listing"}) {
      const auto box = control(front(), text("text"), text(name));
      values.append(box ? bus_.text(*box) : QString());
    }
    return values.join(u", ");
  }
  /// The texts in the list of an editor.
  QString entries() {
    QStringList texts;
    for (const BusNode& each : bus_.everythingBelow(front())) {
      if (each.role == u"tree item") texts.append(each.name);
    }
    return texts.join(u' ');
  }
  QString aboutEntries() {
    QStringList texts;
    for (const BusNode& each : bus_.everythingBelow(front())) {
      if (each.role == u"tree item") texts.append(bus_.description(each));
    }
    texts.removeDuplicates();
    return texts.join(u" | ");
  }
  QString copied() { return inShort(desktop_.screen().clipboardText()); }
  QString exported() {
    return folder_.has(text("out.csv")) ? inShort(QString::fromUtf8(folder_.readFile(text("out.csv"))))
                                        : QString();
  }
  /// What was opened, by the addresses that the desktop's own program for it was given.
  QString opened() {
    return folder_.has(text("opened")) ? QString::fromUtf8(folder_.readFile(text("opened"))).trimmed()
                                       : QString();
  }

  /// What was handed to the audio player, one call a line.
  QString queued() {
    return folder_.has(text("queued")) ? QString::fromUtf8(folder_.readFile(text("queued"))).trimmed()
                                       : QString();
  }

  // By the mouse.

  /// The rows count from 0; the row is one that is on the screen.
  QPoint placeOfRow(int row) { return bus_.place(bus_.child(list(), row)).center(); }
  void clickRow(int row, const QString& heldKey = {}) { desktop_.screen().click(placeOfRow(row), heldKey); }
  /// Between the upper edge of the list and that of its first row, above the first row's start. Each time
  /// somewhere else, so that two quick clicks are no double click.
  void clickFirstTitle() {
    constexpr int kTooFarForADoubleClick = 10;
    titleShift_ = kTooFarForADoubleClick - titleShift_;
    const QPoint corner = bus_.place(list()).topLeft();
    const QRect first = bus_.place(bus_.child(list(), 0));
    desktop_.screen().click(
        {first.left() + first.height() * 2 + titleShift_, (corner.y() + first.top()) / 2});
  }
  void dragRowToSearchText(int row) {
    const QRect box = bus_.place(node(text("text"), text("Search text")));
    desktop_.screen().drag(placeOfRow(row), box.center());
  }
  void dragFirstRowToSearchText() { dragRowToSearchText(0); }

  /// So that what is opened or queued is taken down: programs of the test's own in the place of the desktop's
  /// and of an audio player.
  QProcessEnvironment environmentThatNotesOpening() {
    writeProgram("bin/xdg-open", "$1", "opened");
    writeProgram("bin/audacious", "$*", "queued");
    QProcessEnvironment environment = desktop_.environment();
    environment.insert(text("PATH"), folder_.pathOf(text("bin:")) + environment.value(text("PATH")));
    return environment;
  }

 private:
  /// One that appends what it was called with to a file.
  void writeProgram(const char* name, const QByteArray& called, const char* notes) {
    QFile program(folder_.writeFile(text(name), "#!/bin/sh\nprintf '%s\\n' \"" + called + "\" >>'" +
                                                    folder_.pathOf(text(notes)).toLocal8Bit() + "'\n"));
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  /// The window that has the keys.
  BusNode front() {
    for (const BusNode& window : windows()) {
      if (window.isActive && window.isShowing) return window;
    }
    return {};
  }
  /// What has the keys in it: the row, where the list has them.
  BusNode focus() { return focusBelow(front()).value_or(BusNode()); }
  std::optional<BusNode> focusBelow(const BusNode& top) {
    for (const BusNode& child : bus_.children(top)) {
      if (!child.isShowing) continue;
      if (const auto below = focusBelow(child)) return below;
      if (child.isFocused) return child;
    }
    return std::nullopt;
  }
  BusNode mainWindow() {
    for (const BusNode& window : windows()) {
      if (window.role == u"frame" && window.name == text("Quorvin Utility")) return window;
    }
    return {};
  }
  std::vector<BusNode> everything() { return bus_.everythingBelow(mainWindow()); }
  /// A control of the main window, which is looked for once.
  const BusNode& node(const QString& role, const QString& name) {
    BusNode& node = known_[role + name];
    if (node.path.isEmpty()) node = control(mainWindow(), role, name).value_or(BusNode());
    return node;
  }
  const BusNode& list() { return node(text("list"), text("Hits")); }
  QString firstOf(const BusNode& parent, const QString& role) {
    for (const BusNode& child : bus_.children(parent)) {
      if (child.role == role) return child.name;
    }
    return {};
  }
  /// How many lines there are, the first and the last one.
  static QString inShort(const QString& lines) {
    const QStringList all = lines.trimmed().split(u'\n');
    return QStringLiteral("%1: %2 ... %3").arg(all.size()).arg(all.first().trimmed(), all.last().trimmed());
  }

  std::map<QString, BusNode> known_;
  int titleShift_ = 0;
};

}  // namespace quorvin::test
