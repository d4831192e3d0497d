// SPDX-License-Identifier: GPL-2.0-or-later

// What is said of "compare".
#include "console/command_texts.h"

#include <QCoreApplication>

namespace quorvin {

CommandText compareText() {
  return {
      "compare",
      "EARLIER [LATER]",
      ArgumentKind::Files,
      QT_TRANSLATE_NOOP("Texts", "Say what differs between listings, versions and folders"),
      {{"--number", "N", QT_TRANSLATE_NOOP("Texts", "EARLIER is this version in the listing history")},
       {"--on", "DAY", QT_TRANSLATE_NOOP("Texts", "EARLIER is the version of that day, such as 2004-03-31")},
       {"--by-folder", "", QT_TRANSLATE_NOOP("Texts", "Write only how much it is, for each folder")},
       {"--format", "FORMAT", QT_TRANSLATE_NOOP("Texts", "text (default), tsv, csv or json"),
        "text tsv csv json"},
       {"--header", "", QT_TRANSLATE_NOOP("Texts", "Start tsv and csv with the titles of the columns")},
       {"-0,--null", "", QT_TRANSLATE_NOOP("Texts", "End rows with NUL instead of a line feed")},
       {"--limit", "N", QT_TRANSLATE_NOOP("Texts", "Write no more than N of them")},
       {"-q,--quiet", "", QT_TRANSLATE_NOOP("Texts", "Write neither sums nor progress to standard error")}},
      {{"quorvin-cli compare Music", QT_TRANSLATE_NOOP("Texts", "What the last rescan changed")},
       {"quorvin-cli compare Music /home/me/music",
        QT_TRANSLATE_NOOP("Texts", "What has changed in the folder since then")},
       {"quorvin-cli compare --on 2004-03-31 Music",
        QT_TRANSLATE_NOOP("Texts", "What has changed since March")},
       {"quorvin-cli compare cd7.txt copy-of-cd7.txt",
        QT_TRANSLATE_NOOP("Texts", "Whether a copy has everything")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "EARLIER and LATER are listings, or folders, which are listed as they are now. Without LATER the "
           "listing EARLIER is compared with its newest complete version in the listing history, or with the "
           "one "
           "that --number or --on names. A listing in the data folder may be called by its description."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "Lines start with + for a file that was added, - for one that was removed, * for one that has "
           "another "
           "size or date, and > for one that was moved, with the place where it was in the line below. A "
           "file is "
           "taken to be moved if one with the same name and size is gone elsewhere; if there are several, "
           "one with "
           "the same date is preferred. The name of a volume counts only where a listing has more than one, "
           "and if "
           "the two have no folder in common, they are compared below the folders that have all of their "
           "files."),
       QT_TRANSLATE_NOOP("Texts",
                         "The exit status is 0 if there is no difference, 1 if there is one, and 2 if "
                         "something went wrong. "
                         "Listings hold the first 65 characters of a name, and dates to the second.")}};
}

}  // namespace quorvin
