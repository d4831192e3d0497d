#include "console/row_cells.h"

#include "console/json_text.h"

#include <algorithm>
#include <cstdio>

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

void addClock(std::string& text, int second) {
  const auto digit = [](int number) { return static_cast<char>('0' + number); };
  const int hour = second / 3600;
  const int minute = second / 60 % 60;
  const int rest = second % 60;
  const std::array<char, 8> clock = {digit(hour / 10),   digit(hour % 10),   ':',
                                     digit(minute / 10), digit(minute % 10), ':',
                                     digit(rest / 10),   digit(rest % 10)};
  text.append(clock.data(), clock.size());
}

std::string isoDay(int day) {
  const CalendarDate date = calendarDateOf(day);
  std::array<char, 40> buffer;
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%04d-%02d-%02d", date.year, date.month, date.day);
  return {buffer.data(), static_cast<std::size_t>(length)};
}

}  // namespace quorvin
