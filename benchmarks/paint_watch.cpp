// SPDX-License-Identifier: GPL-2.0-or-later

// A library that is loaded before all others (LD_PRELOAD) into a program of the toolkit. It reports when the
// first paint event of the program's main window came and when the program next had nothing left to do, and
// closes the window then. Both are seen as they happen; no timer looks for them.
//
// PAINT_WATCH_START is the moment of the start, in nanoseconds of the system's monotonic clock, and
// PAINT_WATCH_REPORT the file to write: "painted", "idle" and "processor", each with nanoseconds since then;
// the last is what the program has used of all processors until the paint event, the system's part included.
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <ctime>

namespace {

qint64 now() {
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(since).count();
}

qint64 processorTime() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return qint64{used.tv_sec} * 1'000'000'000 + used.tv_nsec;
}

/// Lives as long as the application.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QObject* application)
      : QObject(application),
        start_(qEnvironmentVariable("PAINT_WATCH_START").toLongLong()),
        report_(qEnvironmentVariable("PAINT_WATCH_REPORT")) {
    // Programs that this one starts are none of ours.
    for (const char* name : {"LD_PRELOAD", "PAINT_WATCH_START", "PAINT_WATCH_REPORT"}) qunsetenv(name);
    application->installEventFilter(this);
  }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::Paint || !receiver->inherits("QMainWindow")) return false;
    painted_ = now();
    processor_ = processorTime();
    qApp->removeEventFilter(this);
    // It is about to wait: nothing is left that it could do by itself.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &PaintWatch::becomeIdle);
    return false;
  }

 private:
  void becomeIdle() {
    QAbstractEventDispatcher::instance()->disconnect(this);
    write(now());
    QMetaObject::invokeMethod(qApp, &QApplication::closeAllWindows, Qt::QueuedConnection);
  }

  void write(qint64 idle) const {
    QFile file(report_);
    const QString text = QStringLiteral("painted %1\nidle %2\nprocessor %3\n")
                             .arg(painted_ - start_)
                             .arg(idle - start_)
                             .arg(processor_);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toLatin1()) < 0) {
      std::fputs("paint_watch: the report could not be written\n", stderr);
    }
  }

  const qint64 start_;
  const QString report_;
  qint64 painted_ = 0;
  qint64 processor_ = 0;
};

void watch() {
  new PaintWatch(QCoreApplication::instance());
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)
