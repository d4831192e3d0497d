// SPDX-License-Identifier: GPL-2.0-or-later

// The lists of "dir /s" in the languages that are known.
#include "catalogue/import/list_formats.h"
#include "catalogue/list_entries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvin {
namespace {

using test::readLines;
using test::ReadList;
using test::wallClockOf;
using testing::ElementsAre;

struct Sample {
  const char* language;
  std::vector<std::string_view> lines;
};

void PrintTo(const Sample& sample, std::ostream* out) {
  *out << sample.language;
}

class DirLists : public testing::TestWithParam<Sample> {};

TEST_P(DirLists, AreRecognisedAndReadWithoutALineLeft) {
  const Sample& sample = GetParam();
  const ListFormat* format = recognisedFormat(sample.lines, {});
  ASSERT_NE(format, nullptr);
  EXPECT_EQ(format->name, "dir");
  const ReadList list = readLines(*makeDirReader({}), sample.lines);
  EXPECT_EQ(list.says.find('?'), std::string::npos) << list.says;
  EXPECT_THAT(
      list.entries,
      ElementsAre(
          ListEntry{"/Music", EntryKind::Folder}, ListEntry{"/Music/Rock", EntryKind::Folder},
          ListEntry{"/Music/one song.mp3", EntryKind::File, 1'234'567, wallClockOf("2004-12-15 22:20:00")},
          ListEntry{"/Music/Rock", EntryKind::Folder},
          ListEntry{"/Music/Rock/x", EntryKind::File, 12, wallClockOf("2004-12-15 10:20:00")}));
}

INSTANTIATE_TEST_SUITE_P(
    Languages, DirLists,
    testing::Values(
        Sample{"English",
               {" Volume in drive C is MUSIC", " Volume Serial Number is 1A2B-3C4D", "",
                " Directory of C:\\Music", "", "2004-12-15  10:20 PM    <DIR>          .",
                "2004-12-15  10:20 PM    <DIR>          ..", "2004-12-15  10:20 PM    <DIR>          Rock",
                "2004-12-15  10:20 PM         1,234,567 one song.mp3",
                "               1 File(s)      1,234,567 bytes", "", " Directory of C:\\Music\\Rock", "",
                "2004-12-15  10:20 AM                12 x", "               1 File(s)             12 bytes",
                "", "     Total Files Listed:", "               2 File(s)      1,234,579 bytes",
                "               5 Dir(s)  12,345,678,912 bytes free"}},
        Sample{
            "German",
            {" Volume in Laufwerk C: hat keine Bezeichnung.", " Volumeseriennummer: 1A2B-3C4D", "",
             " Verzeichnis von C:\\Music", "", "15.12.2004  22:20    <DIR>          .",
             "15.12.2004  22:20    <DIR>          Rock", "15.12.2004  22:20         1.234.567 one song.mp3",
             "               1 Datei(en),      1.234.567 Bytes", "", " Verzeichnis von C:\\Music\\Rock", "",
             "15.12.2004  10:20                12 x", "               1 Datei(en),             12 Bytes", "",
             "     Anzahl der angezeigten Dateien:", "               2 Datei(en),      1.234.579 Bytes",
             "               5 Verzeichnis(se), 12.345.678.912 Bytes frei"}},
        Sample{"French",
               {" Le volume dans le lecteur C n'a pas de nom.",
                " Le num\u00E9ro de s\u00E9rie du volume est 1A2B-3C4D", "", " R\u00E9pertoire de C:\\Music",
                "", "15/12/2004  22:20    <REP>          Rock",
                "15/12/2004  22:20         1\u00A0234\u00A0567 one song.mp3",
                "               1 fichier(s)        1\u00A0234\u00A0567 octets", "",
                " R\u00E9pertoire de C:\\Music\\Rock", "", "15/12/2004  10:20                12 x",
                "               1 fichier(s)               12 octets", "",
                "     Total des fichiers list\u00E9s\u00A0:",
                "               2 fichier(s)        1\u00A0234\u00A0579 octets",
                "               5 R\u00E9p(s)   12\u00A0345\u00A0678\u00A0912 octets libres"}},
        Sample{
            "Spanish",
            {" El volumen de la unidad C no tiene etiqueta.",
             " El n\u00FAmero de serie del volumen es: 1A2B-3C4D", "", " Directorio de C:\\Music", "",
             "15/12/2004  22:20    <DIR>          Rock", "15/12/2004  22:20         1.234.567 one song.mp3",
             "               1 archivos      1.234.567 bytes", "", " Directorio de C:\\Music\\Rock", "",
             "15/12/2004  10:20                12 x", "               1 archivos             12 bytes", "",
             "     Total de archivos en la lista:", "               2 archivos      1.234.579 bytes",
             "               5 dirs  12.345.678.912 bytes libres"}},
        Sample{"Italian",
               {" Il volume nell'unit\u00E0 C non ha etichetta.", " Numero di serie del volume: 1A2B-3C4D",
                "", " Directory di C:\\Music", "", "15/12/2004  22:20    <DIR>          Rock",
                "15/12/2004  22:20         1.234.567 one song.mp3",
                "               1 File      1.234.567 byte", "", " Directory di C:\\Music\\Rock", "",
                "15/12/2004  10:20                12 x", "               1 File             12 byte", "",
                "     Totale file elencati:", "               2 File      1.234.579 byte",
                "               5 Directory  12.345.678.912 byte disponibili"}},
        Sample{
            "Portuguese",
            {" O volume na unidade C n\u00E3o tem nome.",
             " O N\u00FAmero de S\u00E9rie do Volume \u00E9 1A2B-3C4D", "", " Pasta de C:\\Music", "",
             "15/12/2004  22:20    <DIR>          Rock", "15/12/2004  22:20         1.234.567 one song.mp3",
             "               1 arquivo(s)      1.234.567 bytes", "", " Pasta de C:\\Music\\Rock", "",
             "15/12/2004  10:20                12 x", "               1 arquivo(s)             12 bytes", "",
             "     Total de arquivos na lista:", "               2 arquivo(s)      1.234.579 bytes",
             "               5 pasta(s)   12.345.678.912 bytes dispon\u00EDveis"}},
        Sample{
            "Dutch",
            {" De volumenaam van station C is MUSIC", " Het volumenummer is 1A2B-3C4D", "",
             " Map van C:\\Music", "", "15-12-2004  22:20    <DIR>          Rock",
             "15-12-2004  22:20         1.234.567 one song.mp3",
             "               1 bestand(en)      1.234.567 bytes", "", " Map van C:\\Music\\Rock", "",
             "15-12-2004  10:20                12 x", "               1 bestand(en)             12 bytes", "",
             "     Totaal aantal weergegeven bestanden:", "               2 bestand(en)      1.234.579 bytes",
             "               5 map(pen)  12.345.678.912 bytes beschikbaar"}},
        Sample{"Polish",
               {" Wolumin w stacji C to MUSIC", " Numer seryjny woluminu: 1A2B-3C4D", "",
                " Katalog: C:\\Music", "", "2004-12-15  22:20    <DIR>          Rock",
                "2004-12-15  22:20         1\u00A0234\u00A0567 one song.mp3",
                "               1 plik(\u00F3w)      1\u00A0234\u00A0567 bajt\u00F3w", "",
                " Katalog: C:\\Music\\Rock", "", "2004-12-15  10:20                12 x",
                "               1 plik(\u00F3w)             12 bajt\u00F3w", "",
                "     Razem wymienionych plik\u00F3w:",
                "               2 plik(\u00F3w)      1\u00A0234\u00A0579 bajt\u00F3w",
                "               5 katalog(\u00F3w)  12\u00A0345\u00A0678\u00A0912 bajt\u00F3w wolnych"}}));

TEST(DirRows, JunctionsLinksTapesAndServers) {
  const ReadList list =
      readLines(*makeDirReader({}),
                {" Directory of \\\\server\\share", "03/04/2004  10:20 AM    <JUNCTION>     old [C:\\new]",
                 "03/04/2004  10:20 AM    <SYMLINK>      link.txt [C:\\a.txt]",
                 "03/04/2004  10:20 AM           (1,234) taped.bak", "03/04/2004  10:20 AM    x"});
  EXPECT_EQ(list.says, "eeee?");
  ASSERT_EQ(list.entries.size(), 4U);
  EXPECT_EQ(list.entries[0].path, "//server/share");
  EXPECT_EQ(list.entries[1], (ListEntry{"//server/share/old", EntryKind::Folder}));
  EXPECT_EQ(list.entries[2], (ListEntry{"//server/share/link.txt", EntryKind::File}));
  EXPECT_EQ(list.entries[3].path, "//server/share/taped.bak");
  EXPECT_EQ(list.entries[3].size, 1'234);
  // English is written in countries with either order.
  EXPECT_EQ(list.entries[3].modified.kind, ListDate::Kind::EitherOrder);
}

TEST(DirRows, OtherLanguagesSayTheOrderOfDates) {
  const ReadList list =
      readLines(*makeDirReader({}), {" Directorio de D:\\", "03/04/2004  10:20                 5 x"});
  ASSERT_EQ(list.entries.size(), 2U);
  EXPECT_EQ(list.entries[1], (ListEntry{"/x", EntryKind::File, 5, wallClockOf("2004-04-03 10:20:00")}));
}

}  // namespace
}  // namespace quorvin
