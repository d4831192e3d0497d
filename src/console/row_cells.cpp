// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/row_cells.h"

#include "console/json_text.h"

#include <algorithm>

namespace quorvin {

namespace {

bool isControl(char byte) {
  return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
}

bool isHigh(char byte) {
  return static_cast<unsigned char>(byte) >= 0x80;
}

constexpr std::string_view kQuotedSigns = ",\"\n\r";

bool needsQuotes(char byte) {
  return kQuotedSigns.find(byte) != std::string_view::npos;
}

/// `text` from `start` on with a sign in place of each control character.
void replaceControls(std::string& text, std::size_t start, char sign) {
  std::replace_if(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), isControl, sign);
}

/// The same for the controls above ASCII and for bytes that are no UTF-8. The text never grows.
void replaceHighControls(std::string& text, std::size_t start) {
  std::size_t end = start;
  for (std::size_t at = start; at < text.size();) {
    const std::string_view rest = std::string_view(text).substr(at);
    const std::size_t length = isHigh(rest[0]) ? characterLength(rest) : 1;
    const std::size_t size = std::max<std::size_t>(length, 1);
    if (length == 0 || isHighControl(rest.substr(0, size))) {
      text[end++] = '?';
    } else {
      for (std::size_t i = 0; i < size; ++i) text[end++] = text[at + i];
    }
    at += size;
  }
  text.resize(end);
}

/// Puts quotes around the text from `start` on, and doubles those in it, from back to front.
void quote(std::string& text, std::size_t start) {
  const auto quotes = std::count(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), '"');
  std::size_t from = text.size();
  text.resize(from + static_cast<std::size_t>(quotes) + 2);
  std::size_t to = text.size();
  text[--to] = '"';
  while (from > start) {
    const char byte = text[--from];
    text[--to] = byte;
    if (byte == '"') text[--to] = byte;
  }
  text[start] = '"';
}

}  // namespace

CellForm::CellForm(CellRule rule, bool isForTerminal) : rule_(rule), isForTerminal_(isForTerminal) {
  for (std::size_t i = 0; i < care_.size(); ++i) {
    const auto byte = static_cast<char>(i);
    const bool isQuoted = rule == CellRule::Quotes && needsQuotes(byte);
    const bool isBlank = rule == CellRule::Blanks && isControl(byte);
    const bool isReplaced = isForTerminal && (isControl(byte) || isHigh(byte));
    care_[i] = isQuoted || isBlank || isReplaced ? 1 : 0;
  }
}

void CellForm::finishCarefully(std::string& text, std::size_t start) const {
  if (rule_ == CellRule::Quotes) {
    if (std::string_view(text).substr(start).find_first_of(kQuotedSigns) != std::string_view::npos) {
      quote(text, start);
    }
    if (isForTerminal_) replaceControls(text, start, '?');
  } else if (rule_ == CellRule::Blanks || isForTerminal_) {
    replaceControls(text, start, ' ');
  }
  if (isForTerminal_) replaceHighControls(text, start);
}

void addMoment(std::string& text, DateValue date) {
  const DayAndSecond moment = splitDateValue(date);
  const CalendarDate day = calendarDateOf(moment.day);
  std::array<char, 19> form = {'0', '0', '0', '0', '-', '0', '0', '-', '0', '0',
                               'T', '0', '0', ':', '0', '0', ':', '0', '0'};
  const auto putAt = [&form](std::size_t place, int number) {
    form[place] = static_cast<char>('0' + number / 10);
    form[place + 1] = static_cast<char>('0' + number % 10);
  };
  putAt(0, day.year / 100);
  putAt(2, day.year % 100);
  putAt(5, day.month);
  putAt(8, day.day);
  putAt(11, moment.second / 3600);
  putAt(14, moment.second / 60 % 60);
  putAt(17, moment.second % 60);
  text.append(form.data(), form.size());
}

}  // namespace quorvin
