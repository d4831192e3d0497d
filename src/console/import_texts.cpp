// SPDX-License-Identifier: GPL-2.0-or-later

// What quorvin-cli says of "import".
#include "console/command_texts.h"

#include <QtGlobal>

namespace quorvin {

CommandText importText() {
  return {
      "import",
      "FILE...",
      ArgumentKind::Files,
      QT_TRANSLATE_NOOP("Texts", "Make listings of lists that other programs wrote"),
      {{"--output", "DIR", QT_TRANSLATE_NOOP("Texts", "The folder for the listings")},
       {"--format", "FORMAT", QT_TRANSLATE_NOOP("Texts", "The lists' format; default: as recognised"),
        "ls ls-quoted ls-escaped find-ls find-printf du tree dir unzip tar rsync rclone paths csv checksums "
        "bagit"},
       {"--label", "TEXT", QT_TRANSLATE_NOOP("Texts", "The volume's name; default: the file's name")},
       {"--folder", "DIR", QT_TRANSLATE_NOOP("Texts", "Where paths start that do not start with a slash")},
       {"--pattern", "TEXT", QT_TRANSLATE_NOOP("Texts", "The pattern of find -printf")},
       {"--columns", "LIST", QT_TRANSLATE_NOOP("Texts", "The columns of a table: path=1,size=3,date=Changed"),
        "path= folder= name= size= date= type="},
       {"--bytes", "", QT_TRANSLATE_NOOP("Texts", "The sizes of du are bytes (du -ab)")},
       {"--dates", "ORDER", QT_TRANSLATE_NOOP("Texts", "Dates like 3/4/04: dmy (3 April) or mdy (4 March)"),
        "dmy mdy"},
       {"--made", "DAY", QT_TRANSLATE_NOOP("Texts", "When the list was made, for dates without a year")},
       {"--encoding", "NAME",
        QT_TRANSLATE_NOOP("Texts", "The lists' encoding, such as cp850; default: utf-8"),
        "utf-8 windows-1252 cp437 cp850 cp852 cp866 windows-1250 windows-1251 windows-1253 cp932 cp936 cp949 "
        "cp950"},
       {"--replace", "", QT_TRANSLATE_NOOP("Texts", "Replace listings that are there")},
       {"-q,--quiet", "", QT_TRANSLATE_NOOP("Texts", "Report only what could not be read")}},
      {{"quorvin-cli import --output ~/Listings cd7.lst",
        QT_TRANSLATE_NOOP("Texts", "Import what ls -lR wrote of a CD")},
       {"tar -tvf old.tar | quorvin-cli import --label old --output . -",
        QT_TRANSLATE_NOOP("Texts", "List what is in an archive")},
       {"quorvin-cli import --pattern '%s %T@ %p\\n' --output . disk.lst",
        QT_TRANSLATE_NOOP("Texts", "A list in a form of your own")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "Writes a listing for each FILE into the folder of --output, under the file's name and with the "
           "ending .txt. "
           "The format is recognised from the first lines and reported on standard error. Lines that were "
           "not "
           "understood are counted there, and the first of them shown; the exit status is 2 then. A FILE may "
           "be a pipe; - is standard input."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "What a list does not tell exactly is left out: rounded sizes, sizes in blocks, dates without a "
           "year unless --made is given, and dates that may be of two days unless --dates is given or other "
           "dates of the list decide. Such files have the size -1 or the zero date.")}};
}

}  // namespace quorvin
