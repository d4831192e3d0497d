// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/text_pages.h"

#include <algorithm>

namespace quorvin {

namespace {

/// A row of "quorvin-cli sources" starts with its kind and its description.
constexpr std::string_view kOwnFolders =
    "quorvin-cli sources --quiet 2>/dev/null | awk -F '\\t' '$1 == \"folder\" {print $2}'";

std::vector<std::string_view> namesOf(const OptionText& option) {
  const std::size_t comma = option.names.find(',');
  if (comma == std::string_view::npos) return {option.names};
  return {option.names.substr(0, comma), option.names.substr(comma + 1)};
}

bool isWithin(const CommandText& command) {
  return command.name.find(' ') != std::string_view::npos;
}

/// The word that comes last: "add" of "sources add".
std::string_view lastWord(std::string_view name) {
  return name.substr(name.find(' ') == std::string_view::npos ? 0 : name.find(' ') + 1);
}

/// The commands of the program, or those within `command`, with blanks between.
std::string commandsIn(std::string_view command) {
  std::string words;
  for (const CommandText& text : commandTexts()) {
    const bool isIn = command.empty() ? !isWithin(text) : text.name.starts_with(std::string(command) + ' ');
    if (!isIn) continue;
    if (!words.empty()) words += ' ';
    words += lastWord(text.name);
  }
  return words;
}

std::string optionWords(const std::vector<OptionText>& options) {
  std::string words;
  for (const OptionText& option : options) {
    for (const std::string_view name : namesOf(option)) words += std::string(name) + ' ';
  }
  return words + "--help";
}

std::string_view bashArguments(ArgumentKind kind) {
  switch (kind) {
    case ArgumentKind::None:
      return "";
    case ArgumentKind::Files:
      return "_quorvin_files -f";
    case ArgumentKind::Folders:
      return "_quorvin_files -d";
    case ArgumentKind::OwnFolders:
      return "_quorvin_lines \"$(_quorvin_own_folders)\"";
  }
  return "";
}

/// What completes the value of each option that has one.
std::string bashValues(const std::vector<OptionText>& options, std::string_view indent) {
  std::string cases;
  for (const OptionText& option : options) {
    if (option.value.empty()) continue;
    cases += std::string(indent) + std::string(namesOf(option).back()) + ") ";
    if (option.value == "FILE") {
      cases += "_quorvin_files -f";
    } else if (option.value == "FOLDER") {
      cases += "_quorvin_files -d";
    } else if (option.value == "LIST") {
      cases += "_quorvin_list \"" + std::string(option.choices) + '"';
    } else {
      cases += "_quorvin_words \"" + std::string(option.choices) + '"';
    }
    cases += "; return ;;\n";
  }
  return cases;
}

std::string bashCompletion() {
  std::string script =
      "# Made by: quorvin-cli --completion bash\n"
      "_quorvin_own_folders() {\n  " +
      std::string(kOwnFolders) +
      "\n}\n"
      "_quorvin_words() {\n  mapfile -t COMPREPLY < <(compgen -W \"$1\" -- \"$cur\")\n}\n"
      "_quorvin_list() {\n"
      "  local before=\"\"\n"
      "  [[ $cur == *,* ]] && before=\"${cur%,*},\"\n"
      "  compopt -o nospace\n"
      "  mapfile -t COMPREPLY < <(compgen -P \"$before\" -W \"$1\" -- \"${cur##*,}\")\n}\n"
      "_quorvin_lines() {\n"
      "  local line\n"
      "  while IFS= read -r line; do\n"
      "    [[ -n $line && $line == \"$cur\"* ]] && COMPREPLY+=(\"$(printf '%q' \"$line\")\")\n"
      "  done <<< \"$1\"\n}\n"
      "_quorvin_files() {\n"
      "  compopt -o filenames\n"
      "  mapfile -t COMPREPLY < <(compgen \"$1\" -- \"$cur\")\n}\n"
      "_quorvin_cli() {\n"
      "  local cur=\"${COMP_WORDS[COMP_CWORD]}\" prev=\"${COMP_WORDS[COMP_CWORD - 1]}\" command=\"\" word\n"
      "  COMPREPLY=()\n"
      "  for word in \"${COMP_WORDS[@]:1:COMP_CWORD - 1}\"; do\n"
      "    case \"$command $word\" in\n";
  for (const CommandText& command : commandTexts()) {
    const std::string words = isWithin(command) ? std::string(command.name) : ' ' + std::string(command.name);
    script += "      \"" + words + "\") command=\"" + std::string(command.name) + "\" ;;\n";
  }
  script += "    esac\n  done\n  case \"$command\" in\n    \"\")\n      case \"$prev\" in\n" +
            bashValues(programOptions(), "        ") + "      esac\n      _quorvin_words \"" +
            commandsIn("") + " --version --completion --man --help\"\n      ;;\n";
  for (const CommandText& command : commandTexts()) {
    script += "    \"" + std::string(command.name) + "\")\n";
    const std::string values = bashValues(command.options, "        ");
    if (!values.empty()) script += "      case \"$prev\" in\n" + values + "      esac\n";
    script += "      if [[ $cur == -* ]]; then\n        _quorvin_words \"" + optionWords(command.options) +
              "\"\n        return\n      fi\n";
    const std::string within = commandsIn(command.name);
    if (!within.empty()) script += "      _quorvin_words \"" + within + "\"\n";
    const std::string_view arguments = bashArguments(command.argumentKind);
    if (!arguments.empty()) script += "      " + std::string(arguments) + '\n';
    script += "      ;;\n";
  }
  return script + "  esac\n}\ncomplete -F _quorvin_cli quorvin-cli\n";
}

/// In single quotes.
std::string inQuotes(std::string_view text) {
  std::string result = "'";
  for (const char byte : text) {
    if (byte == '\'') {
      result += "'\\''";
    } else {
      result += byte;
    }
  }
  return result + '\'';
}

/// In the descriptions of _arguments brackets and colons have a meaning.
std::string zshText(std::string_view text) {
  std::string result;
  for (const char byte : text) {
    if (byte == '[' || byte == ']' || byte == ':') result += '\\';
    result += byte;
  }
  return result;
}

std::string zshOption(const OptionText& option) {
  const std::vector<std::string_view> names = namesOf(option);
  std::string value;
  if (!option.value.empty()) {
    const std::string_view kind = option.value == "FILE"     ? "_files"
                                  : option.value == "FOLDER" ? "_files -/"
                                                             : "";
    const std::string choices =
        option.value == "LIST"
            ? "_values -s , field " + std::string(option.choices)
            : (option.choices.empty() ? std::string() : "(" + std::string(option.choices) + ")");
    value = ':' + std::string(option.value) + ':' + std::string(kind) + choices;
  }
  std::string options;
  for (const std::string_view name : names) {
    options += " \\\n        " + inQuotes(std::string(name) + '[' + zshText(said(option.text)) + ']' + value);
  }
  return options;
}

std::string_view zshArguments(ArgumentKind kind) {
  switch (kind) {
    case ArgumentKind::None:
      return "";
    case ArgumentKind::Files:
      return " \\\n        '*:file:_files'";
    case ArgumentKind::Folders:
      return " \\\n        '*:folder:_files -/'";
    case ArgumentKind::OwnFolders:
      return " \\\n        '*:folder:_quorvin_own_folders'";
  }
  return "";
}

std::string zshCommands(std::string_view of) {
  std::string lines;
  for (const CommandText& command : commandTexts()) {
    const bool isIn = of.empty() ? !isWithin(command) : command.name.starts_with(std::string(of) + ' ');
    if (!isIn) continue;
    lines += " \\\n        " + inQuotes(std::string(lastWord(command.name)) + ':' + said(command.summary));
  }
  return lines;
}

std::string zshCompletion() {
  std::string script =
      "#compdef quorvin-cli\n# Made by: quorvin-cli --completion zsh\n"
      "_quorvin_own_folders() {\n"
      "  local -a folders\n"
      "  folders=(${(f)\"$(" +
      std::string(kOwnFolders) +
      ")\"})\n  compadd -a folders\n}\n"
      "_quorvin_cli() {\n"
      "  local command=\"$words[2]\"\n"
      "  if (( CURRENT == 2 )); then\n"
      "    local -a commands\n"
      "    commands=(" +
      zshCommands("") + ")\n    _describe command commands\n    _arguments";
  for (const OptionText& option : programOptions()) script += zshOption(option);
  script += "\n    return\n  fi\n  shift words\n  (( CURRENT-- ))\n";
  for (const CommandText& command : commandTexts()) {
    if (isWithin(command) || commandsIn(command.name).empty()) continue;
    const std::string name(command.name);
    script +=
        "  if [[ $command == " + name + " ]]; then\n    if (( CURRENT == 2 )); then\n      local -a inner\n" +
        "      inner=(" + zshCommands(name) + ")\n      _describe command inner\n    else\n" +
        "      case \"$words[2]\" in\n        " +
        [&] {
          std::string all = commandsIn(name);
          std::ranges::replace(all, ' ', '|');
          return all;
        }() +
        ") command=\"" + name + " $words[2]\"; shift words; (( CURRENT-- )) ;;\n      esac\n    fi\n  fi\n";
  }
  script += "  case \"$command\" in\n";
  for (const CommandText& command : commandTexts()) {
    script += "    " + inQuotes(command.name) + ")\n      _arguments";
    for (const OptionText& option : command.options) script += zshOption(option);
    script += " \\\n        '--help[Show the help of this command]'";
    script += std::string(zshArguments(command.argumentKind)) + "\n      ;;\n";
  }
  return script + "  esac\n}\n_quorvin_cli \"$@\"\n";
}

std::string fishOption(const OptionText& option, const std::string& condition) {
  std::string line = "complete -c quorvin-cli" + condition;
  for (const std::string_view name : namesOf(option)) {
    line +=
        name.starts_with("--") ? " -l " + std::string(name.substr(2)) : " -s " + std::string(name.substr(1));
  }
  if (!option.value.empty()) line += option.value == "FILE" ? " -r -F" : " -x";
  if (option.value == "FOLDER") line += " -a '(__fish_complete_directories)'";
  if (!option.choices.empty()) line += " -a " + inQuotes(option.choices);
  return line + " -d " + inQuotes(said(option.text)) + '\n';
}

/// True while this command is being typed.
std::string fishCondition(const CommandText& command) {
  std::string condition;
  const std::string name(command.name);
  const std::size_t blank = name.find(' ');
  condition = "__fish_seen_subcommand_from " + name.substr(0, blank);
  if (blank != std::string::npos) condition += "; and __fish_seen_subcommand_from " + name.substr(blank + 1);
  const std::string within = commandsIn(name);
  if (!within.empty()) condition += "; and not __fish_seen_subcommand_from " + within;
  return " -n " + inQuotes(condition);
}

std::string fishArguments(const CommandText& command) {
  const std::string start = "complete -c quorvin-cli" + fishCondition(command);
  switch (command.argumentKind) {
    case ArgumentKind::None:
      return "";
    case ArgumentKind::Files:
      return start + " -F\n";
    case ArgumentKind::Folders:
      return start + " -a '(__fish_complete_directories)'\n";
    case ArgumentKind::OwnFolders:
      return start + " -a '(__quorvin_own_folders)'\n";
  }
  return "";
}

std::string fishCompletion() {
  std::string script = "# Made by: quorvin-cli --completion fish\nfunction __quorvin_own_folders\n    " +
                       std::string(kOwnFolders) + "\nend\ncomplete -c quorvin-cli -f\n";
  const std::string none = " -n '__fish_use_subcommand'";
  for (const OptionText& option : programOptions()) script += fishOption(option, none);
  for (const CommandText& command : commandTexts()) {
    const std::size_t blank = command.name.find(' ');
    const std::string condition =
        blank == std::string_view::npos ? none : fishCondition(commandText(command.name.substr(0, blank)));
    script += "complete -c quorvin-cli" + condition + " -a " + std::string(lastWord(command.name)) + " -d " +
              inQuotes(said(command.summary)) + '\n';
  }
  for (const CommandText& command : commandTexts()) {
    for (const OptionText& option : command.options) script += fishOption(option, fishCondition(command));
    script += fishArguments(command);
  }
  return script;
}

}  // namespace

std::string completionFor(std::string_view shell) {
  if (shell == "bash") return bashCompletion();
  if (shell == "zsh") return zshCompletion();
  if (shell == "fish") return fishCompletion();
  return {};
}

}  // namespace quorvin
