// SPDX-License-Identifier: GPL-2.0-or-later

// What is said of "plan".
#include "console/command_texts.h"

#include <QCoreApplication>

namespace quorvin {

CommandText planText() {
  return {
      "plan",
      "WORDS [LISTING...]",
      ArgumentKind::Files,
      QT_TRANSLATE_NOOP("Texts", "Say which volumes to fetch for files that are wanted"),
      {{"--match", "N", QT_TRANSLATE_NOOP("Texts", "Hits must match more than this percentage; 50")},
       {"--format", "FORMAT", QT_TRANSLATE_NOOP("Texts", "text (default) or json"), "text json"},
       {"--script", "", QT_TRANSLATE_NOOP("Texts", "Write a script that copies the files with rsync")},
       {"--to", "FOLDER", QT_TRANSLATE_NOOP("Texts", "Where that script copies them")},
       {"-q,--quiet", "", QT_TRANSLATE_NOOP("Texts", "Write neither counts nor progress to standard error")},
       {"--no-cache", "", QT_TRANSLATE_NOOP("Texts", "Neither read nor write the search cache")}},
      {{"quorvin-cli plan \"northern harbour live\"",
        QT_TRANSLATE_NOOP("Texts", "The fewest disks for all hits of a search")},
       {"quorvin-cli plan --script --to ~/fetched harbour > fetch.sh",
        QT_TRANSLATE_NOOP("Texts",
                          "A script that asks for each disk and copies; start it with: sh fetch.sh")},
       {"quorvin-cli find --format json --limit 40 harbour | quorvin-cli plan -",
        QT_TRANSLATE_NOOP("Texts", "Only for some hits")},
       {"quorvin-cli plan - < wanted.txt", QT_TRANSLATE_NOOP("Texts", "For a list, one name a line")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "Writes the fewest volumes that hold all wanted files, in the order in which to insert them, with "
           "what to copy from each. Wanted are the hits of a search for WORDS, as find makes it; or, with - "
           "in "
           "place of WORDS, the files of a list on standard input: a line each, with JSON as find writes it, "
           "or with a name. A name alone means every file of that name."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "Files are the same that have the same name, whatever its case, and the same size to the byte; "
           "nobody looks into them, and any one will do. A file without a size of its own in the listing is "
           "the same as no other. Listings hold the first 65 characters of a name; longer names that differ "
           "only behind them count as the same."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "A volume is what a listing calls so; two listings never share one. What only one volume has, and "
           "what one has that another has too, is settled first. Where of the rest up to 20 volumes have "
           "files "
           "in common, all combinations are tried, and there is no way with fewer. Of more, each next one is "
           "chosen greedily, for having most of what is left; the plan says so, and there may be a way with "
           "fewer."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "With words, listings are read twice, so they cannot come from a pipe. The script is for any "
           "POSIX "
           "shell. It asks for each volume and for the folder where it is now, finds the listing's folders "
           "there, and copies into a folder for each volume. A file that is not there is told, and the "
           "others "
           "are copied.")}};
}

}  // namespace quorvin
