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

/// The figures of one process at moments that are alike.
class FiguresOverTime {
 public:
  void add(const ProcessFigures& figures) { all_.push_back(figures); }
  /// Those before are of the time in which everything is used once.
  void warmUpEnds() {
    warm_ = all_.size();
    isWarm_ = true;
  }

  bool areCounted() const { return isWarm_; }
  std::size_t count() const { return all_.size() - warm_; }
  /// Medians of the first and of the last five since the warm-up. At least one has been added since.
  qint64 residentAtFirst() const { return atFirst(&ProcessFigures::residentBytes); }
  qint64 residentAtLast() const { return atLast(&ProcessFigures::residentBytes); }
  qint64 ownAtFirst() const { return atFirst(&ProcessFigures::ownBytes); }
  qint64 ownAtLast() const { return atLast(&ProcessFigures::ownBytes); }
  double driftInPercent() const;
  int fewestThreads() const;
  qsizetype descriptorsAtFirst() const;
  /// What the last of them has more or less than the first with as many threads; empty where nothing differs.
  QString descriptorsThatDiffer() const;

 private:
  /// The first since the warm-up with so many threads.
  const ProcessFigures& firstWith(int threads) const;
  using Bytes = qint64 ProcessFigures::*;
  qint64 atFirst(Bytes bytes) const;
  qint64 atLast(Bytes bytes) const;
  qint64 medianOf(Bytes bytes, std::size_t first, std::size_t end) const;

  std::vector<ProcessFigures> all_;
  std::size_t warm_ = 0;
  bool isWarm_ = false;
};

/// What one of two sorted lists has and the other has not, some of each, for a message.
QString differenceOf(const QStringList& found, const QStringList& expected);

}  // namespace quorvin::test
