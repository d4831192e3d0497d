// SPDX-License-Identifier: GPL-2.0-or-later

// The soak: two real programs are used at random for long, and compared with a plain model all the time.
//
// One of them, "steady", runs from the first step to the last, so that what it takes up can be followed. The
// other, "restless", is closed, terminated and killed on the way. Everything that is random comes from the
// seed. See scripts/soak.
#include "e2e/soaked_program.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <deque>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <unistd.h>

namespace quorvin::test {

namespace {

constexpr int kStepsKept = 20;
constexpr int kStepsBetweenFigures = 5;
constexpr int kStepsBetweenSettled = 40;
constexpr int kWarmUpRounds = 3;
constexpr int kWarmUpSteps = 150;
constexpr double kMostDriftInPercent = 5;
constexpr double kMillisecondsInMinute = 60'000;

[[noreturn]] void fail(const QString& what) {
  throw std::runtime_error(what.toStdString());
}

struct Wishes {
  double minutes = 10;
  /// Instead of the minutes, where it is not 0.
  int steps = 0;
  std::uint64_t seed = 1;
  /// The one step that is taken again and again after the warm-up; empty for all of them.
  QString only;
  QString report;
  QString heading;
  bool keepsFiles = false;
};

/// What was done, for the one who has to find out why something went wrong.
class Journal {
 public:
  void nextStep() { ++step_; }
  int step() const { return step_; }
  void note(const QString& text) {
    lines_.push_back(QStringLiteral("%1 %2").arg(step_).arg(text));
    while (lines_.front().section(u' ', 0, 0).toInt() <= step_ - kStepsKept) lines_.pop_front();
  }
  QString lastSteps() const { return QStringList(lines_.begin(), lines_.end()).join(u'\n'); }

 private:
  int step_ = 0;
  std::deque<QString> lines_;
};

/// From now on programs that are started have a folder of their own for temporary files.
class FolderForTemporaryFiles {
 public:
  FolderForTemporaryFiles() { qputenv("TMPDIR", QFile::encodeName(folder_.path())); }
  QStringList names() const { return folder_.names(); }

 private:
  TemporaryFolder folder_;
};

class Soak {
 public:
  explicit Soak(const Wishes& wishes)
      : wishes_(wishes),
        dice_(wishes.seed),
        steady_(QStringLiteral("steady"), steadyHome_, site_, dice_, noting()),
        restless_(QStringLiteral("restless"), restlessHome_, site_, dice_, noting()),
        steps_(steps()) {}

  /// Throws std::runtime_error at the first thing that is not as it should be.
  void run();
  /// Once measuring has started.
  bool canReport() const { return figures_.settledCount() > 0; }
  QString report() const;
  void tellWhatIsKnown() const;

 private:
  struct Step {
    QString name;
    /// How often it comes, compared with the others.
    int weight;
    std::function<void()> action;
  };

  SoakNote noting() {
    return [this](const QString& text) { journal_.note(text); };
  }
  std::vector<Step> steps();
  void exchange();
  void cancelRefresh();
  void doStep(const Step& step);
  void doOneStep();
  void warmUp();
  void takeFigures();
  void takeSettledFigures();
  void checkDescriptors() const;
  void checkMemory() const;
  void leaveAndReturn(SoakedProgram::WayOut way);
  SoakedProgram& anyProgram() {
    const bool isSteady = dice_.oneIn(2);
    return onlySteady_ || isSteady ? steady_ : restless_;
  }
  bool isOver() const;
  double minutesGone() const { return static_cast<double>(clock_.elapsed()) / kMillisecondsInMinute; }

