// Running a test once with each set of vector instructions that the search was compiled for.
#pragma once

#include <gtest/gtest.h>
#include <hwy/targets.h>

#include <cstdint>
#include <string>

namespace quorvin::test {

/// The search uses this one instruction set for as long as the object lives.
class OnlyInstructionSet {
 public:
  explicit OnlyInstructionSet(std::int64_t target) { hwy::SetSupportedTargetsForTest(target); }
  ~OnlyInstructionSet() { hwy::SetSupportedTargetsForTest(0); }
  OnlyInstructionSet(const OnlyInstructionSet&) = delete;
  OnlyInstructionSet& operator=(const OnlyInstructionSet&) = delete;
};

/// Base of tests that run once with each instruction set; to be instantiated with everyInstructionSet().
class InstructionSetTest : public testing::TestWithParam<std::int64_t> {
 private:
  OnlyInstructionSet only_{GetParam()};
};

/// All that this processor has and the search was compiled for; on x86 the one without vectors is among them.
inline auto everyInstructionSet() {
  return testing::ValuesIn(hwy::SupportedAndGeneratedTargets());
}

inline std::string instructionSetName(const testing::TestParamInfo<std::int64_t>& set) {
  return hwy::TargetName(set.param);
}

}  // namespace quorvin::test
