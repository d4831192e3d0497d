// SPDX-License-Identifier: GPL-2.0-or-later

// The accessibility bus, as a screen reader uses it.
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QRect>
#include <QString>
#include <QVariant>

#include <vector>

namespace quorvin::test {

/// One thing of a program's tree, as it was when it was asked for.
struct BusNode {
  QString service;
  QString path;
  /// "push button"
  QString role;
  QString name;
  /// The name of the label that belongs to it; empty where there is none.
  QString label;
  bool isShowing = false;
  bool isActive = false;
  bool isFocused = false;
  bool isChecked = false;
};

/// A connection to the bus. What has gone from a program's tree meanwhile counts as nameless and childless.
class AccessibleBus {
 public:
  explicit AccessibleBus(const QString& address);
  ~AccessibleBus();
  AccessibleBus(const AccessibleBus&) = delete;
  AccessibleBus& operator=(const AccessibleBus&) = delete;

  /// Of a list only so many children are visited: it may have millions, and readers do not go through them
  /// either.
  static constexpr int kMostOfAList = 20;

  /// The programs that can be read.
  std::vector<BusNode> programs() const;
  std::vector<BusNode> children(const BusNode& parent) const;
  /// Everything below `top`, from top to bottom.
  std::vector<BusNode> everythingBelow(const BusNode& top) const;
  int childCount(const BusNode& parent) const;
  BusNode child(const BusNode& parent, int number) const;
  /// The same thing as it is now.
  BusNode again(const BusNode& node) const { return described(node.service, node.path); }
  QString description(const BusNode& node) const;
  /// What is in a text box.
  QString text(const BusNode& node) const;

  /// Where on the screen it is, in pixels; empty where that is not known.
  QRect place(const BusNode& node) const;

  /// Does what pressing would do. Returns at once: a press may open a dialog, and is over when that is
  /// closed.
  void press(const BusNode& node) const;
  /// Replaces what is in a text box by `text`. False where the box refuses.
  bool write(const BusNode& node, const QString& text) const;

 private:
  QDBusMessage callTo(const BusNode& node, const char* interface, const char* method) const;
  QVariant answer(const QDBusMessage& call) const;
  BusNode described(const QString& service, const QString& path) const;
  QVariant property(const BusNode& node, const char* name) const;
  QString nameOf(const BusNode& node) const;
  QString labelOf(const BusNode& node) const;
  void readStates(BusNode& node) const;

  QDBusConnection bus_;
};

}  // namespace quorvin::test
