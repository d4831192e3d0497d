// SPDX-License-Identifier: GPL-2.0-or-later

// What is said of "copies".
#include "console/command_texts.h"

#include <QCoreApplication>

namespace quorvin {

CommandText copiesText() {
  return {
      "copies",
      "[WORDS [LISTING...]]",
      ArgumentKind::Files,
      QT_TRANSLATE_NOOP("Texts", "Find copies of files, and what is on one volume only"),
      {{"--single", "", QT_TRANSLATE_NOOP("Texts", "Files that are on one volume only, instead of copies")},
       {"--by-volume", "", QT_TRANSLATE_NOOP("Texts", "Write only how much it is, for each volume")},
       {"--by-folder", "", QT_TRANSLATE_NOOP("Texts", "The same for each folder")},
       {"--match", "N",
        QT_TRANSLATE_NOOP("Texts", "Files must match WORDS by more than this percentage; 50")},
       {"--empty", "", QT_TRANSLATE_NOOP("Texts", "Files of no bytes too")},
       {"--content", "", QT_TRANSLATE_NOOP("Texts", "Look into the files that are at hand")},
       {"--format", "FORMAT", QT_TRANSLATE_NOOP("Texts", "text (default), tsv, csv or json"),
        "text tsv csv json"},
       {"--header", "", QT_TRANSLATE_NOOP("Texts", "Start tsv and csv with the titles of the columns")},
       {"-0,--null", "", QT_TRANSLATE_NOOP("Texts", "End rows with NUL instead of a line feed")},
       {"--limit", "N", QT_TRANSLATE_NOOP("Texts", "Write no more than N of them")},
       {"-q,--quiet", "", QT_TRANSLATE_NOOP("Texts", "Write neither counts nor progress to standard error")},
       {"--no-cache", "", QT_TRANSLATE_NOOP("Texts", "Neither read nor write the search cache")}},
      {{"quorvin-cli copies --limit 20", QT_TRANSLATE_NOOP("Texts", "What takes up most space")},
       {"quorvin-cli copies --single --by-volume",
        QT_TRANSLATE_NOOP("Texts", "How much each disk has that no other one has")},
       {"quorvin-cli copies --single photos", QT_TRANSLATE_NOOP("Texts", "Photos without a backup")},
       {"quorvin-cli copies \"\" cd1.txt cd2.txt", QT_TRANSLATE_NOOP("Texts", "Of these two listings")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "Files are the same that have the same name, whatever its case, and the same size to the byte. "
           "With --content, those in own folders that are there now are read, too, and are not the same "
           "where "
           "they hold something else; a file that is not at hand stays with the first of its group. The "
           "groups that waste most space come first, each with a line for every place. "
           "Folders that are equal as a whole, with all that is in them, are one group, and their files are "
           "not "
           "listed again. Their own names may differ."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "A volume is what a listing calls so; two listings never share one. With --single a file is shown "
           "if no other volume has it, even where its own volume has it twice. Which files are the same is "
           "always decided among all listings: with WORDS, groups are shown of which a search for these "
           "words "
           "finds one file. Without a LISTING, the user's own sources are looked through."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "Left out are files without a size of their own in the listing, which are counted at the end, and "
           "empty ones unless --empty is given. Listings hold the first 65 characters of a name; longer "
           "names "
           "that differ only behind them count as the same. A size that a listing has rounded cannot be told "
           "from one that is exact."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "Tsv and csv have a row for each place, json an object for each group; a group's name is that of "
           "its first file or folder. The last line on standard error has the sum. --limit counts groups, "
           "files or sums, whichever are written.")}};
}

}  // namespace quorvin
