#include "dates/date_words.h"

#include <QString>

#include <algorithm>

namespace quorvin {

void WordList::add(QStringView word, int meaning) {
  std::u16string text = foldedDateLiteral(word.trimmed());
  if (text.empty()) return;
  const auto same = [&text](const Word& known) { return known.text == text; };
  if (std::any_of(words_.begin(), words_.end(), same)) return;
  const auto shorter = [&text](const Word& known) { return known.text.size() < text.size(); };
  const auto place = std::find_if(words_.begin(), words_.end(), shorter);
  words_.insert(place, {std::move(text), meaning});
}

namespace {

void addMonthName(WordList& names, const QString& name, int month) {
  names.add(name, month);
  if (name.endsWith(u'.')) {
    names.add(QStringView(name).chopped(1), month);
  } else {
    names.add(QString(name + u'.'), month);
  }
}

void addMonthsOf(WordList& names, const QLocale& locale, QLocale::FormatType length) {
  for (int month = 1; month <= 12; ++month) addMonthName(names, locale.monthName(month, length), month);
  for (int month = 1; month <= 12; ++month) {
    addMonthName(names, locale.standaloneMonthName(month, length), month);
  }
}

// `written` as it is, then without blanks, then without dots either.
void addHalfDay(WordList& names, QString written, int half) {
  names.add(written, half);
  const auto isBlank = [](QChar sign) { return sign.category() == QChar::Separator_Space; };
  names.add(written.removeIf(isBlank), half);
  names.add(written.remove(u'.'), half);
}

void addHalvesOf(WordList& names, const QLocale& locale) {
  addHalfDay(names, locale.amText(), kBeforeNoon);
  addHalfDay(names, locale.pmText(), kAfterNoon);
  // Patterns ask for upper case, which does not always fold back to what it came from.
  addHalfDay(names, locale.amText().toUpper(), kBeforeNoon);
  addHalfDay(names, locale.pmText().toUpper(), kAfterNoon);
}

}  // namespace

WordList monthNames(const QLocale& locale) {
  WordList names;
  // What the general form writes comes first, so that it keeps its meaning whatever else is spelled alike.
  addMonthsOf(names, locale, QLocale::ShortFormat);
  addMonthsOf(names, locale, QLocale::LongFormat);
  addMonthsOf(names, QLocale::c(), QLocale::ShortFormat);
  addMonthsOf(names, QLocale::c(), QLocale::LongFormat);
  addMonthName(names, QStringLiteral("Sept"), 9);
  return names;
}

WordList halfDayNames(const QLocale& locale) {
  WordList names;
  addHalvesOf(names, locale);
  addHalfDay(names, QStringLiteral("a. m."), kBeforeNoon);
  addHalfDay(names, QStringLiteral("p. m."), kAfterNoon);
  return names;
}

}  // namespace quorvin
