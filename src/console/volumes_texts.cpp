// SPDX-License-Identifier: GPL-2.0-or-later

// What is said of "volumes".
#include "console/command_texts.h"

#include <QCoreApplication>

namespace quorvin {

CommandText volumesText() {
  return {
      "volumes",
      "[WORDS [LISTING...]]",
      ArgumentKind::Files,
      QT_TRANSLATE_NOOP("Texts", "Show what is on each volume, or note where it is kept"),
      {{"--match", "N",
        QT_TRANSLATE_NOOP("Texts", "Files must match WORDS by more than this percentage; 50")},
       {"--sort", "KEY", QT_TRANSLATE_NOOP("Texts", "volume, files, size, newest, listed, free or note"),
        "volume files size newest listed free note"},
       {"--reverse", "", QT_TRANSLATE_NOOP("Texts", "The other way round, with --sort")},
       {"--json", "", QT_TRANSLATE_NOOP("Texts", "Write JSON, an object a line")},
       {"--note", "TEXT", QT_TRANSLATE_NOOP("Texts", "Note this on the volume named in place of WORDS")},
       {"-q,--quiet", "", QT_TRANSLATE_NOOP("Texts", "Write neither counts nor progress to standard error")},
       {"--no-cache", "", QT_TRANSLATE_NOOP("Texts", "Neither read nor write the search cache")}},
      {{"quorvin-cli volumes --sort size --reverse", QT_TRANSLATE_NOOP("Texts", "The fullest one first")},
       {"quorvin-cli volumes photos", QT_TRANSLATE_NOOP("Texts", "Which disks have photos, and how many")},
       {"quorvin-cli volumes --note \"blue box, shelf 3\" \"CD 7\"",
        QT_TRANSLATE_NOOP("Texts", "Note where a disk is kept")},
       {"quorvin-cli volumes --note \"\" \"CD 7\"", QT_TRANSLATE_NOOP("Texts", "Take the note away")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "Writes a line for each volume of the listings: how many files it has and their bytes, when the "
           "newest of them was changed, how long ago its listing was written, and, where the folder of an "
           "own source is there now, how much is free on its drive. Behind the volume's name stands your "
           "own note. With WORDS, only files count that a search for these words finds. Without a LISTING, "
           "the user's own sources are looked through."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "A volume is what a listing calls so; two listings never share one. Bytes and dates are those of "
           "files with a size of their own in the listing. Volumes without what they are sorted by come "
           "last. In json, the newest file has its folder and name, and what is not known has no key."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "--note writes nothing but keeps TEXT, which replaces an earlier note; it is shown in the window "
           "too. Where several listings have a volume of that name, name the listing behind it.")}};
}

}  // namespace quorvin
