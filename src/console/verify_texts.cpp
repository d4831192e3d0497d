// SPDX-License-Identifier: GPL-2.0-or-later

// What is said of "verify".
#include "console/command_texts.h"

#include <QCoreApplication>

namespace quorvin {

CommandText verifyText() {
  return {
      "verify",
      "LISTING [FOLDER]",
      ArgumentKind::Files,
      QT_TRANSLATE_NOOP("Texts", "Say which files do not hold any more what they held"),
      {{"--restart", "", QT_TRANSLATE_NOOP("Texts", "Begin again, also after one that was stopped")},
       {"--json", "", QT_TRANSLATE_NOOP("Texts", "Write an object for each of them, as JSON")},
       {"-q,--quiet", "", QT_TRANSLATE_NOOP("Texts", "Write neither sums nor progress to standard error")}},
      {{"quorvin-cli index --checksums --output cd7.txt /media/cd7",
        QT_TRANSLATE_NOOP("Texts", "Take the checksums")},
       {"quorvin-cli verify cd7.txt", QT_TRANSLATE_NOOP("Texts", "Read the disk again, years later")},
       {"quorvin-cli verify cd7.txt /mnt", QT_TRANSLATE_NOOP("Texts", "Where it is mounted elsewhere")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "Holds the files of a folder against the checksums beside its LISTING, which index --checksums "
           "has "
           "made. An own folder may be called by its description. Lines start with ! for a file that has the "
           "size and date of the listing and holds something else, so that its medium has lost it; - for one "
           "that is gone; * for one that has another size or date; + for one that has no checksum; and ? for "
           "one that cannot be read, with the reason behind it."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "A file with another size or date was changed on purpose, and is not read. Where the "
           "listing does not tell these, one that holds something else counts as changed."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "One that is stopped, by Ctrl-C or by a crash, goes on where it was when it is started "
           "again. The exit status is 0 if all files are as they were, 1 if some are not, and 2 "
           "if something could not be read.")}};
}

}  // namespace quorvin
