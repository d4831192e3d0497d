// SPDX-License-Identifier: GPL-2.0-or-later
#include "e2e/soak_figures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <unistd.h>

namespace quorvin::test {

namespace {

/// Three to each median.
constexpr std::size_t kFewestSettled = 9;
constexpr int kDebuggerMilliseconds = 60'000;
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

void FiguresOverTime::addSettled(const ProcessFigures& figures, int step) {
  add(figures);
  settled_.push_back({figures, step});
}

bool FiguresOverTime::isMemoryKnown() const {
  return settled_.size() >= kFewestSettled;
}

std::size_t FiguresOverTime::third() const {
  return std::max<std::size_t>(settled_.size() / 3, 1);
}

qint64 FiguresOverTime::medianOf(Bytes bytes, std::size_t first, std::size_t end) const {
  std::vector<qint64> sizes;
  for (std::size_t i = first; i < end; ++i) sizes.push_back(settled_[i].figures.*bytes);
  const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
  std::nth_element(sizes.begin(), middle, sizes.end());
  return *middle;
}

qint64 FiguresOverTime::atFirst(Bytes bytes) const {
  return medianOf(bytes, 0, third());
}

qint64 FiguresOverTime::atLast(Bytes bytes) const {
  return medianOf(bytes, settled_.size() - third(), settled_.size());
}

double FiguresOverTime::driftInPercent() const {
  const auto first = static_cast<double>(residentAtFirst());
  // The middles of those thirds are two thirds of the way apart.
  return 150 * (static_cast<double>(residentAtLast()) - first) / first;
}

std::vector<qint64> FiguresOverTime::ownAtSettled() const {
  std::vector<qint64> sizes;
  for (const Settled& moment : settled_) sizes.push_back(moment.figures.ownBytes);
  return sizes;
}

double FiguresOverTime::ownBytesAStep() const {
  const int steps = settled_.back().step - settled_.front().step;
  return steps > 0 ? 1.5 * static_cast<double>(ownAtLast() - ownAtFirst()) / steps : 0;
}

int FiguresOverTime::fewestThreads() const {
  return std::ranges::min(all_, {}, &ProcessFigures::threads).threads;
}

const ProcessFigures& FiguresOverTime::firstWith(int threads) const {
  const auto first = std::ranges::find(all_, threads, &ProcessFigures::threads);
  if (first == all_.end()) throw std::logic_error("no such moment");
  return *first;
}

qsizetype FiguresOverTime::descriptorsAtFirst() const {
  return firstWith(fewestThreads()).descriptors.size();
}

QString FiguresOverTime::descriptorsThatDiffer() const {
  return differenceOf(all_.back().descriptors, firstWith(all_.back().threads).descriptors);
}

namespace {

QString fromDebugger(qint64 process) {
  QProcess debugger;
  debugger.start(
      QStringLiteral("gdb"),
      {QStringLiteral("-nx"), QStringLiteral("-batch"), QStringLiteral("-p"), QString::number(process),
       QStringLiteral("-ex"), QStringLiteral("thread apply all backtrace 60")});
  if (!debugger.waitForFinished(kDebuggerMilliseconds)) {
    debugger.kill();
    debugger.waitForFinished();
  }
  const QString output = QString::fromUtf8(debugger.readAllStandardOutput());
  // Without the right to look it says little.
  return output.contains(QStringLiteral("\n#0 ")) ? output : QString();
}

}  // namespace

QString whereThreadsAre(qint64 process) {
  const QString stacks = fromDebugger(process);
  if (!stacks.isEmpty()) return stacks;
  QString text;
  const QString tasks = folderOf(process) + QStringLiteral("task/");
  for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    const auto part = [&](const char* name) {
      QFile file(tasks + task + u'/' + QString::fromLatin1(name));
      return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).simplified() : QString();
    };
    text += QStringLiteral("thread %1 (%2): %3, waits in %4, system call %5\n")
                .arg(task, part("comm"), part("stat").section(u' ', 2, 2), part("wchan"), part("syscall"));
  }
  return text;
}

QString differenceOf(const QStringList& found, const QStringList& expected) {
  const QStringList missing = without(expected, found);
  const QStringList surplus = without(found, expected);
  if (missing.isEmpty() && surplus.isEmpty()) return {};
  return QStringLiteral("missing: %1\nsurplus: %2")
      .arg(someOf(missing).join(QStringLiteral("\n  ")), someOf(surplus).join(QStringLiteral("\n  ")));
}

}  // namespace quorvin::test
