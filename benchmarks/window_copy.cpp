// SPDX-License-Identifier: GPL-2.0-or-later

// Times copying and exporting of very many hits in the program's real window, without a screen. What is
// copied and written is compared with what was made.
#include "app/main_application.h"
#include "app/search_form.h"
#include "editors/file_picker.h"
#include "event_watch.h"
#include "recorded_messages.h"
#include "run_figures.h"
#include "search_window.h"
#include "state/program_state.h"

#include <CLI/CLI.hpp>
#include <QByteArray>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvin {
namespace {

constexpr int kFilesInAFolder = 100;

struct Options {
  int files = 100'000;
  int hits = 1'000'000;
  int rounds = 5;
};

QString numbered(const char* pattern, int number) {
  return QString::fromLatin1(pattern).arg(number, 7, 10, QChar(u'0'));
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
  if (!isWritten) throw std::runtime_error("could not write " + path.toStdString());
}

QByteArray read(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("could not read " + path.toStdString());
  return file.readAll();
}

void addBlock(QByteArray& listing, const QString& volume, const QString& folder) {
  listing += "\r\nVolume:    " + volume.toUtf8() + "\r\nDirectory: " + folder.toUtf8() + "\r\n\r\n";
}

void addEntry(QByteArray& listing, const QString& name) {
  listing += name.toUtf8().leftJustified(65) + QByteArray("1,024").rightJustified(16) +
             " bytes 15 Jan 2004 10:20:30\r\n";
}

/// Picks what it was told to.
class SetPicker : public FilePicker {
 public:
  std::optional<QString> openFile(const FileQuestion&) override { return std::nullopt; }
  std::optional<QString> pickFolder(const FileQuestion&) override { return std::nullopt; }
  std::optional<QString> saveFile(const SaveQuestion&) override { return path; }

  QString path;
};

/// The hits, and what a copy or an export of them has to be.
struct Made {
  QByteArray listing;
  QString rows;
  QString names;
  /// Of files on disk.
  QString paths;
  QByteArray table = "Match,Volume,Folder,Name,Size,Date\r\n";
};

void addHit(Made& made, const QString& volume, const QString& folder, const QString& name) {
  addEntry(made.listing, name);
  const QString line = made.names.isEmpty() ? QString() : QStringLiteral("\n");
  made.names += line + name;
  made.rows += line + QStringLiteral("100%\t%1\t%2\t%3\t0.00mb\tJan, 15 04").arg(volume, folder, name);
  made.table += QStringLiteral("100%,%1,%2,%3,0.00mb,\"Jan, 15 04\"\r\n").arg(volume, folder, name).toUtf8();
}

/// Files below `top`, which ends in a separator, as an own folder named "Files".
Made makeFiles(const QString& top, int count) {
  Made made;
  QString folder;
  QString listed;
  for (int number = 0; number < count; ++number) {
    if (number % kFilesInAFolder == 0) {
      folder = top + numbered("folder %1/", number / kFilesInAFolder);
      listed = QString(folder).replace(u'/', u'\\');
      if (!QDir().mkpath(folder)) throw std::runtime_error("could not make " + folder.toStdString());
      addBlock(made.listing, QStringLiteral("Files"), listed);
    }
    const QString name = numbered("wanted %1.txt", number);
    write(folder + name, {});
    made.paths += (number == 0 ? QString() : QStringLiteral("\n")) + folder + name;
    addHit(made, QStringLiteral("Files"), listed, name);
  }
  return made;
}

Made makeHits(int count) {
  Made made;
  QString folder;
  for (int number = 0; number < count; ++number) {
    if (number % kFilesInAFolder == 0) {
      folder = numbered("\\Music\\%1\\", number / kFilesInAFolder);
      addBlock(made.listing, QStringLiteral("DISK"), folder);
    }
    addHit(made, QStringLiteral("DISK"), folder, numbered("song %1.mp3", number));
  }
  return made;
}

class CopyingWindow {
 public:
  CopyingWindow(const QString& listing, const QString& folder)
      : window_(listing, folder, QLocale::c(), &picker_) {
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &window_.form(),
                     [this] { hasChanged_ = true; });
  }

  ProgramState& state() { return window_.state(); }

  void find(const char* words, int hits) {
    window_.type(QString::fromLatin1(words), QStringLiteral("50"));
    const RunFigures figures = window_.find();
    if (figures.found != hits) throw std::runtime_error("not all hits were found");
  }

