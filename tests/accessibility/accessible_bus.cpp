// SPDX-License-Identifier: GPL-2.0-or-later
#include "accessibility/accessible_bus.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>

namespace quorvin::test {

namespace {

constexpr char kConnection[] = "accessibility bus of the test";
constexpr char kAccessible[] = "org.a11y.atspi.Accessible";
constexpr char kRoot[] = "/org/a11y/atspi/accessible/root";
/// Numbers of the protocol.
constexpr uint kLabelledBy = 2;
constexpr int kActive = 1;
constexpr int kChecked = 4;
constexpr int kFocused = 12;
constexpr int kShowing = 25;
constexpr int kLongestCallMilliseconds = 120'000;

QString latin(const char* text) {
  return QString::fromLatin1(text);
}

/// Where in the tree something is.
struct Place {
  QString service;
  QDBusObjectPath path;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, Place& place) {
  argument.beginStructure();
  argument >> place.service >> place.path;
  argument.endStructure();
  return argument;
}

std::vector<Place> placesIn(const QDBusArgument& list) {
  std::vector<Place> places;
  list.beginArray();
  while (!list.atEnd()) {
    Place place;
    list >> place;
    places.push_back(place);
  }
  list.endArray();
  return places;
}

}  // namespace

AccessibleBus::AccessibleBus(const QString& address)
    : bus_(QDBusConnection::connectToBus(address, latin(kConnection))) {}

AccessibleBus::~AccessibleBus() {
  QDBusConnection::disconnectFromBus(latin(kConnection));
}

std::vector<BusNode> AccessibleBus::programs() const {
  BusNode registry;
  registry.service = latin("org.a11y.atspi.Registry");
  registry.path = latin(kRoot);
  return children(registry);
}

std::vector<BusNode> AccessibleBus::children(const BusNode& parent) const {
  if (parent.role == u"list") {
    std::vector<BusNode> nodes;
    const int count = std::min(kMostOfAList, childCount(parent));
    for (int number = 0; number < count; ++number) nodes.push_back(child(parent, number));
    return nodes;
  }
  const QVariant list = answer(callTo(parent, kAccessible, "GetChildren"));
  std::vector<BusNode> nodes;
  if (!list.isValid()) return nodes;
  for (const Place& place : placesIn(list.value<QDBusArgument>())) {
    nodes.push_back(described(place.service, place.path.path()));
  }
  return nodes;
}

int AccessibleBus::childCount(const BusNode& parent) const {
  return property(parent, "ChildCount").toInt();
}

BusNode AccessibleBus::child(const BusNode& parent, int number) const {
  QDBusMessage call = callTo(parent, kAccessible, "GetChildAtIndex");
  call << number;
  const QVariant reference = answer(call);
  if (!reference.isValid()) return {};
  Place place;
  reference.value<QDBusArgument>() >> place;
  return described(place.service, place.path.path());
}

QString AccessibleBus::description(const BusNode& node) const {
  return property(node, "Description").toString();
}

QString AccessibleBus::text(const BusNode& node) const {
  constexpr int kToTheEnd = -1;
  QDBusMessage call = callTo(node, "org.a11y.atspi.Text", "GetText");
  call << 0 << kToTheEnd;
  return answer(call).toString();
}

std::vector<BusNode> AccessibleBus::everythingBelow(const BusNode& top) const {
  std::vector<BusNode> all;
  for (const BusNode& child : children(top)) {
    all.push_back(child);
    const std::vector<BusNode> below = everythingBelow(child);
    all.insert(all.end(), below.begin(), below.end());
  }
  return all;
}

QRect AccessibleBus::place(const BusNode& node) const {
  constexpr uint kOnScreen = 0;
  QDBusMessage call = callTo(node, "org.a11y.atspi.Component", "GetExtents");
  call << kOnScreen;
  const QVariant extents = answer(call);
  if (!extents.isValid()) return {};
  QRect place;
  extents.value<QDBusArgument>() >> place;
  return place;
}

void AccessibleBus::press(const BusNode& node) const {
  QDBusMessage call = callTo(node, "org.a11y.atspi.Action", "DoAction");
  call << 0;
  bus_.send(call);
}

bool AccessibleBus::write(const BusNode& node, const QString& text) const {
  QDBusMessage call = callTo(node, "org.a11y.atspi.EditableText", "SetTextContents");
  call << text;
  return answer(call).toBool();
}

QDBusMessage AccessibleBus::callTo(const BusNode& node, const char* interface, const char* method) const {
  return QDBusMessage::createMethodCall(node.service, node.path, latin(interface), latin(method));
}

QVariant AccessibleBus::answer(const QDBusMessage& call) const {
  const QDBusMessage reply = bus_.call(call, QDBus::Block, kLongestCallMilliseconds);
  return reply.arguments().isEmpty() || reply.type() != QDBusMessage::ReplyMessage
             ? QVariant()
             : reply.arguments().first();
}

BusNode AccessibleBus::described(const QString& service, const QString& path) const {
  BusNode node;
  node.service = service;
  node.path = path;
  node.role = answer(callTo(node, kAccessible, "GetRoleName")).toString();
  node.name = nameOf(node);
  node.label = labelOf(node);
  readStates(node);
  return node;
}

QVariant AccessibleBus::property(const BusNode& node, const char* name) const {
  QDBusMessage call = callTo(node, "org.freedesktop.DBus.Properties", "Get");
  call << latin(kAccessible) << latin(name);
  return answer(call).value<QDBusVariant>().variant();
}

QString AccessibleBus::nameOf(const BusNode& node) const {
  return property(node, "Name").toString();
}

QString AccessibleBus::labelOf(const BusNode& node) const {
  const QVariant relations = answer(callTo(node, kAccessible, "GetRelationSet"));
  if (!relations.isValid()) return {};
  const auto list = relations.value<QDBusArgument>();
  QString label;
  list.beginArray();
  while (!list.atEnd()) {
    uint relation = 0;
    list.beginStructure();
    list >> relation;
    for (const Place& place : placesIn(list)) {
      BusNode other;
      other.service = place.service;
      other.path = place.path.path();
      if (relation == kLabelledBy) label = nameOf(other);
    }
    list.endStructure();
  }
  list.endArray();
  return label;
}

void AccessibleBus::readStates(BusNode& node) const {
  const QVariant states = answer(callTo(node, kAccessible, "GetState"));
  if (!states.isValid()) return;
  QList<uint> words;
  states.value<QDBusArgument>() >> words;
  const auto has = [&words](int state) { return !words.isEmpty() && ((words.first() >> state) & 1U) != 0; };
  node.isShowing = has(kShowing);
  node.isActive = has(kActive);
  node.isFocused = has(kFocused);
  node.isChecked = has(kChecked);
}

}  // namespace quorvin::test
