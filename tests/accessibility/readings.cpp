#include "accessibility/readings.h"

#include <QMetaEnum>

namespace quorvin::test {

namespace {

Reading readingOf(const QAccessibleInterface& told) {
  Reading reading;
  if (const QObject* object = told.object()) reading.objectName = object->objectName();
  reading.role = told.role();
  reading.name = told.text(QAccessible::Name);
  reading.isVisible = !told.state().invisible;
  return reading;
}

void collect(const QAccessibleInterface& parent, std::vector<Reading>& readings) {
  for (int number = 0; number < parent.childCount(); ++number) {
    const QAccessibleInterface* child = parent.child(number);
    if (!child || !child->isValid()) continue;
    readings.push_back(readingOf(*child));
    collect(*child, readings);
  }
}

}  // namespace

std::vector<Reading> readingsOf(QWidget& window) {
  std::vector<Reading> readings;
  if (const auto* told = QAccessible::queryAccessibleInterface(&window)) collect(*told, readings);
  return readings;
}

bool needsNoName(QAccessible::Role role) {
  switch (role) {
    case QAccessible::Client:
    case QAccessible::Grouping:
    case QAccessible::LayeredPane:
    case QAccessible::Border:
    case QAccessible::Separator:
      return true;
    default:
      return false;
  }
}

std::string toText(const Reading& reading) {
  const char* role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(reading.role);
  return std::string(role ? role : "?") + ' ' + reading.objectName.toStdString() + ": " +
         reading.name.toStdString();
}

}  // namespace quorvin::test
