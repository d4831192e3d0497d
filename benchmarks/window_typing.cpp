// SPDX-License-Identifier: GPL-2.0-or-later

// Times searching while typing in the program's real window, without a screen: from each key to the moment at
// which the first row of its search is painted, or, where there is no hit, the list that says so.
#include "app/main_application.h"
#include "app/search_form.h"
#include "locale_option.h"
#include "recorded_messages.h"
#include "search_window.h"

#include <CLI/CLI.hpp>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvin {
namespace {

struct Options {
  std::string listing;
  std::vector<std::string> texts = {"live at wembley", "kumquat",  "report summer",   "night train 12",
                                    "zymurgy",         "track 07", "copy of",         "house letter",
                                    "wyvern",          "e",        "nothing of this", "img_2004",
                                    "music mp3"};
  int rounds = 3;
  std::string locale = "C";
};

/// What the program has used of the processor, in nanoseconds. On a machine with other work it is the
/// steadier figure.
qint64 processorTime() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return qint64{used.tv_sec} * 1'000'000'000 + used.tv_nsec;
}

/// Times in milliseconds: on the clock, and of the processor.
struct Times {
  std::vector<double> clock;
  std::vector<double> processor;

  void add(qint64 nanoseconds, qint64 ofProcessor) {
    clock.push_back(static_cast<double>(nanoseconds) / 1e6);
    processor.push_back(static_cast<double>(ofProcessor) / 1e6);
  }
};

/// Notes when the list was painted, once what is asked of it holds.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(SearchForm& form) : form_(form) {
    form.controls().HitList->viewport()->installEventFilter(this);
    connect(form.controls().HitList->model(), &QAbstractItemModel::modelReset, this,
            [this] { hasStarted_ = true; });
  }

  void start() {
    clock_.start();
    processorAtStart_ = processorTime();
    painted_ = -1;
    hasStarted_ = false;
  }
  bool isPainted() const { return painted_ >= 0; }
  /// From the start to the paint.
  qint64 nanoseconds() const { return painted_; }
  qint64 ofProcessor() const { return ofProcessor_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || isInside_) return false;
    // Painted here, so that the time is that of the end.
    isInside_ = true;
    QCoreApplication::sendEvent(watched, event);
    isInside_ = false;
    if (isPainted() || !showsSearch()) return true;
    painted_ = clock_.nsecsElapsed();
    ofProcessor_ = processorTime() - processorAtStart_;
    return true;
  }

 private:
  /// Rows of the present search, or the words that there are none.
  bool showsSearch() const {
    const HitListView& list = *form_.controls().HitList;
    return hasStarted_ && (list.model()->rowCount() > 0 || !list.emptyText().isEmpty());
  }

  SearchForm& form_;
  QElapsedTimer clock_;
  qint64 processorAtStart_ = 0;
  qint64 painted_ = -1;
  qint64 ofProcessor_ = 0;
  bool isInside_ = false;
  /// The rows of the search before are gone.
  bool hasStarted_ = false;
};

/// The pause after a key is over at once.
void endPause(SearchForm& form) {
  auto* pause = form.findChild<QTimer*>(QStringLiteral("TypingPause"));
  if (pause == nullptr || !pause->isActive()) throw std::runtime_error("the key started no pause");
  QTimerEvent event(pause->timerId());
  QCoreApplication::sendEvent(pause, &event);
}

class Measurement {
 public:
  explicit Measurement(SearchForm& form) : form_(form), watch_(form) {}

  /// Types `text` over what stands in the box; each key is one measurement.
  void type(const QString& text) {
    QLineEdit& box = *form_.controls().SearchStr;
    box.setFocus();
    box.clear();
    QCoreApplication::processEvents();
    for (const QChar sign : text) press(box, sign);
  }

  Times& painted() { return painted_; }
  Times& ended() { return ended_; }
  const QString& slowest() const { return slowest_; }

