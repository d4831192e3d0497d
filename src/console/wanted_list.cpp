// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/wanted_list.h"

#include "platform/text_encoding.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <optional>
#include <string_view>

namespace quorvin {

namespace {

/// The object of a line that is one and has a name; else an empty one.
QJsonObject objectIn(const QByteArray& line) {
  if (!line.startsWith('{')) return {};
  const QJsonObject object = QJsonDocument::fromJson(line).object();
  return object.value(QLatin1String("name")).isString() ? object : QJsonObject();
}

/// Nothing where the size is not the file's own.
std::optional<std::int64_t> sizeIn(const QJsonObject& object) {
  const std::int64_t size = object.value(QLatin1String("size")).toInteger(-1);
  if (size < 0 || object.value(QLatin1String("inherited")).toBool()) return std::nullopt;
  return size;
}

QString lastPart(const QString& path) {
  return path.sliced(std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1);
}

}  // namespace

void readWantedList(const ListLines::Read& read, WantedFiles& wanted) {
  ListLines lines(read, "utf-8");
  for (std::string_view text; lines.next(text);) {
    const QByteArray line(text.data(), static_cast<qsizetype>(text.size()));
    const QJsonObject object = objectIn(line);
    if (object.isEmpty()) {
      wanted.add(lastPart(decodeSystemText(line)), std::nullopt);
    } else {
      wanted.add(object.value(QLatin1String("name")).toString(), sizeIn(object));
    }
  }
}

}  // namespace quorvin
