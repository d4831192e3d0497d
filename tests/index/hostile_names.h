// SPDX-License-Identifier: GPL-2.0-or-later

// Names that a Linux file system allows and that nobody expects.
#pragma once

#include <QByteArray>

#include <vector>

namespace quorvin::test {

/// As bytes on disk; none is hidden, none holds a slash or a NUL, all are different.
inline std::vector<QByteArray> hostileNames() {
  return {
      // What ends a line or means a folder.
      "new\nline",
      "\n",
      "carriage\rreturn",
      "both\r\n",
      "back\\slash",
      "\\",
      "\\\\server\\share",
      // The sign for what cannot be represented, and patterns.
      "what?",
      "?",
      "*",
      "*.*",
      "[a-z]*",
      // Bytes that are no text.
      "caf\xE9.txt",
      "\xFF\xFE",
      "\xC0\xAF",
      "\xED\xA0\x80",
      "\xF4\x90\x80\x80",
      "cut\xE4\xB8",
      "\x80",
      "good \xC3\xA9 bad \xE9",
      // Marks of the listing format.
      "Volume:",
      "Volume:    FAKE",
      "Directory: fake",
      "Directory: \\fake\\",
      "notes on Volume: 3.txt",
      "<DIR>",
      "<DIR> fake",
      "---------------",
      "a --------------- b",
      "--------------",
      "volume:",
      "<dir>",
      // Blanks, control characters, and what passes for a line end elsewhere.
      " ",
      "   ",
      " leading",
      "trailing ",
      "a  b",
      "tab\tname",
      "\x01\x02\x03",
      "\x1B[31mred\x1B[0m",
      "\x7F",
      "bell\a",
      "form\ffeed",
      "vertical\vtab",
      "next\xC2\x85line",
      "line\xE2\x80\xA8separator",
      "paragraph\xE2\x80\xA9separator",
      "no-break\xC2\xA0"
      "blank",
      // Letters of all kinds, invisible ones too.
      "Grüße aus Łódź",
      "写真",
      "日本語のファイル名.txt",
      "שלום",
      "مرحبا",
      "İstanbul",
      "ΑΒΓ",
      "ﬁligree",
      "﷽",
      "👩‍👩‍👧 family",
      "Ω≈ç√∫˜µ",
      "a\xCC\x81\xCC\x82\xCC\x83\xCC\x84",
      "\xE2\x80\xAE"
      "txt.exe",
      "zero\xE2\x80\x8Bwidth",
      "\xEF\xBB\xBF"
      "bom",
      "\xEF\xBF\xBD",
      "\xF0\x9F\x98\x80",
      // Lengths round the column of names, and the longest there can be.
      QByteArray(64, 'a'),
      QByteArray(65, 'b'),
      QByteArray(66, 'c'),
      QByteArray(69, 'd'),
      QByteArray(70, 'e'),
      QByteArray(255, 'f'),
      QByteArray("ü").repeated(127),
      QByteArray("写").repeated(85),
      QByteArray(64, 'g') + "写" + "写",
      QByteArray(60, 'h') + "Volume:",
      QByteArray(65, 'i') + "Volume:",
      // What looks like other columns, options, commands or markup.
      "1,234",
      "a 123 bytes 1 Jan 2004",
      "-",
      "--",
      "-rf",
      "--help",
      "$(reboot)",
      "`id`",
      "; ls",
      "| cat",
      "a && b",
      "%s%n%x",
      "%00",
      "' OR 1=1 --",
      "<img src=x onerror=alert(1)>",
      "\"quoted\"",
      "'single'",
      "~",
      "#",
      "!",
      "NUL",
      "con.txt",
      "LPT1",
      "Pagefile.sys",
      "undefined",
      "0",
      "-1",
      "1e309",
  };
}

}  // namespace quorvin::test
