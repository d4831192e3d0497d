// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/text_pages.h"

#include <QtGlobal>

#include <algorithm>

namespace quorvin {

namespace {

/// Where the explanations start in the help of the program, and of a command.
constexpr std::size_t kProgramColumn = 22;
constexpr std::size_t kCommandColumn = 20;

void addLine(std::string& text, std::string_view left, std::string_view right, std::size_t column) {
  std::string line = "  " + std::string(left);
  line.resize(std::max(line.size() + 1, column), ' ');
  text += line;
  text += right;
  text += '\n';
}

std::string withBlanks(std::string_view names) {
  std::string result(names);
  const std::size_t comma = result.find(',');
  if (comma != std::string::npos) result.insert(comma + 1, 1, ' ');
  return result;
}

std::string termOf(const OptionText& option) {
  std::string term = withBlanks(option.names);
  if (!option.value.empty()) term += ' ' + std::string(option.value);
  return term;
}

std::string usageOf(const CommandText& command) {
  std::string usage = "quorvin-cli " + std::string(command.name);
  if (!command.options.empty()) usage += " [" + said(QT_TRANSLATE_NOOP("Texts", "options")) + ']';
  if (!command.arguments.empty()) usage += ' ' + std::string(command.arguments);
  return usage;
}

/// Text for a manual page, where a dash is a hyphen unless it is escaped.
std::string troff(std::string_view text) {
  std::string result;
  for (const char byte : text) {
    if (byte == '-') {
      result += "\\-";
    } else if (byte == '\\') {
      result += "\\e";
    } else {
      result += byte;
    }
  }
  // These at the start of a line would be requests.
  if (result.starts_with('.') || result.starts_with('\'')) result.insert(0, "\\&");
  return result;
}

void addRequest(std::string& page, std::string_view request, std::string_view text) {
  page += '.';
  page += request;
  page += ' ' + troff(text) + '\n';
}

/// A term in bold, with its explanation below.
void addItem(std::string& page, std::string_view term, std::string_view text) {
  page += ".TP\n";
  addRequest(page, "B", term);
  page += troff(text) + '\n';
}

void addOptions(std::string& page, const std::vector<OptionText>& options) {
  for (const OptionText& option : options) addItem(page, termOf(option), said(option.text) + '.');
}

void addCommand(std::string& page, const CommandText& command) {
  page += ".SS \"" + troff(usageOf(command)) + "\"\n";
  page += troff(said(command.summary)) + ".\n";
  for (const char* paragraph : command.details) page += ".PP\n" + troff(said(paragraph)) + '\n';
  addOptions(page, command.options);
}

/// The head of a section.
std::string head(const char* title) {
  return ".SH " + said(title) + '\n';
}

void addExamples(std::string& page) {
  page += head(QT_TRANSLATE_NOOP("Texts", "EXAMPLES"));
  for (const CommandText& command : commandTexts()) {
    for (const ExampleText& example : command.examples) {
      addItem(page, example.line, said(example.text) + '.');
    }
  }
}

/// The command that an inner one belongs to; empty for others.
std::string_view outerOf(const CommandText& command) {
  const std::size_t blank = command.name.find(' ');
  return blank == std::string_view::npos ? std::string_view() : command.name.substr(0, blank);
}

}  // namespace

std::string helpOfProgram() {
  std::string text = said(QT_TRANSLATE_NOOP("Texts", "quorvin-cli [option] COMMAND ...")) + '\n';
  text += said(
      QT_TRANSLATE_NOOP("Texts", "Quorvin Utility in the terminal: search and make catalogues of disks."));
  text += '\n' +
          said(QT_TRANSLATE_NOOP("Texts",
                                 "quorvin-cli COMMAND --help says more of each; man quorvin-cli says all.")) +
          '\n';
  // Without lines before the titles: with the prompt behind it, the help is to fit on 24 lines.
  text += said(QT_TRANSLATE_NOOP("Texts", "Commands:")) + '\n';
  for (const CommandText& command : commandTexts()) {
    if (outerOf(command).empty()) addLine(text, command.name, said(command.summary), kProgramColumn);
  }
  text += said(QT_TRANSLATE_NOOP("Texts", "Options:")) + '\n';
  for (const OptionText& option : programOptions())
    addLine(text, termOf(option), said(option.text), kProgramColumn);
  return text;
}

std::string helpOf(const CommandText& command) {
  std::string text = usageOf(command) + '\n' + said(command.summary) + ".\n\n";
  for (const CommandText& inner : commandTexts()) {
    if (outerOf(inner) == command.name) addLine(text, inner.name, said(inner.summary), kCommandColumn);
  }
  for (const OptionText& option : command.options)
    addLine(text, termOf(option), said(option.text), kCommandColumn);
  if (!command.examples.empty()) text += '\n' + said(QT_TRANSLATE_NOOP("Texts", "Examples:")) + '\n';
  for (const ExampleText& example : command.examples) text += "  " + std::string(example.line) + '\n';
  return text;
}

std::string manualPage(std::string_view version) {
  std::string page = ".\\\" Made by: quorvin-cli --man\n.TH QUORVIN\\-CLI 1 \"\" \"Quorvin Utility " +
                     std::string(version) + "\" \"" + said(QT_TRANSLATE_NOOP("Texts", "User commands")) +
                     "\"\n";
  page += head(QT_TRANSLATE_NOOP("Texts", "NAME")) + "quorvin\\-cli \\- ";
  page +=
      troff(said(QT_TRANSLATE_NOOP("Texts", "search and make listings of disks, drives and shares"))) + '\n';
  page += head(QT_TRANSLATE_NOOP("Texts", "SYNOPSIS")) + ".nf\n";
  for (const CommandText& command : commandTexts()) addRequest(page, "B", usageOf(command));
  page += ".fi\n" + head(QT_TRANSLATE_NOOP("Texts", "DESCRIPTION"));
  page += troff(said(QT_TRANSLATE_NOOP(
              "Texts",
              "Finds files in listings, the catalogues of disks and folders, and makes such listings."))) +
          '\n';
  page += troff(said(QT_TRANSLATE_NOOP("Texts", "It uses the same settings and folders as the window,")));
  page += "\n.BR quorvin (1).\n" + head(QT_TRANSLATE_NOOP("Texts", "OPTIONS"));
  addOptions(page, programOptions());
  page += head(QT_TRANSLATE_NOOP("Texts", "COMMANDS"));
  for (const CommandText& command : commandTexts()) addCommand(page, command);
  for (const SectionText& section : manualSections()) {
    page += head(section.title);
    for (const SectionText::Item& item : section.items) {
      if (item.term.empty()) {
        page += troff(said(item.text)) + '\n';
      } else {
        addItem(page, item.term, said(item.text));
      }
    }
  }
  addExamples(page);
  return page + head(QT_TRANSLATE_NOOP("Texts", "SEE ALSO")) + ".BR quorvin (1)\n";
}

}  // namespace quorvin
