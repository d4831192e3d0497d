// SPDX-License-Identifier: GPL-2.0-or-later

// What quorvin-cli says of its commands. The help, the manual page and the shells' completions are all made
// of this, and so is what the command line takes: an option that is not described here does not exist. What
// is to be read is in English here; said() gives it in the language that is spoken.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

struct OptionText {
  /// "-q,--quiet": short and long, as the parser takes them.
  std::string_view names;
  /// What its value is called; empty for a switch.
  std::string_view value;
  /// So short that help has it in one line.
  const char* text;
  /// The values that there are, with blanks between; empty for others.
  std::string_view choices = {};
};

/// What follows the options, for the completion.
enum class ArgumentKind { None, Files, Folders, OwnFolders };

struct ExampleText {
  std::string_view line;
  const char* text;
};

struct CommandText {
  /// "find"; of a command within a command both words, "sources add".
  std::string_view name;
  /// What follows the options: "TEXT [LISTING...]".
  std::string_view arguments;
  ArgumentKind argumentKind;
  /// One sentence without its full stop, for the list of commands.
  const char* summary;
  std::vector<OptionText> options;
  std::vector<ExampleText> examples;
  /// Paragraphs for the manual page.
  std::vector<const char*> details;
};

/// A text of these in the language that is spoken, as UTF-8.
std::string said(const char* text);

/// "compare", which says much.
CommandText compareText();
/// "copies", which says much.
CommandText copiesText();
/// "plan", which says much.
CommandText planText();
/// "verify", which says much.
CommandText verifyText();
/// "volumes", which says much.
CommandText volumesText();

/// All commands, in the order in which they are shown.
const std::vector<CommandText>& commandTexts();

/// One of them that is described in a file of its own.
CommandText importText();

/// The options of the program itself.
const std::vector<OptionText>& programOptions();

/// The command of that name, which is one of them.
const CommandText& commandText(std::string_view name);

/// Further paragraphs of the manual page, in its own order.
struct SectionText {
  const char* title;
  struct Item {
    /// Empty for a plain paragraph.
    std::string_view term;
    const char* text;
  };
  std::vector<Item> items;
};
const std::vector<SectionText>& manualSections();

}  // namespace quorvin
