// SPDX-License-Identifier: GPL-2.0-or-later

// Times searches in the program's real window, without a screen: from the press of Find to the last row, and
// what the window adds to the bare search.
#include "app/main_application.h"
#include "locale_option.h"
#include "recorded_messages.h"
#include "window_measurements.h"
#include "window_report.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvin {
namespace {

struct Options {
  std::string listing;
  std::vector<std::string> queries;
  std::vector<std::int64_t> expected;
  int match = 50;
  int rounds = 5;
  std::string locale = "C";
  /// Given to the processes that the program starts of itself.
  std::string part;
  std::string folder;
};

WindowTask taskOf(const Options& options) {
  WindowTask task;
  task.listing = QFileInfo(QString::fromStdString(options.listing)).absoluteFilePath();
  task.words = QString::fromStdString(options.queries.front());
  task.match = QString::number(options.match);
  task.expected = options.expected.front();
  task.rounds = options.rounds;
  task.folder = QString::fromStdString(options.folder);
  task.locale = localeNamed(options.locale);
  return task;
}

QJsonObject measure(const std::string& part, const WindowTask& task) {
  if (part == "first") return measureFirstSearch(task);
  if (part == "later") return measureLaterSearches(task);
  if (part == "stop") return measureStop(task);
  throw std::invalid_argument("no measurement is named \"" + part + "\"");
}

void runPart(const Options& options, int argumentCount, char** arguments) {
  RecordedMessages faults;
  const Application application(argumentCount, arguments, faults);
  const WindowTask task = taskOf(options);
  QLocale::setDefault(task.locale);
  const QJsonObject figures = measure(options.part, task);
  faults.throwIfAny();
  std::cout << QJsonDocument(figures).toJson(QJsonDocument::Compact).toStdString() << '\n';
}

/// Nothing of the user's is read or written: settings, data and cache are below `folder`.
QProcessEnvironment environmentIn(const QString& folder) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  environment.insert(QStringLiteral("QUORVIN_SETTINGS"), folder + QStringLiteral("/settings.ini"));
  for (const char* kind : {"CACHE", "CONFIG", "DATA"}) {
    const QString name = QStringLiteral("XDG_%1_HOME").arg(QLatin1String(kind));
    environment.insert(name, folder + u'/' + QString::fromLatin1(kind).toLower());
  }
  return environment;
}

/// Makes one measurement in a process of its own.
QJsonObject measureApart(const char* part, const Options& options, std::size_t query, const QString& folder) {
  QDir().mkpath(folder);
  QProcess process;
  process.setProcessEnvironment(environmentIn(folder));
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.start(QCoreApplication::applicationFilePath(),
                {QString::fromStdString(options.listing), QStringLiteral("--query"),
                 QString::fromStdString(options.queries[query]), QStringLiteral("--expect"),
                 QString::number(options.expected[query]), QStringLiteral("--match"),
                 QString::number(options.match), QStringLiteral("--rounds"), QString::number(options.rounds),
                 QStringLiteral("--locale"), QString::fromStdString(options.locale), QStringLiteral("--part"),
                 QString::fromLatin1(part), QStringLiteral("--folder"), folder});
  constexpr int kForever = -1;
  const bool ended = process.waitForFinished(kForever) && process.exitStatus() == QProcess::NormalExit;
  if (!ended || process.exitCode() != 0) {
    throw std::runtime_error(std::string("the measurement \"") + part + "\" failed");
  }
  return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

/// Each query starts with empty folders. The later searches find what the first one has kept.
QueryFigures measureQuery(const Options& options, std::size_t query) {
  const QTemporaryDir folder;
  if (!folder.isValid()) throw std::runtime_error("no temporary folder could be made");
  const QString kept = folder.filePath(QStringLiteral("kept"));
  QueryFigures figures;
  figures.words = options.queries[query];
  figures.stop = measureApart("stop", options, query, folder.filePath(QStringLiteral("stop")));
  figures.first = measureApart("first", options, query, kept);
  figures.later = measureApart("later", options, query, kept);
  return figures;
}

void report(const Options& options, int argumentCount, char** arguments) {
  const QCoreApplication application(argumentCount, arguments);
  std::vector<QueryFigures> figures;
  for (std::size_t query = 0; query < options.queries.size(); ++query) {
    std::cerr << "measuring \"" << options.queries[query] << "\"\n";
    figures.push_back(measureQuery(options, query));
  }
  writeWindowReport(std::cout, figures);
}

void addOptions(CLI::App& app, Options& options) {
  app.add_option("LISTING", options.listing, "The listing to search")->required()->check(CLI::ExistingFile);
  app.add_option("--query", options.queries, "Words to search, in one argument; may be given several times")
      ->required()
      ->allow_extra_args(false);
  app.add_option("--expect", options.expected, "The number of hits of each --query, in the same order")
      ->required()
      ->allow_extra_args(false);
  app.add_option("--match", options.match, "Desired match")->check(CLI::Range(1, 100))->capture_default_str();
  app.add_option("--rounds", options.rounds, "Warm searches to take the median of")
      ->check(CLI::Range(1, 1000))
      ->capture_default_str();
  app.add_option("--locale", options.locale, "Locale of the listing's sizes and dates, such as C or en_US")
      ->capture_default_str();
  constexpr char kHidden[] = "";
  app.add_option("--part", options.part)->group(kHidden);
  app.add_option("--folder", options.folder)->group(kHidden);
}

}  // namespace
}  // namespace quorvin

int main(int argumentCount, char** arguments) {
  quorvin::Options options;
  CLI::App app("Times searches in the window, from the press of Find to the last row.");
  quorvin::addOptions(app, options);
  CLI11_PARSE(app, argumentCount, arguments);
  try {
    if (options.queries.size() != options.expected.size()) {
      throw std::invalid_argument("each --query needs its --expect");
    }
    if (options.part.empty()) {
      quorvin::report(options, argumentCount, arguments);
    } else {
      quorvin::runPart(options, argumentCount, arguments);
    }
  } catch (const std::exception& failure) {
    std::cerr << "window_search: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
