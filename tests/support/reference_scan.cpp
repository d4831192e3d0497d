// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/reference_scan.h"

#include "dates/general_date_reader.h"
#include "dates/general_number.h"
#include "platform/text_encoding.h"

#include <QList>

#include <cmath>
#include <optional>

namespace quorvin::test {

namespace {

using Characters = QList<char32_t>;

Characters charactersOf(const QString& text) {
  const QList<uint> codePoints = text.toUcs4();
  return {codePoints.begin(), codePoints.end()};
}

QString textOf(const Characters& characters) {
  // Character by character: QString::fromUcs4 would drop a byte order mark at the front.
  QString text;
  for (const char32_t c : characters) text += QChar::fromUcs4(c);
  return text;
}

QString trimmedOfBlanks(QString text) {
  while (text.startsWith(u' ')) text.remove(0, 1);
  while (text.endsWith(u' ')) text.chop(1);
  return text;
}

/// In UTF-8. Half a pair of code units becomes a replacement character; at the very end, where the other half
/// may have been cut off, it is left out.
QByteArray utf8Of(const QString& text) {
  QByteArray bytes;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!text[i].isSurrogate()) {
      bytes += QString(text[i]).toUtf8();
    } else if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      bytes += text.sliced(i++, 2).toUtf8();
    } else if (i + 1 < text.size()) {
      bytes += "\xEF\xBF\xBD";
    }
  }
  return bytes;
}

/// UTF-8 or whatever bytes there are, without a byte order mark at the start.
QByteArray plainTextOf(const QByteArray& listing) {
  const QByteArray mark = listing.first(std::min(listing.size(), qsizetype{2}));
  const bool isLittle = mark == "\xFF\xFE";
  if (isLittle || mark == "\xFE\xFF") {
    QString text;
    for (qsizetype i = 2; i + 1 < listing.size(); i += 2) {
      const auto one = static_cast<unsigned char>(listing[i]);
      const auto two = static_cast<unsigned char>(listing[i + 1]);
      text += QChar(static_cast<char16_t>(isLittle ? one | two << 8 : two | one << 8));
    }
    return utf8Of(text);
  }
  return listing.startsWith("\xEF\xBB\xBF") ? listing.sliced(3) : listing;
}

QList<QByteArray> linesOf(const QByteArray& listing) {
  QList<QByteArray> lines = plainTextOf(listing).split('\n');
  if (lines.back().isEmpty()) lines.pop_back();
  for (QByteArray& line : lines) {
    if (line.endsWith('\r')) line.chop(1);
  }
  return lines;
}

bool isEntry(const QString& line) {
  for (const char16_t* mark : {u"Volume:", u"Directory:", u"<DIR>", u"---------------"}) {
    if (line.contains(QString::fromUtf16(mark))) return false;
  }
  return !line.isEmpty();
}

QList<QString> wordsOf(const QString& searchText) {
  QList<QString> words;
  qsizetype position = 1;
  while (true) {
    const qsizetype blank = searchText.indexOf(u' ', position) + 1;
    if (blank == 0) break;
    words.push_back(trimmedOfBlanks(searchText.mid(position - 1, blank - position)));
    position = blank;
  }
  words.push_back(trimmedOfBlanks(searchText.mid(position - 1)));
  return words;
}

int scoreOf(const QString& searchable, const QList<QString>& words) {
  int found = 0;
  for (const QString& word : words) {
    if (word.isEmpty() || searchable.contains(word)) ++found;
  }
  // The default rounding mode takes halves to the even neighbour.
  return static_cast<int>(
      std::nearbyint(static_cast<double>(found) / static_cast<double>(words.size()) * 100));
}

/// The order of day and month: that of the first date that is one in one order only.
std::optional<DayMonthOrder> orderOf(const QList<QByteArray>& lines, const GeneralDateReader& dates) {
  Characters tail;
  for (const QByteArray& bytes : lines) {
    const QString line = decodeSystemText(bytes);
    if (!isEntry(line)) continue;
    const Characters characters = charactersOf(line);
    if (characters.size() > 69) tail = characters.mid(68);
    if (tail.size() <= 32) continue;
    const auto reading = dates.reading(textOf(tail.mid(20)));
    const auto order = reading ? orderOf(reading->evidence) : std::nullopt;
    if (order) return order;
  }
  return std::nullopt;
}

/// Making a reader takes far longer than scanning a short listing, so the last one is kept.
const GeneralDateReader& dateReaderFor(const QLocale& locale) {
  static QLocale known;
  static std::optional<GeneralDateReader> reader;
  if (!reader || known != locale) {
    known = locale;
    reader.emplace(locale);
  }
  return *reader;
}

}  // namespace

ReferenceResult referenceScan(const QByteArray& listing, const QString& lowerSearchText, int desiredMatch,
                              const QLocale& locale) {
  const QList<QString> words = wordsOf(lowerSearchText);
  const QList<QByteArray> lines = linesOf(listing);
  GeneralDateReader dates = dateReaderFor(locale);
  if (const auto order = orderOf(lines, dates)) dates.setOrder(*order);
  ReferenceResult result;
  QString volume;
  QString folder;
  Characters tail;
  std::int64_t size = 0;
  double date = 0;
  std::int64_t lineNumber = 0;
  for (const QByteArray& bytes : lines) {
    ++lineNumber;
    const QString line = decodeSystemText(bytes);
    if (line.isEmpty()) continue;
    if (line.contains(QStringLiteral("Volume:"))) {
      volume = trimmedOfBlanks(QString(line).remove(QStringLiteral("Volume:")));
      continue;
    }
    if (line.contains(QStringLiteral("Directory:"))) {
      folder = trimmedOfBlanks(QString(line).remove(QStringLiteral("Directory:")));
      continue;
    }
    if (line.contains(QStringLiteral("<DIR>"))) continue;
    if (line.contains(QString(15, u'-'))) continue;

    QString entry = line;
    const Characters characters = charactersOf(line);
    if (characters.size() > 69) {
      tail = characters.mid(68);
      entry = textOf(characters.mid(0, 69));
      while (entry.endsWith(u' ')) entry.chop(1);
    }
    ++result.searched;
    const int match = scoreOf(simpleLowerCase(folder + u' ' + entry), words);
    if (match <= desiredMatch) continue;
    if (tail.size() > 32) {
      const auto readSize = readByteCount(textOf(tail.mid(0, 13)));
      const auto readDate = dates.read(textOf(tail.mid(20)));
      if (readSize && readDate) {
        size = *readSize;
        date = *readDate;
      } else if (++result.unreadable == 1) {
        result.firstUnreadableLine = lineNumber;
      }
    }
    result.hits.push_back({match, volume, folder, entry, size, date});
  }
  return result;
}

}  // namespace quorvin::test
