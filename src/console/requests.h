// SPDX-License-Identifier: GPL-2.0-or-later

// What the command line asks of the commands, out of the texts of its options.
#pragma once

#include "console/commands.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// An argument, and one of our own texts, as text.
QString textOf(const std::string& argument);
QString textOf(std::string_view text);

/// What was given for the options of a command, by their long names.
class Given {
 public:
  std::string& value(std::string_view name) { return values_[std::string(name)]; }
  bool& flag(std::string_view name) { return flags_[std::string(name)]; }

  bool has(const std::string& name) const { return flags_.contains(name) && flags_.at(name); }
  /// Nothing where the option was not given.
  std::optional<QString> text(const std::string& name) const {
    return given_(name) ? std::optional(textOf(values_.at(name))) : std::nullopt;
  }
  void askParser(std::function<bool(const std::string&)> given) { given_ = std::move(given); }

  /// What follows the options.
  std::string needed;
  std::vector<std::string> others;

  QStringList texts() const {
    QStringList texts;
    for (const std::string& argument : others) texts += textOf(argument);
    return texts;
  }

 private:
  std::map<std::string, std::string> values_;
  std::map<std::string, bool> flags_;
  std::function<bool(const std::string&)> given_;
};

/// A mistake in the command line, as a sentence.
struct Mistake {
  QString sentence;
};

/// These throw Mistake.
FindRequest findRequestOf(const Given& given);
CopiesRequest copiesRequestOf(const Given& given);
CompareRequest compareRequestOf(const Given& given);
PlanRequest planRequestOf(const Given& given);
VolumesRequest volumesRequestOf(const Given& given);
VerifyRequest verifyRequestOf(const Given& given);

}  // namespace quorvin
