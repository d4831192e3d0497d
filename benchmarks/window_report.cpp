// SPDX-License-Identifier: GPL-2.0-or-later
#include "window_report.h"

#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <ostream>
#include <utility>

namespace quorvin {

namespace {

constexpr double kBytesInMegabyte = 1e6;

std::string fixed(double value, int decimals) {
  return QLocale::c().toString(value, 'f', decimals).toStdString();
}

std::string grouped(const QJsonObject& figures, const char* name) {
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  return english.toString(figures[QLatin1String(name)].toInteger()).toStdString();
}

double number(const QJsonObject& figures, const char* name) {
  return figures[QLatin1String(name)].toDouble();
}

QJsonObject part(const QJsonObject& figures, const char* name) {
  return figures[QLatin1String(name)].toObject();
}

std::vector<double> sortedSeconds(const QJsonObject& figures, const char* name) {
  std::vector<double> seconds;
  for (const QJsonValue& value : figures[QLatin1String(name)].toArray()) seconds.push_back(value.toDouble());
  std::sort(seconds.begin(), seconds.end());
  return seconds;
}

double median(const std::vector<double>& sorted) {
  const std::size_t middle = sorted.size() / 2;
  return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

/// One row; the caller has made texts of the cells.
void writeRow(std::ostream& out, const std::vector<std::string>& cells) {
  for (const std::string& cell : cells) out << "| " << cell << ' ';
  out << "|\n";
}

/// Title and rule; the first `texts` columns are aligned to the left, the others to the right.
void writeHead(std::ostream& out, const std::vector<std::string>& titles, std::size_t texts) {
  out << '\n';
  writeRow(out, titles);
  for (std::size_t i = 0; i < titles.size(); ++i) out << (i < texts ? "|---" : "|--:");
  out << "|\n";
}

void writeTimes(std::ostream& out, const std::vector<QueryFigures>& queries) {
  out << "\nSeconds from the press of Find to the last row. The first search reads the listing; the next "
         "start of the program\nmay find kept what the first has made of it; warm is the median of the "
         "searches after that. Bare is the same search\nwithout a window, in turn with the warm ones.\n";
  writeHead(out,
            {"query", "found", "searched", "first search", "first after a new start", "warm", "least", "most",
             "bare", "window's cost, ms", "in %"},
            1);
  for (const QueryFigures& query : queries) {
    const QJsonObject first = part(query.first, "run");
    const std::vector<double> window = sortedSeconds(query.later, "window");
    const double bare = median(sortedSeconds(query.later, "bare"));
    const double cost = median(window) - bare;
    writeRow(out, {query.words, grouped(first, "found"), grouped(first, "searched"),
                   fixed(number(first, "seconds"), 3), fixed(number(part(query.later, "run"), "seconds"), 3),
                   fixed(median(window), 4), fixed(window.front(), 4), fixed(window.back(), 4),
                   fixed(bare, 4), fixed(cost * 1e3, 1), fixed(cost / bare * 100, 1)});
  }
}

void writeEventRow(std::ostream& out, const QueryFigures& query, const char* search, const QJsonObject& run) {
  writeRow(out, {query.words, search, grouped(run, "passes"), grouped(run, "labelMoves"),
                 fixed(number(run, "longestGap"), 2)});
}

void writeEvents(std::ostream& out, const std::vector<QueryFigures>& queries) {
  out << "\nHow often the run let events run, how often the text of lblSearched moved, and the longest time "
         "without events\nin milliseconds.\n";
  writeHead(out, {"query", "search", "event passes", "label moves", "longest gap, ms"}, 2);
  for (const QueryFigures& query : queries) {
    writeEventRow(out, query, "first", part(query.first, "run"));
    writeEventRow(out, query, "warm", part(query.later, "watched"));
  }
}

void writeStops(std::ostream& out, const std::vector<QueryFigures>& queries) {
  out << "\nStop, pressed when events ran for the first time: the entries searched by the end of the run, "
         "and "
         "milliseconds\nfrom that press to the end.\n";
  writeHead(out, {"query", "search", "searched", "ms"}, 2);
  for (const QueryFigures& query : queries) {
    for (const auto& [search, figures] : {std::pair{"first", &query.stop}, std::pair{"warm", &query.later}}) {
      const QJsonObject stop = part(*figures, "stop");
      writeRow(out, {query.words, search, grouped(stop, "searched"), fixed(number(stop, "milliseconds"), 2)});
    }
  }
}

void writeMemoryRow(std::ostream& out, const QueryFigures& query, const char* search,
                    const QJsonObject& figures) {
  const QJsonObject memory = part(figures, "memory");
  const auto megabytes = [&](const char* name) { return fixed(number(memory, name) / kBytesInMegabyte, 1); };
  writeRow(out, {query.words, search, megabytes("before"), megabytes("after"), megabytes("ofFiles"),
                 megabytes("peak")});
}

void writeMemory(std::ostream& out, const std::vector<QueryFigures>& queries) {
  out << "\nResident memory of the whole program in MB (10^6 bytes): before Find was pressed, after the last "
         "row (of it pages\nof files), and the peak.\n";
  writeHead(out, {"query", "search", "before", "after", "of files", "peak"}, 2);
  for (const QueryFigures& query : queries) {
    writeMemoryRow(out, query, "first", query.first);
    writeMemoryRow(out, query, "first after a new start", query.later);
  }
}

}  // namespace

void writeWindowReport(std::ostream& out, const std::vector<QueryFigures>& queries) {
  writeTimes(out, queries);
  writeEvents(out, queries);
  writeStops(out, queries);
  writeMemory(out, queries);
}

}  // namespace quorvin
