// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/command_texts.h"

#include "texts/texts.h"

#include <algorithm>

namespace quorvin {

namespace {

constexpr OptionText kQuiet{
    "-q,--quiet", "", QT_TRANSLATE_NOOP("Texts", "Write neither counts nor progress to standard error")};
constexpr OptionText kJson{"--json", "", QT_TRANSLATE_NOOP("Texts", "Write JSON, an object a line")};

CommandText findText() {
  return {
      "find",
      "TEXT [LISTING...]",
      ArgumentKind::Files,
      QT_TRANSLATE_NOOP("Texts", "Find files in listings by words and a match percentage"),
      {{"--match", "N", QT_TRANSLATE_NOOP("Texts", "Hits must match more than this percentage; 50")},
       {"--format", "FORMAT", QT_TRANSLATE_NOOP("Texts", "tsv (default), csv or json"), "tsv csv json"},
       {"--fields", "LIST",
        QT_TRANSLATE_NOOP("Texts", "Of match,volume,folder,name,path,size,modified,listing,words"),
        "match volume folder name path size modified listing words"},
       {"--header", "", QT_TRANSLATE_NOOP("Texts", "Start with the titles of the columns")},
       {"--no-header", "",
        QT_TRANSLATE_NOOP("Texts", "Leave them out of csv with --fields, which starts with them")},
       {"-0,--null", "", QT_TRANSLATE_NOOP("Texts", "End rows with NUL instead of a line feed")},
       {"--limit", "N", QT_TRANSLATE_NOOP("Texts", "Write no more than N hits")},
       {"--sort", "FIELD", QT_TRANSLATE_NOOP("Texts", "match, volume, folder, name, size or modified"),
        "match volume folder name size modified"},
       {"--reverse", "", QT_TRANSLATE_NOOP("Texts", "The other way round, with --sort")},
       {"--color", "WHEN", QT_TRANSLATE_NOOP("Texts", "Highlight the words: auto (default), always or never"),
        "auto always never"},
       {"--count", "", QT_TRANSLATE_NOOP("Texts", "Write only the number of hits")},
       kQuiet,
       {"--no-cache", "", QT_TRANSLATE_NOOP("Texts", "Neither read nor write the search cache")}},
      {{"quorvin-cli find \"northern harbour live\"", QT_TRANSLATE_NOOP("Texts", "Search your own sources")},
       {"quorvin-cli find -0 --fields path harbour | xargs -0 ls -l",
        QT_TRANSLATE_NOOP("Texts", "Hand the files on")},
       {"quorvin-cli index . | quorvin-cli find --match 99 \"harbour live\" -",
        QT_TRANSLATE_NOOP("Texts", "A listing from a pipe")}},
      {QT_TRANSLATE_NOOP("Texts",
                         "Writes one row for each entry of the listings that matches TEXT by more than the "
                         "wanted percentage, "
                         "in "
                         "the order in which they are found. TEXT is one argument: words with blanks "
                         "between, in any order, of "
                         "which each is looked for anywhere in folder or name, whatever its case. The match "
                         "is the share of "
                         "the "
                         "words that were found. Without a LISTING, the user's own sources are searched, as "
                         "the window does. A "
                         "LISTING may be a pipe; - is standard input."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "In tsv and csv, the columns are those of the window unless --fields chooses others: the match as "
           "\"100%\", volume, folder, name, the size in megabytes and the date, as the locale writes them. "
           "Json "
           "has all fields. Tsv has blanks in place of control characters, but where -0 is given and there "
           "is "
           "one column, texts are left as they are. On a terminal, no control character of a name gets "
           "through."),
       QT_TRANSLATE_NOOP("Texts",
                         "The last line on standard error says how many entries were found and searched. "
                         "With --sort nothing "
                         "is "
                         "written before all is searched.")}};
}

CommandText indexText() {
  return {
      "index",
      "FOLDER",
      ArgumentKind::Folders,
      QT_TRANSLATE_NOOP("Texts", "Write the listing of a folder"),
      {{"--label", "TEXT",
        QT_TRANSLATE_NOOP("Texts", "The volume's name in the listing; default: the folder's name")},
       {"--folders-only", "", QT_TRANSLATE_NOOP("Texts", "List folders only")},
       {"--output", "FILE",
        QT_TRANSLATE_NOOP("Texts", "The listing's file; default, and -: standard output")},
       {"--checksums", "", QT_TRANSLATE_NOOP("Texts", "Put the SHA-256 of each file beside it; see verify")},
       kQuiet},
      {{"quorvin-cli index --output music.txt ~/Music", QT_TRANSLATE_NOOP("Texts", "Catalogue a folder")},
       {"quorvin-cli index --label \"CD 7\" /media/cdrom | gzip > cd7.gz",
        QT_TRANSLATE_NOOP("Texts", "Name it, and pack it")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "Catalogues a folder with everything below it. A file is put in place when it is whole; until "
           "then, and when anything goes wrong, the one that was there before stays. Names that could not be "
           "read are reported on standard error."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "The checksums are in a file beside the listing, with .sha256 behind its name; sha256sum -c reads "
           "it in the folder. When it is made again, a file that has the size and date that the listing told "
           "until then keeps its checksum and is not read.")}};
}

CommandText refreshText() {
  return {
      "refresh",
      "[NAME...]",
      ArgumentKind::OwnFolders,
      QT_TRANSLATE_NOOP("Texts", "Renew the listings of your own folders, or of those named"),
      {kQuiet, {"--json", "", QT_TRANSLATE_NOOP("Texts", "Write what was done to standard output, as JSON")}},
      {{"quorvin-cli refresh", QT_TRANSLATE_NOOP("Texts", "Renew all of them")},
       {"quorvin-cli refresh Music Films", QT_TRANSLATE_NOOP("Texts", "Only these")}},
      {QT_TRANSLATE_NOOP(
          "Texts",
          "A NAME is the description of a folder. A folder that is not there, such as an unplugged drive, "
          "keeps its listing. What a listing held before is kept too; see history.")}};
}

CommandText sourcesText() {
  return {
      "sources",
      "",
      ArgumentKind::None,
      QT_TRANSLATE_NOOP("Texts", "Show what is searched, or change it: add, remove, move"),
      {kQuiet, kJson},
      {{"quorvin-cli sources", QT_TRANSLATE_NOOP("Texts", "Show folders and offline lists")},
       {"quorvin-cli sources add ~/Music cd7.txt",
        QT_TRANSLATE_NOOP("Texts", "Add a folder and an offline list")},
       {"quorvin-cli sources remove Music", QT_TRANSLATE_NOOP("Texts", "Take one out of its list")},
       {"quorvin-cli sources move Films 1", QT_TRANSLATE_NOOP("Texts", "Have one searched first")}},
      {QT_TRANSLATE_NOOP(
           "Texts",
           "Shows a row for each source, in the order in which they are searched: \"folder\", \"main\" or "
           "\"offline\", its description, its path, the path of its listing, and whether the source is "
           "\"there\" or \"gone\", parted by tabs. The last line, on standard error, names the folder in "
           "which listings and lists are kept."),
       QT_TRANSLATE_NOOP(
           "Texts",
           "A window that is open shows changes when it is next started. Where it has changed the same list "
           "meanwhile, neither is lost: one of them is kept beside the other, and a message says so.")}};
}

CommandText sourcesAddText() {
  return {"sources add",
          "PATH...",
          ArgumentKind::Files,
          QT_TRANSLATE_NOOP("Texts", "Add folders of your own, or listings as offline lists"),
          {{"--name", "TEXT",
            QT_TRANSLATE_NOOP("Texts", "The description of one source; default: the folder's name")},
           kQuiet},
          {{"quorvin-cli sources add --name Songs ~/Music", QT_TRANSLATE_NOOP("Texts", "A folder")},
           {"quorvin-cli sources add cd7.txt", QT_TRANSLATE_NOOP("Texts", "An offline list")}},
          {QT_TRANSLATE_NOOP(
              "Texts", "All of the paths are added, or none. A folder is listed by the next refresh.")}};
}

CommandText sourcesRemoveText() {
  return {"sources remove",
          "NAME...",
          ArgumentKind::OwnFolders,
          QT_TRANSLATE_NOOP("Texts", "Take sources out of their lists"),
          {kQuiet},
          {{"quorvin-cli sources remove Music", QT_TRANSLATE_NOOP("Texts", "By its description")},
           {"quorvin-cli sources remove /media/cd7.txt", QT_TRANSLATE_NOOP("Texts", "By its path")}},
          {QT_TRANSLATE_NOOP("Texts",
                             "A NAME is a description or a path. Neither folder nor listing is touched.")}};
}

CommandText sourcesMoveText() {
  return {
      "sources move",
      "NAME PLACE",
      ArgumentKind::OwnFolders,
      QT_TRANSLATE_NOOP("Texts", "Give a source another place in its list"),
      {kQuiet},
      {{"quorvin-cli sources move Films 1", QT_TRANSLATE_NOOP("Texts", "Search it before the others")}},
      {QT_TRANSLATE_NOOP(
          "Texts",
          "A NAME is a description or a path, PLACE a number from 1. Sources are searched in this order.")}};
}

CommandText historyText() {
  return {
      "history",
      "[LISTING]",
      ArgumentKind::OwnFolders,
      QT_TRANSLATE_NOOP("Texts", "Show the earlier versions of listings, or restore one"),
      {{"--restore", "",
        QT_TRANSLATE_NOOP("Texts", "Put the newest complete version in the listing's place")},
       {"--number", "N", QT_TRANSLATE_NOOP("Texts", "Restore this version instead")},
       kJson},
      {{"quorvin-cli history Music", QT_TRANSLATE_NOOP("Texts", "Show what there is")},
       {"quorvin-cli history --restore --number 12 Music",
        QT_TRANSLATE_NOOP("Texts", "Bring that version back")}},
      {QT_TRANSLATE_NOOP(
          "Texts",
          "Each row holds the listing, the number of the version, when the listing was made, its entries, "
          "its "
          "bytes, and \"complete\", \"incomplete\" or \"damaged\", parted by tabs, newest first. LISTING is "
          "the description of a folder, or the name or path of a listing.")}};
}

CommandText cacheText() {
  return {"cache",
          "",
          ArgumentKind::None,
          QT_TRANSLATE_NOOP("Texts", "Show what is kept for later searches, or remove it"),
          {{"--clear", "", QT_TRANSLATE_NOOP("Texts", "Remove it; it is made again when it is needed")},
           {"--unused", "", QT_TRANSLATE_NOOP("Texts", "Only what belongs to no listing any more")},
           kJson},
          {{"quorvin-cli cache", QT_TRANSLATE_NOOP("Texts", "Show it")},
           {"quorvin-cli cache --clear --unused", QT_TRANSLATE_NOOP("Texts", "Tidy up")}},
          {QT_TRANSLATE_NOOP(
              "Texts",
              "Each row holds a size in bytes and the listing it is for, parted by a tab, and a third column "
              "\"(gone)\" where that listing is not there any more. What no search can use is marked as "
              "\"(damaged)\", \"(unfinished)\" or \"(of an earlier version)\".")}};
}

}  // namespace

const std::vector<CommandText>& commandTexts() {
  static const std::vector<CommandText> texts{
      findText(),       copiesText(),        compareText(),     planText(),    volumesText(),
      indexText(),      verifyText(),        importText(),      refreshText(), sourcesText(),
      sourcesAddText(), sourcesRemoveText(), sourcesMoveText(), historyText(), cacheText()};
  return texts;
}

const std::vector<OptionText>& programOptions() {
  static const std::vector<OptionText> options{
      {"-h,--help", "", QT_TRANSLATE_NOOP("Texts", "Show this help, or that of a command behind it")},
      {"--version", "", QT_TRANSLATE_NOOP("Texts", "Show the version")},
      {"--completion", "SHELL", QT_TRANSLATE_NOOP("Texts", "Write the completion for bash, zsh or fish"),
       "bash zsh fish"},
      {"--man", "", QT_TRANSLATE_NOOP("Texts", "Write the manual page")}};
  return options;
}

std::string said(const char* text) {
  return Texts::tr(text).toStdString();
}

const CommandText& commandText(std::string_view name) {
  return *std::ranges::find(commandTexts(), name, &CommandText::name);
}

const std::vector<SectionText>& manualSections() {
  static const std::vector<SectionText> sections{
      {QT_TRANSLATE_NOOP("Texts", "FIELDS"),
       {{"", QT_TRANSLATE_NOOP("Texts", "What --fields of find chooses from, and the keys of its JSON:")},
        {"match", QT_TRANSLATE_NOOP("Texts", "The match percentage, a number.")},
        {"volume, folder, name",
         QT_TRANSLATE_NOOP("Texts", "As the listing has them, the folder with backslashes.")},
        {"path",
         QT_TRANSLATE_NOOP(
             "Texts",
             "The path of the file itself, where the hit is from a folder of your own; empty for others, and "
             "where the listing does not hold the whole name and the file is not there. With --fields path "
             "alone, "
             "hits without a path are left out and counted on standard error.")},
        {"size", QT_TRANSLATE_NOOP("Texts", "Bytes.")},
        {"modified",
         QT_TRANSLATE_NOOP(
             "Texts", "As in 2004-01-15T10:20:30, in the time zone of the machine that made the listing.")},
        {"listing", QT_TRANSLATE_NOOP("Texts", "The path of the listing, as it was given.")},
        {"words", QT_TRANSLATE_NOOP(
                      "Texts", "The words that were found, as they were searched for; in JSON an array.")},
        {"inherited", QT_TRANSLATE_NOOP("Texts",
                                        "In JSON only, and only where it is true: the entry has no size and "
                                        "date of its own in the listing, "
                                        "and those shown are of an earlier line. Where there are none at "
                                        "all, both keys are left out.")}}},
      {QT_TRANSLATE_NOOP("Texts", "EXIT STATUS"),
       {{"0", QT_TRANSLATE_NOOP(
                  "Texts",
                  "find, copies, plan and volumes: there were hits. compare: nothing differs. verify: all "
                  "files are as they were. "
                  "Others: all was done.")},
        {"1", QT_TRANSLATE_NOOP("Texts",
                                "find, copies, plan and volumes: there were none. compare: something "
                                "differs. verify: some files are not as they were. history: there is no "
                                "earlier version.")},
        {"2", QT_TRANSLATE_NOOP("Texts",
                                "Something went wrong, or the command line was not understood; a sentence on "
                                "standard error says "
                                "what. What could be done was done. index and refresh: also when a folder "
                                "holds more names than a "
                                "listing takes.")},
        {"130, 143", QT_TRANSLATE_NOOP(
                         "Texts", "An interrupt or a termination ended it. Complete rows and files stay.")}}},
      {QT_TRANSLATE_NOOP("Texts", "FILES"),
       {{"$XDG_DATA_HOME/quorvin, ~/.local/share/quorvin",
         QT_TRANSLATE_NOOP("Texts",
                           "Listings of own folders, the lists of sources, the listing history and notes on "
                           "volumes, unless "
                           "another folder is "
                           "chosen in the window under File, Options, or the program was copied somewhere as "
                           "it is: then they "
                           "are beside it. quorvin-cli sources names the folder.")},
        {"$XDG_CONFIG_HOME/quorvin/settings.ini, ~/.config/quorvin/settings.ini",
         QT_TRANSLATE_NOOP("Texts", "The settings.")},
        {"$XDG_CACHE_HOME/quorvin, ~/.cache/quorvin", QT_TRANSLATE_NOOP("Texts", "The search cache.")}}},
      {QT_TRANSLATE_NOOP("Texts", "ENVIRONMENT"),
       {{"NO_COLOR",
         QT_TRANSLATE_NOOP(
             "Texts", "If it is set and not empty, find colours nothing unless --color always is given.")},
        {"TERM", QT_TRANSLATE_NOOP("Texts", "If it is dumb, find colours nothing either.")},
        {"LANGUAGE, LC_ALL, LC_MESSAGES, LANG",
         QT_TRANSLATE_NOOP("Texts", "The language of texts: German, English, French or Spanish.")},
        {"LC_ALL, LC_TIME, LC_NUMERIC, LANG",
         QT_TRANSLATE_NOOP("Texts", "How sizes and dates are written, and read in listings.")},
        {"QUORVIN_SETTINGS", QT_TRANSLATE_NOOP("Texts", "The settings file to use.")},
        {"XDG_DATA_HOME, XDG_CONFIG_HOME, XDG_CACHE_HOME", QT_TRANSLATE_NOOP("Texts", "See FILES.")}}}};
  return sections;
}

}  // namespace quorvin
