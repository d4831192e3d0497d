#include "e2e/soak_figures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <unistd.h>

namespace quorvin::test {

namespace {

/// Of how many moments a median is taken.
constexpr std::size_t kMoments = 5;
constexpr qsizetype kMostNamed = 5;

QString folderOf(qint64 process) {
  return QStringLiteral("/proc/%1/").arg(process);
}

QByteArray contentOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the program is not running any more");
  return file.readAll();
}

/// "socket:[123]" is a socket like others.
QString targetOf(const QString& descriptor) {
  char target[PATH_MAX];
  const ssize_t length = ::readlink(QFile::encodeName(descriptor).constData(), target, sizeof target);
  if (length < 0) return {};
  const QString path = QString::fromUtf8(target, static_cast<qsizetype>(length));
  return path.startsWith(u'/') ? path : path.left(path.indexOf(u'['));
}

QStringList someOf(const QStringList& all) {
  QStringList some = all.first(std::min(kMostNamed, all.size()));
  if (all.size() > kMostNamed) some += QStringLiteral("and %1 more").arg(all.size() - kMostNamed);
  return some;
}

QStringList without(const QStringList& all, const QStringList& others) {
  QStringList rest;
  std::set_difference(all.begin(), all.end(), others.begin(), others.end(), std::back_inserter(rest));
  return rest;
}

}  // namespace

ProcessActivity activityOf(qint64 process) {
  const QByteArray stat = contentOf(folderOf(process) + QStringLiteral("stat"));
  // The name of the program, in brackets, may hold blanks.
  const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
  constexpr int kState = 0;
  constexpr int kUserTicks = 11;
  constexpr int kSystemTicks = 12;
  if (fields.size() <= kSystemTicks) throw std::runtime_error("the program is not running any more");
  return {fields[kUserTicks].toLongLong() + fields[kSystemTicks].toLongLong(), fields[kState] == "S"};
}

ProcessFigures figuresOf(qint64 process) {
  ProcessFigures figures;
  const QList<QByteArray> sizes = contentOf(folderOf(process) + QStringLiteral("statm")).split(' ');
  const qint64 page = ::sysconf(_SC_PAGESIZE);
  figures.residentBytes = sizes.value(1).toLongLong() * page;
  figures.ownBytes = figures.residentBytes - sizes.value(2).toLongLong() * page;
  const QString folder = folderOf(process) + QStringLiteral("fd/");
  for (const QString& number :
       QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
    figures.descriptors += targetOf(folder + number);
  }
  figures.descriptors.sort();
  const QDir threads(folderOf(process) + QStringLiteral("task"));
  figures.threads = static_cast<int>(threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
  return figures;
}

qint64 FiguresOverTime::medianOf(Bytes bytes, std::size_t first, std::size_t end) const {
  std::vector<qint64> sizes;
  for (std::size_t i = first; i < end; ++i) sizes.push_back(all_[i].*bytes);
  const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
  std::nth_element(sizes.begin(), middle, sizes.end());
  return *middle;
}

qint64 FiguresOverTime::atFirst(Bytes bytes) const {
  return medianOf(bytes, warm_, warm_ + std::min(kMoments, count()));
}

qint64 FiguresOverTime::atLast(Bytes bytes) const {
  return medianOf(bytes, all_.size() - std::min(kMoments, count()), all_.size());
}

double FiguresOverTime::driftInPercent() const {
  const auto first = static_cast<double>(residentAtFirst());
  return 100 * (static_cast<double>(residentAtLast()) - first) / first;
}

int FiguresOverTime::fewestThreads() const {
  int fewest = all_.back().threads;
  for (std::size_t i = warm_; i < all_.size(); ++i) fewest = std::min(fewest, all_[i].threads);
  return fewest;
}

const ProcessFigures& FiguresOverTime::firstWith(int threads) const {
  for (std::size_t i = warm_; i < all_.size(); ++i) {
    if (all_[i].threads == threads) return all_[i];
  }
  throw std::logic_error("no such moment");
}

qsizetype FiguresOverTime::descriptorsAtFirst() const {
  return firstWith(fewestThreads()).descriptors.size();
}

QString FiguresOverTime::descriptorsThatDiffer() const {
  return differenceOf(all_.back().descriptors, firstWith(all_.back().threads).descriptors);
}

QString differenceOf(const QStringList& found, const QStringList& expected) {
  const QStringList missing = without(expected, found);
  const QStringList surplus = without(found, expected);
  if (missing.isEmpty() && surplus.isEmpty()) return {};
  return QStringLiteral("missing: %1\nsurplus: %2")
      .arg(someOf(missing).join(QStringLiteral("\n  ")), someOf(surplus).join(QStringLiteral("\n  ")));
}

}  // namespace quorvin::test