  Wishes wishes_;
  Dice dice_;
  Journal journal_;
  WebSite site_;
  ProgramHome steadyHome_;
  ProgramHome restlessHome_;
  FolderForTemporaryFiles temporaryFiles_;
  SoakedProgram steady_;
  SoakedProgram restless_;
  std::vector<Step> steps_;
  std::map<QString, int> counts_;
  FiguresOverTime figures_;
  /// While it warms up, and where one step is all that is done.
  bool onlySteady_ = false;
  int listingsCompared_ = 0;
  QElapsedTimer clock_;
};

std::vector<Soak::Step> Soak::steps() {
  using WayOut = SoakedProgram::WayOut;
  const auto onAny = [this](auto method) { return [this, method] { (anyProgram().*method)(dice_); }; };
  return {
      {QStringLiteral("search"), 20, [this] { anyProgram().search(randomWords(dice_)); }},
      {QStringLiteral("change of files"), 15, onAny(&SoakedProgram::changeFiles)},
      {QStringLiteral("refresh"), 10, [this] { anyProgram().refresh(); }},
      {QStringLiteral("edit of the folders"), 8, onAny(&SoakedProgram::editFolders)},
      {QStringLiteral("edit of the offline lists"), 5, onAny(&SoakedProgram::editOfflineLists)},
      {QStringLiteral("options"), 3, onAny(&SoakedProgram::editOptions)},
      {QStringLiteral("preview"), 6, onAny(&SoakedProgram::preview)},
      {QStringLiteral("restore from the history"), 5, onAny(&SoakedProgram::restoreListing)},
      {QStringLiteral("cancelled refresh"), 4, [this] { cancelRefresh(); }},
      {QStringLiteral("help"), 3, onAny(&SoakedProgram::lookAtHelp)},
      {QStringLiteral("wandering"), 4, onAny(&SoakedProgram::wander)},
      {QStringLiteral("web update"), 4, onAny(&SoakedProgram::updateFromWeb)},
      {QStringLiteral("folder away or back"), 3, onAny(&SoakedProgram::takeAwayOrBringBack)},
      {QStringLiteral("exchange"), 4, [this] { exchange(); }},
      {QStringLiteral("second start"), 4, [this] { anyProgram().startAgain(); }},
      {QStringLiteral("end by keys"), 3, [this] { leaveAndReturn(WayOut::Keys); }},
      {QStringLiteral("end by SIGTERM"), 3, [this] { leaveAndReturn(WayOut::Terminate); }},
      {QStringLiteral("end by SIGKILL"), 5, [this] { leaveAndReturn(WayOut::Kill); }},
  };
}

void Soak::exchange() {
  const bool steadyShares = dice_.oneIn(2);
  SoakedProgram& sharer = steadyShares ? steady_ : restless_;
  SoakedProgram& getter = steadyShares ? restless_ : steady_;
  const bool isAdded = !dice_.oneIn(3);
  sharer.shareWith(getter, isAdded, dice_.oneIn(3));
}

void Soak::cancelRefresh() {
  if (anyProgram().cancelRefresh()) ++counts_[QStringLiteral("cancelled refresh, before it ended")];
}

void Soak::leaveAndReturn(SoakedProgram::WayOut way) {
  using Moment = SoakedProgram::Moment;
  auto moment = static_cast<Moment>(dice_.below(4));
  // A dialog would keep the keys for itself.
  if (way == SoakedProgram::WayOut::Keys && moment == Moment::InDialog) moment = Moment::AtRest;
  restless_.end(way, moment, dice_);
  if (dice_.oneIn(2)) restless_.changeFiles(dice_);
  restless_.start(dice_);
}

void Soak::doStep(const Step& step) {
  journal_.nextStep();
  ++counts_[step.name];
  step.action();
}

void Soak::doOneStep() {
  if (!wishes_.only.isEmpty()) return doStep(*std::ranges::find(steps_, wishes_.only, &Step::name));
  int weights = 0;
  for (const Step& step : steps_) weights += step.weight;
  int left = dice_.below(weights);
  const auto chosen =
      std::ranges::find_if(steps_, [&](const Step& step) { return (left -= step.weight) < 0; });
  doStep(*chosen);
}

bool Soak::isOver() const {
  if (wishes_.steps > 0) return journal_.step() >= wishes_.steps;
  return minutesGone() >= wishes_.minutes;
}

void Soak::run() {
  const auto isKnown = [this](const QString& name) {
    return std::ranges::find(steps_, name, &Step::name) != steps_.end();
  };
  if (!wishes_.only.isEmpty() && !isKnown(wishes_.only))
    fail(QStringLiteral("no step is called ") + wishes_.only);
  clock_.start();
  warmUp();
  takeSettledFigures();
  while (!isOver()) {
    doOneStep();
    if (journal_.step() % kStepsBetweenSettled == 0) {
      takeSettledFigures();
    } else if (journal_.step() % kStepsBetweenFigures == 0) {
      takeFigures();
    }
  }
  steady_.waitForThreads(figures_.fewestThreads());
  takeSettledFigures();
  checkMemory();
  listingsCompared_ = steady_.closeAndCompare(dice_) + restless_.closeAndCompare(dice_);
  const QStringList left = temporaryFiles_.names();
  if (!left.isEmpty()) fail(QStringLiteral("left in the folder for temporary files: ") + left.join(u' '));
}

/// Everything is done a few times by the program that is measured, and has been at its largest, before
/// anything counts.
void Soak::warmUp() {
  steady_.start(dice_);
  restless_.start(dice_);
  steady_.refresh();
  restless_.refresh();
  onlySteady_ = true;
  for (int round = 0; round < kWarmUpRounds; ++round) {
    for (const Step& step : steps_) doStep(step);
    steady_.settledFigures();
  }
  onlySteady_ = !wishes_.only.isEmpty();
  while (journal_.step() < kWarmUpSteps) doOneStep();
}

void Soak::takeFigures() {
  figures_.add(steady_.figures());
  checkDescriptors();
}

void Soak::takeSettledFigures() {
  figures_.addSettled(steady_.settledFigures(), journal_.step());
  checkDescriptors();
}

void Soak::checkDescriptors() const {
  const QString difference = figures_.descriptorsThatDiffer();
  if (!difference.isEmpty()) fail(QStringLiteral("other descriptors are open than at first; ") + difference);
}

void Soak::checkMemory() const {
  if (!figures_.isMemoryKnown() || figures_.driftInPercent() < kMostDriftInPercent) return;
  fail(QStringLiteral("the resident memory grew by %1%").arg(figures_.driftInPercent()));
}

QString Soak::report() const {
  QString text = QStringLiteral("| Figure | Result |\n|---|---|\n");
  const auto row = [&text](const QString& figure, const QString& result) {
    text += QStringLiteral("| %1 | %2 |\n").arg(figure, result);
  };
  const auto megabytes = [](qint64 bytes) {
    return QString::number(static_cast<double>(bytes) / 1'048'576, 'f', 1) + QStringLiteral(" MB");
  };
  row(QStringLiteral("time"), QStringLiteral("%1 minutes").arg(minutesGone(), 0, 'f', 1));
  row(QStringLiteral("seed"), QString::number(wishes_.seed));
  row(QStringLiteral("steps"), QString::number(journal_.step()));
  for (const auto& [name, count] : counts_) row(QStringLiteral("of them: ") + name, QString::number(count));
  row(QStringLiteral("moments at which descriptors were compared"), QString::number(figures_.count()));
  row(QStringLiteral("settled moments, at which memory was measured"),
      QString::number(figures_.settledCount()));
  row(QStringLiteral("resident memory, median of their first third"), megabytes(figures_.residentAtFirst()));
  row(QStringLiteral("resident memory, median of their last third"), megabytes(figures_.residentAtLast()));
  row(QStringLiteral("of it neither files nor screen"),
      QStringLiteral("%1, then %2").arg(megabytes(figures_.ownAtFirst()), megabytes(figures_.ownAtLast())));
  QStringList sizes;
  for (const qint64 size : figures_.ownAtSettled()) sizes += megabytes(size).section(u' ', 0, 0);
  row(QStringLiteral("of it neither files nor screen, at each of them, in MB"), sizes.join(u' '));
  row(QStringLiteral("growth of that"),
      QString::number(figures_.ownBytesAStep() / 1024, 'f', 2) + QStringLiteral(" KB a step"));
  row(QStringLiteral("drift over the whole time (at most %1%)").arg(kMostDriftInPercent),
      figures_.isMemoryKnown() ? QString::number(figures_.driftInPercent(), 'f', 1) + u'%'
                               : QStringLiteral("not known, there were too few such moments"));
  row(QStringLiteral("open descriptors, the same at each moment with as few threads"),
      QString::number(figures_.descriptorsAtFirst()));
  row(QStringLiteral("listings compared at the end"), QString::number(listingsCompared_));
  return text;
}

void Soak::tellWhatIsKnown() const {
  std::cerr << "seed " << wishes_.seed << ", step " << journal_.step() << "\n\nthe last steps:\n"
            << journal_.lastSteps().toStdString() << "\n\n";
  for (const SoakedProgram* program : {&steady_, &restless_}) {
    std::cerr << program->stateShown().toStdString() << '\n';
  }
}

Wishes wishesOf(const QCoreApplication& application) {
  QCommandLineParser parser;
  const auto option = [&](const char* name, const char* meaning, const char* value, const char* usual) {
    const QCommandLineOption made(QString::fromLatin1(name), QString::fromLatin1(meaning),
                                  QString::fromLatin1(value), QString::fromLatin1(usual));
    parser.addOption(made);
  };
  option("minutes", "how long it goes on", "N", "10");
  option("steps", "how many steps it takes, instead of the minutes", "N", "0");
  option("seed", "where all choices come from", "N", "1");
  option("only", "after the warm-up do nothing but this, to see what it leaves behind", "STEP", "");
  option("report", "where the figures are written, too", "FILE", "");
  option("heading", "the first line of the report", "TEXT", "Soak");
  option("keep", "leave all files where they are after a failure", "", "");
  parser.addHelpOption();
  parser.process(application);
  const auto text = [&](const char* name) { return parser.value(QString::fromLatin1(name)); };
  return {text("minutes").toDouble(),
          text("steps").toInt(),
          text("seed").toULongLong(),
          text("only"),
          text("report"),
          text("heading"),
          parser.isSet(QStringLiteral("keep"))};
}

void write(const QString& path, const QByteArray& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) fail(file.errorString());
}

int soak(const Wishes& wishes) {
  auto soak = std::make_unique<Soak>(wishes);
  const auto reportWith = [&](const QString& outcome) {
    const QString report = outcome + QStringLiteral("\n\n") + soak->report();
    std::cout << report.toStdString();
    if (!wishes.report.isEmpty()) {
      write(wishes.report, (wishes.heading + QStringLiteral("\n\n") + report).toUtf8());
    }
  };
  try {
    soak->run();
    reportWith(QStringLiteral("Everything was as it should be."));
    return 0;
  } catch (const std::exception& fault) {
    std::cerr << "soak: " << fault.what() << "\n\n";
    soak->tellWhatIsKnown();
    if (soak->canReport()) reportWith(QStringLiteral("Failed: ") + QString::fromUtf8(fault.what()));
  }
  // Without destructors nothing is removed; the programs end with this one.
  if (wishes.keepsFiles) ::_exit(1);
  return 1;
}

}  // namespace

}  // namespace quorvin::test

int main(int argc, char** argv) {
  // The times of files are compared with those in listings.
  qputenv("TZ", "UTC0");
  const QCoreApplication application(argc, argv);
  return quorvin::test::soak(quorvin::test::wishesOf(application));
}
