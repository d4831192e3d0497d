// SPDX-License-Identifier: GPL-2.0-or-later
#include "accessibility/readings.h"

#include <QMetaEnum>
#include <QSet>
#include <QVariant>

#include <algorithm>

namespace quorvin::test {

namespace {

QString labelOf(const QAccessibleInterface& told) {
  for (const auto& [other, relation] : told.relations(QAccessible::Label)) {
    if (relation.testFlag(QAccessible::Label)) return other->text(QAccessible::Name);
  }
  return {};
}

Reading readingOf(const QAccessibleInterface& told) {
  Reading reading;
  if (const QObject* object = told.object()) {
    reading.objectName = object->objectName();
    reading.caption = object->property("text").toString().remove(u'&');
  }
  reading.role = told.role();
  reading.name = told.text(QAccessible::Name);
  reading.label = labelOf(told);
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

bool onlyHoldsOrParts(QAccessible::Role role) {
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

/// The toolkit's own parts have names that start like this.
bool isNamedByUs(const Reading& reading) {
  return !reading.objectName.isEmpty() && !reading.objectName.startsWith(QStringLiteral("qt_"));
}

QString asLine(const Reading& reading) {
  const char* role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(reading.role);
  // A combo box has what is chosen in it for a name, and its label is read before.
  const QString& name = reading.role == QAccessible::ComboBox ? reading.label : reading.name;
  return QStringLiteral("%1 %2: %3%4")
      .arg(QString::fromLatin1(role), reading.objectName, name,
           reading.isVisible ? QString() : QStringLiteral(" (hidden)"));
}

bool hasWord(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetterOrNumber(); });
}

QString faultOf(const Reading& reading) {
  if (onlyHoldsOrParts(reading.role)) return {};
  // A line that is empty at present.
  if (reading.role == QAccessible::StaticText && reading.name.isEmpty()) return {};
  if (reading.name.isEmpty() && reading.label.isEmpty()) return QStringLiteral("has no name");
  if (!hasWord(reading.name + reading.label)) return QStringLiteral("has a name without a word");
  const bool isProgrammersName = reading.name == reading.objectName && reading.name != reading.caption;
  return isProgrammersName ? QStringLiteral("is called as in the program's text") : QString();
}

bool isControl(const Reading& reading) {
  return reading.isVisible && !onlyHoldsOrParts(reading.role) && reading.role != QAccessible::StaticText &&
         reading.role != QAccessible::ListItem && reading.role != QAccessible::TreeItem;
}

}  // namespace

std::vector<Reading> readingsOf(QWidget& window) {
  std::vector<Reading> readings;
  if (const auto* told = QAccessible::queryAccessibleInterface(&window)) collect(*told, readings);
  return readings;
}

QString asLines(const std::vector<Reading>& readings) {
  QStringList lines;
  for (const Reading& reading : readings) {
    const bool saysNothing =
        onlyHoldsOrParts(reading.role) && reading.name.isEmpty() && !isNamedByUs(reading);
    if (!saysNothing) lines.append(asLine(reading));
  }
  return lines.join(u'\n');
}

QStringList faultsOf(const std::vector<Reading>& readings) {
  QStringList faults;
  QSet<QString> seen;
  for (const Reading& reading : readings) {
    const QString fault = faultOf(reading);
    if (!fault.isEmpty()) faults.append(asLine(reading) + u' ' + fault);
    if (!isControl(reading)) continue;
    const QString label = reading.role == QAccessible::ComboBox ? reading.label : QString();
    const QString read = QString::number(reading.role) + label + reading.name;
    if (seen.contains(read)) faults.append(asLine(reading) + QStringLiteral(" is read like another control"));
    seen.insert(read);
  }
  return faults;
}

}  // namespace quorvin::test
