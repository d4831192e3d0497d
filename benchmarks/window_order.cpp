// SPDX-License-Identifier: GPL-2.0-or-later

// Times sorting and filtering in the program's real window, without a screen: from the key to the painted
// rows. Every order and every filter is proved row by row first.
#include "app/main_application.h"
#include "app/search_form.h"
#include "locale_option.h"
#include "platform/text_encoding.h"
#include "process_memory.h"
#include "recorded_messages.h"
#include "search_window.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>
#include <iomanip>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvin {
namespace {

struct Options {
  std::string listing;
  std::string words = "e";
  std::vector<std::string> filters = {"libpython", "doc html", "zz"};
  int rounds = 5;
  std::string locale = "C";
};

constexpr const char* kColumnNames[] = {"Match", "Volume", "Folder", "Name", "Size", "Date"};

/// The window after a search, and what can be done with its rows.
class OrderedWindow {
 public:
  OrderedWindow(const Options& options, const QString& folder)
      : window_(QFileInfo(QString::fromStdString(options.listing)).absoluteFilePath(), folder,
                localeNamed(options.locale)),
        rows_(static_cast<HitListModel&>(*window_.form().controls().HitList->model())),
        order_(rows_.order()) {
    window_.type(QString::fromStdString(options.words), QStringLiteral("50"));
    window_.find();
  }

  std::int64_t hits() const { return order_.knownRows(); }
  std::int64_t shown() const { return order_.count(); }

  /// Presses `key` in the window and lets events run until the rows are painted.
  Timed press(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    EventWatch watch(*window_.form().controls().lblFound);
    QElapsedTimer clock;
    clock.start();
    QTest::keyClick(&target, key, modifiers);
    do {
      QCoreApplication::processEvents();
    } while (order_.isSorting() || order_.isFiltering());
    QCoreApplication::processEvents();
    const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    return {milliseconds, static_cast<double>(watch.finish().longestGap) / 1e6};
  }

