// Date texts in the one form that all matching is done in.
#pragma once

#include <QStringView>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorvin {

/// A text as the date reader looks at it: every decimal digit of any script is an ASCII digit, full-width
/// signs are ASCII signs, every dash is "-", runs of blanks of any kind are one plain blank, blanks at both
/// ends and invisible formatting characters are gone, and letters are case-folded. Allocates nothing.
class DateText {
 public:
  /// No date is longer; the bound keeps hostile texts cheap.
  static constexpr qsizetype kMaxLength = 200;

  explicit DateText(QStringView text);

  /// False when the text was longer than kMaxLength; view() is empty then.
  bool fits() const { return fits_; }
  std::u16string_view view() const { return {units_.data(), size_}; }

 private:
  void add(char32_t character);

  // One text unit never becomes more than one.
  std::array<char16_t, kMaxLength> units_;
  std::size_t size_ = 0;
  bool fits_ = true;
};

/// The same form of a literal or a word of a locale, except that blanks at its ends are kept.
std::u16string foldedDateLiteral(QStringView literal);

/// Whether `unit` is an ASCII digit.
constexpr bool isDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

}  // namespace quorvin
