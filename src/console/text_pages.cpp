#include "console/text_pages.h"

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
  if (!command.options.empty()) usage += " [options]";
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
  for (const OptionText& option : options) addItem(page, termOf(option), std::string(option.text) + '.');
}

void addCommand(std::string& page, const CommandText& command) {
  page += ".SS \"" + troff(usageOf(command)) + "\"\n";
  page += troff(command.summary) + ".\n";
  for (const std::string_view paragraph : command.details) page += ".PP\n" + troff(paragraph) + '\n';
  addOptions(page, command.options);
}

void addExamples(std::string& page) {
  page += ".SH EXAMPLES\n";
  for (const CommandText& command : commandTexts()) {
    for (const ExampleText& example : command.examples) {
      addItem(page, example.line, std::string(example.text) + '.');
    }
  }
}

}  // namespace

std::string helpOfProgram() {
  std::string text =
      "quorvin-cli [option] COMMAND ...\n"
      "Quorvin Utility in the terminal: search and make catalogues of disks.\n\nCommands:\n";
  for (const CommandText& command : commandTexts())
    addLine(text, command.name, command.summary, kProgramColumn);
  text += "\nOptions:\n";
  for (const OptionText& option : programOptions())
    addLine(text, termOf(option), option.text, kProgramColumn);
  return text + "\nquorvin-cli COMMAND --help says more of each; man quorvin-cli says all.\n";
}

std::string helpOf(const CommandText& command) {
  std::string text = usageOf(command) + '\n' + std::string(command.summary) + ".\n\n";
  for (const OptionText& option : command.options) addLine(text, termOf(option), option.text, kCommandColumn);
  if (!command.examples.empty()) text += "\nExamples:\n";
  for (const ExampleText& example : command.examples) text += "  " + std::string(example.line) + '\n';
  return text;
}

std::string manualPage(std::string_view version) {
  std::string page =
      ".\\\" Made by: quorvin-cli --man\n.TH QUORVIN\\-CLI 1 \"\" \"Quorvin Utility " + std::string(version) +
      "\" \"User commands\"\n.SH NAME\nquorvin\\-cli \\- search and make listings of disks, drives "
      "and shares\n.SH SYNOPSIS\n.nf\n";
  for (const CommandText& command : commandTexts()) addRequest(page, "B", usageOf(command));
  page +=
      ".fi\n.SH DESCRIPTION\nFinds files in listings, the catalogues of disks and folders, and makes such "
      "listings.\nIt uses the same settings and folders as the window,\n.BR quorvin (1).\n";
  page += ".SH OPTIONS\n";
  addOptions(page, programOptions());
  page += ".SH COMMANDS\n";
  for (const CommandText& command : commandTexts()) addCommand(page, command);
  for (const SectionText& section : manualSections()) {
    page += ".SH " + std::string(section.title) + '\n';
    for (const SectionText::Item& item : section.items) {
      if (item.term.empty()) {
        page += troff(item.text) + '\n';
      } else {
        addItem(page, item.term, item.text);
      }
    }
  }
  addExamples(page);
  return page + ".SH SEE ALSO\n.BR quorvin (1)\n";
}

}  // namespace quorvin
