#include "dates/date_text.h"

#include <QChar>

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
    // A NUL that stands in the text itself must not vanish: it is no part of any date.
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

}  // namespace quorvin
