#include "search/match/search_words.h"

#include "dates/general_number.h"
#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"

namespace quorvin {

std::vector<QString> splitSearchText(QStringView searchText) {
  std::vector<QString> words;
  qsizetype start = 0;
  while (true) {
    if (words.size() == kMostWords) throw RuntimeFault(FaultNumber::SubscriptOutOfRange);
    const qsizetype blank = searchText.indexOf(u' ', start + 1);
    if (blank < 0) break;
    words.push_back(trimBlanks(searchText.mid(start, blank - start)).toString());
    start = blank;
  }
  words.push_back(trimBlanks(searchText.mid(start)).toString());
  return words;
}

std::int16_t matchPercentage(int found, int wordCount) {
  if (found == 0) return 0;
  return roundToInt16(static_cast<double>(found) / wordCount * 100);
}

QString matchText(std::int16_t match) {
  return QStringLiteral("%1%").arg(match, 3, 10, QLatin1Char('0'));
}

}  // namespace quorvin