  Timed sortBy(int column) {
    return press(window_.form(), static_cast<Qt::Key>(Qt::Key_1 + column), Qt::ControlModifier);
  }
  Timed foundOrder() { return press(window_.form(), Qt::Key_0, Qt::ControlModifier); }
  void openFilter() { press(window_.form(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier); }
  void closeFilter() { press(*window_.form().controls().FilterStr, Qt::Key_Escape, {}); }
  Timed typeIntoFilter(char letter) {
    const auto key = letter == ' ' ? Qt::Key_Space : static_cast<Qt::Key>(Qt::Key_A + (letter - 'a'));
    return press(*window_.form().controls().FilterStr, key, {});
  }

  /// The most memory that is taken while rows are sorted, beyond what was taken before, in bytes a hit.
  double memoryOfSort(int column) {
    const std::int64_t before = processMemory().resident;
    std::int64_t most = before;
    QTest::keyClick(&window_.form(), static_cast<Qt::Key>(Qt::Key_1 + column), Qt::ControlModifier);
    while (order_.isSorting()) {
      QCoreApplication::processEvents();
      most = std::max(most, processMemory().resident);
    }
    foundOrder();
    return static_cast<double>(most - before) / static_cast<double>(hits());
  }

  void proveOrder(int column) const {
    const auto hitColumn = static_cast<HitColumn>(column);
    std::vector<bool> seen(static_cast<std::size_t>(hits()));
    HitRow before;
    std::uint32_t rowBefore = 0;
    for (int shown = 0; shown < order_.count(); ++shown) {
      const std::uint32_t row = order_.tableRow(shown);
      if (seen[row]) throw std::runtime_error("a row is shown twice");
      seen[row] = true;
      HitRow here = rows_.table().row(row);
      if (shown > 0) {
        const int way = compare(before, here, hitColumn);
        if (way > 0 || (way == 0 && rowBefore > row)) throw std::runtime_error("the rows are not sorted");
      }
      before = std::move(here);
      rowBefore = row;
    }
    if (order_.count() != hits()) throw std::runtime_error("rows are missing");
  }

  void proveFilter(const std::string& text) const {
    const QStringList words = QString::fromStdString(text).split(u' ', Qt::SkipEmptyParts);
    int shown = 0;
    for (std::int64_t row = 0; row < hits(); ++row) {
      const HitRow hit = rows_.table().row(row);
      const QString folder = simpleLowerCase(hit.folder);
      const QString name = simpleLowerCase(hit.name);
      const bool hasAll = std::ranges::all_of(
          words, [&](const QString& word) { return folder.contains(word) || name.contains(word); });
      if (!hasAll) continue;
      if (shown >= order_.count() || order_.tableRow(shown) != row)
        throw std::runtime_error("not all rows are shown");
      ++shown;
    }
    if (shown != order_.count()) throw std::runtime_error("rows without the words are shown");
  }

 private:
  static int compare(const HitRow& one, const HitRow& other, HitColumn column) {
    const auto way = [](const auto& a, const auto& b) { return a < b ? -1 : b < a ? 1 : 0; };
    const auto lower = [](const QString& text) { return simpleLowerCase(text).toStdString(); };
    switch (column) {
      case HitColumn::Match:
        return way(one.match, other.match);
      case HitColumn::Volume:
        return way(lower(one.volume), lower(other.volume));
      case HitColumn::Folder:
        return way(lower(one.folder), lower(other.folder));
      case HitColumn::Name:
        return way(lower(one.name), lower(other.name));
      case HitColumn::Size:
        return way(one.size, other.size);
      case HitColumn::Date:
        return way(one.date, other.date);
    }
    return 0;
  }

  SearchWindow window_;
  HitListModel& rows_;
  RowOrder& order_;
};

void measureSorts(OrderedWindow& window, const Options& options) {
  std::cout << "| column | ms | least | most | longest gap, ms | bytes a hit |\n|---|--:|--:|--:|--:|--:|\n";
  for (int column = 0; column < kHitColumnCount; ++column) {
    window.sortBy(column);
    if (window.hits() > kMostHitsInLocaleOrder) window.proveOrder(column);
    window.foundOrder();
    std::vector<Timed> times;
    for (int round = 0; round < options.rounds; ++round) {
      times.push_back(window.sortBy(column));
      window.foundOrder();
    }
    const Timed middle = median(times);
    const auto [least, most] = std::ranges::minmax(times, {}, &Timed::milliseconds);
    std::cout << "| " << kColumnNames[column] << " | " << middle.milliseconds << " | " << least.milliseconds
              << " | " << most.milliseconds << " | " << middle.longestGap << " | "
              << window.memoryOfSort(column) << " |" << std::endl;
  }
}

void measureFilters(OrderedWindow& window, const Options& options) {
  std::cout << "\n| filter | shown | ms | most | longest gap, ms |\n|---|--:|--:|--:|--:|\n";
  for (const std::string& text : options.filters) {
    std::vector<std::vector<Timed>> times(text.size());
    std::vector<std::int64_t> shown(text.size());
    for (int round = 0; round < options.rounds; ++round) {
      window.openFilter();
      for (std::size_t key = 0; key < text.size(); ++key) {
        times[key].push_back(window.typeIntoFilter(text[key]));
        shown[key] = window.shown();
        if (round == 0) window.proveFilter(text.substr(0, key + 1));
      }
      window.closeFilter();
    }
    for (std::size_t key = 0; key < text.size(); ++key) {
      const double most = std::ranges::max(times[key], {}, &Timed::milliseconds).milliseconds;
      const Timed middle = median(times[key]);
      std::cout << "| `" << text.substr(0, key + 1) << "` | " << shown[key] << " | " << middle.milliseconds
                << " | " << most << " | " << middle.longestGap << " |" << std::endl;
    }
  }
}

void run(const Options& options, int argumentCount, char** arguments) {
  const QTemporaryDir folder;
  liveIn(folder);
  RecordedMessages faults;
  const Application application(argumentCount, arguments, faults);
  QLocale::setDefault(localeNamed(options.locale));
  OrderedWindow window(options, folder.path());
  std::cout << std::fixed << std::setprecision(1) << window.hits() << " hits for \"" << options.words
            << "\"\n\n";
  measureSorts(window, options);
  measureFilters(window, options);
  faults.throwIfAny();
}

}  // namespace
}  // namespace quorvin

int main(int argumentCount, char** arguments) {
  quorvin::Options options;
  CLI::App app("Times sorting and filtering in the window, from the key to the painted rows.");
  app.add_option("LISTING", options.listing, "The listing to search")->required()->check(CLI::ExistingFile);
  app.add_option("--words", options.words, "What to search for at first")->capture_default_str();
  app.add_option("--filter", options.filters,
                 "Filter texts of small letters and blanks; may be given several times")
      ->allow_extra_args(false);
  app.add_option("--rounds", options.rounds, "Rounds to take the median of")
      ->check(CLI::Range(1, 1000))
      ->capture_default_str();
  app.add_option("--locale", options.locale, "Locale of the listing's sizes and dates")
      ->capture_default_str();
  CLI11_PARSE(app, argumentCount, arguments);
  try {
    quorvin::run(options, argumentCount, arguments);
  } catch (const std::exception& failure) {
    std::cerr << "window_order: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
