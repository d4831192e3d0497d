// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/requests.h"

#include "texts/texts.h"

namespace quorvin {

namespace {

RowFormat formatNamed(const QString& name) {
  const QString lower = name.toLower();
  if (lower == QStringLiteral("tsv")) return RowFormat::Tsv;
  if (lower == QStringLiteral("csv")) return RowFormat::Csv;
  if (lower == QStringLiteral("json")) return RowFormat::Json;
  throw Mistake{Texts::tr("there is no format \"%1\"; the formats are tsv, csv and json").arg(name)};
}

std::vector<HitField> fieldsNamed(const QString& names) {
  std::vector<HitField> fields;
  for (const QString& name : names.split(u',')) {
    const std::optional<HitField> field = hitFieldNamed(name);
    if (field) {
      fields.push_back(*field);
      continue;
    }
    throw Mistake{Texts::tr("there is no field \"%1\"; the fields are %2")
                      .arg(name, hitFieldNames().join(QStringLiteral(", ")))};
  }
  return fields;
}

std::int64_t limitOf(const QString& text) {
  bool isNumber = false;
  const qlonglong limit = text.toLongLong(&isNumber);
  if (isNumber && limit >= 0) return limit;
  throw Mistake{Texts::tr("the value of --limit is a number of hits, not \"%1\"").arg(text)};
}

HitColumn columnNamed(const QString& name) {
  static const std::map<QString, HitColumn> columns = {
      {QStringLiteral("match"), HitColumn::Match},   {QStringLiteral("volume"), HitColumn::Volume},
      {QStringLiteral("folder"), HitColumn::Folder}, {QStringLiteral("name"), HitColumn::Name},
      {QStringLiteral("size"), HitColumn::Size},     {QStringLiteral("modified"), HitColumn::Date}};
  const auto found = columns.find(name.toLower());
  if (found != columns.end()) return found->second;
  throw Mistake{
      Texts::tr("hits cannot be sorted by \"%1\", only by match, volume, folder, name, size or modified")
          .arg(name)};
}

VolumeColumn volumeColumnNamed(const QString& name) {
  static const std::map<QString, VolumeColumn> columns = {
      {QStringLiteral("volume"), VolumeColumn::Volume}, {QStringLiteral("files"), VolumeColumn::Entries},
      {QStringLiteral("size"), VolumeColumn::Size},     {QStringLiteral("newest"), VolumeColumn::Newest},
      {QStringLiteral("listed"), VolumeColumn::Listed}, {QStringLiteral("free"), VolumeColumn::Free},
      {QStringLiteral("note"), VolumeColumn::Note}};
  const auto found = columns.find(name.toLower());
  if (found != columns.end()) return found->second;
  throw Mistake{
      Texts::tr(
          "volumes cannot be sorted by \"%1\", only by volume, files, size, newest, listed, free or note")
          .arg(name)};
}

ColourUse colourUseNamed(const QString& name) {
  const QString lower = name.toLower();
  if (lower == QStringLiteral("auto")) return ColourUse::Auto;
  if (lower == QStringLiteral("always")) return ColourUse::Always;
  if (lower == QStringLiteral("never")) return ColourUse::Never;
  throw Mistake{Texts::tr("the value of --color is auto, always or never, not \"%1\"").arg(name)};
}

TableFormat tableFormatNamed(const QString& name) {
  const QString lower = name.toLower();
  if (lower == QStringLiteral("text")) return TableFormat::Text;
  if (lower == QStringLiteral("tsv")) return TableFormat::Tsv;
  if (lower == QStringLiteral("csv")) return TableFormat::Csv;
  if (lower == QStringLiteral("json")) return TableFormat::Json;
  throw Mistake{Texts::tr("there is no format \"%1\"; the formats are text, tsv, csv and json").arg(name)};
}

TableFormat planFormatNamed(const QString& name) {
  const QString lower = name.toLower();
  if (lower == QStringLiteral("text")) return TableFormat::Text;
  if (lower == QStringLiteral("json")) return TableFormat::Json;
  throw Mistake{Texts::tr("there is no format \"%1\"; the formats are text and json").arg(name)};
}

int versionOf(const QString& text) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  if (isNumber && number >= 1) return number;
  throw Mistake{Texts::tr("\"%1\" is no number of a version").arg(text)};
}

QDate dayOf(const QString& text) {
  const QDate day = QDate::fromString(text, Qt::ISODate);
  if (day.isValid()) return day;
  throw Mistake{Texts::tr("the value of --on is a day such as 2004-03-31, not \"%1\"").arg(text)};
}

}  // namespace

QString textOf(const std::string& argument) {
  return QString::fromLocal8Bit(argument.c_str());
}

QString textOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

