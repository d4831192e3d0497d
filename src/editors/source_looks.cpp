// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/source_looks.h"

#include "files/file_lookup.h"
#include "files/pool_work.h"
#include "texts/texts.h"

#include <QFileInfo>
#include <QFutureWatcher>
#include <QPromise>
#include <QStringList>

#include <algorithm>
#include <atomic>
#include <memory>
#include <utility>

namespace quorvin {

namespace {

/// More than one, so that a drive that does not answer holds up only what is on it.
constexpr std::size_t kLookers = 4;

/// Beyond so many days a date says more.
constexpr qint64 kDaysCounted = 60;

QString entriesText(std::int64_t entries, const QLocale& locale) {
  if (entries == 1) return Texts::tr("1 entry");
  return Texts::tr("%1 entries", nullptr, Texts::plural(entries)).arg(locale.toString(qlonglong{entries}));
}

QString ageText(QDate listed, QDate today, const QLocale& locale) {
  const qint64 days = listed.daysTo(today);
  if (days <= 0) return Texts::tr("today");
  if (days == 1) return Texts::tr("yesterday");
  if (days <= kDaysCounted)
    return Texts::tr("%1 days old", nullptr, Texts::plural(days)).arg(locale.toString(days));
  return Texts::tr("of %1").arg(locale.toString(listed, QLocale::ShortFormat));
}

QString momentText(const QDateTime& moment, const QLocale& locale) {
  return QStringLiteral("%1, %2").arg(locale.toString(moment.date(), QLocale::ShortFormat),
                                      locale.toString(moment.time(), QLocale::ShortFormat));
}

QString fileSentence(const SourceFacts& facts, const QLocale& locale) {
  const QString moment = momentText(facts.listed, locale);
  if (!facts.entries) return Texts::tr("The file was last changed on %1.").arg(moment);
  return Texts::tr("The file has %1 and was last changed on %2.")
      .arg(entriesText(*facts.entries, locale), moment);
}

QString listingSentence(const SourceFacts& facts, const QLocale& locale) {
  const QString moment = momentText(facts.listed, locale);
  if (!facts.entries) return Texts::tr("Its listing was last changed on %1.").arg(moment);
  return Texts::tr("Its listing has %1 and was last changed on %2.")
      .arg(entriesText(*facts.entries, locale), moment);
}

}  // namespace

SourceFacts lookAtSource(const SourcePlaces& places, const CountEntries& countEntries) {
  SourceFacts facts;
  facts.isThere = places.isFolder() ? QFileInfo(places.path).isDir() : fileExists(places.path);
  const QString& listing = places.isFolder() ? places.listing : places.path;
  facts.isListed = fileExists(listing);
  if (!facts.isListed) return facts;
  facts.listed = QFileInfo(listing).lastModified();
  if (countEntries) facts.entries = countEntries(listing);
  return facts;
}

QString factsInBrief(const SourceFacts& facts, const SourcePlaces& places, const QLocale& locale,
                     QDate today) {
  QStringList words;
  if (!facts.isThere) words.append(Texts::tr("not there"));
  if (!facts.isListed) {
    if (facts.isThere) words.append(Texts::tr("not listed yet"));
    return words.join(QStringLiteral(", "));
  }
  if (!places.isFolder() && !facts.isThere) return words.first();
  if (facts.entries) words.append(entriesText(*facts.entries, locale));
  words.append(ageText(facts.listed.date(), today, locale));
  return words.join(QStringLiteral(", "));
}

QString factsInFull(const SourceFacts& facts, const SourcePlaces& places, const QLocale& locale) {
  if (!places.isFolder()) {
    return facts.isThere ? fileSentence(facts, locale) : Texts::tr("The file is not there.");
  }
  const QString folder =
      facts.isThere ? Texts::tr("The folder is there.") : Texts::tr("The folder is not there.");
  const QString listing = facts.isListed ? listingSentence(facts, locale)
                                         : Texts::tr("It has no listing yet; a rescan makes it.");
  return folder + u'\n' + listing;
}

/// Sources that are looked at together; each thread takes the next one. Shared by the threads, of which the
/// last one to finish is not known.
struct SourceLooks::Round {
  std::vector<SourcePlaces> places;
  Look look;
  QPromise<Finding> promise;
  std::atomic<std::size_t> next = 0;
  std::atomic<std::size_t> working = 0;

  void work() {
    for (std::size_t i = next++; i < places.size() && !promise.isCanceled(); i = next++) {
      promise.addResult(Finding{places[i], look(places[i])});
    }
    if (--working == 0) promise.finish();
  }
};

SourceLooks::SourceLooks(QThreadPool& pool, Look look, QObject* parent)
    : QObject(parent), pool_(pool), look_(std::move(look)) {}

SourceLooks::~SourceLooks() {
  for (QFutureWatcherBase* round : findChildren<QFutureWatcherBase*>()) round->cancel();
}

void SourceLooks::lookAt(const std::vector<SourcePlaces>& places) {
  const auto round = std::make_shared<Round>();
  for (const SourcePlaces& one : places) {
    if (known_.contains(one)) continue;
    known_.insert(one, std::nullopt);
    round->places.push_back(one);
  }
  if (round->places.empty()) return;
  round->look = look_;
  auto* watcher = new QFutureWatcher<Finding>(this);
  connect(watcher, &QFutureWatcherBase::resultsReadyAt, this, [this, watcher](int first, int end) {
    for (int i = first; i < end; ++i) {
      const Finding finding = watcher->resultAt(i);
      known_.insert(finding.places, finding.facts);
    }
    Q_EMIT found();
  });
  connect(watcher, &QFutureWatcherBase::finished, watcher, &QObject::deleteLater);
  round->promise.start();
  watcher->setFuture(round->promise.future());
  const std::size_t lookers = std::min(kLookers, round->places.size());
  round->working = lookers;
  for (std::size_t i = 0; i < lookers; ++i) startIn(pool_, [round] { round->work(); });
}

const SourceFacts* SourceLooks::facts(const SourcePlaces& places) const {
  const auto known = known_.constFind(places);
  return known != known_.cend() && *known ? &**known : nullptr;
}

}  // namespace quorvin
