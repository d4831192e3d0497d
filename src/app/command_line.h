// SPDX-License-Identifier: GPL-2.0-or-later

// What the program was asked for on its command line.
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace quorvin {

/// What a start asks of the window once it is there, be it the window of an earlier start.
struct Errand {
  enum class Kind : std::uint8_t { None, Search, SearchFolder, Rescan, ShowManual };

  Kind kind = Kind::None;
  /// The text that is searched for, or the whole path of the folder.
  QString subject;

  bool operator==(const Errand&) const = default;
};

/// An errand as one text, for handing it over, and back. Empty for none; a text that says nothing gives none.
QString textOf(const Errand& errand);
Errand errandOf(const QString& text);

struct CommandLine {
  enum class Wish : std::uint8_t { OpenWindow, ShowVersion, ShowHelp, RefuseOption, MissValue };

  Wish wish = Wish::OpenWindow;
  /// To open the window: the command line that start-up takes; empty for none. To refuse: the option that
  /// nobody knows, or that lacks its value.
  QString text;
  /// To open the window; never together with a listing.
  Errand errand;
};

/// Reads the arguments after the program's name. Joined by blanks they are one path, as start-up wants it,
/// whatever is in it. Where that path is relative and leads to a file, it is completed from the current
/// folder: a later start from another folder, or the data folder, must not make another file of it. Only
/// where there is no such file are words that look like options options: a first word that starts with "-",
/// and any word that starts with "--". After a first "--" there are none, and what follows the option of an
/// errand is its subject, whatever is in it.
CommandLine readCommandLine(const QStringList& arguments);

/// The application name under which a start with this command line keeps its settings: the path of a file
/// that exists, else that of all other starts.
QString settingsSetOf(const QString& commandLine);

/// What "--help" writes: lines that end in LF.
QString usageText();

}  // namespace quorvin