FindRequest findRequestOf(const Given& given) {
  FindRequest request;
  request.searchText = textOf(given.needed);
  request.desiredMatch = given.text("--match").value_or(request.desiredMatch);
  request.format = formatNamed(given.text("--format").value_or(QStringLiteral("tsv")));
  if (const auto fields = given.text("--fields")) request.fields = fieldsNamed(*fields);
  if (given.has("--header") && given.has("--no-header")) {
    throw Mistake{
        Texts::tr("the titles of the columns are written or not; --header and --no-header contradict")};
  }
  const bool isHeaderUsual = request.format == RowFormat::Csv && !request.fields.empty();
  request.hasHeader = !given.has("--no-header") && (isHeaderUsual || given.has("--header"));
  request.endsWithNul = given.has("--null");
  if (const auto limit = given.text("--limit")) request.limit = limitOf(*limit);
  if (const auto sort = given.text("--sort")) request.order.column = columnNamed(*sort);
  request.order.isDescending = given.has("--reverse");
  if (request.order.isDescending && !request.order.column) {
    throw Mistake{Texts::tr("--reverse goes with --sort")};
  }
  request.colours = colourUseNamed(given.text("--color").value_or(QStringLiteral("auto")));
  request.countOnly = given.has("--count");
  request.isQuiet = given.has("--quiet");
  request.useCache = !given.has("--no-cache");
  for (const QString& listing : given.texts()) request.listings.push_back(listing);
  return request;
}

CopiesRequest copiesRequestOf(const Given& given) {
  CopiesRequest request;
  QStringList arguments = given.texts();
  if (!arguments.isEmpty()) request.searchText = arguments.takeFirst();
  for (const QString& listing : arguments) request.listings.push_back(listing);
  request.desiredMatch = given.text("--match").value_or(request.desiredMatch);
  request.format = tableFormatNamed(given.text("--format").value_or(QStringLiteral("text")));
  request.singleOnly = given.has("--single");
  request.byContent = given.has("--content");
  if (given.has("--by-volume") && given.has("--by-folder")) {
    throw Mistake{Texts::tr("there are sums for volumes or for folders, not for both at once")};
  }
  if (given.has("--by-volume")) request.sumBy = CopiesRequest::SumBy::Volume;
  if (given.has("--by-folder")) request.sumBy = CopiesRequest::SumBy::Folder;
  request.withEmpty = given.has("--empty");
  request.hasHeader = given.has("--header");
  request.endsWithNul = given.has("--null");
  if (const auto limit = given.text("--limit")) request.limit = limitOf(*limit);
  request.isQuiet = given.has("--quiet");
  request.useCache = !given.has("--no-cache");
  return request;
}

CompareRequest compareRequestOf(const Given& given) {
  CompareRequest request;
  const QStringList arguments = given.texts();
  request.before = textOf(given.needed);
  request.after = arguments.value(0);
  if (arguments.size() > 1) {
    throw Mistake{Texts::tr("compare does not know what to do with \"%1\"").arg(arguments[1])};
  }
  if (const auto version = given.text("--number")) request.version = versionOf(*version);
  if (const auto day = given.text("--on")) request.day = dayOf(*day);
  if (request.version && request.day) {
    throw Mistake{Texts::tr("--number and --on both say which version is meant")};
  }
  request.format = tableFormatNamed(given.text("--format").value_or(QStringLiteral("text")));
  request.byFolder = given.has("--by-folder");
  request.hasHeader = given.has("--header");
  request.endsWithNul = given.has("--null");
  if (const auto limit = given.text("--limit")) request.limit = limitOf(*limit);
  request.isQuiet = given.has("--quiet");
  return request;
}

PlanRequest planRequestOf(const Given& given) {
  PlanRequest request;
  request.searchText = textOf(given.needed);
  request.desiredMatch = given.text("--match").value_or(request.desiredMatch);
  request.format = planFormatNamed(given.text("--format").value_or(QStringLiteral("text")));
  const QString to = given.text("--to").value_or(QString());
  if (given.has("--script") != !to.isEmpty()) {
    throw Mistake{Texts::tr("--script and --to FOLDER go together")};
  }
  if (given.has("--script") && given.text("--format")) {
    throw Mistake{Texts::tr("a plan is written in a format or as a script, not as both")};
  }
  if (given.has("--script")) request.scriptFolder = to;
  request.isQuiet = given.has("--quiet");
  request.useCache = !given.has("--no-cache");
  for (const QString& listing : given.texts()) request.listings.push_back(listing);
  return request;
}

VolumesRequest volumesRequestOf(const Given& given) {
  VolumesRequest request;
  QStringList arguments = given.texts();
  request.note = given.text("--note");
  if (request.note && arguments.isEmpty()) throw Mistake{Texts::tr("--note goes with the name of a volume")};
  if (!arguments.isEmpty()) request.searchText = arguments.takeFirst();
  for (const QString& listing : arguments) request.listings.push_back(listing);
  request.desiredMatch = given.text("--match").value_or(request.desiredMatch);
  if (const auto sort = given.text("--sort")) request.sortedBy = volumeColumnNamed(*sort);
  request.isDescending = given.has("--reverse");
  if (request.isDescending && !request.sortedBy) throw Mistake{Texts::tr("--reverse goes with --sort")};
  request.isJson = given.has("--json");
  request.isQuiet = given.has("--quiet");
  request.useCache = !given.has("--no-cache");
  return request;
}

VerifyRequest verifyRequestOf(const Given& given) {
  const QStringList arguments = given.texts();
  if (arguments.size() > 1) {
    throw Mistake{Texts::tr("verify does not know what to do with \"%1\"").arg(arguments[1])};
  }
  return {textOf(given.needed), arguments.value(0), given.has("--restart"), given.has("--json"),
          given.has("--quiet")};
}

}  // namespace quorvin
