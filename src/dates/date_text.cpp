// SPDX-License-Identifier: GPL-2.0-or-later
#include "dates/date_text.h"

#include <QChar>
#include <QString>

#include <algorithm>

namespace quorvin {

namespace {

// Stands for a character that is left out.
constexpr char32_t kNothing = 0;
constexpr char32_t kReplacement = QChar::ReplacementCharacter;

constexpr bool isDash(char32_t character) {
  return (character >= 0x2010 && character <= 0x2013) || character == 0x2212;
}

constexpr bool isFullWidthSign(char32_t character) {
  return character >= 0xFF01 && character <= 0xFF5E;
}

char32_t foldedAscii(char32_t character) {
  if (character == U'\t') return U' ';
  return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
}

char32_t folded(char32_t character) {
  constexpr char32_t kFullWidthOffset = 0xFF01 - U'!';
  constexpr char32_t kArabicComma = 0x060C;
  if (character < 0x80) return foldedAscii(character);
  if (isFullWidthSign(character)) return foldedAscii(character - kFullWidthOffset);
  if (isDash(character)) return U'-';
  if (character == kArabicComma) return U',';
  switch (QChar::category(character)) {
    case QChar::Number_DecimalDigit:
      return U'0' + static_cast<char32_t>(QChar::digitValue(character));
    case QChar::Separator_Space:
      return U' ';
    case QChar::Other_Format:
      return kNothing;
    default:
      return QChar::toCaseFolded(character);
  }
}

// Hands the folded characters of `text` to `sink`, one by one.
template <typename Sink>
void foldEach(QStringView text, Sink sink) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    const char32_t character = pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
    if (pair) ++i;
    // A NUL in the text itself must not vanish: it is no part of any date.
    const char32_t result = character == 0 ? kReplacement : folded(character);
    if (result != kNothing) sink(result);
  }
}

}  // namespace

DateText::DateText(QStringView text) {
  if (text.size() > kMaxLength) {
    fits_ = false;
    return;
  }
  foldEach(text, [this](char32_t character) { add(character); });
  if (size_ > 0 && units_[size_ - 1] == u' ') --size_;
}

void DateText::add(char32_t character) {
  if (character == U' ' && (size_ == 0 || units_[size_ - 1] == u' ')) return;
  if (QChar::requiresSurrogates(character)) {
    units_[size_++] = QChar::highSurrogate(character);
    units_[size_++] = QChar::lowSurrogate(character);
    return;
  }
  units_[size_++] = static_cast<char16_t>(character);
}

std::u16string foldedDateLiteral(QStringView literal) {
  std::u16string result;
  foldEach(literal, [&result](char32_t character) {
    if (character == U' ' && result.ends_with(u' ')) return;
    if (QChar::requiresSurrogates(character)) {
      result += {QChar::highSurrogate(character), QChar::lowSurrogate(character)};
    } else {
      result += static_cast<char16_t>(character);
    }
  });
  return result;
}

void WordList::add(QStringView word, int meaning) {
  std::u16string text = foldedDateLiteral(word.trimmed());
  if (text.empty()) return;
  const auto same = [&text](const Word& known) { return known.text == text; };
  if (std::any_of(words_.begin(), words_.end(), same)) return;
  const auto shorter = [&text](const Word& known) { return known.text.size() < text.size(); };
  const auto place = std::find_if(words_.begin(), words_.end(), shorter);
  words_.insert(place, {std::move(text), meaning});
}

std::optional<WordList::Found> WordList::at(std::u16string_view text) const {
  for (const Word& word : words_) {
    if (text.starts_with(word.text)) return Found{word.meaning, word.text.size()};
  }
  return std::nullopt;
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
