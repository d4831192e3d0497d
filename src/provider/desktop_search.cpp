// SPDX-License-Identifier: GPL-2.0-or-later
#include "provider/desktop_search.h"

#include <QDBusMetaType>
#include <QDeadlineTimer>

#include <utility>

namespace quorvin {

namespace {

constexpr char16_t kBlank = u' ';

/// KRunner's numbers for how well a match fits: something that may be meant.
constexpr uint kPossibleMatch = 30;
constexpr double kFoundByName = 0.7;
constexpr double kFoundByFolder = 0.4;

/// What the X Window System's desktops understand as a permission that was given at this time.
QString tokenOf(uint timestamp) {
  return timestamp == 0 ? QString() : QStringLiteral("quorvin-search_TIME%1").arg(timestamp);
}

}  // namespace

DesktopSearch::DesktopSearch(const QString& window, Start start, int searchMilliseconds)
    : window_(window), start_(std::move(start)), searchMilliseconds_(searchMilliseconds) {}

std::vector<FoundFile> DesktopSearch::find(const QString& text) {
  const QDeadlineTimer deadline(searchMilliseconds_, Qt::PreciseTimer);
  std::vector<FoundFile> files = finder_.find(text, [&] { return deadline.hasExpired(); });
  Q_EMIT asked();
  return files;
}

void DesktopSearch::open(const QString& id, const QString& text, const QString& token) {
  const QString path = finder_.pathOf(id);
  if (path.isEmpty()) return openWindow(text, token);
  start_(QStringLiteral("xdg-open"), {path}, token);
  Q_EMIT asked();
}

void DesktopSearch::openWindow(const QString& text, const QString& token) {
  start_(window_, {QStringLiteral("--search"), text}, token);
  Q_EMIT asked();
}

ShellSearch::ShellSearch(QObject* parent, DesktopSearch& search)
    : QDBusAbstractAdaptor(parent), search_(search) {
  qDBusRegisterMetaType<QList<QVariantMap>>();
}

QStringList ShellSearch::GetInitialResultSet(const QStringList& terms) {
  QStringList identifiers;
  for (const FoundFile& file : search_.find(terms.join(kBlank))) identifiers.append(file.id);
  return identifiers;
}

/// The results before may have been cut short, so that those of more words need not be among them.
QStringList ShellSearch::GetSubsearchResultSet(const QStringList&, const QStringList& terms) {
  return GetInitialResultSet(terms);
}

QList<QVariantMap> ShellSearch::GetResultMetas(const QStringList& identifiers) {
  QList<QVariantMap> metas;
  for (const QString& identifier : identifiers) {
    const std::optional<FoundFile> file = FileFinder::fileOf(identifier);
    if (!file) continue;
    metas.append({{QStringLiteral("id"), file->id},
                  {QStringLiteral("name"), file->name},
                  {QStringLiteral("description"), file->place},
                  {QStringLiteral("gicon"), file->icon}});
  }
  return metas;
}

void ShellSearch::ActivateResult(const QString& identifier, const QStringList& terms, uint timestamp) {
  search_.open(identifier, terms.join(kBlank), tokenOf(timestamp));
}

void ShellSearch::LaunchSearch(const QStringList& terms, uint timestamp) {
  search_.openWindow(terms.join(kBlank), tokenOf(timestamp));
}

QDBusArgument& operator<<(QDBusArgument& argument, const RunnerMatch& match) {
  argument.beginStructure();
  argument << match.id << match.text << match.icon << match.type << match.relevance << match.properties;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerMatch& match) {
  argument.beginStructure();
  argument >> match.id >> match.text >> match.icon >> match.type >> match.relevance >> match.properties;
  argument.endStructure();
  return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const RunnerAction& action) {
  argument.beginStructure();
  argument << action.id << action.text << action.icon;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerAction& action) {
  argument.beginStructure();
  argument >> action.id >> action.text >> action.icon;
  argument.endStructure();
  return argument;
}

RunnerSearch::RunnerSearch(QObject* parent, DesktopSearch& search)
    : QDBusAbstractAdaptor(parent), search_(search) {
  qDBusRegisterMetaType<RunnerMatch>();
  qDBusRegisterMetaType<QList<RunnerMatch>>();
  qDBusRegisterMetaType<RunnerAction>();
  qDBusRegisterMetaType<QList<RunnerAction>>();
}

QList<RunnerMatch> RunnerSearch::Match(const QString& query) {
  query_ = query;
  QList<RunnerMatch> matches;
  for (const FoundFile& file : search_.find(query)) {
    matches.append({file.id,
                    file.name,
                    file.icon,
                    kPossibleMatch,
                    file.isFoundByName ? kFoundByName : kFoundByFolder,
                    {{QStringLiteral("subtext"), file.place}}});
  }
  return matches;
}

void RunnerSearch::Run(const QString& matchId, const QString&) {
  search_.open(matchId, query_, std::exchange(token_, {}));
}

}  // namespace quorvin
