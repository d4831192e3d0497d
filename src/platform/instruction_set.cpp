// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/instruction_set.h"

namespace quorvin {

namespace {

InstructionSet bestInstructionSet() {
  std::size_t set = 0;
  while (!canRun(static_cast<InstructionSet>(set))) ++set;
  return static_cast<InstructionSet>(set);
}

InstructionSet& used() {
  static InstructionSet set = bestInstructionSet();
  return set;
}

}  // namespace

#if defined(__x86_64__) || defined(__i386__)

bool canRun(InstructionSet set) {
  switch (set) {
    case InstructionSet::Avx512:
      return canRun(InstructionSet::Avx2) && __builtin_cpu_supports("avx512f") &&
             __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq") &&
             __builtin_cpu_supports("avx512bw");
    case InstructionSet::Avx2:
      return canRun(InstructionSet::Sse4) && __builtin_cpu_supports("avx2") &&
             __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("fma");
    case InstructionSet::Sse4:
      return canRun(InstructionSet::Ssse3) && __builtin_cpu_supports("sse4.2") &&
             __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("aes");
    case InstructionSet::Ssse3:
      return __builtin_cpu_supports("ssse3");
    case InstructionSet::Baseline:
      break;
  }
  return true;
}

#else

/// On other processors the compiler's own target is all that is compiled for.
bool canRun(InstructionSet set) {
  return set == InstructionSet::Baseline;
}

#endif

InstructionSet usedInstructionSet() {
  return used();
}

void useInstructionSet(std::optional<InstructionSet> set) {
  used() = set ? *set : bestInstructionSet();
}

}  // namespace quorvin
