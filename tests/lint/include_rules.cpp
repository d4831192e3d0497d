// SPDX-License-Identifier: GPL-2.0-or-later
#include "lint/include_rules.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace quorvin::lint {
namespace {

constexpr std::string_view kSourceFolder = "src/";
constexpr std::string_view kTable = "tests/lint/include_rules.txt";

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += text.empty() ? word : ", " + word;
  return text.empty() ? "nothing of ours" : text;
}

/// "peers/server" for "peers/server/peer_server.h"; empty when there is no folder.
std::string roomOf(std::string_view header) {
  const std::size_t slash = header.rfind('/');
  return std::string(slash == std::string_view::npos ? "" : header.substr(0, slash));
}

std::string belowSource(const SourceFile& file) {
  return file.path.starts_with(kSourceFolder) ? file.path.substr(kSourceFolder.size()) : file.path;
}

std::string placeOf(const SourceFile& file, const Include& include) {
  const std::string header = include.quoted ? "\"" + include.header + "\"" : "<" + include.header + ">";
  return file.path + ":" + std::to_string(include.line) + " includes " + header;
}

}  // namespace

std::vector<Include> includesOf(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::vector<Include> includes;
  int number = 0;
  for (std::string line; std::getline(stream, line);) {
    ++number;
    std::string_view rest = line;
    const auto skipBlanks = [&rest] {
      rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    };
    skipBlanks();
    if (!rest.starts_with('#')) continue;
    rest.remove_prefix(1);
    skipBlanks();
    if (!rest.starts_with("include")) continue;
    rest.remove_prefix(std::string_view("include").size());
    skipBlanks();
    if (!rest.starts_with('"') && !rest.starts_with('<')) continue;
    const bool quoted = rest.front() == '"';
    rest.remove_prefix(1);
    includes.push_back({number, std::string(rest.substr(0, rest.find(quoted ? '"' : '>'))), quoted});
  }
  return includes;
}

IncludeRules IncludeRules::parse(std::string_view text) {
  IncludeRules rules;
  std::istringstream stream{std::string(text)};
  int number = 0;
  for (std::string line; std::getline(stream, line);) {
    ++number;
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t colon = line.find(':');
    const std::vector<std::string> head = wordsOf(line.substr(0, colon));
    const bool isRoom = head.size() == 2 && head[0] == "room";
    const bool isWidgets = head.size() == 1 && head[0] == "widgets";
    if (colon == std::string::npos || (!isRoom && !isWidgets)) {
      throw std::invalid_argument("line " + std::to_string(number) +
                                  " is neither \"room NAME: ...\" nor \"widgets: ...\"");
    }
    const std::vector<std::string> words = wordsOf(line.substr(colon + 1));
    if (isWidgets) {
      rules.widgetFiles_.insert(rules.widgetFiles_.end(), words.begin(), words.end());
    } else {
      rules.addRoom(number, head[1], words);
    }
  }
  return rules;
}

void IncludeRules::addRoom(int line, const std::string& room, const std::vector<std::string>& permits) {
  const std::string place = "line " + std::to_string(line);
  if (allowed_.contains(room)) throw std::invalid_argument(place + " names the room " + room + " again");
  for (const std::string& permit : permits) {
    const std::string permitted = permit.ends_with(".h") ? roomOf(permit) : permit;
    if (allowed_.contains(permitted)) continue;
    throw std::invalid_argument(place + " lets " + room + " include " + permit +
                                ", which is no room of a line above; an arrow upwards would make a circle");
  }
  allowed_.emplace(room, permits);
}

std::vector<std::string> IncludeRules::rooms() const {
  std::vector<std::string> names;
  for (const auto& [room, allowed] : allowed_) names.push_back(room);
  return names;
}

bool IncludeRules::mayInclude(const std::string& room, const std::string& header) const {
  if (roomOf(header) == room) return true;
  return std::ranges::any_of(allowed_.at(room), [&](const std::string& permit) {
    return permit == header || permit == roomOf(header);
  });
}

std::vector<std::string> IncludeRules::brokenIncludes(const SourceFile& file) const {
  const std::string room = roomOf(belowSource(file));
  if (!allowed_.contains(room)) {
    return {file.path + " is in a room that " + std::string(kTable) + " does not know; add a line for it"};
  }
  std::vector<std::string> broken;
  for (const Include& include : includesOf(file.text)) {
    if (!include.quoted || include.header.ends_with(".moc")) continue;
    if (!allowed_.contains(roomOf(include.header))) {
      broken.push_back(placeOf(file, include) + ", which is not written from src/ on; write \"ROOM/" +
                       include.header.substr(include.header.rfind('/') + 1) +
                       "\", or angle brackets if it is not ours");
    } else if (!mayInclude(room, include.header)) {
      broken.push_back(
          placeOf(file, include) + ", but " + room + " may include only: " + joined(allowed_.at(room)) +
          "; move what is needed into one of these, or hand it in through an interface (the table is " +
          std::string(kTable) + ")");
    }
  }
  return broken;
}

std::vector<std::string> IncludeRules::unusedPermits(const std::vector<SourceFile>& files) const {
  std::set<std::pair<std::string, std::string>> used;
  for (const SourceFile& file : files) {
    const std::string room = roomOf(belowSource(file));
    for (const Include& include : includesOf(file.text)) {
      used.emplace(room, include.header);
      used.emplace(room, roomOf(include.header));
    }
  }
  std::vector<std::string> unused;
  for (const auto& [room, permits] : allowed_) {
    for (const std::string& permit : permits) {
      if (used.contains({room, permit})) continue;
      unused.push_back(room + " may include " + permit + " and does not; take the permit out of " +
                       std::string(kTable));
    }
  }
  return unused;
}

bool IncludeRules::mayUseWidgets(std::string_view path) const {
  const std::string_view stem = path.substr(0, path.rfind('.'));
  return std::ranges::any_of(
      widgetFiles_, [&](const std::string& name) { return stem == name || stem.starts_with(name + "_"); });
}

std::vector<std::string> IncludeRules::brokenWidgets(
    const SourceFile& file, const std::function<bool(const std::string&)>& isWidgetsHeader) const {
  if (mayUseWidgets(belowSource(file))) return {};
  std::vector<std::string> broken;
  for (const Include& include : includesOf(file.text)) {
    if (include.quoted || !isWidgetsHeader(include.header)) continue;
    broken.push_back(
        placeOf(file, include) +
        ", but QtWidgets belong to windows and views; move the logic out of the window, or, if this "
        "file is a window, name it in " +
        std::string(kTable));
  }
  return broken;
}

}  // namespace quorvin::lint
