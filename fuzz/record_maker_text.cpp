// SPDX-License-Identifier: GPL-2.0-or-later

// Making records: text and its fonts.
#include "fuzz/record_maker.h"

namespace quorvin::fuzz {
namespace {

std::uint32_t textOptions(Choices& choices) {
  constexpr std::uint32_t kOptions[] = {0, 0, 2, 4, 6, 0x10, 0x100, 0x200, 0x300, 0x2000};
  return choices.oneIn(12) ? choices.number() : choices.of(kOptions);
}

}  // namespace

void RecordMaker::placeOfText(bool isWide) {
  const QByteArray letters = choices_.bytes(choices_.below(12));
  point(false);
  const qsizetype count = isWide ? letters.size() / 2 : letters.size();
  content_.u32(count);
  behind_.push_back({content_.size(), false, letters});
  content_.u32(0).u32(textOptions(choices_));
  points(2, false);
  if (choices_.oneIn(2)) {
    test::ByteWriter steps;
    for (qsizetype letter = 0; letter < count; ++letter) steps.u32(choices_.below(40));
    behind_.push_back({content_.size(), false, steps.bytes()});
  }
  content_.u32(0);
}

void RecordMaker::textWithBox() {
  constexpr int kHasBox = 6;
  constexpr int kOptions[] = {0, 2, 4, 6, 0x10};
  const QByteArray letters = choices_.bytes(choices_.below(12));
  point(true);
  const int options = choices_.of(kOptions);
  content_.u16(letters.size()).u16(options);
  if ((options & kHasBox) != 0) points(2, true);
  content_.raw(letters).zeros(letters.size() % 2);
  const bool hasSteps = choices_.oneIn(2);
  for (qsizetype letter = 0; hasSteps && letter < letters.size(); ++letter) content_.u16(choices_.below(40));
}

bool RecordMaker::addText(char parameter) {
  const bool isWide = parameter == 'X' || parameter == 'Y';
  switch (parameter) {
    case 'x':
    case 'X':
      placeOfText(isWide);
      return true;
    case 'y':
    case 'Y': {
      const int count = choices_.below(4);
      content_.u32(count);
      for (int index = 0; index < count; ++index) placeOfText(isWide);
      return true;
    }
    case 'S': {
      constexpr std::uint32_t kWithoutBox = 0x100;
      constexpr std::uint32_t kNarrow = 0x200;
      const QByteArray letters = choices_.bytes(choices_.below(12));
      const std::uint32_t options = textOptions(choices_);
      point(false);
      content_.u32((options & kNarrow) != 0 ? letters.size() : letters.size() / 2).u32(options);
      content_.u32(1).f32(1).f32(1);
      if ((options & kWithoutBox) == 0) points(2, false);
      content_.raw(letters);
      return true;
    }
    case 'N': {
      const QByteArray letters = choices_.bytes(choices_.below(12));
      content_.u16(letters.size()).raw(letters).zeros(letters.size() % 2);
      point(true);
      return true;
    }
    case 'M':
      textWithBox();
      return true;
    default:
      return false;
  }
}

void RecordMaker::font(bool isWide) {
  constexpr int kCharsets[] = {0, 1, 2, 128, 129, 134, 136, 161, 162, 177, 178, 186, 204, 222, 238, 255};
  const QByteArray families[] = {"DejaVu Sans", "DejaVu Serif", "Symbol", "No Such Font", ""};
  constexpr qsizetype kWideFont = 320 - 12;
  constexpr qsizetype kFamily = 32;
  const auto add = [&](std::int64_t value) { isWide ? content_.u32(value) : content_.u16(value); };
  const qsizetype start = content_.size();
  add(measure() / 4 - 30);
  add(choices_.oneIn(3) ? choices_.below(60) : 0);
  add(choices_.oneIn(3) ? choices_.below(250) * 15 : 0);
  add(0);
  add(choices_.oneIn(3) ? 700 : 400);
  for (int flag = 0; flag < 3; ++flag) content_.u8(choices_.below(2));
  content_.u8(choices_.of(kCharsets)).zeros(4);
  const QByteArray family = choices_.of(families);
  if (!isWide) {
    content_.raw(family).zeros(kFamily - family.size());
    return;
  }
  for (const char letter : family) content_.u16(letter);
  content_.zeros(kWideFont - (content_.size() - start));
}

}  // namespace quorvin::fuzz
