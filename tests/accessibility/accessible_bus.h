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
};

/// A connection to the bus. What has gone from a program's tree meanwhile counts as nameless and childless.
class AccessibleBus {
 public:
  explicit AccessibleBus(const QString& address);
  ~AccessibleBus();
  AccessibleBus(const AccessibleBus&) = delete;
  AccessibleBus& operator=(const AccessibleBus&) = delete;

  /// The programs that can be read.
  std::vector<BusNode> programs() const;
  std::vector<BusNode> children(const BusNode& parent) const;
  /// Everything below `top`, from top to bottom.
  std::vector<BusNode> everythingBelow(const BusNode& top) const;

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
  std::vector<BusNode> references(const QDBusArgument& list) const;
  QString nameOf(const BusNode& node) const;
  QString labelOf(const BusNode& node) const;
  bool isShowing(const BusNode& node) const;

  QDBusConnection bus_;
};

}  // namespace quorvin::test
