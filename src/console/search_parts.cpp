// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/search_parts.h"

#include "console/error_lines.h"
#include "faults/runtime_fault.h"
#include "files/stream_reader.h"
#include "platform/stop_signal.h"
#include "search/match/search_query.h"
#include "state/settings.h"
#include "texts/texts.h"

#include <QRegularExpression>

#include <memory>

namespace quorvin {

namespace {

bool isPercentage(const QString& text) {
  static const QRegularExpression number(
      QRegularExpression::anchoredPattern(QStringLiteral("\\+?([0-9]+\\.?[0-9]*|\\.[0-9]+)")));
  return number.match(text).hasMatch();
}

bool hasTooManyWords(const QString& searchText) {
  try {
    splitSearchText(searchText);
  } catch (const RuntimeFault&) {
    return true;
  }
  return false;
}

QString complaintAboutMatch(const QString& match) {
  if (match.endsWith(u'%') && isPercentage(match.chopped(1))) {
    return Texts::tr(
        "the value of --match comes without \"%\". Hits must match more than it: --match 99 finds what has "
        "all the words");
  }
  return Texts::tr("the value of --match is a percentage from 1 to 100, not \"%1\"").arg(match);
}

}  // namespace

QString complaintAboutSearch(const QString& searchText, const QString& desiredMatch) {
  if (hasTooManyWords(searchText)) {
    return Texts::tr("the search text has more than %1 words").arg(kMostWords);
  }
  return isPercentage(desiredMatch) ? QString() : complaintAboutMatch(desiredMatch);
}

bool loadSourcesToSearch(ProgramState& state, const QLocale& locale, MessageBoxes& messages) {
  loadUserSources(state, locale, messages);
  if (state.hasSources()) return true;
  printError(
      Texts::tr("there is nothing to search yet. Name listings after the words, or add folders or lists with "
                "quorvin-cli sources add"));
  return false;
}

ListingReader listingStreamAt(const QString& path) {
  const bool isInput = path == QStringLiteral("-");
  if (!isInput && !isStream(path)) return {};
  // Shared, since functions are copied.
  auto stream = std::make_shared<std::unique_ptr<StreamReader>>();
  return [isInput, path, stream](std::span<char> buffer) {
    if (!*stream) {
      *stream = std::make_unique<StreamReader>(isInput ? StreamReader::standardInput(stopSignalled)
                                                       : StreamReader(path, stopSignalled));
    }
    return (*stream)->read(buffer);
  };
}

void SearchProgress::processEvents() {
  if (!line_.isDue()) return;
  const QString searched = locale_.toString(qlonglong{searched_});
  const QString found = locale_.toString(qlonglong{found_});
  line_.show(shows_ == Shows::Searched ? Texts::tr("%1 searched").arg(searched)
                                       : Texts::tr("%1 found, %2 searched").arg(found, searched));
}

}  // namespace quorvin
