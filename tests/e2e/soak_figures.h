// SPDX-License-Identifier: GPL-2.0-or-later

// What a running program takes up, and how that changes over a soak.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace quorvin::test {

/// The processor time that a process has had, in the system's ticks, and whether it could go on just now.
/// Throws std::runtime_error when there is no such process.
struct ProcessActivity {
  qint64 ticks = 0;
  bool isWaiting = false;
};
ProcessActivity activityOf(qint64 process);

/// What a process holds at one moment.
struct ProcessFigures {
  qint64 residentBytes = 0;
  /// The part that is neither of files nor shared with the screen.
  qint64 ownBytes = 0;
  /// What each open descriptor leads to, without the numbers of sockets and the like; sorted.
  QStringList descriptors;
  /// Threads that have done something stay for a while, in case there is more, and have descriptors
  /// meanwhile.
  int threads = 0;
};
ProcessFigures figuresOf(qint64 process);

/// The figures of one process since its warm-up.
class FiguresOverTime {
 public:
  /// A moment at which it is at rest: what it holds open is compared with others.
  void add(const ProcessFigures& figures) { all_.push_back(figures); }
  /// A moment at which its state is always the same (sources, windows, hits): what it takes up is compared,
  /// too. `step` says how much it has done until then.
  void addSettled(const ProcessFigures& figures, int step);

  std::size_t count() const { return all_.size(); }
  std::size_t settledCount() const { return settled_.size(); }
  /// Whether there are enough settled moments to tell growth from ups and downs.
  bool isMemoryKnown() const;
  /// Medians of the first and of the last third of the settled moments, of which there is one at least.
  qint64 residentAtFirst() const { return atFirst(&ProcessFigures::residentBytes); }
  qint64 residentAtLast() const { return atLast(&ProcessFigures::residentBytes); }
  qint64 ownAtFirst() const { return atFirst(&ProcessFigures::ownBytes); }
  qint64 ownAtLast() const { return atLast(&ProcessFigures::ownBytes); }
  /// How much the resident memory grows from the first settled moment to the last at the rate at which it
  /// grows from the first third to the last one: what goes up and down in between does not count.
  double driftInPercent() const;
  /// The process's own memory at each settled moment.
  std::vector<qint64> ownAtSettled() const;
  /// How much that grows at such a rate.
  double ownBytesAStep() const;

  /// At least one moment has been added.
  int fewestThreads() const;
  qsizetype descriptorsAtFirst() const;
  /// What the last of them has more or less than the first with as many threads; empty where nothing differs.
  QString descriptorsThatDiffer() const;

 private:
  struct Settled {
    ProcessFigures figures;
    int step;
  };
  /// The first with so many threads.
  const ProcessFigures& firstWith(int threads) const;
  using Bytes = qint64 ProcessFigures::*;
  std::size_t third() const;
  qint64 atFirst(Bytes bytes) const;
  qint64 atLast(Bytes bytes) const;
  qint64 medianOf(Bytes bytes, std::size_t first, std::size_t end) const;

  std::vector<ProcessFigures> all_;
  std::vector<Settled> settled_;
};

/// Where the threads of a process are in the program, for a report of one that does not go on; from the
/// debugger, or, where there is none, what the system says of each.
QString whereThreadsAre(qint64 process);

/// What one of two sorted lists has and the other has not, some of each, for a message.
QString differenceOf(const QStringList& found, const QStringList& expected);

}  // namespace quorvin::test