 private:
  void press(QLineEdit& box, QChar sign) {
    watch_.start();
    QElapsedTimer clock;
    clock.start();
    const qint64 processor = processorTime();
    QTest::keyClick(&box, sign.toLatin1());
    endPause(form_);
    ended_.add(clock.nsecsElapsed(), processorTime() - processor);
    while (!watch_.isPainted()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    painted_.add(watch_.nanoseconds(), watch_.ofProcessor());
    if (std::ranges::max(painted_.processor) == painted_.processor.back()) slowest_ = box.text();
  }

  SearchForm& form_;
  PaintWatch watch_;
  Times painted_;
  Times ended_;
  QString slowest_;
};

/// The value that so many of a hundred do not exceed.
double percentile(std::vector<double>& values, double percent) {
  std::ranges::sort(values);
  const auto count = static_cast<double>(values.size());
  const auto index = static_cast<std::size_t>(std::max(0.0, std::ceil(count * percent / 100) - 1));
  return values[std::min(index, values.size() - 1)];
}

void writeLine(const char* what, std::vector<double>& values) {
  std::cout << "| " << what << " | " << values.size() << std::fixed;
  std::cout.precision(1);
  for (const double percent : {50.0, 90.0, 99.0, 100.0}) std::cout << " | " << percentile(values, percent);
  std::cout << " |\n";
}

/// Typing must find what Find finds.
void prove(SearchWindow& window, const QString& text) {
  const std::int64_t typed = window.form().controls().HitList->model()->rowCount();
  const std::int64_t found = window.find().found;
  if (typed != found) throw std::runtime_error("typing \"" + text.toStdString() + "\" found something else");
}

void run(const Options& options, int argumentCount, char** arguments) {
  RecordedMessages faults;
  const Application application(argumentCount, arguments, faults);
  const QTemporaryDir folder;
  qputenv("XDG_CACHE_HOME", folder.filePath(QStringLiteral("cache")).toUtf8());
  QLocale::setDefault(localeNamed(options.locale));
  SearchWindow window(QFileInfo(QString::fromStdString(options.listing)).absoluteFilePath(), folder.path(),
                      localeNamed(options.locale));
  // Reads the listing; from now on it is kept.
  window.type(QStringLiteral("kumquat"), QStringLiteral("50"));
  const RunFigures first = window.find();
  window.form().menus().SearchWhileTyping->trigger();
  Measurement measurement(window.form());
  for (int round = 0; round < options.rounds; ++round) {
    for (const std::string& text : options.texts) {
      measurement.type(QString::fromStdString(text));
      if (round == 0) prove(window, QString::fromStdString(text));
    }
  }
  faults.throwIfAny();
  std::cout << first.searched << " entries. Milliseconds that so many of a hundred keys do not exceed:\n\n"
            << "| from the key to | keys | 50 | 90 | 99 | 100 |\n|---|--:|--:|--:|--:|--:|\n";
  writeLine("the painted row", measurement.painted().clock);
  writeLine("the painted row, processor", measurement.painted().processor);
  writeLine("the end of the search", measurement.ended().clock);
  writeLine("the end of the search, processor", measurement.ended().processor);
  std::cout << "\nThe slowest key was the last of \"" << measurement.slowest().toStdString() << "\".\n";
}

}  // namespace
}  // namespace quorvin

int main(int argumentCount, char** arguments) {
  quorvin::Options options;
  CLI::App app("Times searching while typing, from the key to the painted row.");
  app.add_option("LISTING", options.listing, "The listing to search")->required()->check(CLI::ExistingFile);
  app.add_option("--text", options.texts, "A text to type, in one argument; may be given several times")
      ->allow_extra_args(false);
  app.add_option("--rounds", options.rounds, "How often all texts are typed")
      ->check(CLI::Range(1, 1000))
      ->capture_default_str();
  app.add_option("--locale", options.locale, "Locale of the listing's sizes and dates, such as C or en_US")
      ->capture_default_str();
  CLI11_PARSE(app, argumentCount, arguments);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  try {
    quorvin::run(options, argumentCount, arguments);
  } catch (const std::exception& failure) {
    std::cerr << "window_typing: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
