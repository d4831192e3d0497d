// The search text as words, and the score of an entry.
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <vector>

namespace quorvin {

/// The word table's capacity.
inline constexpr int kMostWords = 101;

/// The words of a search text, in order: the first begins at the first character, every later one at a blank;
/// each is trimmed of blanks. Runs of blanks and a trailing blank give empty words, which are kept. A blank
/// in the first character does not end a word. Throws fault 9 when there are more than 101.
std::vector<QString> splitSearchText(QStringView searchText);

/// The match of an entry in which `found` of `wordCount` words were found (0 <= found <= wordCount,
/// wordCount >= 1): the percentage, halves rounded to the even neighbour.
std::int16_t matchPercentage(int found, int wordCount);

/// The text of a match in the hit list: three digits and "%" ("067%").
QString matchText(std::int16_t match);

}  // namespace quorvin
