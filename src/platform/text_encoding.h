// SPDX-License-Identifier: GPL-2.0-or-later

// Text in the system code page: how the bytes of listings and source lists become characters and back.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <string_view>

namespace quorvin {

/// The characters of one line in the system code page (UTF-8 on Linux and macOS, the ANSI code page on
/// Windows). A line that is not valid in it is read as Windows-1252, that line alone; the five bytes that
/// Windows-1252 leaves undefined become the control characters of the same value.
QString decodeSystemText(QByteArrayView line);

/// Whether the bytes of `line` are valid in the system code page and that is UTF-8, so that they can be taken
/// as they are.
bool isUtf8AsItStands(QByteArrayView line);

/// The characters of UTF-8; bytes that are not valid become U+FFFD. A byte order mark at the front is a
/// character like others.
QString textOfUtf8(std::string_view utf8);

/// How many bytes of `start`, the first bytes of a text file, are a UTF-8 byte order mark: 3 or 0. It is no
/// part of the text.
qsizetype byteOrderMarkLength(QByteArrayView start);

/// `text` in the system code page, with "?" for each character that it cannot hold (on UTF-8: unpaired
/// surrogates).
QByteArray encodeSystemText(QStringView text);

/// Each character in Unicode simple lower case (one character for one), independent of the locale.
QString simpleLowerCase(QStringView text);

/// `text` without blanks (U+0020 only) at both ends.
QStringView trimBlanks(QStringView text);

}  // namespace quorvin