  /// Selects all hits, presses `keys`, and waits for the clipboard to be `wanted`.
  Timed copy(Qt::KeyboardModifiers modifiers, const QString& wanted) {
    QGuiApplication::clipboard()->setText(QString());
    HitListView& list = *window_.form().controls().HitList;
    list.setFocus();
    list.clearSelection();
    QCoreApplication::processEvents();
    const Timed timed = time([&] {
      hasChanged_ = false;
      QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
      QTest::keyClick(&list, Qt::Key_C, modifiers);
      while (!hasChanged_) QCoreApplication::processEvents();
    });
    if (QGuiApplication::clipboard()->text() != wanted) throw std::runtime_error("the copy is a wrong one");
    return timed;
  }

  Timed exportTo(const QString& path, const QByteArray& wanted) {
    picker_.path = path;
    const Timed timed = time([&] { window_.form().menus().ExportHits->trigger(); });
    if (read(path) != wanted) throw std::runtime_error("the table is a wrong one");
    QFile::remove(path);
    return timed;
  }

 private:
  Timed time(const std::function<void()>& action) {
    EventWatch watch(*window_.form().controls().lblFound);
    QElapsedTimer clock;
    clock.start();
    action();
    const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    return {milliseconds, static_cast<double>(watch.finish().longestGap) / 1e6};
  }

  SetPicker picker_;
  SearchWindow window_;
  bool hasChanged_ = false;
};

void report(const std::string& what, int rounds, const std::function<Timed()>& measure) {
  std::vector<Timed> times;
  for (int round = 0; round < rounds; ++round) times.push_back(measure());
  const Timed middle = median(times);
  const auto [least, most] = std::ranges::minmax(times, {}, &Timed::milliseconds);
  std::cout << "| " << what << " | " << middle.milliseconds << " | " << least.milliseconds << " | "
            << most.milliseconds << " | " << middle.longestGap << " |" << std::endl;
}

void reportCopies(CopyingWindow& window, const Made& made, int hits, int rounds) {
  const std::string count = std::to_string(hits);
  report("copy " + count + " names", rounds,
         [&] { return window.copy(Qt::ControlModifier | Qt::AltModifier, made.names); });
  report("copy " + count + " rows", rounds, [&] { return window.copy(Qt::ControlModifier, made.rows); });
}

void run(const Options& options, int argumentCount, char** arguments) {
  const QTemporaryDir folder;
  liveIn(folder);
  RecordedMessages faults;
  const Application application(argumentCount, arguments, faults);
  const QString files = folder.filePath(QStringLiteral("files/"));
  const Made madeFiles = makeFiles(files, options.files);
  const Made madeHits = makeHits(options.hits);
  const QString listing = folder.filePath(QStringLiteral("hits.lst"));
  write(listing, madeHits.listing);

  CopyingWindow window(listing, folder.path());
  ProgramState& state = window.state();
  state.OnlineSources.set(1, QStringLiteral("Files"), files);
  state.OnlineSourceCount = 1;
  write(state.onlineListingPath(QStringLiteral("Files")), madeFiles.listing);

  std::cout << std::fixed << std::setprecision(1)
            << "| what | ms | least | most | longest gap, ms |\n|---|--:|--:|--:|--:|\n";
  window.find("wanted", options.files);
  report("copy " + std::to_string(options.files) + " full paths", options.rounds,
         [&] { return window.copy(Qt::ControlModifier | Qt::ShiftModifier, madeFiles.paths); });
  reportCopies(window, madeFiles, options.files, options.rounds);
  window.find("song", options.hits);
  reportCopies(window, madeHits, options.hits, options.rounds);
  const QString table = folder.filePath(QStringLiteral("table.csv"));
  report("export " + std::to_string(options.hits) + " hits as CSV", options.rounds,
         [&] { return window.exportTo(table, madeHits.table); });
  faults.throwIfAny();
}

}  // namespace
}  // namespace quorvin

int main(int argumentCount, char** arguments) {
  quorvin::Options options;
  CLI::App app("Times copying and exporting of very many hits in the window.");
  app.add_option("--files", options.files, "Files on disk whose paths are copied")
      ->check(CLI::Range(1, 1'000'000))
      ->capture_default_str();
  app.add_option("--hits", options.hits, "Hits that are copied and exported")
      ->check(CLI::Range(1, 1'000'000))
      ->capture_default_str();
  app.add_option("--rounds", options.rounds, "Rounds to take the median of")
      ->check(CLI::Range(1, 1000))
      ->capture_default_str();
  CLI11_PARSE(app, argumentCount, arguments);
  try {
    quorvin::run(options, argumentCount, arguments);
  } catch (const std::exception& failure) {
    std::cerr << "window_copy: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
