// SPDX-License-Identifier: GPL-2.0-or-later

// Running a test once with each set of vector instructions that the search was compiled for.
#pragma once

#include "platform/instruction_set.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvin::test {

/// The search uses this one instruction set for as long as the object lives.
class OnlyInstructionSet {
 public:
  explicit OnlyInstructionSet(InstructionSet set) { useInstructionSet(set); }
  ~OnlyInstructionSet() { useInstructionSet(std::nullopt); }
  OnlyInstructionSet(const OnlyInstructionSet&) = delete;
  OnlyInstructionSet& operator=(const OnlyInstructionSet&) = delete;
};

/// Base of tests that run once with each instruction set; to be instantiated with everyInstructionSet().
class InstructionSetTest : public testing::TestWithParam<InstructionSet> {
 private:
  OnlyInstructionSet only_{GetParam()};
};

/// All that this processor has, best first; the baseline is always among them.
inline std::vector<InstructionSet> instructionSets() {
  std::vector<InstructionSet> sets;
  for (std::size_t set = 0; set < kInstructionSetCount; ++set) {
    if (canRun(static_cast<InstructionSet>(set))) sets.push_back(static_cast<InstructionSet>(set));
  }
  return sets;
}

inline auto everyInstructionSet() {
  return testing::ValuesIn(instructionSets());
}

inline std::string instructionSetName(const testing::TestParamInfo<InstructionSet>& set) {
  static const char* const names[kInstructionSetCount] = {"Avx512", "Avx2", "Sse4", "Ssse3", "Baseline"};
  return names[static_cast<std::size_t>(set.param)];
}

}  // namespace quorvin::test
