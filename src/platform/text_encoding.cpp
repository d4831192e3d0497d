// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_encoding.h"

#include <QStringConverter>
#include <QUtf8StringView>

#include <array>

namespace quorvin {

namespace {

// The characters of bytes 0x80 to 0x9F; all other bytes stand for the character of the same number.
constexpr std::array<char16_t, 32> kWindows1252Upper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString decodeWindows1252(QByteArrayView line) {
  QString text(line.size(), Qt::Uninitialized);
  for (qsizetype i = 0; i < line.size(); ++i) {
    const auto byte = static_cast<unsigned char>(line[i]);
    const bool mapped = byte >= 0x80 && byte < 0xA0;
    text[i] = QChar(mapped ? kWindows1252Upper[byte - 0x80U] : static_cast<char16_t>(byte));
  }
  return text;
}

}  // namespace

QString decodeSystemText(QByteArrayView line) {
  QStringDecoder decoder(QStringConverter::System,
                         QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
  QString text = decoder.decode(line);
  return decoder.hasError() ? decodeWindows1252(line) : text;
}

QString textOfUtf8(std::string_view utf8) {
  // QString::fromUtf8 would drop a byte order mark at the front.
  QStringDecoder decoder(QStringConverter::Utf8,
                         QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
  return decoder.decode(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

qsizetype byteOrderMarkLength(QByteArrayView start) {
  constexpr QByteArrayView kMark = "\xEF\xBB\xBF";
  return start.startsWith(kMark) ? kMark.size() : 0;
}

bool isUtf8AsItStands(QByteArrayView line) {
#ifdef Q_OS_WIN
  constexpr bool kSystemIsUtf8 = false;
#else
  constexpr bool kSystemIsUtf8 = true;
#endif
  return kSystemIsUtf8 && QUtf8StringView(line.data(), line.size()).isValidUtf8();
}

QByteArray encodeSystemText(QStringView text) {
  QStringEncoder encoder(QStringConverter::System, QStringConverter::Flag::Stateless);
  const QByteArray bytes = encoder.encode(text);
  if (!encoder.hasError()) return bytes;
  QByteArray result;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    const QStringView character = text.mid(i, pair ? 2 : 1);
    QStringEncoder single(QStringConverter::System, QStringConverter::Flag::Stateless);
    const QByteArray encoded = single.encode(character);
    result += single.hasError() ? QByteArray("?") : encoded;
    i += character.size() - 1;
  }
  return result;
}

namespace {

// QChar leaves the capital I with a dot alone, because its full lower case is two characters; its simple
// lower case is one.
constexpr char16_t kCapitalDottedI = 0x0130;

}  // namespace

QString simpleLowerCase(QStringView text) {
  QString lower;
  lower.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      const char32_t folded = QChar::toLower(QChar::surrogateToUcs4(text[i], text[i + 1]));
      lower += QChar::fromUcs4(folded);
      ++i;
    } else {
      lower += text[i] == kCapitalDottedI ? QChar(u'i') : text[i].toLower();
    }
  }
  return lower;
}

QStringView trimBlanks(QStringView text) {
  while (text.startsWith(u' ')) text = text.mid(1);
  while (text.endsWith(u' ')) text.chop(1);
  return text;
}

}  // namespace quorvin
