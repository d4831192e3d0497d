// SPDX-License-Identifier: GPL-2.0-or-later

// Message boxes for tests: they record what is shown and give the answers that were set.
#pragma once

#include "platform/message_box.h"

#include <QString>

#include <deque>
#include <functional>
#include <limits>
#include <vector>

namespace quorvin {

class RecordingMessageBoxes : public MessageBoxes {
 public:
  void inform(const QString& text) override { informed.push_back(text); }

  /// Records the text, and wants no more of its kind once `mostOfAKind` were shown.
  bool informOneOfMany(const QString& text) override {
    inform(text);
    return ++shownOfAKind < mostOfAKind;
  }

  /// Records the question and gives the next of `answers`; No when there is none left.
  bool askYesNo(const QString& text) override {
    asked.push_back(text);
    if (whenAsked) whenAsked();
    if (answers.empty()) return false;
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
  }

  /// Records the question and gives the next of `faultAnswers`; Closed when there is none left.
  FaultAnswer askAbortRetryIgnore(const QString& text) override {
    askedOfFaults.push_back(text);
    if (whenAskedOfFault) whenAskedOfFault();
    if (faultAnswers.empty()) return FaultAnswer::Closed;
    const FaultAnswer answer = faultAnswers.front();
    faultAnswers.pop_front();
    return answer;
  }

  /// The texts shown with an OK button, and those of the questions, each in the order shown.
  std::vector<QString> informed;
  std::vector<QString> asked;
  std::vector<QString> askedOfFaults;
  int mostOfAKind = std::numeric_limits<int>::max();
  int shownOfAKind = 0;
  /// Called while a question with Yes and No is shown; may be empty.
  std::function<void()> whenAsked;
  /// Called while a question about a fault is shown; may be empty.
  std::function<void()> whenAskedOfFault;
  /// What the coming questions are answered with: true for Yes.
  std::deque<bool> answers;
  std::deque<FaultAnswer> faultAnswers;
};

}  // namespace quorvin
